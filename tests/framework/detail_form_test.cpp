// The frame of a detail dialog, through the smallest dialog that there can be.
#include "framework/frames/detail_form.h"

#include <gtest/gtest.h>

#include "framework/business/m_detail_intf.h"
#include "framework/columns/select_column.h"
#include "tests/support/screen_host.h"
#include "toolkit/action.h"
#include "toolkit/application.h"
#include "toolkit/buttons.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/menu.h"
#include "toolkit/panels.h"

using fakehost::Library;

class TfrmSmallDtl : public TDetailForm {
  Q_OBJECT

 public:
  explicit TfrmSmallDtl(TComponent* owner) : TDetailForm(owner) {}

  void SetCaptions() override {
    TDetailForm::SetCaptions();
    SetCaption("Small");
  }
  void Construct() override {
    TDetailForm::Construct();
    m_pIntf->InitListColumns(m_lvMain, ClassName());
    m_strExportType = "SmallDtl";
  }
  void Fill(const ScreenHost::Table& lines) {
    m_lvMain->Clear();
    m_lvMain->Add(ScreenHost::ListOf(lines), m_lvMain->ColumnIds().toString("; ", false));
  }
};

namespace {

struct DetailForm : testing::Test {
  void SetUp() override {
    host.SetColumns("TfrmSmallDtl", {{"A", "UI44008", "100", "L", "C"},
                                     {"B", "UI44344", "80", "R", "M"},
                                     {"D", "UI99999", "5", "L", "X"}});
  }
  void Open() {
    form = CreateForm<TfrmSmallDtl>(Application);
    form->Show();
  }
  // What is enabled of the actions and the check-all box.
  std::string Enabled() const {
    return WhatIsOn({{"audit", form->m_actAudit->Enabled()},
                     {"output", form->m_actOutPut->Enabled()},
                     {"print", form->m_actPrint->Enabled()},
                     {"box", form->m_crbAllCheck->Enabled()}});
  }
  // "caption:width" of the columns of the last layout that the host was given.
  std::string SavedWidths() const {
    const auto stored = host.Stored(80, "COLUMN_INFO");
    if (stored.empty()) return "nothing";
    std::string text;
    const corvane::Iniplus layouts(stored.back().arguments.at(1));
    for (const corvane::Row& row : layouts.getSection("TfrmSmallDtl")) {
      text += row.getValue("ColumnCaption") + ":" + row.getValue("ColumnWidth") + " ";
    }
    return text;
  }

