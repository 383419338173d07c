#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "platform/host_api.h"
#include "tests/toolkit/test_form.h"
#include "toolkit/application.h"
#include "toolkit/screen.h"

using Log = std::vector<std::string>;

namespace {

// The forms go before what they write to.
class FormTest : public testing::Test {
 protected:
  void TearDown() override { DestroyApplication(); }
  Log log;
};

}  // namespace

TEST_F(FormTest, IsMadeInStepsAndDestroyedAfterItsHandler) {
  TForm* form = CreateForm<TLoggedForm>(Application, &log);
  EXPECT_EQ(form->ClassName(), "TLoggedForm");
  EXPECT_EQ(Screen->FormCount(), 1);
  DestroyForm(form);
  EXPECT_EQ(log, (Log{"BuildControls", "SetCaptions", "Construct", "FormDestroy"}));
  EXPECT_EQ(Screen->FormCount(), 0);
}

TEST_F(FormTest, AFailingStepDeletesItAndIsPassedOn) {
  EXPECT_THROW(CreateForm<TLoggedForm>(Application, &log, true), std::runtime_error);
  EXPECT_EQ(log.back(), "Construct");
  EXPECT_EQ(Screen->FormCount(), 0);
  EXPECT_EQ(Application->ComponentCount(), 0);
}

TEST_F(FormTest, AnOwnerDestroysItsFormsAndTheirHandlersRun) {
  TForm* screen = CreateForm<TTestForm>(Application);
  CreateForm<TLoggedForm>(screen, &log);
  DestroyForm(screen);
  EXPECT_EQ(log.back(), "FormDestroy");
  EXPECT_EQ(Screen->FormCount(), 0);
}

TEST_F(FormTest, ShowAndCloseRunTheirHandlersOnceAndCloseHides) {
  TForm* form = CreateForm<TLoggedForm>(Application, &log);
  log.clear();
  form->Show();
  form->Show();
  EXPECT_TRUE(form->Showing());
  form->Close();
  form->Close();
  EXPECT_FALSE(form->Showing());
  EXPECT_EQ(std::count(log.begin(), log.end(), "OnShow"), 1);
  EXPECT_EQ(std::count(log.begin(), log.end(), "OnClose"), 1);
  form->Show();
  form->Widget()->close();
  EXPECT_FALSE(form->Showing());
  EXPECT_EQ(std::count(log.begin(), log.end(), "OnClose"), 2);
}

TEST_F(FormTest, AFailureInOnShowIsReportedAndTheFormShows) {
  auto* form = CreateForm<TTestForm>(Application);
  std::string reported;
  Application->OnException = [&](TObject*, std::exception_ptr error) {
    try {
      std::rethrow_exception(error);
    } catch (const std::runtime_error& failure) {
      reported = failure.what();
    }
  };
  form->OnShow = [](TObject*) { throw std::runtime_error("no size"); };
  form->Show();
  EXPECT_EQ(reported, "no size");
  EXPECT_TRUE(form->Showing());
}

TEST_F(FormTest, ModalResults) {
  struct Case {
    const char* what;
    std::function<void(TTestForm*)> act;
    int expected;
  };
  const Case cases[] = {
      {"close", [](TTestForm* form) { form->Close(); }, mrCancel},
      {"window closed", [](TTestForm* form) { form->Widget()->close(); }, mrCancel},
      {"result", [](TTestForm* form) { form->SetModalResult(mrOk); }, mrOk},
      {"result then close", [](TTestForm* form) { form->SetModalResult(mrNo), form->Close(); }, mrNo},
      {"button with a result",
       [](TTestForm* form) { QTest::mouseClick(form->m_btnFirst->Widget(), Qt::LeftButton); }, mrYes},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.what);
    log.clear();
    auto* form = CreateForm<TLoggedForm>(Application, &log);
    form->m_btnFirst->SetModalResult(mrYes);
    bool blocked = false;
    QTimer::singleShot(0, form, [&] {
      blocked = QApplication::activeModalWidget() == form->Widget();
      row.act(form);
    });
    EXPECT_EQ(form->ShowModal(), row.expected);
    EXPECT_TRUE(blocked);
    EXPECT_FALSE(form->Showing());
    EXPECT_EQ(std::count(log.begin(), log.end(), "OnClose"), 1);
    DestroyForm(form);
  }
}

TEST_F(FormTest, AModalFormStaysAboveTheOneThatItBlocksWhoeverOwnsIt) {
  auto* below = CreateForm<TTestForm>(Application);
  auto* above = CreateForm<TTestForm>(Application);
  const QWindow* kept = nullptr;
  QTimer::singleShot(0, below, [&] {
    QTimer::singleShot(0, above, [&] {
      kept = above->Widget()->windowHandle()->transientParent();
      above->Close();
    });
    above->ShowModal();
    below->Close();
  });
  below->ShowModal();
  EXPECT_NE(kept, nullptr);
  EXPECT_EQ(kept, below->Widget()->windowHandle());
}

