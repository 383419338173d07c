// The columns of a list over a host that keeps their layout: what an older one, a damaged one and the user's
// mouse leave of it.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QHeaderView>
#include <QMouseEvent>
#include <QTreeView>

#include "framework/columns/select_column.h"
#include "framework/frames/query_form.h"
#include "tests/support/screen_host.h"
#include "toolkit/action.h"
#include "toolkit/application.h"
#include "toolkit/buttons.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/menu.h"

using fakehost::Library;

class TfrmLayoutQry : public TQueryForm {
  Q_OBJECT

 public:
  using TQueryForm::TQueryForm;

  void SetCaptions() override { TQueryForm::SetCaptions(); }
  void Construct() override {
    TQueryForm::Construct();
    m_pIntf->InitListColumns(m_lvMain, ClassName());
  }
  void Fill(corvane::List rows) {
    BuildMissingColumns(*m_pIntf);
    m_pIntf->FillListView(m_lvMain, rows);
    m_lvMainClick(this);
  }
};

namespace {

constexpr const char* kForm = "TfrmLayoutQry";

const ScreenHost::Table kColumns = {{"NO", "UI44008", "100", "L", "C"},
                                    {"AMOUNT", "UI44344", "80", "R", "M"},
                                    {"STATE", "UI44005", "60", "L", "C"},
                                    {"KEY", "UI99999", "5", "L", "X"}};

struct ColumnLayout : testing::Test {
  void SetUp() override { host.SetColumns(kForm, kColumns); }

  void Open() {
    form = CreateForm<TfrmLayoutQry>(Application);
    form->Show();
  }
  // Destroys the form, and gives what it saved to the next one; "id:width" of each saved column.
  std::string Save() {
    host.libraries.calls.clear();
    DestroyForm(form);
    const auto stored = host.Stored(80, "COLUMN_INFO");
    if (stored.size() != 1) return "not saved";
    const std::string text = stored[0].arguments.at(1);
    host.libraries.SetAnswer(Library::kPublicInformation, 82, {"COLUMN_INFO"}, fakehost::Text(text));
    corvane::List rows = corvane::Iniplus(text).getSection(kForm);
    host.libraries.SetAnswer(Library::kPublicInformation, 90, {"COLUMN_INFO", kForm},
                             fakehost::Text(rows.toString()));
    std::string saved;
    for (const corvane::Row& row : rows) {
      saved += row.getValue("ColumnID") + ":" + row.getValue("ColumnWidth") + " ";
    }
    return saved;
  }
  // "id:width" of each column of the list; a hidden one has "-" for its width.
  std::string Columns() const {
    std::string text;
    for (int i = 0; i < form->m_lvMain->Columns().Count(); ++i) {
      const TListColumn* column = form->m_lvMain->Columns()[i];
      text += form->m_lvMain->ColumnIds()[static_cast<std::size_t>(i)] + ":" +
              (column->Hidden() ? "-" : std::to_string(column->Width())) + " ";
    }
    return text;
  }
  QTreeView* View() const { return form->Widget()->findChild<QTreeView*>("m_lvMain"); }
  // Presses the mouse on the header, moves it and lets it go.
  void Drag(int from, int to) const {
    QWidget* header = View()->header()->viewport();
    const auto send = [header](QEvent::Type type, int x, Qt::MouseButton button, Qt::MouseButtons held) {
      const QPoint at(x, header->height() / 2);
      QMouseEvent event(type, at, header->mapToGlobal(at), button, held, Qt::NoModifier);
      QCoreApplication::sendEvent(header, &event);
    };
    send(QEvent::MouseMove, from, Qt::NoButton, Qt::NoButton);
    send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    const int step = from < to ? 5 : -5;
    for (int x = from + step; std::abs(x - from) < std::abs(to - from); x += step) {
      send(QEvent::MouseMove, x, Qt::NoButton, Qt::LeftButton);
    }
    send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
  }
  // The right edge of a column in the header.
  int EdgeOf(int column) const {
    return View()->header()->sectionViewportPosition(column) + View()->header()->sectionSize(column) - 1;
  }

