#include "dialogs/messages.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>
#include <algorithm>

#include "dialogs/audit_form.h"
#include "dialogs/booking_form.h"
#include "dialogs/calendar_form.h"
#include "dialogs/com_msg.h"
#include "dialogs/error_msg.h"
#include "tests/support/form_host.h"
#include "toolkit/application.h"
#include "toolkit/clipboard.h"
#include "toolkit/screen.h"
#include "toolkit/text.h"

using fakehost::Library;

namespace {

struct Messages : testing::Test {
  FormHost host;
};

TEST_F(Messages, ModesDifferInCaptionsButtonsAndIcon) {
  host.SetText("UI12016", "是");
  const struct {
    TMessageMode mode;
    const char* caption;
    std::string ok;
    bool asks;
    int icon;
  } cases[] = {{TMessageMode::kInformation, "UI12013", "UI12002", false, 1},
               {TMessageMode::kWarning, "UI12014", "UI12002", false, 0},
               {TMessageMode::kQuestion, "UI12015", Ansi("是"), true, 2}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.caption);
    const TFormPointer<TFrmComMsg> form(CreateForm<TFrmComMsg>(Application, "text", row.mode));
    form->Show();
    EXPECT_EQ(form->Caption(), row.caption);
    EXPECT_EQ(form->m_btnOk->Caption(), row.ok);
    EXPECT_EQ(form->m_btnNo->Visible(), row.asks);
    EXPECT_EQ(form->m_lblInfo->Caption(), "text");
    EXPECT_EQ(form->DefaultButton(), form->m_btnOk);
    EXPECT_EQ(form->ActiveControl(), form->m_btnOk);
    const TbsSkinButton* last = row.asks ? form->m_btnNo : form->m_btnOk;
    EXPECT_NEAR(form->m_btnOk->Left(), form->ClientWidth() - last->Left() - last->Width(), 1);
    if (row.asks) {
      EXPECT_EQ(form->m_btnNo->Left() - form->m_btnOk->Left() - form->m_btnOk->Width(), 20);
    }
  }
  EXPECT_TRUE(host.failures.empty());
}

TEST_F(Messages, HeightFollowsBytesAndLines) {
  const struct {
    std::string text;
    int extra;
  } cases[] = {
      {"", 0},
      {"short", 0},
      {std::string(43, 'x'), 0},
      {std::string(44, 'x'), 0},   // 2 and 1 make 42, less 42
      {std::string(87, 'x'), 0},   // the same
      {std::string(88, 'x'), 14},  // 3 and 1
      {"a\r\nb", 0},               // 1 and 2
      {"a\r\nb\r\nc\r\n", 14},     // 1 and 3
      {std::string(440, 'x'), 126},
      {Ansi("一二三四五六七八九十一二三四五六七八九十一二三四五六七八九十一二三四五六七八九十一二三四"), 14},
  };
  int designed = 0;
  for (const auto& row : cases) {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(TFrmComMsg::ExtraHeight(row.text), row.extra);
    const TFormPointer<TFrmComMsg> form(
        CreateForm<TFrmComMsg>(Application, row.text, TMessageMode::kInformation));
    if (row.text.empty()) designed = form->Height();
    EXPECT_EQ(form->Height(), designed + row.extra);
    EXPECT_EQ(form->m_btnOk->Height(), 19);
    EXPECT_EQ(form->Tag(), 0);
  }
}

