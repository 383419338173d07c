#include "toolkit/edits.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

#include "tests/toolkit/kvx_fixture.h"
#include "toolkit/date_edit.h"
#include "toolkit/text.h"

namespace {

class KvxEditTest : public KvxTest {
 protected:
  static QLineEdit* Line(const TCustomEdit* edit) { return qobject_cast<QLineEdit*>(edit->Widget()); }
};

const TKVXInputRule kAny{ikAny, 5};
const TKVXInputRule kDigits{ikDigits, 8};
const TKVXInputRule kWords{ikLettersDigitsChinese, 9};
const TKVXInputRule kMoney{ikCurrency, 16, 13, 2};

struct Pasted {
  const char* what;
  TKVXInputRule rule;
  const char* before;
  const char* pasted;
  const char* after;
};

const Pasted kPasted[] = {
    {"digits pass, others drop out", kDigits, "", "2015-01-31", "20150131"},
    {"digits end at the limit", kDigits, "", "123456789", "12345678"},
    {"full-width digits are no digits", kDigits, "", "１２3", "3"},
    {"words take letters, digits and Chinese", kWords, "", "票A-1 据_b", "票A1据b"},
    {"a character isn't halved, nor what follows taken", kWords, "12345678", "中a", "12345678"},
    {"what fits exactly stays", kWords, "1234567", "中", "1234567中"},
    {"names have full-width brackets", kWords, "", "（国）a", "（国）a"},
    {"what the code page lacks drops out", kWords, "", "a😀b", "ab"},
    {"an amount loses its separators", kMoney, "", "1,234,567.50", "1234567.50"},
    {"a third decimal drops out", kMoney, "", "12.345", "12.34"},
    {"a second point drops out", kMoney, "1.5", ".2", "1.52"},
    {"thirteen digits before the point", kMoney, "", "12345678901234.56", "1234567890123.56"},
    {"an amount has no sign", kMoney, "", "-5", "5"},
    {"control characters drop out", kAny, "", "a\tb\nc?", "abc?"},
    {"any text ends at its bytes", kAny, "", "中文字", "中文"},
};

}  // namespace

TEST_F(KvxEditTest, PastingKeepsTheRule) {
  for (const Pasted& row : kPasted) {
    SCOPED_TRACE(row.what);
    auto* edit = Put<TKVXEdit>("m_ed");
    edit->SetInputRule(row.rule);
    edit->SetText(Ansi(row.before));
    Line(edit)->end(false);
    Paste(Line(edit), row.pasted);
    EXPECT_EQ(edit->Text(), Ansi(row.after));
    EXPECT_EQ(Line(edit)->cursorPosition(), Line(edit)->text().size());
    delete edit;
  }
}

TEST_F(KvxEditTest, TypingKeepsTheRuleInTheMiddleToo) {
  auto* edit = Put<TKVXEdit>("m_edMinAmount");
  edit->SetInputRule(kMoney);
  EXPECT_EQ(edit->Alignment(), taRightJustify);
  int changes = 0;
  edit->OnChange = Count(changes);
  QTest::keyClicks(Line(edit), "12a3.4,5");
  EXPECT_EQ(edit->Text(), "123.45");
  EXPECT_EQ(changes, 6);
  Line(edit)->setCursorPosition(1);
  QTest::keyClicks(Line(edit), "x9");
  EXPECT_EQ(edit->Text(), "1923.45");
  EXPECT_EQ(Line(edit)->cursorPosition(), 2);
}

TEST_F(KvxEditTest, DeletingMayNotSpoilAnAmount) {
  auto* edit = Put<TKVXEdit>("m_ed");
  edit->SetInputRule(kMoney);
  edit->SetText("1234567890123.45");
  Line(edit)->setCursorPosition(14);
  QTest::keyClick(Line(edit), Qt::Key_Backspace);
  EXPECT_EQ(edit->Text(), "1234567890123.45");
  Line(edit)->selectAll();
  QTest::keyClicks(Line(edit), "7");
  EXPECT_EQ(edit->Text(), "7");
}

