#include "demohost/check/child.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <string.h>
#include <sys/wait.h>
#include <unistd.h>
// The header of glibc 2.36 declares its functions for C only.
extern "C" {
#include <sys/pidfd.h>
}

#include <cerrno>
#include <chrono>
#include <system_error>

#include "demohost/check/report.h"

namespace demohost::check {
namespace {

[[noreturn]] void Refuse(int error, const char* what) {
  throw std::system_error(error, std::generic_category(), what);
}

// Starts this program in a process group of its own.
pid_t Start(const std::vector<std::string>& arguments, bool quietly) {
  std::string program = "demohost";
  std::vector<char*> argv = {program.data()};
  for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
  argv.push_back(nullptr);

  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  if (quietly) {
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, STDOUT_FILENO, STDERR_FILENO);
  }
  pid_t child = 0;
  const int error = posix_spawn(&child, "/proc/self/exe", &actions, &attributes, argv.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  posix_spawnattr_destroy(&attributes);
  if (error != 0) Refuse(error, "can't start the process of a case");
  return child;
}

// True if the process ends within the time.
bool EndsWithin(pid_t child, std::chrono::seconds limit) {
  const auto end = std::chrono::steady_clock::now() + limit;
  pollfd process = {pidfd_open(child, 0), POLLIN, 0};
  if (process.fd < 0) Refuse(errno, "can't wait for the process of a case");
  int ready = 0;
  do {
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now()).count();
    ready = left <= 0 ? 0 : poll(&process, 1, static_cast<int>(left));
  } while (ready < 0 && errno == EINTR);
  close(process.fd);
  return ready > 0;
}

std::string In(const ReportRead& report) {
  if (report.passed) return "after the case, at the end of its process";
  return report.step.empty() ? "before its first step" : "in " + report.step;
}

}  // namespace

Judged RunInChild(const std::vector<std::string>& arguments, const std::filesystem::path& report, int seconds,
                  bool quietly) {
  const pid_t child = Start(arguments, quietly);
  const bool ended = EndsWithin(child, std::chrono::seconds(seconds));
  // Also whatever processes the module has started and left.
  kill(-child, SIGKILL);
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  ReportRead read = Report::Read(report);
  Judged judged{Outcome::kPassed, {}, std::move(read.items)};
  if (!read.failed.empty()) {
    judged.outcome = Outcome::kFailed;
    judged.seen = read.failed;
  } else if (!ended) {
    judged.outcome = Outcome::kHung;
    judged.seen = "no end after " + std::to_string(seconds) + " s " + In(read);
  } else if (WIFSIGNALED(status)) {
    judged.outcome = Outcome::kCrashed;
    judged.seen = std::string(strsignal(WTERMSIG(status))) + " " + In(read);
  } else if (!read.passed) {
    judged.outcome = Outcome::kCrashed;
    judged.seen =
        "the process ended itself with status " + std::to_string(WEXITSTATUS(status)) + " " + In(read);
  }
  return judged;
}

}  // namespace demohost::check
