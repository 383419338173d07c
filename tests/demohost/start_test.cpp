#include <gtest/gtest.h>

#include <QByteArray>
#include <functional>

#include "demohost/bank_directory.h"
#include "demohost/client_data.h"
#include "demohost/libraries/chinese.h"
#include "demohost/module.h"
#include "demohost/options.h"
#include "demohost/skins.h"
#include "platform/bank_directory.h"
#include "platform/code_page.h"
#include "tests/demohost/folder.h"
#include "tests/demohost/test_plan.h"

namespace demohost {
namespace {

TEST(Options, AreReadFromTheCommandLine) {
  QString message;
  const auto options = ParseOptions(
      {"demohost", "--bills", "7", "--today", "20250101", "--delay", "250", "--data", "/d", "--config=/c",
       "--script", "-", "--language", "English", "--open", "ITEM6066", "--patience", "9"},
      message);
  ASSERT_TRUE(options);
  EXPECT_EQ(options->bills, 7);
  EXPECT_EQ(DayText(options->today), "20250101");
  EXPECT_EQ(options->delay, 250);
  EXPECT_EQ(options->data, "/d");
  EXPECT_EQ(options->config, "/c");
  EXPECT_EQ(options->script, "-");
  EXPECT_EQ(options->language, "English");
  EXPECT_EQ(options->open, "ITEM6066");
  EXPECT_EQ(options->patience, 9);
}

TEST(Options, RefuseWhatTheyDoNotTake) {
  const struct {
    QStringList arguments;
    const char* reason;
  } cases[] = {
      {{"--bills", "many"}, "--bills takes a number from 0 to 5000000"},
      {{"--bills", "-1"}, "--bills takes a number from 0 to 5000000"},
      {{"--delay", "600001"}, "--delay takes a number from 0 to 600000"},
      {{"--today", "20260230"}, "--today takes a date, yyyymmdd"},
      {{"--language", "Latin"}, "--language: there is no \"Latin\""},
      {{"--nonsense"}, "Unknown option 'nonsense'."},
      {{"stray"}, "what is \"stray\"?"},
  };
  for (const auto& [arguments, reason] : cases) {
    QString message;
    try {
      ParseOptions(QStringList{"demohost"} + arguments, message);
      ADD_FAILURE() << arguments.join(' ').toStdString();
    } catch (const OptionError& error) {
      EXPECT_STREQ(error.what(), reason) << arguments.join(' ').toStdString();
    }
  }
  QString message;
  EXPECT_FALSE(ParseOptions({"demohost", "--help"}, message));
  EXPECT_TRUE(message.startsWith("Usage: ")) << message.toStdString();
  EXPECT_FALSE(ParseOptions({"demohost", "--version"}, message));
}

std::string FailureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const ModuleError& error) {
    return error.what();
  }
  return "done";
}

TEST(Module, SaysWhatItLacks) {
  const Folder folder;
  EXPECT_NE(FailureOf([&] { Module(folder / "none.so"); }).find("none.so"), std::string::npos);
  EXPECT_NE(FailureOf([&] { Module(folder.Write("bad.so", "no library")); }).find("bad.so"),
            std::string::npos);
  EXPECT_EQ(FailureOf([] { Module("libm.so.6"); }), "no export InitModule");
}

TEST(Skins, ArePackedAsAModuleReadsThem) {
  const Folder folder;
  folder.Write("in/forms.qss", "QWidget { color: @text; border: 1px solid @line_one; }");
  folder.Write("in/a.colours", "text = #111111\nline_one = #222222\n");
  PackSkins(folder / "in", folder / "out");
  const QByteArray packed = QByteArray::fromStdString(ReadFile(folder / "out/a.skin"));
  EXPECT_EQ(qUncompress(packed).toStdString(), "QWidget { color: #111111; border: 1px solid #222222; }");
  folder.Write("in/b.colours", "text = #111111\n");
  EXPECT_THROW(PackSkins(folder / "in", folder / "out"), FileError);
  for (const SkinStyle& style : SkinStyles()) {
    PackSkins(std::filesystem::path(DEMOHOST_TEST_SHARE) / "skins", folder / "shipped");
    EXPECT_TRUE(std::filesystem::exists(folder / "shipped" / style.file)) << style.file;
  }
}

TEST(BankDirectory, FindsABankByTheFourLevels) {
  const Folder folder;
  std::string number;
  std::string name;
  {
    Database bank = OpenBank(folder / "bank.sqlite", TestPlan(1));
    Statement any = bank.Prepare("SELECT NUMBER, NAME FROM bank ORDER BY NUMBER DESC");
    ASSERT_TRUE(any.Step());
    number = any.Text(0);
    name = any.Text(1);
  }
  BankDirectory directory(folder / "bank.sqlite");
  const norvik_handle mutex = norvik_mutex_open("_BankInfoLoader_");
  norvik_mutex_wait(mutex);
  const auto functions = norvik::FindBankDirectory(directory.Handle());
  ASSERT_TRUE(functions);
  const std::string area = number.substr(3, 4);
  const std::string type = number.substr(0, 3);
  std::string names[2];
  for (std::uint32_t index = 0; const char* top = functions->top_code(functions->context, index); ++index) {
    if (functions->has_area(functions->context, top, area.c_str()) == 0) continue;
    for (const bool traditional : {false, true}) {
      directory.SetTraditional(traditional);
      const char* given =
          functions->bank_name(functions->context, top, area.c_str(), type.c_str(), number.c_str());
      names[traditional ? 1 : 0] = given == nullptr ? "" : given;
    }
    EXPECT_EQ(functions->bank_name(functions->context, top, area.c_str(), "000", number.c_str()), nullptr);
    EXPECT_EQ(functions->bank_name(functions->context, top, "0000", type.c_str(), number.c_str()), nullptr);
  }
  EXPECT_EQ(norvik::Utf8FromAnsi(names[0]), name);
  EXPECT_EQ(names[1], TraditionalFromSimplified(names[0]));
  EXPECT_NE(names[1], names[0]);
  EXPECT_EQ(functions->has_area(functions->context, "none", area.c_str()), 0);
  EXPECT_EQ(functions->top_code(functions->context, 1000), nullptr);
  norvik_mutex_release(mutex);
  norvik_mutex_close(mutex);
}

}  // namespace
}  // namespace demohost