TEST_F(FormTest, DestroyingAModalFormEndsItsLoop) {
  auto* form = CreateForm<TTestForm>(Application);
  QTimer::singleShot(0, Application, [form] { DestroyForm(form); });
  EXPECT_EQ(form->ShowModal(), mrCancel);
  EXPECT_EQ(Screen->FormCount(), 0);
}

TEST_F(FormTest, TakesMessagesThroughItsHandle) {
  auto* form = CreateForm<TLoggedForm>(Application, &log);
  const norvik_handle handle = form->Handle();
  ASSERT_NE(handle, 0U);
  EXPECT_EQ(form->Handle(), handle);
  norvik_window_send(handle, 0x7E9, 0, 0);
  EXPECT_EQ(log.back(), "0x7E9");
  form->Show();
  form->Widget()->showMinimized();
  norvik_window_send(handle, WM_SYSCOMMAND, SC_RESTORE, 0);
  EXPECT_FALSE(form->Widget()->isMinimized());
  DestroyForm(form);
  EXPECT_EQ(norvik_window_send(handle, 0x7E9, 0, 0), 0);
}

TEST_F(FormTest, IsToldWhenItsWindowBecomesActive) {
  auto* form = CreateForm<TLoggedForm>(Application, &log);
  form->Show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(form->Widget()));
  EXPECT_NE(std::find(log.begin(), log.end(), "WM_ACTIVATE 1"), log.end());
  EXPECT_NE(std::find(log.begin(), log.end(), "OnActivate"), log.end());
  EXPECT_EQ(Screen->ActiveForm(), form);
}

TEST_F(FormTest, OpensInTheMiddleOfWhatItBelongsTo) {
  QWidget host;
  host.setGeometry(100, 60, 500, 400);
  host.show();
  const auto ignore = [](void*, std::uint32_t, std::uintptr_t, std::intptr_t) -> std::intptr_t { return 0; };
  const norvik_handle handle = norvik_window_register(ignore, nullptr, &host);
  Application->SetHandle(handle);
  auto* screen = CreateForm<TTestForm>(Application);
  screen->SetPosition(poMainFormCenter);
  screen->SetWidth(300);
  screen->SetHeight(200);
  screen->Show();
  EXPECT_EQ(screen->Widget()->parentWidget(), &host);
  // The window manager's frame may shift a window by its width.
  const auto apart = [](const QWidget* one, const QWidget* other) {
    return (one->frameGeometry().center() - other->frameGeometry().center()).manhattanLength();
  };
  EXPECT_LE(apart(screen->Widget(), &host), 8);
  auto* dialog = CreateForm<TTestForm>(screen);
  dialog->SetPosition(poOwnerFormCenter);
  screen->Widget()->move(20, 30);
  dialog->Show();
  EXPECT_EQ(dialog->Widget()->parentWidget(), screen->Widget());
  EXPECT_LE(apart(dialog->Widget(), screen->Widget()), 8);
  DestroyForm(screen);
  Application->SetHandle(0);
  norvik_window_unregister(handle);
}

TEST_F(FormTest, SurvivesTheEndOfTheHostsWindow) {
  auto host = std::make_unique<QWidget>();
  const auto ignore = [](void*, std::uint32_t, std::uintptr_t, std::intptr_t) -> std::intptr_t { return 0; };
  const norvik_handle handle = norvik_window_register(ignore, nullptr, host.get());
  Application->SetHandle(handle);
  auto* form = CreateForm<TTestForm>(Application);
  form->Show();
  norvik_window_unregister(handle);
  host.reset();
  ASSERT_NE(form->Widget(), nullptr);
  EXPECT_EQ(form->Widget()->parentWidget(), nullptr);
  EXPECT_FALSE(form->Showing());
  form->Show();
  EXPECT_TRUE(form->Showing());
  // A window that the host deletes by itself is gone for good.
  delete form->Widget();
  form->m_lbText->SetCaption("late");
  form->m_btnFirst->SetEnabled(false);
  form->SetCaption("late");
  form->Show();
  form->Close();
  DestroyForm(form);
}

struct KeyCase {
  const char* what;
  int key;
  const char* start;
  const char* expected;
};

TEST_F(FormTest, TabGoesRoundTheTabStops) {
  auto* form = CreateForm<TTestForm>(Application);
  form->m_btnSecond->SetEnabled(false);
  form->Show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(form->Widget()));
  const KeyCase cases[] = {
      {"forward", Qt::Key_Tab, "m_btnFirst", "m_crbTick"},
      {"over a disabled one, out of the panel", Qt::Key_Tab, "m_crbTick", "m_btnThird"},
      {"round the end", Qt::Key_Tab, "m_btnThird", "m_btnFirst"},
      {"back", Qt::Key_Backtab, "m_crbTick", "m_btnFirst"},
      {"back round the start", Qt::Key_Backtab, "m_btnFirst", "m_btnThird"},
  };
  for (const KeyCase& row : cases) {
    SCOPED_TRACE(row.what);
    qobject_cast<TWinControl*>(form->FindComponent(row.start))->SetFocus();
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(row.key));
    EXPECT_EQ(form->ActiveControl()->Name(), row.expected);
    EXPECT_TRUE(form->ActiveControl()->Focused());
  }
}

