#include <gtest/gtest.h>

#include <QAction>
#include <QCoreApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>

#include "demohost/window/demo_mark.h"
#include "demohost/window/main_window.h"
#include "demohost/window/open_forms.h"

namespace demohost {
namespace {

std::vector<std::string> Names(const std::vector<OpenForms::Form>& forms) {
  std::vector<std::string> names;
  for (const OpenForms::Form& form : forms) names.push_back(form.className);
  return names;
}

// A visible window under a form's class name.
std::unique_ptr<QWidget> ShownWindow(const char* className) {
  auto window = std::make_unique<QWidget>();
  window->setObjectName(className);
  window->setWindowTitle(className);
  window->show();
  return window;
}

TEST(OpenForms, FollowHandlesAndMessages) {
  OpenForms forms;
  forms.HandleEntered("HANDLE_PRINT", 3);
  forms.HandleEntered("APPMAINFORMHANDLE", 4);
  EXPECT_TRUE(forms.All().empty());
  forms.HandleEntered("TfrmOne", 11);
  EXPECT_TRUE(forms.Announced().empty());
  forms.Shown(100);
  forms.HandleEntered("TfrmTwo", 12);
  forms.Shown(200);
  forms.Shown(200);
  EXPECT_EQ(Names(forms.Announced()), (std::vector<std::string>{"TfrmOne", "TfrmTwo"}));
  forms.Activated(100);
  EXPECT_EQ(Names(forms.Announced()), (std::vector<std::string>{"TfrmTwo", "TfrmOne"}));
  // A dialog enters its handle without a message, and removes it again.
  forms.HandleEntered("TFrmComMsg", 13);
  EXPECT_EQ(forms.Announced().size(), 2u);
  EXPECT_EQ(forms.All().size(), 3u);
  forms.HandleEntered("TFrmComMsg", 0);
  forms.HandleEntered("TfrmOne", 0);
  forms.Closed(100);
  forms.Activated(100);
  EXPECT_EQ(Names(forms.Announced()), std::vector<std::string>{"TfrmTwo"});
  // A form that is shown again keeps one entry.
  forms.HandleEntered("TfrmTwo", 12);
  forms.Shown(200);
  EXPECT_EQ(forms.All().size(), 1u);
}

TEST(OpenForms, FindTheWindowInFront) {
  OpenForms forms;
  EXPECT_EQ(forms.Front(), nullptr);
  const auto one = ShownWindow("TfrmOne");
  const auto two = ShownWindow("TfrmTwo");
  forms.HandleEntered("TfrmOne", 11);
  forms.HandleEntered("TfrmTwo", 12);
  EXPECT_EQ(forms.Front(), two.get());
  two->hide();
  EXPECT_EQ(forms.Front(), one.get());
}

TEST(DemoMark, MarksEveryFramedWindow) {
  DemoMark mark(nullptr);
  mark.SetText("DEMO");
  const auto window = ShownWindow("TfrmOne");
  const auto* badge = window->findChild<QLabel*>("demohost_badge");
  ASSERT_NE(badge, nullptr);
  EXPECT_TRUE(badge->isVisible());
  EXPECT_EQ(window->windowTitle(), "TfrmOne [DEMO]");
  window->setWindowTitle("Other");
  EXPECT_EQ(window->windowTitle(), "Other [DEMO]");
  window->resize(500, 300);
  QCoreApplication::processEvents();
  EXPECT_EQ(badge->geometry().right(), 499);
  mark.SetText("A longer text");
  EXPECT_EQ(badge->text(), "A longer text");
  EXPECT_EQ(badge->geometry().right(), 499);

  QWidget frameless(nullptr, Qt::FramelessWindowHint);
  frameless.show();
  EXPECT_EQ(frameless.findChild<QLabel*>("demohost_badge"), nullptr);
}

class MainWindowTest : public testing::Test {
 protected:
  MainWindowTest()
      : window_(forms_, {[this](const std::string& item) { log_ << QString::fromStdString(item); },
                         [this](const std::string& language) { log_ << QString::fromStdString(language); },
                         [this](const QString&, int) {},
                         [this](const std::string& style) { log_ << QString::fromStdString(style); },
                         [this] { log_ << "shortcut"; }}) {}

  void Show(const char* language) {
    window_.Show({language, "Sans", 9, "SK01"}, {{"ITEM1", "first"}, {"ITEM2", "second"}}, "20260615");
  }

  QAction* Entry(int menu, const QString& text) {
    for (QAction* entry : window_.menuBar()->actions()[menu]->menu()->actions()) {
      if (entry->text() == text) return entry;
      for (QAction* inner : entry->menu() ? entry->menu()->actions() : QList<QAction*>()) {
        if (inner->text() == text) return inner;
      }
    }
    return nullptr;
  }

  QString Bar() {
    QStringList texts;
    for (const QLabel* label : window_.statusBar()->findChildren<QLabel*>()) texts << label->text();
    return texts.join("; ");
  }

  OpenForms forms_;
  QStringList log_;
  MainWindow window_;
};

TEST_F(MainWindowTest, PicksItemsAndSettings) {
  Show("English");
  Entry(0, "second")->trigger();
  window_.centralWidget()->findChild<QPushButton*>("ITEM1")->click();
  EXPECT_TRUE(Entry(1, "English")->isChecked());
  EXPECT_TRUE(Entry(1, "SK01")->isChecked());
  Entry(1, "Traditional Chinese")->trigger();
  Entry(1, "SK02")->trigger();
  QCoreApplication::processEvents();
  EXPECT_EQ(log_, (QStringList{"ITEM2", "ITEM1", "Traditional Chinese", "SK02"}));
}

TEST_F(MainWindowTest, TakesTheMessagesOfForms) {
  Show("English");
  EXPECT_EQ(Bar(), "No window is open; Bank date 20260615");
  const auto form = ShownWindow("TfrmOne");
  std::uintptr_t restored = 0;
  const norvik_window_procedure procedure = [](void* context, uint32_t message, uintptr_t wparam,
                                               intptr_t) -> intptr_t {
    if (message == 274) *static_cast<std::uintptr_t*>(context) = wparam;
    return 0;
  };
  const norvik_handle handle = norvik_window_register(procedure, &restored, nullptr);
  forms_.HandleEntered("TfrmOne", handle);
  norvik_window_send(window_.Handle(), 0x824, 100, 1);
  EXPECT_EQ(Bar(), "Open windows: TfrmOne; Bank date 20260615");
  QMenu* windows = window_.menuBar()->actions()[2]->menu();
  Q_EMIT windows->aboutToShow();
  windows->actions()[0]->trigger();
  EXPECT_EQ(restored, 61728u);
  norvik_window_send(window_.Handle(), 0x826, 100, 1);
  norvik_window_send(window_.Handle(), 0x7FC, 0, 0);
  EXPECT_EQ(log_, QStringList{"shortcut"});
  EXPECT_EQ(norvik_window_send(window_.Handle(), 0x999, 0, 0), 0);
  norvik_window_send(window_.Handle(), 0x825, 100, 1);
  EXPECT_EQ(Bar(), "No window is open; Bank date 20260615");
  norvik_window_unregister(handle);
}

}  // namespace
}  // namespace demohost