  ScreenHost host;
  TfrmLayoutQry* form = nullptr;
};

TEST_F(ColumnLayout, OfAnOlderOrDamagedDocumentLosesNoColumn) {
  const struct {
    const char* what;
    ScreenHost::Table layout;  // id, width, caption
    const char* columns;
    const char* saved;
  } cases[] = {
      {"none", {}, "NO:100 AMOUNT:80 STATE:60 KEY:- ", "NO:100 AMOUNT:80 STATE:60 "},
      {"a column is new in the table",
       {{"STATE", "33", "UI44005"}, {"NO", "44", "UI44008"}},
       "STATE:33 NO:44 AMOUNT:80 KEY:- ",
       "STATE:33 NO:44 AMOUNT:80 "},
      {"a column has gone from the table",
       {{"OLD", "50", "UI1"}, {"AMOUNT", "81", "UI44344"}, {"OLDER", "0", "UI2"}, {"NO", "99", "UI44008"}},
       "AMOUNT:81 NO:99 STATE:60 KEY:- ",
       "AMOUNT:81 NO:99 STATE:60 "},
      {"a column of data was shown once",
       {{"KEY", "70", "UI3"}, {"NO", "99", "UI44008"}},
       "KEY:- NO:99 AMOUNT:80 STATE:60 ",
       "NO:99 AMOUNT:80 STATE:60 "},
      {"no captions",
       {{"STATE", "33"}, {"NO", "0"}},
       "STATE:60 NO:100 AMOUNT:80 KEY:- ",
       "STATE:60 NO:100 AMOUNT:80 "},
      {"no ids",
       {{"", "33", "UI44005"}, {"", "44", "UI44008"}},
       "NO:44 AMOUNT:80 STATE:33 KEY:- ",
       "NO:44 AMOUNT:80 STATE:33 "},
      {"captions of another language",
       {{"AMOUNT", "1", "Amount"}, {"NO", "2", "Number"}},
       "AMOUNT:80 NO:100 STATE:60 KEY:- ",
       "AMOUNT:80 NO:100 STATE:60 "},
      {"widths that are none",
       {{"NO", "wide", "UI44008"}, {"AMOUNT", "-7", "UI44344"}, {"STATE", "", "UI44005"}},
       "NO:100 AMOUNT:80 STATE:60 KEY:- ",
       "NO:100 AMOUNT:80 STATE:60 "},
      {"widths beyond all screens",
       {{"NO", "10001", "UI44008"}, {"AMOUNT", "2147483647", "UI44344"}, {"STATE", "99999999999", "UI44005"}},
       "NO:100 AMOUNT:80 STATE:60 KEY:- ",
       "NO:100 AMOUNT:80 STATE:60 "},
      {"the widest",
       {{"NO", "10000", "UI44008"}},
       "NO:10000 AMOUNT:80 STATE:60 KEY:- ",
       "NO:10000 AMOUNT:80 STATE:60 "},
      {"a column twice",
       {{"STATE", "33", "UI44005"}, {"STATE", "34", "UI44005"}, {"AMOUNT", "81", "UI44344"}},
       "STATE:34 NO:100 AMOUNT:81 KEY:- ",
       "STATE:34 NO:100 AMOUNT:81 "},
      {"all hidden",
       {{"NO", "0", "UI44008"}, {"AMOUNT", "0", "UI44344"}, {"STATE", "0", "UI44005"}},
       "NO:- AMOUNT:- STATE:- KEY:- ",
       "NO:0 AMOUNT:0 STATE:0 "},
  };
  for (const auto& c : cases) {
    host.SetLayout(kForm, c.layout);
    Open();
    EXPECT_EQ(Columns(), c.columns) << c.what;
    form->m_actHideColumn->Execute();
    TMenuItem* menu = form->m_pumColumn->Items();
    EXPECT_EQ(menu->Count(), 3) << c.what;
    // Whatever was hidden comes back with the table's width.
    for (int i = 0; i < menu->Count(); ++i) {
      if (menu->Items(i)->Checked()) continue;
      EXPECT_TRUE(menu->Items(i)->Enabled()) << c.what;
      menu->Items(i)->Click();
      menu->Items(i)->Click();
    }
    form->m_pumColumn->Close();
    EXPECT_EQ(Save(), c.saved) << c.what;
    EXPECT_EQ(host.failures.size(), 0u) << c.what;
  }
}

TEST_F(ColumnLayout, AHiddenFirstColumnCanBeShownAgain) {
  host.SetLayout(kForm, {{"NO", "0", "UI44008"}});
  Open();
  form->m_actHideColumn->Execute();
  form->m_pumColumn->Items()->Items(0)->Click();
  EXPECT_EQ(Columns(), "NO:100 AMOUNT:80 STATE:60 KEY:- ");
  form->m_pumColumn->Close();
  form->m_actHideColumn->Execute();
  EXPECT_FALSE(form->m_pumColumn->Items()->Items(0)->Enabled());
  form->m_pumColumn->Close();
}

TEST_F(ColumnLayout, OfTheMouseIsThereTheNextTime) {
  host.SetLayout(kForm, {});
  Open();
  Drag(EdgeOf(1), EdgeOf(1) + 60);
  EXPECT_EQ(Columns(), "NO:100 AMOUNT:140 STATE:60 KEY:- ");
  Drag(EdgeOf(2), EdgeOf(2) - 300);
  EXPECT_EQ(Columns(), "NO:100 AMOUNT:140 STATE:16 KEY:- ") << "a column can't be dragged out of sight";
  Drag(20, EdgeOf(1) - 20);
  EXPECT_EQ(Columns(), "AMOUNT:140 NO:100 STATE:16 KEY:- ");
  form->Fill(ScreenHost::ListOf({{"NO", "AMOUNT"}, {"B1", "5"}}));
  EXPECT_EQ(View()->model()->index(0, 0).data().toString(), "5.00");
  EXPECT_EQ(View()->model()->index(0, 1).data().toString(), "B1");
  EXPECT_EQ(Save(), "AMOUNT:140 NO:100 STATE:16 ");
  Open();
  EXPECT_EQ(Columns(), "AMOUNT:140 NO:100 STATE:16 KEY:- ");
  EXPECT_EQ(View()->columnWidth(0), 140);
  EXPECT_EQ(View()->header()->visualIndex(0), 0);
  EXPECT_EQ(Save(), "AMOUNT:140 NO:100 STATE:16 ");
}

TEST_F(ColumnLayout, TheNextFillBuildsTheColumnsThatCouldNotBeToldAtFirst) {
  const struct {
    const char* document;
    std::size_t escaped;  // failures of the show itself
  } cases[] = {{"COLUMN_INFO", 1}, {"FIELDDEF", 0}};
  host.SetErrorText("gone", "no table");
  const corvane::List rows = ScreenHost::ListOf({{"NO", "AMOUNT"}, {"B1", "5"}});
  for (const auto& c : cases) {
    SCOPED_TRACE(c.document);
    host.SetColumns(kForm, kColumns);
    host.SetLayout(kForm, {{"STATE", "33", "UI44005"}});
    for (const auto& [ordinal, arguments] :
         {std::pair<std::uint32_t, std::vector<std::string>>{82, {c.document}}, {90, {c.document, kForm}}}) {
      host.libraries.SetAnswer(Library::kPublicInformation, ordinal, arguments, fakehost::Refusal("gone"));
    }
    host.failures.clear();
    EXPECT_EQ(FailureOf([&] { Open(); }), "no table");
    EXPECT_EQ(host.failures.size(), c.escaped);
    EXPECT_EQ(FailureOf([&] { form->Fill(rows); }), "no table");
    EXPECT_EQ(Columns(), "");
    host.SetColumns(kForm, kColumns);
    host.SetLayout(kForm, {{"STATE", "33", "UI44005"}});
    form->Fill(rows);
    EXPECT_EQ(Columns(), "STATE:33 NO:100 AMOUNT:80 KEY:- ");
    EXPECT_EQ(View()->model()->index(0, 1).data().toString(), "B1");
    EXPECT_EQ(Save(), "STATE:33 NO:100 AMOUNT:80 ");
  }
  host.libraries.SetAnswer(Library::kPublicInformation, 90, {"FIELDDEF", kForm}, fakehost::Refusal("gone"));
  FailureOf([&] { Open(); });
  EXPECT_EQ(Save(), "not saved") << "a form without columns keeps the layout that there is";
}

TEST_F(ColumnLayout, OfColumnsThatWereNotBuiltWholeIsNotStoredAndTheyAreBuiltAnew) {
  host.SetErrorText("gone", "no text");
  for (const char* key : {"UI44008", "UI44344", "UI44005"}) {
    for (const bool refused : {true, false}) {
      SCOPED_TRACE(std::string(key) + (refused ? " refused" : " empty"));
      host.SetLayout(kForm,
                     {{"STATE", "33", "UI44005"}, {"NO", "44", "UI44008"}, {"AMOUNT", "0", "UI44344"}});
      const auto openShort = [&] {
        host.libraries.SetAnswer(Library::kTranslate, 4, {"UI44", key},
                                 refused ? fakehost::Refusal("gone") : fakehost::Text(""));
        const std::string failure = refused ? FailureOf([&] { Open(); }) : (Open(), "no text");
        EXPECT_EQ(failure, "no text");
        EXPECT_NE(Columns(), "STATE:33 NO:44 AMOUNT:- KEY:- ");
      };
      openShort();
      EXPECT_EQ(Save(), "not saved");
      for (const bool shown : {true, false}) {
        openShort();
        host.SetText(key, key);
        if (shown) form->Close();
        shown ? form->Show() : form->Fill(ScreenHost::ListOf({{"NO", "AMOUNT"}, {"B1", "5"}}));
        EXPECT_EQ(Columns(), "STATE:33 NO:44 AMOUNT:- KEY:- ");
        EXPECT_EQ(Save(), "STATE:33 NO:44 AMOUNT:0 ");
      }
    }
  }
}

}  // namespace

#include "column_layout_test.moc"
