#include <gtest/gtest.h>

#include <QApplication>
#include <string_view>

#include "tests/dialogs/busy_on_x11.h"

#if defined(__SANITIZE_ADDRESS__)
// The message bus that Qt asks on a real display keeps a buffer until the end.
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libdbus-1.so";
}
#endif

// Real widgets, without a display unless one is asked for. With --busy-on-x11 the program is the one that
// BusyOnX11 starts on a display of its own.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  if (argc > 1 && std::string_view(argv[1]) == kBusyOnX11) return RunBusyOnX11();
  return RUN_ALL_TESTS();
}
