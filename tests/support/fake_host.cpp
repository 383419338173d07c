#include "tests/support/fake_host.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

namespace fakehost {
namespace {

FakeHost* g_host = nullptr;

constexpr auto kPub = Library::kPublicInformation;

std::string Said(const char* text) {
  return text;
}
template <class Number>
std::string Said(Number number) {
  return std::to_string(number);
}

template <class... Arguments>
std::uint32_t Reply(Library library, std::uint32_t ordinal, char** buffer, std::int32_t* length, char* error,
                    Arguments... arguments) {
  return g_host->Reply({library, ordinal, {Said(arguments)...}}, buffer, length, error);
}

// (pair, texts..., error)
template <Library library, std::uint32_t ordinal, class... Texts>
std::uint32_t Ask(char** buffer, std::int32_t* length, Texts... texts, char* error) {
  return Reply(library, ordinal, buffer, length, error, texts...);
}

// (pair, text, error, flag)
template <Library library, std::uint32_t ordinal>
std::uint32_t AskWithFlag(char** buffer, std::int32_t* length, const char* text, char* error,
                          std::uint8_t flag) {
  return Reply(library, ordinal, buffer, length, error, text, flag);
}

// (arguments..., error), (arguments...)
template <Library library, std::uint32_t ordinal, class... Arguments>
std::uint32_t Obey(Arguments... arguments, char* error) {
  return Reply(library, ordinal, nullptr, nullptr, error, arguments...);
}
template <Library library, std::uint32_t ordinal, class... Arguments>
std::uint32_t ObeyOnly(Arguments... arguments) {
  return Reply(library, ordinal, nullptr, nullptr, nullptr, arguments...);
}

template <Library library, std::uint32_t ordinal>
void Release(char* buffer) {
  g_host->Release(library, ordinal, buffer);
}

std::uint32_t GetRow(char** buffer, std::int32_t* length, const char* key, const char* section, char* error,
                     std::int32_t index) {
  return Reply(kPub, 87, buffer, length, error, key, section, index);
}

std::uint32_t GetHandle(const char* key) {
  return g_host->HandleOf(key);
}

std::uint32_t SetHandle(const char* key, std::uint32_t value) {
  g_host->handles[key] = value;
  return ObeyOnly<kPub, 122, const char*, std::uint32_t>(key, value);
}

std::uint32_t Convert(char** buffer, std::int32_t* length, const char* text, std::uint8_t direction,
                      char* error) {
  return Reply(Library::kTranslate, 6, buffer, length, error, text, direction);
}

std::uint32_t Send(const char* code, const char* request, std::int32_t flag, char** answer,
                   std::int32_t* length, char* error) {
  return Reply(Library::kSafeCom, 5, answer, length, error, code, request, flag);
}

void ServerTime(std::int64_t* milliseconds) {
  g_host->Note({Library::kSafeCom, 8, {}});
  *milliseconds = g_host->serverTime;
}

std::uint32_t ExportText(const char* path, const char* head, const char* columns, const char* data,
                         const char* separator, char* error, std::int32_t option) {
  return Reply(Library::kExcel, 5, nullptr, nullptr, error, path, head, columns, data, separator, option);
}

std::uint32_t NeverCalled() {
  g_host->calls.push_back({kPub, 0, {"an ordinal that is bound and not called"}});
  return 0;
}

using Functions = std::map<std::uint32_t, void*>;
using Word = const char*;

template <class Function>
void* Pointer(Function* function) {
  return reinterpret_cast<void*>(function);
}

Functions Called(Library library) {
  switch (library) {
    case Library::kPublicInformation:
      return {{1, Pointer(ObeyOnly<kPub, 1, std::uint32_t>)},
              {3, Pointer(Release<kPub, 3>)},
              {23, Pointer(Obey<kPub, 23, Word, Word>)},
              {24, Pointer(Ask<kPub, 24, Word, Word>)},
              {40, Pointer(Ask<kPub, 40, Word>)},
              {58, Pointer(ObeyOnly<kPub, 58, Word, Word>)},
              {59, Pointer(ObeyOnly<kPub, 59, Word>)},
              {60, Pointer(Ask<kPub, 60, Word>)},
              {68, Pointer(Ask<kPub, 68, Word, Word, Word>)},
              {80, Pointer(ObeyOnly<kPub, 80, Word, Word>)},
              {81, Pointer(ObeyOnly<kPub, 81, Word>)},
              {82, Pointer(Ask<kPub, 82, Word>)},
              {87, Pointer(GetRow)},
              {90, Pointer(Ask<kPub, 90, Word, Word>)},
              {122, Pointer(SetHandle)},
              {123, Pointer(GetHandle)}};
    case Library::kTranslate:
      return {{1, Pointer(ObeyOnly<Library::kTranslate, 1, std::uint32_t>)},
              {3, Pointer(Release<Library::kTranslate, 3>)},
              {4, Pointer(Ask<Library::kTranslate, 4, Word, Word>)},
              {6, Pointer(Convert)}};
    case Library::kError:
      return {{1, Pointer(ObeyOnly<Library::kError, 1, std::uint32_t>)},
              {3, Pointer(Release<Library::kError, 3>)},
              {4, Pointer(AskWithFlag<Library::kError, 4>)},
              {5, Pointer(AskWithFlag<Library::kError, 5>)}};
    case Library::kSafeCom:
      return {{4, Pointer(Release<Library::kSafeCom, 4>)}, {5, Pointer(Send)}, {8, Pointer(ServerTime)}};
    case Library::kExcel:
      return {{2, Pointer(Obey<Library::kExcel, 2, Word, Word, Word, Word>)}, {5, Pointer(ExportText)}};
    case Library::kPrint:
      return {{1, Pointer(Obey<Library::kPrint, 1, std::uint32_t>)},
              {3, Pointer(Obey<Library::kPrint, 3, Word, Word, Word>)},
              {5, Pointer(ObeyOnly<Library::kPrint, 5, Word>)}};
  }
  return {};
}

// A range of ordinals for each block of a library.
std::vector<std::pair<std::uint32_t, std::uint32_t>> Blocks(Library library) {
  switch (library) {
    case Library::kPublicInformation:
      return {{1, 10}, {20, 27}, {38, 47}, {58, 69}, {80, 93}, {104, 111}, {122, 127}, {184, 184}};
    case Library::kTranslate:
    case Library::kError:
      return {{1, 8}};
    case Library::kSafeCom:
      return {{1, 12}};
    case Library::kExcel:
      return {{1, 10}};
    case Library::kPrint:
      return {{1, 7}};
  }
  return {};
}

// What a function answers where the test has said nothing: an empty document, or the key in the place of its
// text.
Answer Usual(const Call& call) {
  const std::map<std::pair<Library, std::uint32_t>, std::string> documents = {
      {{kPub, 24}, "<field/>"},
      {{kPub, 40}, "<list/>"},
      {{kPub, 60}, "<ini/>"},
      {{kPub, 82}, "<iniplus/>"},
      {{kPub, 87}, "<row/>"},
      {{kPub, 90}, "<list/>"},
      {{Library::kSafeCom, 5}, "<stream/>"}};
  const auto document = documents.find({call.library, call.ordinal});
  if (document != documents.end()) return Text(document->second);
  if (call.library == Library::kTranslate && call.ordinal == 4) return Text(call.arguments[1]);
  if (call.library == Library::kTranslate || call.library == Library::kError) return Text(call.arguments[0]);
  return Text("");
}

}  // namespace

const char* HandleKey(Library library) {
  switch (library) {
    case Library::kTranslate:
      return "HANDLE_TRANSLATE";
    case Library::kError:
      return "HANDLE_ERROR";
    case Library::kSafeCom:
      return "HANDLE_SAFECOM";
    case Library::kExcel:
      return "HANDLE_EXCEL";
    case Library::kPrint:
      return "HANDLE_PRINT";
    case Library::kPublicInformation:
      break;
  }
  return "";
}

Answer Text(std::string text) {
  return {.text = std::move(text)};
}

Answer Refusal(std::string error) {
  return {.result = 0, .text = {}, .noBuffer = true, .error = std::move(error)};
}

FakeHost::FakeHost() {
  g_host = this;
}

FakeHost::~FakeHost() {
  for (const norvik_handle module : modules_) norvik_module_close(module);
  for (char* const buffer : live_) std::free(buffer);
  g_host = nullptr;
}

norvik_handle FakeHost::Register(Library library, const std::set<std::uint32_t>& missing) {
  const Functions called = Called(library);
  std::vector<norvik_ordinal> table;
  for (const auto& [first, last] : Blocks(library)) {
    for (std::uint32_t ordinal = first; ordinal <= last; ++ordinal) {
      const auto found = called.find(ordinal);
      if (!missing.contains(ordinal)) {
        table.push_back({ordinal, found == called.end() ? Pointer(NeverCalled) : found->second});
      }
    }
  }
  modules_.push_back(norvik_module_register(table.data(), table.size()));
  return modules_.back();
}

norvik_handle FakeHost::RegisterAll() {
  for (const Library library : kLibraries) {
    if (library != kPub) handles[HandleKey(library)] = Register(library);
  }
  return Register(kPub);
}

void FakeHost::SetAnswer(Library library, std::uint32_t ordinal, Answer answer) {
  answers_.insert_or_assign({library, ordinal}, std::move(answer));
}

void FakeHost::SetAnswer(Library library, std::uint32_t ordinal, std::vector<std::string> arguments,
                         Answer answer) {
  answersByArguments_.insert_or_assign({library, ordinal, std::move(arguments)}, std::move(answer));
}

std::vector<Call> FakeHost::CallsOf(Library library, std::uint32_t ordinal) const {
  std::vector<Call> found;
  std::copy_if(calls.begin(), calls.end(), std::back_inserter(found),
               [&](const Call& call) { return call.library == library && call.ordinal == ordinal; });
  return found;
}

std::uint32_t FakeHost::HandleOf(const char* key) {
  const Call call = {kPub, 123, {key}};
  Note(call);
  const auto found = handles.find(key);
  Answer answer{.result = found == handles.end() ? 0 : found->second, .text = {}};
  if (onAnswer) onAnswer(call, answer);
  return answer.result;
}

void FakeHost::Note(const Call& call) {
  calls.push_back(call);
  if (during) during(call);
}

std::uint32_t FakeHost::Reply(const Call& call, char** buffer, std::int32_t* length, char* error) {
  const auto exact = answersByArguments_.find({call.library, call.ordinal, call.arguments});
  const auto general = answers_.find({call.library, call.ordinal});
  Answer answer = exact != answersByArguments_.end() ? exact->second
                  : general != answers_.end()        ? general->second
                                                     : Usual(call);
  Note(call);
  if (onAnswer) onAnswer(call, answer);
  if (answer.throws) throw std::runtime_error("a host function that throws");
  if (error) {
    const bool small = call.library <= Library::kError;
    std::memcpy(error, answer.error.data(), std::min<std::size_t>(answer.error.size(), small ? 255 : 256));
  }
  if (buffer && !answer.noBuffer) {
    *buffer = static_cast<char*>(std::malloc(answer.text.size() + 1));
    std::memcpy(*buffer, answer.text.data(), answer.text.size());
    live_.insert(*buffer);
    ++given;
  }
  if (length) *length = answer.length.value_or(static_cast<std::int32_t>(answer.text.size()));
  return answer.result;
}

void FakeHost::Release(Library library, std::uint32_t ordinal, char* buffer) {
  Note({library, ordinal, {}});
  if (!buffer) {
    ++nullReleased;
  } else if (live_.erase(buffer) == 1) {
    std::free(buffer);
    ++released;
  } else {
    ++wronglyReleased;
  }
}

}  // namespace fakehost
