// A host one of whose functions fails for good once the module has started, each in turn and in several ways.
#include <gtest/gtest.h>

#include <QAbstractButton>

#include "tests/module/module_library.h"

namespace {

using fakehost::Answer;
using fakehost::Library;
constexpr auto kPub = Library::kPublicInformation;

const struct {
  Library library;
  std::uint32_t ordinal;
  bool opens;  // without it a screen can be made
} kFunctions[] = {{kPub, 23, true},
                  {kPub, 24, true},
                  {kPub, 40, true},
                  {kPub, 68, true},
                  {kPub, 82, true},
                  {kPub, 90, true},
                  {Library::kTranslate, 4, false},
                  {Library::kError, 5, true},
                  {Library::kSafeCom, 5, true}};

const struct {
  const char* key;
  Answer answer;
} kFailures[] = {{"refused", fakehost::Refusal("refused")},
                 {"CF30001", {.text = "x", .length = -1}},
                 {"CF30003", {.text = "x", .length = 1, .noBuffer = true}}};

TEST(RefusingHost, IsToldOfAndSurvived) {
  for (const auto& function : kFunctions) {
    for (const auto& failure : kFailures) {
      SCOPED_TRACE(std::to_string(static_cast<int>(function.library)) + "." +
                   std::to_string(function.ordinal) + " " + failure.key);
      WindowedHost host;
      const ModuleLibrary module;
      DialogCloser closer;
      module.InitModule(host.publicInformation);
      host.OfferBills();
      host.SetAnswer(function.library, function.ordinal, failure.answer);
      for (const char* item : {"ITEM6066", "ITEM6067"}) {
        EXPECT_EQ(KeysOf([&] { module.Pick(item); }),
                  function.opens ? std::vector<std::string>() : std::vector<std::string>{failure.key});
      }
      QWidget* const screen = WindowOf("TfrmNorvikQry");
      ASSERT_EQ(screen != nullptr, function.opens);
      if (screen) {
        EXPECT_TRUE(screen->isVisible());
        screen->findChild<QAbstractButton*>("m_spdQuery")->click();
        screen->close();
        EXPECT_FALSE(screen->isVisible());
      }
      module.Release();
      // A dialog for each step at most, and one for each dialog that failed itself.
      EXPECT_LE(closer.closed, 12);
      EXPECT_EQ(host.given, host.released);
      EXPECT_EQ(host.wronglyReleased, 0);
    }
  }
}

}  // namespace
