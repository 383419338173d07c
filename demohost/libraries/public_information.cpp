#include "demohost/libraries/libraries.h"
#include "demohost/refusals.h"
#include "platform/code_page.h"

namespace demohost {
namespace {

constexpr std::string_view kImagesField = "ENV.IMAGES";
// A folder that nobody can write to: it is below a file.
constexpr const char* kNoFolder = "/dev/null/";

InfoStore& Store() {
  return *CurrentServices().store;
}

// The store, for a read of the entry under a key. Throws Refused.
const InfoStore& StoreWith(const std::string& key) {
  if (CurrentServices().faults.entries.contains(key)) {
    throw Refused(refusal::kUnknownEntry, norvik::Utf8FromAnsi(key));
  }
  return Store();
}

// Runs a function that can't report its failure to the caller by a text; it goes to the operator.
template <class Body>
std::int32_t Reported(Body&& body) noexcept {
  char error[kLongError] = {};
  if (Guarded(error, sizeof error, std::forward<Body>(body)) != 0) return 0;
  const Services& services = CurrentServices();
  if (services.report) services.report(norvik::Utf8FromAnsi(error));
  return -1;
}

// A document of the caller. Throws Refused where its text isn't one.
template <class Document>
Document Parsed(const char* xml) {
  try {
    return Document(Text(xml));
  } catch (const corvane::TException&) {
    throw Refused(refusal::kUnreadableText);
  }
}

std::int32_t Initialize(std::uint32_t) {
  return 0;
}

void Release(char* buffer) {
  ReleaseBuffer(buffer);
}

std::uint8_t SetField(const char* block, const char* xml, char* error) {
  return Guarded(error, kShortError, [&] { Store().SetField(Text(block), Parsed<corvane::Field>(xml)); });
}

std::uint8_t GetField(char** buffer, std::int32_t* length, const char* block, const char* name, char* error) {
  return Answered(buffer, length, error, kShortError, [&] {
    corvane::Field field = StoreWith(Text(block)).GetField(Text(block), Text(name));
    if (CurrentServices().faults.images && field.name() == kImagesField) field.setValue(kNoFolder);
    return field.toString();
  });
}

std::uint8_t GetList(char** buffer, std::int32_t* length, const char* key, char* error) {
  return Answered(buffer, length, error, kShortError,
                  [&] { return StoreWith(Text(key)).GetList(Text(key)).toString(); });
}

std::int32_t SetIni(const char* key, const char* xml) {
  return Reported([&] { Store().SetIni(Text(key), Parsed<corvane::Ini>(xml)); });
}

std::int32_t RemoveIni(const char* key) {
  return Reported([&] { Store().RemoveIni(Text(key)); });
}

std::uint8_t GetIni(char** buffer, std::int32_t* length, const char* key, char* error) {
  return Answered(buffer, length, error, kShortError,
                  [&] { return StoreWith(Text(key)).GetIni(Text(key)).toString(); });
}

std::uint8_t GetIniValue(char** buffer, std::int32_t* length, const char* key, const char* section,
                         const char* item, char* error) {
  return Answered(buffer, length, error, kShortError,
                  [&] { return StoreWith(Text(key)).GetIniValue(Text(key), Text(section), Text(item)); });
}

std::int32_t SetIniplus(const char* key, const char* xml) {
  return Reported([&] { Store().SetIniplus(Text(key), Parsed<corvane::Iniplus>(xml)); });
}

std::int32_t RemoveIniplus(const char* key) {
  return Reported([&] { Store().RemoveIniplus(Text(key)); });
}

std::uint8_t GetIniplus(char** buffer, std::int32_t* length, const char* key, char* error) {
  return Answered(buffer, length, error, kShortError,
                  [&] { return StoreWith(Text(key)).GetIniplus(Text(key)).toString(); });
}

std::uint8_t GetIniplusRow(char** buffer, std::int32_t* length, const char* key, const char* section,
                           char* error, std::int32_t index) {
  return Answered(buffer, length, error, kShortError, [&] {
    return StoreWith(Text(key)).GetIniplusRow(Text(key), Text(section), index).toString();
  });
}

std::uint8_t GetIniplusList(char** buffer, std::int32_t* length, const char* key, const char* section,
                            char* error) {
  return Answered(buffer, length, error, kShortError,
                  [&] { return StoreWith(Text(key)).GetIniplusList(Text(key), Text(section)).toString(); });
}

std::int32_t SetHandle(const char* key, std::uint32_t value) {
  return Reported([&] { Store().SetHandle(Text(key), value); });
}

std::uint32_t GetHandle(const char* key) {
  return Store().Handle(Text(key));
}

}  // namespace

std::vector<norvik_ordinal> PublicInformationTable() {
  std::vector<norvik_ordinal> table = {
      Entry<&Initialize>(1),     Entry<&Release>(3),         Entry<&SetField>(23),
      Entry<&GetField>(24),      Entry<&GetList>(40),        Entry<&SetIni>(58),
      Entry<&RemoveIni>(59),     Entry<&GetIni>(60),         Entry<&GetIniValue>(68),
      Entry<&SetIniplus>(80),    Entry<&RemoveIniplus>(81),  Entry<&GetIniplus>(82),
      Entry<&GetIniplusRow>(87), Entry<&GetIniplusList>(90), Entry<&SetHandle>(122),
      Entry<&GetHandle>(123),
  };
  constexpr std::pair<std::uint32_t, std::uint32_t> kRanges[] = {
      {1, 10}, {20, 27}, {38, 47}, {58, 69}, {80, 93}, {104, 111}, {122, 127}, {184, 184}};
  for (const auto& [first, last] : kRanges) AddIdle(table, first, last);
  return table;
}

}  // namespace demohost