  ScreenHost host;
  TfrmSmallDtl* form = nullptr;
};

TEST_F(DetailForm, EnablesByTicksAndByTheCheckAllBox) {
  const ScreenHost::Table rows = {{"A"}, {"0"}, {"1"}};
  const struct {
    ScreenHost::Table rows;
    bool all;
    int ticked;
    const char* expected;
  } cases[] = {
      {rows, true, 2, "audit output print box"}, {rows, false, 0, "box"}, {{{"A"}}, true, 0, "nothing"}};
  Open();
  EXPECT_EQ(Enabled(), "box");
  for (const auto& c : cases) {
    SCOPED_TRACE(c.expected);
    form->Fill(c.rows);
    form->m_actAudit->SetEnabled(true);
    form->m_crbAllCheck->SetChecked(c.all);
    form->SelectAll(form->m_crbAllCheck);
    form->m_lvMainClick(form);
    EXPECT_EQ(form->m_lvMain->CheckedCount(), c.ticked);
    EXPECT_EQ(Enabled(), c.expected);
  }
  form->Fill(rows);
  form->m_lvMain->Items()[0]->SetChecked(true);
  form->m_lvMain->SetItemIndex(0);
  char space = ' ';
  form->m_lvMain->OnKeyPress(form->m_lvMain, space);
  EXPECT_EQ(Enabled(), "output print box");
}

TEST_F(DetailForm, ShowsAReasonThatIsATextKeyAsItsText) {
  host.SetText("UI50001", "text of the key");
  host.libraries.SetAnswer(Library::kError, 4, {"KNOWN", "1"}, fakehost::Text("text of the code"));
  Open();
  form->Fill({{"A", "Reason"}, {"0", "UI50001"}, {"1", "KNOWN"}, {"2", "as it is"}, {"3", ""}});
  const char* expected[] = {"text of the key", "text of the code", "as it is", ""};
  for (int i = 0; i < 4; ++i) {
    form->m_lvMain->SetItemIndex(i);
    EXPECT_EQ(form->m_pnStatusText->Caption(), expected[i]);
  }
  form->m_lvMain->SetItemIndex(0);
  form->m_lvMain->SetItemIndex(-1);
  EXPECT_EQ(form->m_pnStatusText->Caption(), "");
}

TEST_F(DetailForm, SavesItsLayoutAtEachClose) {
  Open();
  form->m_lvMain->Columns()[1]->SetWidth(91);
  form->Close();
  EXPECT_EQ(SavedWidths(), "UI44008:100 UI44344:91 ");
  host.SetLayout("TfrmSmallDtl", {{"B", "91", "UI44344"}, {"A", "0", "UI44008"}});
  host.libraries.calls.clear();
  form->Show();
  EXPECT_EQ(form->m_lvMain->Columns()[1]->Width(), 91);
  EXPECT_EQ(form->m_lvMain->Columns()[0]->MaxWidth(), 1);
  form->Close();
  EXPECT_EQ(SavedWidths(), "UI44008:0 UI44344:91 ");
  host.libraries.calls.clear();
  DestroyForm(form);
  EXPECT_EQ(SavedWidths(), "nothing");
}

TEST_F(DetailForm, StartsAfreshAtEachShow) {
  Open();
  for (const bool sumRow : {true, false}) {
    form->m_crbAllCheck->SetChecked(true);
    form->m_pnStatusText->SetCaption("old");
    form->m_lvMain->SetShowSumRow(sumRow);
    form->Close();
    form->Show();
    EXPECT_FALSE(form->m_crbAllCheck->Checked());
    EXPECT_EQ(form->m_pnStatusText->Caption(), "");
    EXPECT_EQ(form->m_actSum->Visible(), !sumRow);
  }
}

TEST_F(DetailForm, OffersItsActions) {
  Open();
  std::string menu;
  for (int i = 0; i < form->m_pmuListView->Items()->Count(); ++i) {
    const TMenuItem* item = form->m_pmuListView->Items()->Items(i);
    menu += item->IsLine() ? "- " : item->Caption() + " ";
  }
  EXPECT_EQ(menu, "UI12547 UI12546 UI12545 - UI12573 - UI12558 - UI12580 ");
  EXPECT_EQ(form->m_btnAudit->Caption() + form->m_btnClose->Caption() + form->m_crbAllCheck->Caption(),
            "UI12558UI12559UI12548");
  EXPECT_EQ(form->Tag(), 1);
  form->m_actHideColumn->Execute();
  EXPECT_EQ(form->m_pumColumn->Items()->Count(), 2);
  form->m_pumColumn->Close();
}

TEST_F(DetailForm, GivesOutTheTickedRecords) {
  Open();
  form->Fill({{"A", "B"}, {"0", "1"}, {"1", "2"}});
  form->m_lvMain->Items()[1]->SetChecked(true);
  form->m_lvMainClick(form);
  form->m_lvMain->Columns()[0]->SetWidth(0);
  form->OutputRecords("/x/a.txt");
  const auto written = host.libraries.CallsOf(Library::kExcel, 5);
  ASSERT_EQ(written.size(), 1u);
  EXPECT_EQ(corvane::Row(written[0].arguments.at(1)).getValue("TYPEVAL"), "SmallDtl");
  EXPECT_EQ(corvane::List(written[0].arguments.at(2)).size(), 2u);
  EXPECT_EQ(corvane::List(written[0].arguments.at(3)).getRow(0).getValue("A"), "1");
  form->m_actPrint->Execute();
  EXPECT_EQ(host.libraries.CallsOf(Library::kPrint, 3).at(0).arguments.at(0), "TfrmSmallDtl");
}

}  // namespace

#include "detail_form_test.moc"
