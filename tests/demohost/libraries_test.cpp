#include "demohost/libraries/libraries.h"

#include <gtest/gtest.h>

#include <cstring>

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
    libraries_ = std::make_unique<Libraries>(Services{&store_, &texts_, &bank_, &clock_, &output_, 0, {}});
  }
  ~LibrariesTest() override { EXPECT_EQ(OutstandingBuffers(), 0u); }

  void WriteTexts() const {
    folder_.Write("texts/zh_CN.txt", "ET10016=报文有误\nBK30005=日期有误\n");
    for (const char* other : {"texts/zh_TW.txt", "texts/en.txt"}) folder_.Write(other, "UI44008=x\n");
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
  std::unique_ptr<Libraries> libraries_;
};

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

}  // namespace
}  // namespace demohost
