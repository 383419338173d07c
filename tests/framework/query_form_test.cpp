// The frame of a query screen, through the smallest screen that there can be.
#include "framework/frames/query_form.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>
#include <vector>

#include "framework/columns/select_column.h"
#include "tests/support/screen_host.h"
#include "toolkit/action.h"
#include "toolkit/application.h"
#include "toolkit/buttons.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/menu.h"
#include "toolkit/panels.h"
#include "toolkit/save_dialog.h"

using fakehost::Library;

class TfrmSmallQry : public TQueryForm {
  Q_OBJECT

 public:
  using TQueryForm::TQueryForm;

  void SetCaptions() override {
    TQueryForm::SetCaptions();
    SetCaption("Small");
  }
  void Construct() override {
    TQueryForm::Construct();
    m_pIntf->InitListColumns(m_lvMain, ClassName());
    m_strExportType = "SmallQry";
    m_strItemName = "ITEM1";
  }
  void Fill(const ScreenHost::Table& lines) {
    corvane::List rows = ScreenHost::ListOf(lines);
    m_pIntf->FillListView(m_lvMain, rows);
    m_lvMainClick(this);
  }
  void AskColumns() { m_bAskColumns = true; }
  void OfferDialog() { m_bColumnDialog = true; }
  TfrmSelectColumn* ColumnDialog() { return m_pSelectColumn; }
};

namespace {

const ScreenHost::Table kColumns = {{"A", "UI44008", "100", "L", "C"},
                                    {"B", "UI44344", "80", "R", "M"},
                                    {"D", "UI99999", "5", "L", "X"},
                                    {"C", "UI44005", "60", "L", "C"}};

struct QueryForm : testing::Test {
  void SetUp() override {
    host.SetColumns("TfrmSmallQry", kColumns);
    for (const char* key : {"UI52150", "UI52148", "UI52140", "UI52142", "UI52144", "UI53030"})
      host.SetText(key, key);
  }
  void Open() {
    form = CreateForm<TfrmSmallQry>(Application);
    form->Show();
  }
  void Tick(std::initializer_list<int> ticked) {
    for (int i = 0; i < form->m_lvMain->Items().Count(); ++i) form->m_lvMain->Items()[i]->SetChecked(false);
    for (const int i : ticked) form->m_lvMain->Items()[i]->SetChecked(true);
    form->m_lvMainItemCheck(form->m_lvMain, form->m_lvMain->Items()[0]);
  }
  // What is enabled of the actions and the check-all box; "all" if the box is checked.
  std::string Enabled() const {
    return WhatIsOn({{"output", form->m_actOutput->Enabled()},
                     {"print", form->m_actPrint->Enabled()},
                     {"trail", form->m_actViewAuditFoot->Enabled()},
                     {"sync", form->m_actSynState->Enabled()},
                     {"reason", form->m_actReason->Enabled()},
                     {"delete", form->m_actDelete->Enabled()},
                     {"box", form->m_crbAllCheck->Enabled()},
                     {"all", form->m_crbAllCheck->Checked()}});
  }
  // The captions of an export, and the records that went with them.
  std::string Exported(std::uint32_t ordinal) const {
    std::string text;
    for (const fakehost::Call& call : host.libraries.CallsOf(Library::kExcel, ordinal)) {
      for (const corvane::Row& row : corvane::List(call.arguments.at(2)))
        text += row.getValue("DISPLAY") + " ";
      for (const corvane::Row& row : corvane::List(call.arguments.at(3)))
        text += "[" + row.getValue("A") + "]";
    }
    return text;
  }

  ScreenHost host;
  TfrmSmallQry* form = nullptr;
};

// Plays the user of the next file dialog: picks a type by its place from 1, and a file.
struct Choice {
  Choice(const QString& path, int filter) {
    timer.callOnTimeout([=, this] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      timer.stop();
      auto* types = dialog->findChild<QComboBox*>("fileTypeCombo");
      types->setCurrentIndex(filter - 1);
      Q_EMIT types->textActivated(types->currentText());
      dialog->selectFile(path);
      QMetaObject::invokeMethod(dialog, "accept");
    });
    timer.start(5);
  }
  QTimer timer;
};

