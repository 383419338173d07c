#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "tests/module/any_moment.h"

#if defined(__SANITIZE_ADDRESS__)
extern "C" void __lsan_do_leak_check();
#endif

namespace {

int Run(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 4 || argv[1] != std::string_view("--cell")) return RUN_ALL_TESTS();
  const rlimit noCore = {0, 0};
  setrlimit(RLIMIT_CORE, &noCore);
  QApplication::setQuitOnLastWindowClosed(false);
  const auto& moment = anymoment::Moments()[static_cast<std::size_t>(std::atoi(argv[2]))];
  return anymoment::Scene(moment, static_cast<anymoment::Call>(std::atoi(argv[3]))).Play();
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const int status = Run(argc, argv);
#if defined(__SANITIZE_ADDRESS__)
  // Qt's threads end later, and a check while they end takes what they hold for lost.
  std::fflush(nullptr);
  __lsan_do_leak_check();
  std::_Exit(status);
#endif
  return status;
}
