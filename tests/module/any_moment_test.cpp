// Any call at any moment, each in a process of its own: main() plays the cell that the arguments name.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cctype>
#include <cstdio>
#include <filesystem>

#include "tests/module/any_moment.h"

namespace {

constexpr int kSecondsOfACell = 30;

class AnyMoment : public testing::TestWithParam<std::size_t> {};

TEST_P(AnyMoment, TakesAnyCall) {
  static const std::string kSelf = std::filesystem::read_symlink("/proc/self/exe");
  for (std::size_t call = 0; call < std::size(anymoment::kCalls); ++call) {
    const std::string command = "timeout -s KILL " + std::to_string(kSecondsOfACell) + " '" + kSelf +
                                "' --cell " + std::to_string(GetParam()) + " " + std::to_string(call) +
                                " 2>&1";
    FILE* output = popen(command.c_str(), "r");
    std::string said;
    std::array<char, 4096> piece;
    while (std::fgets(piece.data(), piece.size(), output)) said += piece.data();
    const int status = pclose(output);
    EXPECT_EQ(status, 0) << "cell: " << anymoment::Moments()[GetParam()].name << " / "
                         << anymoment::kCalls[call] << ", status "
                         << (WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status)) << "\n"
                         << said;
  }
}

INSTANTIATE_TEST_SUITE_P(Module, AnyMoment, testing::Range<std::size_t>(0, anymoment::Moments().size()),
                         [](const auto& row) {
                           std::string name = anymoment::Moments()[row.param].name;
                           for (char& letter : name) {
                             if (!std::isalnum(static_cast<unsigned char>(letter))) letter = '_';
                           }
                           return name;
                         });

}  // namespace
