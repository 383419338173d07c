// A query through the built library, set off as the user does it: by the widgets that the screen shows.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "tests/module/module_library.h"

namespace {

using fakehost::Library;

struct Query : testing::Test {
  Query() {
    host.OfferBills();
    module.InitModule(host.publicInformation);
    module.Pick("ITEM6066");
    window = WindowOf("TfrmNorvikQry");
  }

  template <class Widget>
  Widget* Find(const char* name) const {
    return window->findChild<Widget*>(QString::fromLatin1(name));
  }
  // The texts of the list, "|" between cells and behind each row a blank.
  std::string Rows() const {
    const QAbstractItemModel* model = Find<QAbstractItemView>("m_lvMain")->model();
    std::string text;
    for (int row = 0; row < model->rowCount(); ++row) {
      text += model->index(row, 0).data().toString().toStdString() + "|" +
              model->index(row, 1).data().toString().toStdString() + " ";
    }
    return text;
  }

  WindowedHost host;
  const ModuleLibrary module;
  DialogCloser closer;
  QWidget* window = nullptr;
};

TEST_F(Query, GoesToTheBankAndItsRowsIntoTheList) {
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(host.CallsOf(Library::kSafeCom, 5).empty());
  Find<QComboBox>("m_cbxAcc")->setCurrentIndex(2);
  Find<QAbstractButton>("m_spdQuery")->click();
  const auto calls = host.CallsOf(Library::kSafeCom, 5);
  ASSERT_EQ(calls.size(), 2u);
  EXPECT_EQ(calls[0].arguments[0], "EBBADQAH");
  EXPECT_EQ(calls[1].arguments[0], "EBBADQDB");
  corvane::CorvaneStream request(calls[1].arguments[1]);
  EXPECT_EQ(request.getEncoding(), "GBK");
  EXPECT_EQ(request.getValue("BSNCODE"), "CB200310");
  EXPECT_EQ(request.getList("resultList")[0].getValue("CUSTACC"), "A2");
  EXPECT_EQ(calls[1].arguments[2], "1");
  EXPECT_EQ(Rows(), "B1|1,234.50 B2|20.00 ");
  EXPECT_EQ(closer.closed, 0);
  EXPECT_EQ(host.given, host.released);
}

TEST_F(Query, WhoseFailureHasNoTextIsToldInTheWordsOfTheErrorLibrary) {
  host.SetAnswer(Library::kSafeCom, 5, fakehost::Refusal("BK1"));
  host.SetAnswer(Library::kError, 5, fakehost::Refusal("no texts"));
  std::string told;
  closer.whenShown = [&] {
    told = QApplication::activeModalWidget()->findChild<QLabel*>("m_lblInfo")->text().toStdString();
  };
  Find<QAbstractButton>("m_spdQuery")->click();
  EXPECT_EQ(told, "no texts");
  EXPECT_EQ(closer.closed, 1);
  EXPECT_TRUE(Find<QAbstractButton>("m_spdQuery")->isEnabled());
}

TEST_F(Query, StaysInAMinimisedScreenAndGoesFromAClosedOne) {
  Find<QAbstractButton>("m_spdQuery")->click();
  Find<QLineEdit>("m_edNo")->setText("17");
  window->showMinimized();
  module.Pick("ITEM6066");
  EXPECT_EQ(Rows(), "B1|1,234.50 B2|20.00 ");
  EXPECT_EQ(Find<QLineEdit>("m_edNo")->text(), "17");
  window->close();
  module.Pick("ITEM6066");
  EXPECT_EQ(Rows(), "");
  EXPECT_EQ(Find<QLineEdit>("m_edNo")->text(), "");
}

}  // namespace
