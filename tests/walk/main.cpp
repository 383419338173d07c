#include <gtest/gtest.h>

#include <QApplication>

// A desk of a usual size, drawn in memory; the cursor of an edit stands still, so that a picture shows only
// what the control holds.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" WALK_SCREEN);
  const QApplication application(argc, argv);
  QApplication::setCursorFlashTime(0);
  return RUN_ALL_TESTS();
}