TEST_F(QueryForm, EnablesByTicksAndStates) {
  Open();
  EXPECT_EQ(Enabled(), "box");
  form->Fill({{"A", "STT", "LASTOPRNO", "PREFLG", "PREDATE"},
              {"0", "UI52150", "007", "", ""},
              {"1", "UI52148", "007", "", ""},
              {"2", "UI52140", "007", "", ""},
              {"3", "UI52140", "008", "", ""},
              {"4", "UI52144", "007", "UI53030", "2026-11-23"},
              {"5", "UI52144", "007", "UI53030", "2026-11-22"},
              {"6", "UI52144", "007", "UI53030", ""},
              {"7", "UI52144", "007", "UI53029", "2026-11-23"}});
  const struct {
    std::initializer_list<int> ticked;
    const char* expected;
  } cases[] = {
      {{}, "box"},
      {{0}, "output print trail sync box"},
      {{1}, "output print trail reason box"},
      {{0, 1}, "output print sync reason box"},
      {{2}, "output print trail delete box"},
      {{2, 4}, "output print delete box"},
      {{2, 3}, "output print box"},
      {{4}, "output print trail delete box"},
      {{5}, "output print trail box"},
      {{6}, "output print trail box"},
      {{7}, "output print trail box"},
  };
  for (const auto& c : cases) {
    Tick(c.ticked);
    EXPECT_EQ(Enabled(), c.expected) << "ticked: " << testing::PrintToString(std::vector<int>(c.ticked));
  }
  form->m_crbAllCheck->SetChecked(true);
  form->SelectAll(form->m_crbAllCheck);
  EXPECT_EQ(form->m_lvMain->CheckedCount(), 8);
  form->m_lvMain->Clear();
  form->m_lvMainClick(form);
  EXPECT_EQ(Enabled(), "nothing");
  form->m_crbAllCheck->SetChecked(true);
  form->SelectAll(form->m_crbAllCheck);
  EXPECT_EQ(Enabled(), "all") << "without rows the box ticks nothing";
}

TEST_F(QueryForm, ButtonsOfOneActionKeepCaptionsAndPlacesOfTheirOwn) {
  host.SetText("UI42953", "Operator");
  host.SetText("UI42993", "Entered by");
  Open();
  EXPECT_EQ(form->m_btnOperInfo->Caption(), "Entered by");
  EXPECT_EQ(form->m_btnRecvInfo->Caption(), "Operator");
  form->m_actOperInfo->SetEnabled(false);
  EXPECT_FALSE(form->m_btnOperInfo->Visible());
}

TEST_F(QueryForm, TurnsOffWhatTheHostCannotTellAboutTheTickedRows) {
  Open();
  form->Fill({{"A", "STT", "LASTOPRNO"}, {"0", "UI52150", "007"}, {"1", "UI52140", "007"}});
  for (const char* key : {"UI52150", "UI52148", "UI52140"}) {
    Tick({1});
    EXPECT_EQ(Enabled(), "output print trail delete box") << key;
    host.libraries.SetAnswer(Library::kTranslate, 4, {"UI52", key}, fakehost::Refusal("gone"));
    EXPECT_THROW(Tick({0, 1}), corvane::TIOException) << key;
    EXPECT_EQ(Enabled(), key == std::string("UI52140") ? "output print sync box" : "output print box") << key;
    host.SetText(key, key);
  }
}

TEST_F(QueryForm, TurnsTheDetailsOffOnlyWithoutATick) {
  Open();
  form->Fill({{"A"}, {"0"}, {"1"}});
  form->m_actDetail->SetEnabled(true);
  Tick({0});
  EXPECT_TRUE(form->m_actDetail->Enabled());
  Tick({});
  EXPECT_FALSE(form->m_actDetail->Enabled());
  Tick({0, 1});
  EXPECT_FALSE(form->m_actDetail->Enabled());
  EXPECT_FALSE(form->m_crbAllCheck->Checked()) << "the last tick by hand leaves the box";
}

TEST_F(QueryForm, WritesARecordBackToTheSelectedRow) {
  Open();
  form->Fill({{"A"}, {"0"}, {"1"}});
  corvane::Property record;
  record["A"] = "9";
  form->ModifySelected(record);
  form->m_lvMain->SetItemIndex(1);
  form->ModifySelected(record);
  EXPECT_EQ(form->m_lvMain->Items()[0]->Caption() + form->m_lvMain->Items()[1]->Caption(), "09");
}

