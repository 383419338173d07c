#include "toolkit/application.h"
#include "toolkit/event_guard.h"
#include "toolkit/screen.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>

#include "tests/toolkit/test_form.h"
#include "toolkit/timer.h"

TEST(Application, QueuedCallsRunInOrderFromTheEventLoopAndDieWithTheirContext) {
  auto* kept = new TComponent(Application);
  auto* gone = new TComponent(Application);
  std::string seen;
  Application->QueueCall(kept, [&] { seen += "a"; });
  Application->QueueCall(gone, [&] { seen += "b"; });
  Application->QueueCall(kept, [&] {
    seen += "c";
    Application->QueueCall(kept, [&] { seen += "d"; });
  });
  delete gone;
  EXPECT_EQ(seen, "");
  QTest::qWait(0);
  QTest::qWait(0);
  EXPECT_EQ(seen, "acd");
}

TEST(Application, AQueuedCallThatFailsIsReportedAndTheNextRuns) {
  int reported = 0;
  bool next = false;
  Application->OnException = [&](TObject*, std::exception_ptr) { ++reported; };
  Application->QueueCall(Application, [] { throw 1; });
  Application->QueueCall(Application, [&] { next = true; });
  QTest::qWait(0);
  EXPECT_EQ(reported, 1);
  EXPECT_TRUE(next);
}

TEST(Application, PumpingHandlesEventsButHoldsTimersAndQueuedCallsBack) {
  auto* timer = NewComponent<TTimer>(Application, "m_time");
  std::string seen;
  timer->SetInterval(1);
  timer->OnTimer = [&](TObject*) {
    seen += "timer ";
    timer->SetEnabled(false);
  };
  timer->SetEnabled(true);
  Application->QueueCall(Application, [&] { seen += "queued "; });
  QTimer::singleShot(0, Application, [&] {
    seen += "event ";
    EXPECT_TRUE(Application->Pumping());
    Application->ProcessMessages();
  });
  QTest::qSleep(5);
  Application->ProcessMessages();
  EXPECT_EQ(seen, "event ");
  EXPECT_FALSE(Application->Pumping());
  QTest::qWait(20);
  EXPECT_NE(seen.find("timer "), std::string::npos);
  EXPECT_NE(seen.find("queued "), std::string::npos);
}

TEST(Application, ATimerRunsAgainUntilItIsStopped) {
  auto* timer = NewComponent<TTimer>(Application, "m_time");
  int ticks = 0;
  timer->OnTimer = [&](TObject*) {
    if (++ticks == 3) timer->SetEnabled(false);
  };
  timer->SetInterval(1);
  QTest::qWait(5);
  EXPECT_EQ(ticks, 0);
  timer->SetEnabled(true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks == 3; }));
  QTest::qWait(10);
  EXPECT_EQ(ticks, 3);
  timer->SetInterval(0);
  timer->SetEnabled(true);
  QTest::qWait(5);
  EXPECT_EQ(ticks, 3);
}

TEST(Application, AFailureOfTheReportItselfStaysInside) {
  Application->OnException = [](TObject*, std::exception_ptr) { throw std::runtime_error("no report"); };
  QTest::ignoreMessage(QtWarningMsg, "no report");
  RunGuarded(Application, [] { throw std::runtime_error("failure"); });
  Application->OnException = nullptr;
  QTest::ignoreMessage(QtWarningMsg, "failure");
  RunGuarded(Application, [] { throw std::runtime_error("failure"); });
}

TEST(Application, ItsEndDestroysAllFormsTheLastMadeFirst) {
  std::vector<std::string> first;
  std::vector<std::string> second;
  CreateForm<TLoggedForm>(nullptr, &first);
  auto* form = CreateForm<TLoggedForm>(Application, &second);
  form->Show();
  form->OnDestroy = [&](TObject*) { EXPECT_NE(first.back(), "FormDestroy"); };
  bool ran = false;
  Application->QueueCall(Application, [&] { ran = true; });
  DestroyApplication();
  EXPECT_EQ(first.back(), "FormDestroy");
  EXPECT_EQ(second.back(), "FormDestroy");
  EXPECT_EQ(Application, nullptr);
  EXPECT_EQ(Screen, nullptr);
  QTest::qWait(0);
  EXPECT_FALSE(ran);
  EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}