TEST_F(FormTest, SelectNextSkipsWhatIsHiddenAndWhatHasNoTabStop) {
  auto* form = CreateForm<TTestForm>(Application);
  form->Show();
  form->m_crbTick->SetTabStop(false);
  form->m_btnSecond->SetVisible(false);
  EXPECT_TRUE(form->SelectNext(form->m_btnFirst, true, true));
  EXPECT_EQ(form->ActiveControl(), form->m_btnThird);
  form->m_pnTop->SetEnabled(false);
  EXPECT_FALSE(form->SelectNext(form->m_btnThird, true, true));
  EXPECT_EQ(form->ActiveControl(), form->m_btnThird);
}

TEST_F(FormTest, KeyPreviewSeesKeysFirstAndCanSwallowThem) {
  auto* form = CreateForm<TTestForm>(Application);
  std::vector<std::string> seen;
  bool swallow = false;
  form->OnKeyDown = [&](TObject* sender, std::uint16_t& key, TShiftState shift) {
    EXPECT_EQ(sender, form);
    seen.push_back("form " + std::to_string(key) + (shift.Contains(ssShift) ? " shift" : ""));
    if (swallow) key = 0;
  };
  form->m_btnFirst->OnKeyDown = [&](TObject*, std::uint16_t& key, TShiftState) {
    seen.push_back("control " + std::to_string(key));
  };
  form->m_btnFirst->OnKeyPress = [&](TObject*, char& key) { seen.push_back(std::string("press ") + key); };
  form->Show();
  QWidget* button = form->m_btnFirst->Widget();
  QTest::keyClick(button, Qt::Key_A);
  EXPECT_EQ(seen, (Log{"control 65", "press a"}));
  seen.clear();
  form->SetKeyPreview(true);
  QTest::keyClick(button, Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(seen, (Log{"form 38 shift", "control 38"}));
  seen.clear();
  swallow = true;
  QTest::keyClick(button, Qt::Key_Return);
  EXPECT_EQ(seen, (Log{"form 13"}));
}

TEST_F(FormTest, ReturnAndEscapePressTheDialogButtons) {
  auto* form = CreateForm<TTestForm>(Application);
  std::string pressed;
  for (TbsSkinButton* button : {form->m_btnFirst, form->m_btnSecond, form->m_btnThird}) {
    button->OnClick = [&](TObject* sender) { pressed += static_cast<TControl*>(sender)->Name() + ";"; };
  }
  form->Show();
  QTest::keyClick(form->m_crbTick->Widget(), Qt::Key_Return);
  EXPECT_EQ(pressed, "") << "without a default button Return belongs to the focused control";
  QTest::keyClick(form->m_btnFirst->Widget(), Qt::Key_Return);
  EXPECT_EQ(pressed, "m_btnFirst;");
  form->SetDefaultButton(form->m_btnSecond);
  form->SetCancelButton(form->m_btnThird);
  form->m_crbTick->SetFocus();
  QTest::keyClick(form->m_crbTick->Widget(), Qt::Key_Return);
  QTest::keyClick(form->m_crbTick->Widget(), Qt::Key_Escape);
  EXPECT_EQ(pressed, "m_btnFirst;m_btnSecond;m_btnThird;");
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape})
    QTest::keyClick(form->m_crbTick->Widget(), key, Qt::ShiftModifier);
  form->m_btnSecond->SetEnabled(false);
  QTest::keyClick(form->m_crbTick->Widget(), Qt::Key_Return);
  EXPECT_EQ(pressed, "m_btnFirst;m_btnSecond;m_btnThird;");
  pressed.clear();
  form->m_btnSecond->SetEnabled(true);
  form->m_btnSecond->SetFocus();
  QTest::keyClick(form->m_btnSecond->Widget(), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(pressed, "m_btnSecond;") << "a key that nobody took presses the button that has the focus once";
}

TEST_F(FormTest, TheFirstFocusIsTheChosenControlOrTheFirstTabStop) {
  auto* form = CreateForm<TTestForm>(Application);
  form->SetActiveControl(form->m_btnThird);
  form->Show();
  EXPECT_EQ(form->ActiveControl(), form->m_btnThird);
  form->Close();
  form->m_btnThird->SetEnabled(false);
  form->Show();
  EXPECT_EQ(form->ActiveControl(), form->m_btnFirst);
}
