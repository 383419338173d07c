#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QWidget>
#include <algorithm>

#include "tests/data/keys.h"
#include "tests/support/module_library.h"

namespace {

using fakehost::Library;
constexpr auto kPub = Library::kPublicInformation;

constexpr const char* kMenu =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?><iniplus><section name=\"MENU\">"
    "<row><ItemName>ITEM6066</ItemName></row><row><ItemName>ITEM6067</ItemName></row>"
    "<row><ItemName>ITEM6068</ItemName></row></section></iniplus>";

const struct {
  const char* item;
  const char* screen;
} kScreens[] = {
    {"ITEM6066", "TfrmNorvikQry"}, {"ITEM6067", "TfrmNorvikELoanQry"}, {"ITEM6068", "TfrmNorvikDTLQry"}};

int OpenScreens() {
  return static_cast<int>(std::count_if(std::begin(kScreens), std::end(kScreens),
                                        [](auto& row) { return WindowOf(row.screen); }));
}

int CountOf(const std::string& screen) {
  const auto windows = QApplication::topLevelWidgets();
  return static_cast<int>(std::count_if(windows.begin(), windows.end(), [&](const QWidget* window) {
    return window->objectName().toStdString() == screen;
  }));
}

// A module that has been started.
struct CallFunc : testing::Test {
  CallFunc() { module.InitModule(host.publicInformation); }

  WindowedHost host;
  const ModuleLibrary module;
};
using Release = CallFunc;

TEST(Menu, NeedsNoServices) {
  const ModuleLibrary module;
  EXPECT_EQ(module.Menu(), kMenu);
  module.MenuConfig(nullptr);
}

TEST(InitModule, AsksForItsLibrariesInOrder) {
  WindowedHost host;
  const ModuleLibrary module;
  EXPECT_EQ(module.InitModule(host.publicInformation), 0u);
  std::vector<std::string> keys;
  for (const auto& call : host.CallsOf(kPub, 123)) keys.push_back(call.arguments[0]);
  EXPECT_EQ(keys,
            (std::vector<std::string>{"HANDLE_TRANSLATE", "HANDLE_ERROR", "HANDLE_PRINT", "HANDLE_SAFECOM",
                                      "BANK_PDATA", "HANDLE_EXCEL", "APPMAINFORMHANDLE"}));
  const std::vector<std::string> handle = {std::to_string(host.publicInformation)};
  for (const Library library : {kPub, Library::kTranslate, Library::kError, Library::kPrint}) {
    EXPECT_EQ(host.CallsOf(library, 1), (std::vector<fakehost::Call>{{library, 1, handle}}));
  }
  EXPECT_TRUE(host.CallsOf(Library::kSafeCom, 1).empty());
  EXPECT_TRUE(host.CallsOf(Library::kExcel, 1).empty());
}

TEST_F(CallFunc, RefusesAPickAfterAFailedStartAndWhatIsNoItem) {
  EXPECT_EQ(KeyOf([&] { module.CallFunc(nullptr, 0); }), "ET10057");
  module.Pick("item6066");
  EXPECT_EQ(OpenScreens(), 0);
  EXPECT_EQ(KeyOf([&] { module.InitModule(0); }), "CF15001");
  EXPECT_EQ(KeyOf([&] { module.Pick("ITEM6066"); }), "CF30007");
}

TEST_F(CallFunc, OpensEachScreenOverTheMainWindowAndRestoresIt) {
  for (const auto& row : kScreens) {
    SCOPED_TRACE(row.item);
    module.Pick(row.item);
    QWidget* const window = WindowOf(row.screen);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->parentWidget(), host.mainWindow.get());
    window->showMinimized();
    module.CallFunc(("<menu><Other/><ItemName>" + std::string(row.item) + "</ItemName></menu>").c_str(),
                    0xFFFFFFFF);
    EXPECT_FALSE(window->isMinimized());
    window->close();
    module.Pick(row.item);
    EXPECT_EQ(WindowOf(row.screen), window);
  }
}

TEST(InitModule, TakesAnyHandleForTheMainWindow) {
  for (const std::uint32_t stray : {0u, 1u, 0xFFFFFFFFu}) {
    WindowedHost host;
    host.handles["APPMAINFORMHANDLE"] = stray;
    const ModuleLibrary module;
    module.InitModule(host.publicInformation);
    module.Pick("ITEM6066");
    ASSERT_NE(WindowOf("TfrmNorvikQry"), nullptr);
    EXPECT_EQ(WindowOf("TfrmNorvikQry")->parentWidget(), nullptr);
    EXPECT_TRUE(WindowOf("TfrmNorvikQry")->isVisible());
  }
}

