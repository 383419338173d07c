#include "demohost/libraries/libraries.h"

#include <gtest/gtest.h>

#include <cstring>

#include "demohost/bank_directory.h"
#include "demohost/libraries/chinese.h"
#include "platform/code_page.h"
#include "tests/demohost/folder.h"
#include "tests/demohost/test_plan.h"

namespace demohost {
namespace {

using norvik::AnsiFromUtf8;

// The six libraries over a small bank, reached as a module reaches them.
class LibrariesTest : public testing::Test {
 protected:
  LibrariesTest()
      : texts_((WriteTexts(), folder_ / "texts")),
        bank_(OpenBank(folder_ / "bank.sqlite", TestPlan(20)), *DayOf("20260615")),
        store_(folder_ / "config") {
    store_.SetIniValue("SYSCONFIG_DATA", "APPLICATION.LANG", "Language", "Simplified Chinese");
    store_.KeepIniplus("COLUMN_INFO");
    libraries_ = std::make_unique<Libraries>(Services{&store_, &texts_, &bank_, &clock_, &output_, 0,
                                                      [this](const std::string& text) { reported_ = text; }});
  }
  ~LibrariesTest() override { EXPECT_EQ(OutstandingBuffers(), 0u); }

  void WriteTexts() const {
    folder_.Write("texts/zh_CN.txt", "UI44008=票号\nET10016=报文有误\nBK30005=日期有误\n");
    folder_.Write("texts/zh_TW.txt", "UI44008=票號\n");
    folder_.Write("texts/en.txt", "UI44008=Bill number\n银行备注=Bank remark\n");
  }

  template <class Function>
  Function* Find(const char* handle, std::uint32_t ordinal) {
    const norvik_handle module =
        std::strlen(handle) == 0 ? libraries_->PublicInformation() : store_.Handle(handle);
    return reinterpret_cast<Function*>(norvik_module_function(module, ordinal));
  }

  // A read that fills a result pair: its text, or "!" and the error text.
  template <class... Arguments>
  std::string Read(const char* handle, std::uint32_t ordinal, Arguments... arguments) {
    char* buffer = nullptr;
    std::int32_t length = 0;
    char error[255] = {};
    auto* function = Find<std::uint8_t(char**, std::int32_t*, Arguments..., char*)>(handle, ordinal);
    const bool good = function(&buffer, &length, arguments..., error) != 0;
    const std::string text =
        good ? std::string(buffer, static_cast<std::size_t>(length)) : "!" + std::string(error);
    Find<void(char*)>(handle, 3)(buffer);
    return text;
  }

  std::string Translate(const char* section, const char* key) {
    return Read("HANDLE_TRANSLATE", 4, section, key);
  }

  std::string ErrorText(const std::string& keys) {
    char* buffer = nullptr;
    std::int32_t length = 0;
    char error[255] = {};
    using Function = std::uint8_t(char**, std::int32_t*, const char*, char*, std::uint8_t);
    EXPECT_EQ(Find<Function>("HANDLE_ERROR", 5)(&buffer, &length, keys.c_str(), error, 1), 1);
    const std::string text(buffer, static_cast<std::size_t>(length));
    Find<void(char*)>("HANDLE_ERROR", 3)(buffer);
    return norvik::Utf8FromAnsi(text);
  }

