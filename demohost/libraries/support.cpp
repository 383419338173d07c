#include "demohost/libraries/support.h"

#include <algorithm>
#include <atomic>
#include <cstring>

#include "data/string_functions.h"
#include "demohost/refusals.h"
#include "platform/code_page.h"

namespace demohost {
namespace {

std::atomic<std::size_t> g_outstanding{0};

std::int32_t Idle() {
  return 0;
}

// A detail of at most this many bytes leaves room for the key after it in a caller's error text.
constexpr std::size_t kMaxDetail = 200;

std::string Lines(const Refused& refused) {
  const std::string detail = norvik::AnsiFromUtf8(refused.Detail());
  return Refused(refused.Key(), std::string(corvane::cutText(detail, kMaxDetail))).Lines();
}

}  // namespace

void NoteCall(void* function) {
  // The function that is called may replace the services, itself among them.
  const std::function<void(void*)> called = CurrentServices().called;
  if (called) called(function);
}

char* NewBuffer(const std::string& text) {
  char* buffer = new char[text.size() + 1];
  std::memcpy(buffer, text.c_str(), text.size() + 1);
  ++g_outstanding;
  return buffer;
}

void ReleaseBuffer(char* buffer) {
  if (buffer == nullptr) return;
  --g_outstanding;
  delete[] buffer;
}

std::size_t OutstandingBuffers() {
  return g_outstanding;
}

void WriteError(char* error, std::size_t size, std::string_view text) {
  if (error == nullptr) return;
  text = corvane::cutText(text, size - 1);
  std::memcpy(error, text.data(), text.size());
  error[text.size()] = '\0';
}

std::string ErrorLines() {
  try {
    throw;
  } catch (const Refused& refused) {
    return Lines(refused);
  } catch (const corvane::TException& exception) {
    return exception.getMessage("\r\n");
  } catch (const std::exception& exception) {
    return Lines(Refused(refusal::kHostFailure, exception.what()));
  } catch (...) {
    return std::string(refusal::kHostFailure);
  }
}

void AddIdle(std::vector<norvik_ordinal>& table, std::uint32_t first, std::uint32_t last) {
  for (std::uint32_t ordinal = first; ordinal <= last; ++ordinal) {
    const bool known = std::any_of(table.begin(), table.end(), [ordinal](const norvik_ordinal& entry) {
      return entry.ordinal == ordinal;
    });
    if (!known) table.push_back(Entry<&Idle>(ordinal));
  }
}

}  // namespace demohost