TEST_F(KvxEditTest, CodeSetsAnyTextSilentlyAndTheUserCanShortenIt) {
  auto* edit = Put<TKVXEdit>("m_edBatNo");
  edit->SetInputRule(kWords);
  int changes = 0;
  edit->OnChange = Count(changes);
  edit->SetText("a-very-long-text");
  EXPECT_EQ(edit->Text(), "a-very-long-text");
  EXPECT_EQ(changes, 0);
  Line(edit)->end(false);
  QTest::keyClicks(Line(edit), "z");
  EXPECT_EQ(edit->Text(), "a-very-long-text");
  QTest::keyClick(Line(edit), Qt::Key_Backspace);
  EXPECT_EQ(edit->Text(), "a-very-long-tex");
  EXPECT_EQ(changes, 1);
}

TEST_F(KvxEditTest, ABytePairThatLooksLikeABackslashIsOneCharacter) {
  auto* edit = Put<TKVXEdit>("m_ed");
  edit->SetMaxLength(3);
  Paste(Line(edit), "乗乗");
  EXPECT_EQ(edit->Text(), Ansi("乗"));
}

TEST_F(KvxEditTest, AMemoCountsLineEndsAsTwoBytes) {
  auto* memo = Put<TMemo>("m_memInfo");
  auto* view = qobject_cast<QPlainTextEdit*>(memo->Widget());
  ASSERT_NE(view, nullptr);
  memo->SetMaxLength(8);
  int changes = 0;
  memo->OnChange = Count(changes);
  memo->SetText("ab\r\nc");
  EXPECT_EQ(memo->Text(), "ab\r\nc");
  EXPECT_EQ(changes, 0);
  view->moveCursor(QTextCursor::End);
  Paste(view, "\n中d");
  EXPECT_EQ(memo->Text(), "ab\r\nc\r\n");
  EXPECT_EQ(changes, 1);
  QTest::keyClicks(view, "12");
  EXPECT_EQ(memo->Text(), "ab\r\nc\r\n1");
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(view->textCursor().position(), 6);
}

class KvxDateTest : public KvxEditTest {
 protected:
  void SetUp() override {
    KvxEditTest::SetUp();
    date = Put<TKVXDateTime>("m_dtDeadStartDate");
    date->OnChange = Count(changes);
    button = date->Widget()->findChild<QToolButton*>();
    ASSERT_NE(button, nullptr);
  }

  TKVXDateTime* date = nullptr;
  QToolButton* button = nullptr;
  int changes = 0;
};

TEST_F(KvxDateTest, TakesEightDigits) {
  QTest::keyClicks(Line(date), "2015-0230x99");
  EXPECT_EQ(date->Text(), "20150230");
  EXPECT_EQ(changes, 8);
  date->SetText("");
  EXPECT_EQ(changes, 8);
  date->SetDateType(dtDateTime);
  Paste(Line(date), "2015-01-31 12:34:56");
  EXPECT_EQ(date->Text(), "20150131123456");
}

TEST_F(KvxDateTest, TheButtonAsksThePicker) {
  EXPECT_FALSE(button->isEnabled());
  std::string asked;
  std::string answer = "20160229";
  date->SetDateTimeForm([&](const std::string& text, TKVXDateType type) {
    asked = text + (type == dtDate ? "/date" : "/other");
    return answer;
  });
  date->SetText("20150131");
  button->click();
  EXPECT_EQ(asked, "20150131/date");
  EXPECT_EQ(date->Text(), "20160229");
  EXPECT_EQ(changes, 1);
  QTest::keyClick(Line(date), Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(asked, "20160229/date");
  EXPECT_EQ(changes, 1) << "the same answer is no change";
  date->SetReadOnly(true);
  answer = "20170101";
  button->click();
  EXPECT_EQ(date->Text(), "20160229");
}

TEST_F(KvxDateTest, APickerThatFailsIsReportedAndChangesNothing) {
  int reported = 0;
  Application->OnException = [&](TObject* sender, std::exception_ptr) {
    EXPECT_EQ(sender, date);
    ++reported;
  };
  date->SetText("20150131");
  date->SetDateTimeForm(
      [](const std::string&, TKVXDateType) -> std::string { throw std::runtime_error("no date"); });
  button->click();
  EXPECT_EQ(reported, 1);
  EXPECT_EQ(date->Text(), "20150131");
}