  Folder folder_;
  Texts texts_;
  Bank bank_;
  BankClock clock_{*DayOf("20260615")};
  InfoStore store_;
  Output output_;
  std::string reported_;
  std::unique_ptr<Libraries> libraries_;
};

TEST_F(LibrariesTest, AnswerEveryOrdinalThatAModuleBinds) {
  const struct {
    const char* handle;
    std::vector<std::pair<std::uint32_t, std::uint32_t>> ranges;
    std::size_t count;
  } cases[] = {
      {"", {{1, 10}, {20, 27}, {38, 47}, {58, 69}, {80, 93}, {104, 111}, {122, 127}, {184, 184}}, 69},
      {"HANDLE_TRANSLATE", {{1, 8}}, 8},
      {"HANDLE_ERROR", {{1, 8}}, 8},
      {"HANDLE_PRINT", {{1, 7}}, 7},
      {"HANDLE_SAFECOM", {{1, 12}}, 12},
      {"HANDLE_EXCEL", {{1, 10}}, 10},
  };
  for (const auto& [handle, ranges, count] : cases) {
    std::size_t found = 0;
    for (const auto& [first, last] : ranges) {
      for (std::uint32_t ordinal = first; ordinal <= last; ++ordinal)
        found += Find<void()>(handle, ordinal) != nullptr;
    }
    EXPECT_EQ(found, count) << handle;
    EXPECT_EQ(Find<void()>(handle, 1000), nullptr);
  }
}

TEST_F(LibrariesTest, ReadAndWriteThePublicInformation) {
  char error[255] = {};
  auto* set_field = Find<std::uint8_t(const char*, const char*, char*)>("", 23);
  EXPECT_EQ(set_field("ENVIRONMENT", "<CURSHORTCUT.ITEMNAME>ITEM6066</CURSHORTCUT.ITEMNAME>", error), 1);
  EXPECT_EQ(store_.FieldValue("ENVIRONMENT", "CURSHORTCUT.ITEMNAME"), "ITEM6066");
  const std::string field = Read<const char*, const char*>("", 24, "ENVIRONMENT", "CURSHORTCUT.ITEMNAME");
  EXPECT_NE(field.find(">ITEM6066<"), std::string::npos) << field;
  EXPECT_EQ(set_field("ENVIRONMENT", "<A>", error), 0);
  EXPECT_STREQ(error, "HS40002");
  EXPECT_EQ(Read<const char*>("", 40, "CMLGNONE"), "!CMLGNONE\r\nHS40001");

  Find<std::int32_t(const char*, const char*)>("", 80)(
      "COLUMN_INFO", "<iniplus><section name=\"T\"><row><A>1</A></row></section></iniplus>");
  const corvane::List list(Read<const char*, const char*>("", 90, "COLUMN_INFO", "T"));
  EXPECT_EQ(list.size(), 1u);
  EXPECT_EQ(corvane::List(Read<const char*, const char*>("", 90, "COLUMN_INFO", "Other")).size(), 0u);
  Find<std::int32_t(const char*)>("", 81)("COLUMN_INFO");
  EXPECT_EQ(Read<const char*>("", 82, "COLUMN_INFO"), "!COLUMN_INFO\r\nHS40001");

  Find<std::int32_t(const char*, std::uint32_t)>("", 122)("TfrmX", 7);
  EXPECT_EQ(Find<std::uint32_t(const char*)>("", 123)("TfrmX"), 7u);
  EXPECT_EQ(Find<std::uint32_t(const char*)>("", 123)("TfrmY"), 0u);

  Find<std::int32_t(const char*, const char*)>("", 80)("COLUMN_INFO", "broken");
  EXPECT_EQ(reported_, "HS40002");
}

TEST_F(LibrariesTest, KeepsNulsOfAValueAndCutsLongErrorsBetweenCharacters) {
  store_.SetIniValue("SYSCONFIG_DATA", "S", "I", std::string("a\0b", 3));
  EXPECT_EQ((Read<const char*, const char*, const char*>("", 68, "SYSCONFIG_DATA", "S", "I")),
            std::string("a\0b", 3));
  std::string key = "x";
  for (int count = 0; count < 200; ++count) key += "票";
  const std::string error = Read<const char*>("", 40, AnsiFromUtf8(key).c_str());
  EXPECT_LE(error.size(), 255u);
  EXPECT_EQ(norvik::Utf8FromAnsi(error).find("\xEF\xBF\xBD"), std::string::npos);
}

TEST_F(LibrariesTest, TranslateKeysByTheLanguageOfTheMoment) {
  EXPECT_EQ(Translate("UI44", "UI44008"), AnsiFromUtf8("票号"));
  EXPECT_EQ(Translate("UI44", "UI44999"), "");
  EXPECT_EQ(Translate("UI45", "UI44008"), "");
  EXPECT_EQ(Translate("", ""), "");
  store_.SetIniValue("SYSCONFIG_DATA", "APPLICATION.LANG", "Language", "English");
  EXPECT_EQ(Translate("UI44", "UI44008"), "Bill number");
  EXPECT_EQ(Translate(AnsiFromUtf8("银行").c_str(), AnsiFromUtf8("银行备注").c_str()), "Bank remark");
}

TEST_F(LibrariesTest, TurnErrorKeysIntoTextsLineByLine) {
  const struct {
    std::string keys;
    const char* text;
  } cases[] = {
      {"ET10016", "报文有误"},
      {"ET10016\r\nET99999", "报文有误\r\nET99999"},
      {"BK30005\\\r\nDUEDATS", "日期有误\r\nDUEDATS"},
      {"a\\\\b", "a\\b"},
      {"", ""},
  };
  for (const auto& [keys, text] : cases) EXPECT_EQ(ErrorText(keys), text) << keys;
}

TEST_F(LibrariesTest, ConvertBetweenTheTwoKindsOfChinese) {
  const auto convert = [this](const char* text, std::uint8_t direction) {
    return norvik::Utf8FromAnsi(
        Read<const char*, std::uint8_t>("HANDLE_TRANSLATE", 6, AnsiFromUtf8(text).c_str(), direction));
  };
  EXPECT_EQ(convert("<A>票據與銀行 abc</A>", 0), "<A>票据与银行 abc</A>");
  EXPECT_EQ(convert("<A>票据与银行 abc</A>", 1), "<A>票據與銀行 abc</A>");
  EXPECT_EQ(SimplifiedFromTraditional("\xFF|\\"), "\xFF|\\");
}

TEST_F(LibrariesTest, CarryAnExchangeAndItsRefusal) {
  using Function = std::uint8_t(const char*, const char*, std::int32_t, char**, std::int32_t*, char*);
  auto* exchange = Find<Function>("HANDLE_SAFECOM", 5);
  char* answer = nullptr;
  std::int32_t length = 0;
  char error[256] = {};
  const std::string request = "<stream><SRC>1</SRC><list name=\"userDataList\"><row><CUSTACC>" +
                              bank_.Accounts()[0].number + "</CUSTACC></row></list></stream>";
  ASSERT_EQ(exchange("EBBADQAH", request.c_str(), 1, &answer, &length, error), 1);
  corvane::CorvaneStream stream(std::string_view(answer, static_cast<std::size_t>(length)));
  EXPECT_EQ(stream.getList("resultList").size(), 1u);
  EXPECT_EQ(stream.getEncoding(), "GBK");
  Find<void(char*)>("HANDLE_SAFECOM", 4)(answer);
  answer = nullptr;
  EXPECT_EQ(exchange("EBBADQDB", "<stream/>", 1, &answer, &length, error), 0);
  EXPECT_STREQ(error, "BSNCODE\r\nBK30003");
  EXPECT_EQ(answer, nullptr);

  std::int64_t now = 0;
  Find<void(std::int64_t*)>("HANDLE_SAFECOM", 8)(&now);
  corvane::TSysDateTime time;
  time.setTime(now);
  EXPECT_EQ(time.getDate(), "20260615");
}

TEST_F(LibrariesTest, BankDirectoryFillsBehindItsMutex) {
  store_.SetHandle("BANK_PDATA", 0);
  BankDirectory directory(folder_ / "bank.sqlite", 200);
  const norvik_handle mutex = norvik_mutex_open("_BankInfoLoader_");
  ASSERT_NE(mutex, 0u);
  EXPECT_EQ(norvik_mutex_wait(mutex), NORVIK_MUTEX_ACQUIRED);
  norvik_mutex_release(mutex);
  norvik_mutex_close(mutex);
  EXPECT_NE(directory.Handle(), 0u);
}

}  // namespace
}  // namespace demohost
