#include <gtest/gtest.h>

#include <set>

#include "host/keys.h"
#include "host/ordinals.h"
#include "tests/host/services.h"

namespace {

using fakehost::Answer;
using fakehost::FakeHost;
using fakehost::Library;
using namespace std::string_literals;

// Builds and binds the proxy of one library.
void Bind(Library library, norvik_handle module) {
  switch (library) {
    case Library::kPublicInformation:
      return PubInfoIntf().Bind(module);
    case Library::kTranslate:
      return TranslateIntf(module).Bind(1);
    case Library::kError:
      return ErrorIntf(module).Bind(1);
    case Library::kSafeCom:
      return void(SafeComIntf(module));
    case Library::kExcel:
      return void(ExcelIntf(module));
    case Library::kPrint:
      return PrintIntf(module).Init(1);
  }
}

struct BoundLibrary {
  Library library;
  std::span<const std::uint32_t> ordinals;
  Failure missing;
  Failure noModule;
};

const std::vector<BoundLibrary>& BoundLibraries() {
  using namespace norvik::ordinals;
  static const std::vector<BoundLibrary> kLibraries = {
      {Library::kPublicInformation,
       kPublicInformation,
       {"TException", {"CF15001"}},
       {"TException", {"CF15001"}}},
      {Library::kTranslate, kTranslate, {"TIOException", {"CF19002"}}, {"TIOException", {"CF19001"}}},
      {Library::kError, kError, {"TIOException", {"CF23002"}}, {"TIOException", {"CF23001"}}},
      {Library::kSafeCom, kSafeCom, {"TException", {"ET16024"}}, {"TException", {"ET16024"}}},
      {Library::kExcel, kExcel, {"TException", {"CF20023"}}, {"TException", {"CF20023"}}},
      {Library::kPrint, kPrint, {"TException", {"CF14010"}}, {"TException", {"CF14010"}}}};
  return kLibraries;
}

TEST(Binding, FindsEachMissingOrdinalByItsLibrarysKey) {
  FakeHost host;
  const Services services(host);
  std::size_t count = 0;
  for (const auto& row : BoundLibraries()) {
    EXPECT_EQ(FailureOf([&] { Bind(row.library, host.Register(row.library)); }), Failure());
    EXPECT_EQ(FailureOf([&] { Bind(row.library, 0); }), row.noModule);
    for (const std::uint32_t ordinal : row.ordinals) {
      const norvik_handle module = host.Register(row.library, {ordinal});
      EXPECT_EQ(FailureOf([&] { Bind(row.library, module); }), row.missing)
          << "library " << static_cast<int>(row.library) << " without " << ordinal;
      ++count;
    }
  }
  EXPECT_EQ(count, 114u);
}

TEST(Binding, HappensOnceAndStartsTheLibraryOnce) {
  FakeHost host;
  const norvik_handle module = host.RegisterAll();
  PubInfoIntf pubInfo;
  TranslateIntf translate(host.handles["HANDLE_TRANSLATE"]);
  ErrorIntf error(host.handles["HANDLE_ERROR"]);
  for (int i = 0; i < 2; ++i) {
    pubInfo.Bind(module);
    translate.Bind(module);
    error.Bind(module);
  }
  for (const Library library : {Library::kPublicInformation, Library::kTranslate, Library::kError}) {
    const std::vector<fakehost::Call> once = {{library, 1, {std::to_string(module)}}};
    EXPECT_EQ(host.CallsOf(library, 1), once);
  }
}

TEST(Binding, AProxyThatFailedToBindRefusesToCall) {
  FakeHost host;
  PubInfoIntf pubInfo;
  EXPECT_EQ(FailureOf([&] { pubInfo.GetHandle("APPMAINFORMHANDLE"); }), (Failure{"TException", {"CF30007"}}));
  for (const std::uint32_t missing : {123u, 184u}) {
    const norvik_handle module = host.Register(Library::kPublicInformation, {missing});
    EXPECT_EQ(FailureOf([&] { pubInfo.Bind(module); }), (Failure{"TException", {"CF15001"}}));
    EXPECT_EQ(FailureOf([&] { pubInfo.GetHandle("APPMAINFORMHANDLE"); }),
              (Failure{"TException", {"CF30007"}}))
        << missing;
  }
  EXPECT_TRUE(host.calls.empty());
  pubInfo.Bind(host.Register(Library::kPublicInformation));
  EXPECT_EQ(pubInfo.GetHandle("APPMAINFORMHANDLE"), 0u);
}

// Every operation that takes a result, with the text of its first argument.
struct Operation {
  const char* name;
  Library library;
  std::uint32_t ordinal;
  const char* sound;  // an answer that it can read
  std::function<void(Services&, const std::string&)> call;
};

const std::vector<Operation>& Reads() {
  constexpr auto kPub = Library::kPublicInformation;
  static const std::vector<Operation> kReads = {
      {"GetField", kPub, 24, "<a>b</a>", [](auto& s, auto& text) { s.pubInfo.GetField("block", text); }},
      {"GetList", kPub, 40, "<list/>", [](auto& s, auto& text) { s.pubInfo.GetList(text); }},
      {"GetIni", kPub, 60, "<ini/>", [](auto& s, auto& text) { s.pubInfo.GetIni(text); }},
      {"GetIniValue", kPub, 68, "v", [](auto& s, auto& text) { s.pubInfo.GetIniValue("k", "s", text); }},
      {"GetIniplus", kPub, 82, "<iniplus/>", [](auto& s, auto& text) { s.pubInfo.GetIniplus(text); }},
      {"GetIniplusRow", kPub, 87, "<row/>",
       [](auto& s, auto& text) { s.pubInfo.GetIniplusRow("k", text, 0); }},
      {"GetIniplusList", kPub, 90, "<list/>",
       [](auto& s, auto& text) { s.pubInfo.GetIniplusList("k", text); }},
      {"Lookup", Library::kTranslate, 4, "t", [](auto& s, auto& text) { s.translate->Lookup("UI12", text); }},
      {"Convert", Library::kTranslate, 6, "t", [](auto& s, auto& text) { s.translate->Convert(text, 0); }},
      {"GetReasonText", Library::kError, 4, "t",
       [](auto& s, auto& text) { s.error->GetReasonText(text, 1); }},
      {"GetErrorText", Library::kError, 5, "t", [](auto& s, auto& text) { s.error->GetErrorText(text, 1); }},
      {"SendText", Library::kSafeCom, 5, "t",
       [](auto& s, auto& text) { s.safeCom->SendText("code", text, 1); }}};
  return kReads;
}

const corvane::List& NoRows() {
  static const corvane::List kNoRows;
  return kNoRows;
}

// Every operation that only succeeds or fails.
const std::vector<Operation>& Orders() {
  static const std::vector<Operation> kOrders = {
      {"SetField", Library::kPublicInformation, 23, "",
       [](auto& s, auto& text) { s.pubInfo.SetField(text, corvane::Field("NAME", "value")); }},
      {"ExportExcel", Library::kExcel, 2, "",
       [](auto& s, auto& text) { s.excel->ExportExcel(text, corvane::Row(), NoRows(), NoRows()); }},
      {"ExportText", Library::kExcel, 5, "",
       [](auto& s, auto& text) { s.excel->ExportText(text, corvane::Row(), NoRows(), NoRows(), "|", 2); }},
      {"PrintList", Library::kPrint, 3, "", [](auto& s, auto& text) {
         corvane::Row head;
         s.print->PrintList(text, "", head, NoRows());
       }}};
  return kOrders;
}

std::vector<Operation> All() {
  std::vector<Operation> all = Reads();
  all.insert(all.end(), Orders().begin(), Orders().end());
  return all;
}

TEST(BrokenHost, AnAnswerThatCannotBeTrueIsAFailureAndItsBufferGoesBackOnce) {
  constexpr std::int32_t kMaxBytes = 256 * 1024 * 1024;
  const struct {
    const char* name;
    Answer answer;
    const char* key;
  } rows[] = {{"negative length", {.text = "t", .length = -1}, "CF30001"},
              {"minimum length", {.text = "t", .length = INT32_MIN}, "CF30001"},
              {"length above the cap", {.text = "t", .length = kMaxBytes + 1}, "CF30002"},
              {"maximum length", {.text = "t", .length = INT32_MAX}, "CF30002"},
              {"no buffer", {.text = "t", .length = 1, .noBuffer = true}, "CF30003"},
              {"no buffer, negative length", {.text = "t", .length = -5, .noBuffer = true}, "CF30001"},
              {"no buffer, the cap", {.text = "t", .length = kMaxBytes, .noBuffer = true}, "CF30003"}};
  for (const auto& operation : Reads()) {
    for (const auto& row : rows) {
      SCOPED_TRACE(operation.name + ": "s + row.name);
      FakeHost host;
      Services services(host);
      host.SetAnswer(operation.library, operation.ordinal, row.answer);
      EXPECT_EQ(FailureOf([&] { operation.call(services, "x"); }), (Failure{"TIOException", {row.key}}));
      EXPECT_EQ(host.released, host.given);
      EXPECT_EQ(host.wronglyReleased, 0);
    }
  }
}

TEST(BrokenHost, ARefusalBringsItsTextAndABufferBesideItGoesBack) {
  const std::string line(300, 'e');
  for (const auto& operation : All()) {
    const bool whole = operation.library <= Library::kError;
    const std::size_t size = whole ? 255 : 256;
    const struct {
      Answer answer;
      std::vector<std::string> keys;
    } rows[] = {{fakehost::Refusal("ET1"), {"ET1"}},
                {fakehost::Refusal(line), {line.substr(0, size)}},  // fills its buffer and has no terminator
                {fakehost::Refusal(""), {"CF30004"}},
                {fakehost::Refusal("A\0B"s), {"A"}},
                {{.result = 0, .text = "beside", .error = "ET2"}, {"ET2"}},
                {{.result = 0, .text = "beside", .length = -1, .error = "ET3"}, {"ET3"}},
                {fakehost::Refusal("L1\r\nL2"),
                 whole ? std::vector<std::string>{"L1\r\nL2"} : std::vector<std::string>{"L1", "L2"}},
                {fakehost::Refusal("a\\\\b\r\nc"),
                 whole ? std::vector<std::string>{"a\\\\b\r\nc"} : std::vector<std::string>{"a\\b", "c"}}};
    for (const auto& row : rows) {
      SCOPED_TRACE(operation.name + ": "s + row.answer.error);
      FakeHost host;
      Services services(host);
      host.SetAnswer(operation.library, operation.ordinal, row.answer);
      EXPECT_EQ(FailureOf([&] { operation.call(services, "x"); }),
                (Failure{whole ? "TIOException" : "TException", row.keys}));
      EXPECT_EQ(host.released, host.given);
      EXPECT_EQ(host.wronglyReleased, 0);
    }
  }
}

TEST(BrokenHost, OnlyTheLowEightBitsOfAResultCount) {
  const struct {
    std::uint32_t result;
    bool success;
  } rows[] = {{0x00000100, false}, {0xFFFFFF00, false}, {0xDEADBE01, true}, {0x000000FF, true}, {0x80, true}};
  for (const auto& operation : All()) {
    for (const auto& row : rows) {
      FakeHost host;
      Services services(host);
      host.SetAnswer(operation.library, operation.ordinal,
                     {.result = row.result, .text = operation.sound, .error = "ET1"});
      EXPECT_EQ(FailureOf([&] { operation.call(services, "x"); }).thrown == "nothing", row.success)
          << operation.name << " " << row.result;
    }
  }
  for (const auto& [library, keys] :
       std::map<Library, std::vector<std::string>>{{Library::kError, {"CF23003"}},
                                                   {Library::kPrint, {"no paper", "no ink"}},
                                                   {Library::kTranslate, {}}}) {
    for (const auto& row : rows) {
      FakeHost host;
      host.SetAnswer(library, 1, {.result = row.result, .text = {}, .error = "no paper\r\nno ink"});
      const auto failure = FailureOf([&] { Bind(library, host.Register(library)); });
      EXPECT_EQ(failure.keys, row.success ? std::vector<std::string>() : keys);
    }
  }
}

TEST(BrokenHost, ATextWithANulIsRefusedBeforeAnythingIsSent) {
  std::vector<Operation> operations = All();
  const auto add = [&](const char* name, std::function<void(Services&, const std::string&)> call) {
    operations.push_back({name, {}, 0, "", std::move(call)});
  };
  add("GetHandle", [](auto& s, auto& text) { s.pubInfo.GetHandle(text); });
  add("SetHandle", [](auto& s, auto& text) { s.pubInfo.SetHandle(text, 1); });
  add("SetIni", [](auto& s, auto& text) { s.pubInfo.SetIni(text, corvane::Ini()); });
  add("SetIniplus", [](auto& s, auto& text) { s.pubInfo.SetIniplus(text, corvane::Iniplus()); });
  add("GetField", [](auto& s, auto& text) { s.pubInfo.GetField(text, "name"); });
  add("GetIniValue", [](auto& s, auto& text) { s.pubInfo.GetIniValue("k", text, "i"); });
  add("Translate", [](auto& s, auto& text) { s.translate->Translate(text); });
  add("Lookup", [](auto& s, auto& text) { s.translate->Lookup(text, "UI12002"); });
  add("SendText", [](auto& s, auto& text) { s.safeCom->SendText(text, "<stream/>", 1); });
  add("ExportText",
      [](auto& s, auto& text) { s.excel->ExportText("path", corvane::Row(), NoRows(), NoRows(), text, 2); });
  add("PrintSetup", [](auto& s, auto& text) { s.print->PrintSetup(text); });
  for (const auto& operation : operations) {
    FakeHost host;
    Services services(host);
    EXPECT_EQ(FailureOf([&] { operation.call(services, "before\0after"s); }),
              (Failure{"TException", {"CF30005"}}))
        << operation.name;
    EXPECT_TRUE(host.calls.empty()) << operation.name;
  }
}

TEST(BrokenHost, ItsOwnKeysAreDistinct) {
  EXPECT_EQ(std::set<std::string>(norvik::key::kBrokenHost.begin(), norvik::key::kBrokenHost.end()).size(),
            norvik::key::kBrokenHost.size());
}

}  // namespace
