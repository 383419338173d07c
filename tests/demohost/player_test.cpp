#include "demohost/script/player.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

namespace demohost {
namespace {

// A screen of plain widgets: an edit of digits, a box, a list with ticks, and buttons that ask and refuse.
class Screen : public QWidget {
 public:
  Screen() {
    setObjectName("TfrmTest");
    setWindowTitle("Screen");
    auto* layout = new QVBoxLayout(this);
    edit = Add<QLineEdit>(layout, "m_edNo");
    edit->setValidator(new QIntValidator(0, 99999999, edit));
    combo = Add<QComboBox>(layout, "m_cbxAcc");
    combo->addItem("all", "-9999");
    combo->addItem("1001-甲公司", "1001");
    combo->addItem("1002-乙公司", "1002");
    connect(combo, &QComboBox::activated, this, [this](int index) { activated = index; });
    states = Add<QListWidget>(layout, "m_lbxState");
    states->setSelectionMode(QAbstractItemView::MultiSelection);
    states->addItems({"in", "out", "gone"});
    all = Add<QCheckBox>(layout, "m_crbAllCheck");
    list = Add<QTreeView>(layout, "m_lvMain");
    model.setHorizontalHeaderLabels({"票号", "金额", "hidden"});
    for (int row = 1; row <= 4; ++row) {
      auto* tick = new QStandardItem(QString("B%1").arg(row));
      tick->setCheckable(true);
      model.appendRow({tick, new QStandardItem(QString::number(row * 100)), new QStandardItem("x")});
    }
    list->setModel(&model);
    list->setColumnHidden(2, true);
    ask = Add<QPushButton>(layout, "m_btnAsk");
    connect(ask, &QPushButton::clicked, this, [this] { Ask("Really delete?"); });
    connect(Add<QPushButton>(layout, "m_btnWork"), &QPushButton::clicked, this, [this] { Work(); });
    auto* bound = Add<QPushButton>(layout, "m_spdQuery");
    bound->setProperty("action", "m_actQuery");
    connect(bound, &QPushButton::clicked, this, [this] { ++queries; });
    Add<QPushButton>(layout, "m_btnOff")->setEnabled(false);
  }

  void Ask(const QString& question) {
    QDialog dialog(this);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QLabel(question));
    for (const char* name : {"m_btnOk", "m_btnNo"}) {
      auto* button = Add<QPushButton>(layout, name);
      connect(button, &QPushButton::clicked, &dialog,
              [&dialog, name] { dialog.done(QLatin1String(name) == QLatin1String("m_btnOk")); });
    }
    answer = dialog.exec();
  }

  // A picture of work in progress, for longer than the script's patience, and then a question.
  void Work() {
    QDialog busy(this);
    QTimer::singleShot(400, &busy, &QDialog::accept);
    busy.exec();
    Ask("Done?");
  }

  template <class T>
  T* Add(QVBoxLayout* layout, const char* name) {
    auto* control = new T;
    control->setObjectName(name);
    layout->addWidget(control);
    return control;
  }

  QLineEdit* edit;
  QComboBox* combo;
  QListWidget* states;
  QCheckBox* all;
  QTreeView* list;
  QPushButton* ask;
  QStandardItemModel model;
  int activated = -1, queries = 0, answer = -1;
};

struct Played {
  ScriptEnd end = ScriptEnd::kWrong;
  QString reason, output;
};

class PlayerTest : public testing::Test {
 protected:
  PlayerTest() { screen_.show(); }

  Played Play(const QString& script) {
    Played played;
    QTextStream out(&played.output);
    Operator hand(
        {[this](const QString& item) { picked_ << item; }, [this](const QString& name) { picked_ << name; },
         [this](const QString& name, int size) { picked_ << name + QString::number(size); },
         [this](const QString& what, const QString& key) { picked_ << what + key; },
         [this]() -> QWidget* { return screen_.isVisible() ? &screen_ : nullptr; }},
        out);
    Player player(ParseScript(script), hand);
    player.SetPatience(150);
    player.onEnd = [&](ScriptEnd end, const QString& reason) {
      played.end = end;
      played.reason = reason;
      QCoreApplication::exit();
    };
    player.Start();
    QTimer::singleShot(20000, qApp, [] { QCoreApplication::exit(); });
    QCoreApplication::exec();
    return played;
  }

