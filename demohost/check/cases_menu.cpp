#include <string>

#include "demohost/check/cases.h"
#include "demohost/check/subject.h"

namespace demohost::check {
namespace {

// Bytes after the menu text in the host's buffer, which must stay as they are.
constexpr std::size_t kGuard = 64;
constexpr char kGuardByte = '#';

}  // namespace

void MenuText(CaseRun& run) {
  Subject subject(run);
  for (const std::string& item : subject.Items()) run.FoundItem(item);
}

void MenuOwnBuffers(CaseRun& run) {
  Subject subject(run);
  char* buffers[2] = {};
  for (char*& buffer : buffers) {
    const CallEnd end = subject.Menu(&buffer);
    run.Expect(end.kind == CallEnd::kReturned, "MenuConfig: " + end.words);
    run.Expect(buffer != nullptr, "MenuConfig left the null buffer null");
  }
  run.Expect(buffers[0] != buffers[1], "both texts came in one buffer");
  const std::string first = buffers[0];
  const std::string second = buffers[1];
  run.Expect(first == second, "the texts differ: " + Quoted(first) + " and " + Quoted(second));
  subject.Free(buffers[0]);
  run.Expect(second == buffers[1], "the second text changed when FreeBuff took the first back");
  subject.Free(buffers[1]);
  run.Expect(subject.MenuText() == first, "the third text differs from the first two");
}

void MenuHostBuffer(CaseRun& run) {
  Subject subject(run);
  const std::string text = subject.MenuText();
  std::string memory(text.size() + 1 + kGuard, kGuardByte);
  char* buffer = memory.data();
  const CallEnd end = subject.Menu(&buffer);
  run.Expect(end.kind == CallEnd::kReturned, "MenuConfig: " + end.words);
  run.Expect(buffer == memory.data(), "MenuConfig put another buffer in the place of the host's");
  const std::string wanted = text + '\0' + std::string(kGuard, kGuardByte);
  run.Expect(memory.compare(0, text.size(), text) == 0, "the host's buffer holds another text");
  run.Expect(memory == wanted, "MenuConfig wrote more or less than the text and its terminator");
}

void FreeNull(CaseRun& run) {
  Subject subject(run);
  const CallEnd end = subject.Free(nullptr);
  run.Expect(end.kind == CallEnd::kReturned, "FreeBuff of null: " + end.words);
}

}  // namespace demohost::check