TEST_F(Messages, EverythingIsReadableAtALargeFontAndStaysOnTheScreen) {
  const std::string wordy = Ansi("列表中没有选中的记录，请先选择要导出的记录。");
  for (const char* size : {"9", "14", "24"}) {
    host.Configure("APPLICATION.FONT", "Size", size);
    for (const std::string& text : {wordy, wordy + wordy + wordy, std::string(100000, 'x')}) {
      const TFormPointer<TFrmComMsg> form(CreateForm<TFrmComMsg>(Application, text, TMessageMode::kQuestion));
      form->Show();
      EXPECT_LE(form->m_lblInfo->Top() + form->m_lblInfo->Height(), form->m_btnOk->Top()) << size;
      EXPECT_LT(form->m_btnNo->Left() + form->m_btnNo->Width(), form->ClientWidth()) << size;
      EXPECT_LT(form->m_btnOk->Top() + form->m_btnOk->Height(), form->ClientHeight()) << size;
      EXPECT_LE(form->Height(), Screen->Height()) << size;
      const auto* memo = qobject_cast<QPlainTextEdit*>(form->m_memo->Widget());
      EXPECT_EQ(form->m_lblInfo->Visible(), text.size() < 1000) << size;
      EXPECT_EQ(form->m_memo->Visible(), text.size() > 1000) << size;
      if (text.size() > 1000) {
        EXPECT_EQ(form->m_memo->Text(), text);
        EXPECT_GT(memo->verticalScrollBar()->maximum(), 0) << "read to its end";
        EXPECT_TRUE(form->m_memo->CanFocus());
        EXPECT_EQ(form->ActiveControl(), form->m_btnOk);
      } else {
        EXPECT_GE(form->m_lblInfo->Height(),
                  form->m_lblInfo->Widget()->heightForWidth(form->m_lblInfo->Width()) - 4)
            << size;
      }
    }
  }
}

TEST_F(Messages, OnlyTheLeftButtonSaysYes) {
  const struct {
    const char* way;
    std::function<void(TFrmComMsg&)> answer;
    bool yes;
  } cases[] = {{"left button", [](TFrmComMsg& form) { form.m_btnOk->Click(); }, true},
               {"right button", [](TFrmComMsg& form) { form.m_btnNo->Click(); }, false},
               {"window closed", [](TFrmComMsg& form) { form.Close(); }, false}};
  for (const auto& row : cases) {
    WhenShown<TFrmComMsg> step(row.answer);
    EXPECT_EQ(ShowConfirmMsg("really?", nullptr), row.yes) << row.way;
    EXPECT_TRUE(step.Came()) << row.way;
  }
  EXPECT_EQ(Screen->FormCount(), 0);
}

TEST_F(Messages, ShiftWithReturnMovesTheFocusWhereReturnPresses) {
  host.Configure("APPLICATION.OPERATOR", "SimulateTab", "1");
  host.Configure("CONTROL.RETURN", "TbsSkinButton", "1");
  WhenShown<TFrmComMsg> step([](TFrmComMsg& form) {
    QTest::keyClick(form.m_btnOk->Widget(), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(form.ActiveControl(), form.m_btnNo);
    QTest::keyClick(form.m_btnNo->Widget(), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(form.ActiveControl(), form.m_btnOk);
    QTest::keyClick(form.m_btnOk->Widget(), Qt::Key_Return);
  });
  EXPECT_TRUE(ShowConfirmMsg("really?", nullptr));
}

TEST_F(Messages, OnlyAMessageIsAnsweredByReturnInAField) {
  host.Configure("APPLICATION.OPERATOR", "SimulateTab", "1");
  const std::function<TBaseForm*()> dialogs[] = {
      [] { return CreateForm<TfrmAudit>(Application); },
      [] { return CreateForm<TfrmBookingProc>(Application, true); },
      [] { return CreateForm<TDateCalendar>(Application, std::string("20150131"), dtDateTime); }};
  for (const auto& make : dialogs) {
    const TFormPointer<TBaseForm> form(make());
    form->Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form->Widget()));
    const TWinControl* field = form->ActiveControl();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(form->Showing()) << form->ClassName();
    EXPECT_NE(form->ActiveControl(), field) << form->ClassName();
  }
}