TEST_F(QueryForm, FollowsTheSpaceKeyOfASelectedRowWithABox) {
  Open();
  form->Fill({{"A"}, {"0"}});
  int checks = 0;
  form->m_lvMain->OnItemCheck = [&checks](TObject*, TListItem*) { ++checks; };
  const auto press = [&](char key) {
    form->m_lvMainKeyPress(form->m_lvMain, key);
    return checks;
  };
  EXPECT_EQ(press(' '), 0) << "nothing is selected";
  form->m_lvMain->SetItemIndex(0);
  EXPECT_EQ(press(' '), 1);
  EXPECT_EQ(press('x'), 1);
  form->m_lvMain->SetCheckboxes(false);
  EXPECT_EQ(press(' '), 1);
}

TEST_F(QueryForm, AsksWhichColumnsToWriteWhereTheScreenWantsThat) {
  const struct {
    bool all;
    const char* exported;
  } cases[] = {{true, "UI44008 UI44344 UI44005 [0]"}, {false, "UI44344 UI44005 [0]"}};
  QTemporaryDir folder;
  Open();
  form->AskColumns();
  form->Fill({{"A", "B"}, {"0", "1"}});
  Tick({0});
  form->m_lvMain->Columns()[0]->SetWidth(0);
  for (const auto& c : cases) {
    SCOPED_TRACE(c.exported);
    host.libraries.calls.clear();
    const Choice choice(folder.filePath(c.all ? "a.xls" : "b.xls"), 1);
    EXPECT_EQ(MessageOf([&] { form->m_actOutput->Execute(); }, c.all), "UI60007");
    EXPECT_EQ(Exported(2), c.exported);
  }
}

TEST_F(QueryForm, OffersItsActionsInTheListsMenu) {
  Open();
  std::string menu;
  for (int i = 0; i < form->m_pmuListview->Items()->Count(); ++i) {
    const TMenuItem* item = form->m_pmuListview->Items()->Items(i);
    menu += item->IsLine() ? "- " : item->Action()->Name() + " ";
  }
  EXPECT_EQ(
      menu,
      "m_actOutput m_actPrintSet m_actPrint - m_actReason m_actHideColumn m_actSendToDesktop - m_actQuery "
      "m_actAudit m_actDelete - m_actSum - m_actSynState ");
  EXPECT_EQ(form->Tag(), 1);
  EXPECT_TRUE(form->m_pnlAdvance->RollState());
  EXPECT_FALSE(form->m_mubtnDetail->Visible());
  form->m_actClose->Execute();
  EXPECT_FALSE(form->Showing());
}

TEST_F(QueryForm, WritesTheTickedRecords) {
  Open();
  form->Fill({{"A", "B"}, {"0", "1"}, {"1", "2"}});
  Tick({1});
  form->OutputRecords("/x/a.xls", true);
  EXPECT_EQ(Exported(2), "UI44008 UI44344 UI44005 [1]");
  const corvane::Row head(host.libraries.CallsOf(Library::kExcel, 2).at(0).arguments.at(1));
  EXPECT_EQ(head.getValue("TYPENAME") + head.getValue("TYPEVAL") + head.getValue("TITLENAME") +
                head.getValue("TITLEVAL") + head.getValue("FONTSIZE"),
            "UI20000SmallQryUI20001Small9");
  host.libraries.calls.clear();
  form->m_lvMain->Columns()[0]->SetWidth(0);
  form->OutputRecords("/x/a.TXT", false);
  EXPECT_EQ(Exported(5), "UI44344 UI44005 [1]");
  host.libraries.calls.clear();
  host.libraries.SetAnswer(Library::kPublicInformation, 90, {"FIELDDEF", "TfrmSmallQry"},
                           fakehost::Refusal("gone"));
  host.SetErrorText("gone", "no table");
  EXPECT_EQ(FailureOf([&] { form->OutputRecords("/x/a.xls", true); }), "no table");
  EXPECT_EQ(host.libraries.CallsOf(Library::kExcel, 2).size(), 0u);
}