  // Plays a script that must go through.
  void Run(const QString& script) {
    const Played played = Play(script);
    EXPECT_EQ(played.end, ScriptEnd::kPlayed) << played.reason.toStdString();
  }

  Screen screen_;
  QStringList picked_;
};

TEST_F(PlayerTest, WorksTheControlsAsAnOperatorDoes) {
  Run("pick ITEM6066\n"
      "set m_edNo 12a3\n"
      "select m_cbxAcc 1002\n"
      "select m_lbxState in gone\n"
      "set m_crbAllCheck on\n"
      "tick 1,3-4\n"
      "expect ticked 3\n"
      "start m_actQuery\n"
      "language English\n"
      "font Sans 12\n"
      "expect text m_edNo 123\n"
      "expect text m_cbxAcc 1002-乙公司\n"
      "expect checked m_crbAllCheck\n"
      "expect disabled m_btnOff\n"
      "expect enabled m_actQuery\n"
      "expect rows 4\n"
      "expect rows >3\n"
      "expect cell 2:金额 200\n"
      "expect dialog none\n"
      "expect title Screen\n");
  EXPECT_EQ(picked_, (QStringList{"ITEM6066", "English", "Sans12"}));
  EXPECT_EQ(screen_.activated, 2);
  EXPECT_EQ(screen_.queries, 1);
  EXPECT_EQ(screen_.states->selectedItems().size(), 2);
  Run("tick none\nexpect ticked 0\ntick all\nexpect ticked 4\nset m_edNo\nexpect text m_edNo \"\"\n");
  Run("select m_cbxAcc 1001\nselect m_cbxAcc all\nselect m_lbxState all\n");
  EXPECT_EQ(screen_.activated, 0);
  EXPECT_EQ(screen_.states->selectedItems().size(), 3);
}

TEST_F(PlayerTest, TakesABusyPictureForNoDialog) {
  Run("press m_btnWork\nanswer m_btnOk Done?\n");
  EXPECT_EQ(screen_.answer, 1);
}

TEST_F(PlayerTest, FailsWithThePlaceAndTheReason) {
  const struct {
    const char* script;
    const char* reason;
  } cases[] = {
      {"say x\nexpect rows 5\n", "line 2: expect rows 5: the list has 4 rows"},
      {"press m_btnNone\n", "line 1: press m_btnNone: there is no control m_btnNone"},
      {"press m_btnOff\n", "line 1: press m_btnOff: m_btnOff is disabled"},
      {"press m_edNo\n", "line 1: press m_edNo: m_edNo isn't a button"},
      {"set m_btnAsk x\n", "line 1: set m_btnAsk x: m_btnAsk isn't an edit"},
      {"select m_cbxAcc 100\n",
       "line 1: select m_cbxAcc 100: m_cbxAcc doesn't offer \"100\", but: all, 1001-甲公司, 1002-乙公司"},
      {"tick 9\n", "line 1: tick 9: the list has 4 rows"},
      {"answer m_btnOk\n", "line 1: answer m_btnOk: no dialog is open"},
      {"expect cell 1:Nothing x\n", "line 1: expect cell 1:Nothing x: the list has no column \"Nothing\""},
      {"expect text m_edNo 77\n", "line 1: expect text m_edNo 77: it says \"\""},
      {"start m_actNone\n", "line 1: start m_actNone: nothing is bound to m_actNone"},
      {"window TfrmOther\n", "line 1: window TfrmOther: no window TfrmOther is open"},
  };
  for (const auto& [script, reason] : cases) {
    const Played played = Play(script);
    EXPECT_EQ(played.end, ScriptEnd::kFailed) << script;
    EXPECT_EQ(played.reason.toStdString(), reason) << script;
  }
}

TEST_F(PlayerTest, NeverHangsInADialogWithoutAnAnswer) {
  const Played wrong = Play("press m_btnAsk\nexpect rows 4\n");
  EXPECT_EQ(wrong.reason.toStdString(),
            "line 2: expect rows 4: there is no control m_lvMain; this dialog waits for an answer:  | Really "
            "delete?");
  const Played over = Play("press m_btnAsk\n");
  EXPECT_EQ(over.reason.toStdString(),
            "the end: the script is over; this dialog waits for an answer:  | Really delete?");
}

}  // namespace
}  // namespace demohost
