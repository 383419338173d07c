// No case of a test program waits for ever, however the program is started: one that runs too long ends the
// program and says which it was. Linked into every test program.
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace {

std::array<char, 200> g_reason;

// A handler of signals may only write and end.
void GiveUp(int) {
  [[maybe_unused]] const auto written =
      write(STDERR_FILENO, g_reason.data(), strnlen(g_reason.data(), g_reason.size()));
  std::_Exit(EXIT_FAILURE);
}

class Patience : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo& test) override {
    std::snprintf(g_reason.data(), g_reason.size(), "%s.%s didn't end within %d seconds\n",
                  test.test_suite_name(), test.name(), NORVIK_TEST_PATIENCE);
    std::signal(SIGALRM, &GiveUp);
    alarm(NORVIK_TEST_PATIENCE);
  }
  void OnTestEnd(const testing::TestInfo&) override { alarm(0); }
};

const bool kListens = [] {
  testing::UnitTest::GetInstance()->listeners().Append(new Patience);
  return true;
}();

}  // namespace