TEST_F(CallFunc, ReportsAFailureOfTheScreenAndGoesOn) {
  host.SetAnswer(kPub, 90, {"FIELDDEF", "TfrmNorvikQry"}, fakehost::Refusal("no columns"));
  DialogCloser closer;
  // The host picks the item once more while the failure is still shown.
  closer.whenShown = [&] { module.Pick("ITEM6066"); };
  module.Pick("ITEM6066");
  EXPECT_GT(closer.closed, 0);
  EXPECT_FALSE(host.CallsOf(Library::kError, 5).empty());
  EXPECT_EQ(CountOf("TfrmNorvikQry"), 1);
}

TEST_F(CallFunc, ShowsAScreenOnceItHasToldWhatTheHostLacks) {
  // Every form reads its font, so the form that reports the failure meets it, too.
  for (const auto& answer : {fakehost::Text(""), fakehost::Text("large"), fakehost::Refusal("no font")}) {
    host.SetAnswer(kPub, 68, {"SYSCONFIG_DATA", "APPLICATION.FONT", "Size"}, answer);
    DialogCloser closer;
    module.Pick("ITEM6066");
    EXPECT_EQ(closer.closed, 1) << answer.text;
    ASSERT_EQ(OpenScreens(), 1);
    EXPECT_TRUE(WindowOf("TfrmNorvikQry")->isVisible());
    WindowOf("TfrmNorvikQry")->close();
  }
}

TEST_F(CallFunc, PassesOnWhyAScreenCouldNotBeMadeAndMakesItNextTime) {
  host.SetAnswer(Library::kTranslate, 4, {"UI40", "UI40110"}, fakehost::Refusal("no texts"));
  for (const auto& row : kScreens) {
    SCOPED_TRACE(row.item);
    EXPECT_EQ(KeyOf([&] { module.Pick(row.item); }), "no texts");
    EXPECT_EQ(CountOf(row.screen), 0);
  }
  host.SetAnswer(Library::kTranslate, 4, {"UI40", "UI40110"}, fakehost::Text("today"));
  for (const auto& row : kScreens) module.Pick(row.item);
  EXPECT_EQ(OpenScreens(), 3);
}

TEST_F(CallFunc, ReportsAFailureWithoutATextInTheWordsOfTheErrorLibrary) {
  host.OfferBills();
  module.Pick("ITEM6066");
  host.SetAnswer(Library::kSafeCom, 5, fakehost::Refusal("BK1"));
  host.SetAnswer(Library::kError, 5, fakehost::Refusal("no texts"));
  DialogCloser closer;
  QString shown;
  closer.whenShown = [&] {
    shown = QApplication::activeModalWidget()->findChild<QLabel*>("m_lblInfo")->text();
  };
  auto* query = WindowOf("TfrmNorvikQry")->findChild<QAbstractButton*>("m_spdQuery");
  query->click();
  EXPECT_EQ(shown, "no texts");
  EXPECT_EQ(closer.closed, 1);
  EXPECT_TRUE(query->isEnabled());
}

TEST_F(Release, ComesAfterTheHostsMainWindowHasTakenTheScreensWithIt) {
  host.OfferBills();
  for (const auto& row : kScreens) module.Pick(row.item);
  for (const auto& row : kScreens) delete WindowOf(row.screen);
  for (const auto& row : kScreens) module.Pick(row.item);
  module.Release();
  EXPECT_EQ(OpenScreens(), 0);
  EXPECT_EQ(host.given, host.released);
}

TEST_F(Release, SavesTheLayoutsInTheOrderOfTheMenu) {
  host.OfferBills();
  for (int i = 2; i >= 0; --i) module.Pick(kScreens[i].item);
  host.calls.clear();
  module.Release();
  std::vector<std::string> saved;
  for (const auto& call : host.CallsOf(kPub, 80)) {
    EXPECT_EQ(call.arguments[0], "COLUMN_INFO");
    for (const auto& section : corvane::Iniplus(call.arguments[1])) saved.push_back(section.first);
  }
  EXPECT_EQ(saved, (std::vector<std::string>{kScreens[0].screen, kScreens[1].screen, kScreens[2].screen}));
}

}  // namespace