TEST_F(QueryForm, AsksBeforeItOverwritesAFile) {
  const struct {
    int filter;
    const char* name;
    const char* written;
    bool exists;
    bool overwrite;
    std::uint32_t ordinal;  // of the spreadsheet library; 0: not called
  } cases[] = {{1, "a.xls", "a.xls", false, false, 2}, {1, "b.xls", "b.xls", true, false, 0},
               {1, "c.xls", "c.xls", true, true, 2},   {2, "d", "d.txt", false, false, 5},
               {3, "e", "e.xml", false, false, 0},     {1, "f", "f.xls", false, false, 2}};
  QTemporaryDir folder;
  Open();
  form->Fill({{"A", "B"}, {"0", "1"}});
  Tick({0});
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    host.libraries.calls.clear();
    const QString path = folder.filePath(QString::fromLatin1(c.name));
    if (c.exists) {
      QFile file(path);
      ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    const Choice choice(path, c.filter);
    const std::string question = MessageOf([&] { form->m_actOutput->Execute(); }, c.overwrite);
    EXPECT_EQ(question, c.exists ? "UI12572" : "");
    EXPECT_TRUE(form->m_sdOutput->FileName().ends_with(c.written)) << form->m_sdOutput->FileName();
    for (const std::uint32_t ordinal : {2u, 5u}) {
      EXPECT_EQ(host.libraries.CallsOf(Library::kExcel, ordinal).size(), c.ordinal == ordinal ? 1u : 0u);
    }
  }
}

TEST_F(QueryForm, PrintsAndMakesAShortcut) {
  Open();
  form->Fill({{"A", "B"}, {"0", "1"}, {"1", "2"}});
  Tick({0});
  form->m_actPrint->Execute();
  const auto printed = host.libraries.CallsOf(Library::kPrint, 3);
  ASSERT_EQ(printed.size(), 1u);
  EXPECT_EQ(printed[0].arguments.at(0), "TfrmSmallQry");
  EXPECT_EQ(corvane::Row(printed[0].arguments.at(1)).getValue("COLID"), "A");
  EXPECT_EQ(corvane::List(printed[0].arguments.at(2)).size(), 1u);
  form->m_actPrintSet->Execute();
  EXPECT_EQ(host.libraries.CallsOf(Library::kPrint, 5).size(), 1u);

  QTemporaryDir folder;
  host.SetField("ENVIRONMENT", "ENV.IMAGES", folder.path().toStdString() + "/");
  form->m_actSendToDesktop->Execute();
  const std::string icon = folder.path().toStdString() + "/TfrmSmallQry.ico";
  EXPECT_TRUE(QFile::exists(QString::fromStdString(icon)));
  std::string stored;
  for (const fakehost::Call& call : host.Stored(23, "ENVIRONMENT")) {
    const corvane::Field field(call.arguments.at(1));
    stored += field.getName() + "=" + field.getValue() + "\n";
  }
  EXPECT_EQ(stored, "CURSHORTCUT.ITEMIMAGE=" + icon +
                        "\nCURSHORTCUT.ITEMCAPTION=Small\nCURSHORTCUT.ITEMNAME=ITEM1\n");
  EXPECT_EQ(host.messages.back(), (FormHost::Message{0x7FC, 0, 0}));

  host.SetField("ENVIRONMENT", "ENV.IMAGES", "/nowhere/at/all/");
  host.libraries.calls.clear();
  form->m_actSendToDesktop->Execute();
  EXPECT_EQ(host.failures.size(), 1u);
  EXPECT_EQ(host.Stored(23, "ENVIRONMENT").size(), 0u);
}