TEST_F(Messages, AnAnsweredMessageIsAnnouncedAsClosed) {
  WhenShown<TFrmComMsg> step([](TFrmComMsg& form) { form.m_btnOk->Click(); });
  ShowInfoMsg("saved", nullptr);
  const auto told = [&](std::uint32_t number) {
    return std::count_if(host.messages.begin(), host.messages.end(),
                         [&](const FormHost::Message& message) { return message.number == number; });
  };
  EXPECT_EQ(told(kMessageFormShown), 0);
  EXPECT_EQ(told(kMessageFormClosed), 1);
  EXPECT_EQ(host.messages.back().lparam, TFrmComMsg::kConfirmed);
}

TEST_F(Messages, FailureShowsItsLastLineAndAllLines) {
  const struct {
    const char* text;
    const char* summary;
    const char* detail;
  } cases[] = {{"", "", ""},
               {"one line", "one line", "one line"},
               {"first\r\nlast", "last", "first\r\nlast"},
               {"first\r\n\r\nlast\r\n", "last", "first\r\n\r\nlast"}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.text);
    WhenShown<TFrmErrorMsg> step([&](TFrmErrorMsg& form) {
      EXPECT_EQ(form.m_lblInfo->Caption(), row.summary);
      EXPECT_EQ(form.m_memo->Text(), row.detail);
      EXPECT_EQ(form.m_btnCopy->Enabled(), row.detail[0] != '\0');
      EXPECT_FALSE(form.m_btnMail->Visible());
      form.m_btnOK->Click();
    });
    ShowErrorMsg(row.text, nullptr);
    EXPECT_TRUE(step.Came());
  }
}

TEST_F(Messages, DetailPaneOpensClosesAndIsCopied) {
  host.SetText("UI12009", "收起");
  host.SetText("UI12010", "详情");
  WhenShown<TFrmErrorMsg> step([](TFrmErrorMsg& form) {
    const int closed = form.Height();
    EXPECT_EQ(form.Width(), 451);
    EXPECT_EQ(closed, 355 - form.m_memo->Height() - 28);
    EXPECT_FALSE(form.m_memo->Visible());
    EXPECT_EQ(form.m_btnDetail->Caption(), Ansi("详情"));
    form.m_btnDetail->Click();
    EXPECT_TRUE(form.m_detailShown);
    EXPECT_TRUE(form.m_memo->Visible());
    EXPECT_TRUE(form.m_btnCopy->Visible());
    EXPECT_EQ(form.Height(), closed + form.m_memo->Height() + 28);
    EXPECT_LE(form.m_memo->Top() + form.m_memo->Height(), form.Height());
    EXPECT_EQ(form.m_btnDetail->Caption(), Ansi("收起"));
    form.m_btnCopy->Click();
    EXPECT_EQ(Clipboard().AsText(), Ansi("通讯失败\r\n请重试"));
    form.m_btnDetail->Click();
    EXPECT_FALSE(form.m_btnCopy->Visible());
    EXPECT_EQ(form.Height(), closed);
    EXPECT_EQ(form.m_btnDetail->Caption(), Ansi("详情"));
    form.m_btnOK->Click();
  });
  ShowErrorMsg(Ansi("通讯失败\r\n请重试"), nullptr);
  EXPECT_TRUE(step.Came());
}

TEST_F(Messages, AFailureIsReportedWithTheHostsText) {
  host.SetErrorText("ET10016\r\nET10040", "报文格式错误");
  const corvane::TException failure(corvane::StringVector{"ET10016", "ET10040"});
  WhenShown<TFrmErrorMsg> step([](TFrmErrorMsg& form) {
    EXPECT_EQ(form.m_lblInfo->Caption(), Ansi("报文格式错误"));
    form.Close();
  });
  ReportException(failure);
  EXPECT_TRUE(step.Came());
  host.libraries.SetAnswer(Library::kError, 5, fakehost::Refusal("no error texts"));
  EXPECT_THROW(ReportException(corvane::TException("ET99999")), corvane::TIOException);
}

}  // namespace
