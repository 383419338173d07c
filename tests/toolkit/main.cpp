#include <gtest/gtest.h>

#include <QApplication>

#include "toolkit/application.h"

namespace {

// Each case gets an application of its own, which ends with all its forms.
class FreshApplication : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo&) override { CreateApplication(); }
  void OnTestEnd(const testing::TestInfo&) override { DestroyApplication(); }
};

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  testing::UnitTest::GetInstance()->listeners().Append(new FreshApplication);
  return RUN_ALL_TESTS();
}