TEST_F(QueryForm, KeepsTheLayoutUntilItIsDestroyed) {
  host.SetLayout("TfrmSmallQry",
                 {{"C", "33", "UI44005"}, {"A", "0", "UI44008"}, {"B", "70", "other language"}});
  Open();
  const TListColumns& columns = form->m_lvMain->Columns();
  EXPECT_EQ(columns[0]->Caption() + columns[1]->Caption() + columns[2]->Caption(), "UI44005UI44008UI44344");
  EXPECT_EQ(columns[0]->Width(), 33);
  EXPECT_EQ(columns[1]->MaxWidth(), 1);
  EXPECT_EQ(columns[2]->Width(), 80);  // a caption that is no longer there has no effect
  form->Close();
  EXPECT_EQ(host.Stored(80, "COLUMN_INFO").size(), 0u);
  columns[2]->SetWidth(77);
  // Another screen has stored its layout meanwhile.
  corvane::Iniplus newer;
  newer.addSection("TOther", ScreenHost::ListOf({{"ColumnID"}, {"KEPT"}, {"NEW"}}));
  host.libraries.SetAnswer(Library::kPublicInformation, 82, {"COLUMN_INFO"},
                           fakehost::Text(newer.toString()));
  DestroyForm(form);
  const auto stored = host.Stored(80, "COLUMN_INFO");
  ASSERT_EQ(stored.size(), 1u);
  const corvane::Iniplus layouts(stored[0].arguments.at(1));
  EXPECT_EQ(layouts.getSection("TOther").size(), 2u);
  std::string saved;
  for (const corvane::Row& row : layouts.getSection("TfrmSmallQry")) {
    saved += row.getValue("ColumnID") + row.getValue("ColumnWidth") + row.getValue("ColumnCaption") +
             row.getValue("ColumnOrder") + " ";
  }
  EXPECT_EQ(saved, "C33UI440050 A0UI440081 B77UI443442 ");
}

TEST_F(QueryForm, HidesAndShowsColumnsFromItsMenu) {
  Open();
  form->m_actHideColumn->Execute();
  TMenuItem* menu = form->m_pumColumn->Items();
  std::string entries;
  for (int i = 0; i < menu->Count(); ++i) {
    entries += menu->Items(i)->Caption() + (menu->Items(i)->Enabled() ? "+" : "-") +
               (menu->Items(i)->Checked() ? "x " : "  ");
  }
  EXPECT_EQ(entries, "UI44008-x UI44344+x UI44005+x ");
  form->m_pumColumn->Close();
  form->OfferDialog();
  form->m_actHideColumn->Execute();
  EXPECT_EQ(menu->Count(), 5);
  EXPECT_TRUE(menu->Items(3)->IsLine());
  form->m_pumColumn->Close();
}

TEST_F(QueryForm, RebuildsTheColumnsFromTheDialog) {
  Open();
  form->Fill({{"A"}, {"0"}});
  form->OfferDialog();
  form->m_actHideColumn->Execute();
  form->m_pumColumn->Close();
  WhenShown<TfrmSelectColumn> work([&](TfrmSelectColumn& dialog) {
    TListView* list = dialog.m_lvMain;
    ASSERT_EQ(list->Items().Count(), 3);
    list->SetItemFocused(list->Items()[2]);
    dialog.m_lvMainClick(list);
    EXPECT_TRUE(dialog.m_btnUp->Enabled());
    EXPECT_FALSE(dialog.m_btnDown->Enabled());
    dialog.m_btnUp->Click();
    EXPECT_EQ(list->Items()[1]->Caption(), "UI44005");
    EXPECT_TRUE(dialog.m_btnDown->Enabled());
    dialog.m_btnUp->Click();
    EXPECT_EQ(list->Items()[0]->Caption(), "UI44005") << "the first place can be reached";
    EXPECT_FALSE(dialog.m_btnUp->Enabled());
    dialog.m_btnDown->Click();
    list->Items()[2]->SetChecked(false);
    list->Items()[0]->SetChecked(false);
    EXPECT_EQ(MessageOf([&] { dialog.m_btnConfirm->Click(); }), "UI60006");
    EXPECT_EQ(MessageOf([&] { list->OnItemCheck(list, list->Items()[0]); }), "UI60005");
    EXPECT_TRUE(list->Items()[0]->Checked());
    dialog.m_btnConfirm->Click();
  });
  form->m_pumColumn->Items()->Items(4)->Click();
  ASSERT_TRUE(work.Came());
  std::string columns;
  for (int i = 0; i < form->m_lvMain->Columns().Count(); ++i) {
    const TListColumn* column = form->m_lvMain->Columns()[i];
    columns += form->m_lvMain->ColumnIds()[static_cast<std::size_t>(i)] + ":" +
               std::to_string(column->Width()) + "/" + std::to_string(column->MaxWidth()) + " ";
  }
  EXPECT_EQ(columns, "A:100/1000 C:60/1000 B:0/1 D:0/1 ");
  EXPECT_EQ(form->m_lvMain->Items().Count(), 0);
}

}  // namespace

#include "query_form_test.moc"
