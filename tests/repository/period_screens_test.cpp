// The screens of applications and of business events: what they do otherwise than the repository screen.
#include <gtest/gtest.h>

#include "repository/norvik_dtl_qry.h"
#include "repository/norvik_e_loan_qry.h"
#include "tests/support/screen_host.h"
#include "toolkit/action.h"
#include "toolkit/application.h"
#include "toolkit/combo_box.h"
#include "toolkit/date_edit.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/labels.h"
#include "toolkit/panels.h"
#include "toolkit/radio_group.h"
#include "toolkit/screen.h"
#include "toolkit/text.h"

namespace {

const ScreenHost::Table kColumns = {{"BILLNUM", "UI44008", "100", "L", "C"}};

template <class Screen>
struct Opened {
  Opened() {
    host.SetColumns("TfrmNorvikELoanQry", kColumns);
    host.SetColumns("TfrmNorvikDTLQry", kColumns);
    form = CreateForm<Screen>(Application);
    form->Show();
  }
  void SetDates(const char* start, const char* end) {
    form->m_dtStartDate->SetText(start);
    form->m_dtEndDate->SetText(end);
  }
  // The fields of the request that are not empty, and its accounts.
  std::string Sent() {
    corvane::CorvaneStream stream;
    form->BuildQueryRequest(stream);
    std::string text;
    for (const auto& [key, field] : stream.getFields()) {
      if (!field.getValue().empty()) text += key + "=" + field.getValue() + " ";
    }
    return text + stream.getList("resultList")[0].getValue("CUSTACC") + " of " +
           std::to_string(stream.getFields().size());
  }

  // The row that the screen makes of an answer's row.
  corvane::Property Shown(const ScreenHost::Table& row) {
    SetDates("20260101", "20260102");
    host.SetAnswerRows(ScreenHost::ListOf(row));
    form->m_actQuery->Execute();
    return *form->m_lvMain->Items()[0]->Data();
  }

  ScreenHost host;
  Screen* form = nullptr;
};

struct CheckCase {
  const char* start;
  const char* end;
  const char* message;
  const char* left;
};

template <class Screen>
void ExpectChecks(Opened<Screen>& screen, std::initializer_list<CheckCase> cases) {
  for (const bool rolledUp : {false, true}) {
    screen.form->m_pnlAdvance->SetRollState(rolledUp);
    for (const CheckCase& c : cases) {
      SCOPED_TRACE(c.start + std::string(" to ") + c.end);
      screen.SetDates(c.start, c.end);
      screen.host.libraries.calls.clear();
      screen.host.SetAnswerRows(ScreenHost::ListOf({{"BILLNUM"}, {"1"}}));
      EXPECT_EQ(MessageOf([&] { screen.form->m_actQuery->Execute(); }), c.message) << c.start << " " << c.end;
      EXPECT_EQ(screen.host.Requests("EBBADQDB").size(), *c.message == '\0' ? 1u : 0u);
      EXPECT_EQ(screen.form->m_dtStartDate->Text() + screen.form->m_dtEndDate->Text(), c.left);
    }
  }
}

TEST(NorvikELoanQry, ChecksItsDates) {
  Opened<TfrmNorvikELoanQry> screen;
  EXPECT_FALSE(screen.form->m_pnlAdvance->RollState());
  ExpectChecks(screen, {{"", "", "UI44840", ""},
                        {"2026", "", "UI44828", "2026"},
                        {"20260101", "", "UI44841", "20260101"},
                        {"20260101", "20260230", "UI44829", "2026010120260230"},
                        {"20260102", "20260101", "UI44560", ""},
                        {"20260101", "20260701", "UI44583", ""},
                        {"20260101", "20260630", "", "2026010120260630"}});
}

TEST(NorvikDtlQry, ChecksFlowNumberAndDates) {
  Opened<TfrmNorvikDTLQry> screen;
  ExpectChecks(screen, {{"", "", "UI44842", ""},
                        {"2026", "", "UI44562", "2026"},
                        {"20260101", "", "UI44843", "20260101"},
                        {"20260101", "x", "UI44563", "20260101x"},
                        {"20260102", "20260101", "UI44561", ""},
                        {"20260101", "20260701", "UI44583", ""},
                        {"20260101", "20260630", "", "2026010120260630"}});
  screen.SetDates("", "");
  screen.form->m_edFlowNo->SetText("12 3");
  EXPECT_EQ(MessageOf([&] { screen.form->m_actQuery->Execute(); }), "UI44873");
}

TEST(NorvikELoanQry, SendsItsConditions) {
  Opened<TfrmNorvikELoanQry> screen;
  TfrmNorvikELoanQry* form = screen.form;
  EXPECT_EQ(screen.Sent(), "BILLTYP=AC00 BSNCODE=CB200320 A1|A2 of 24");
  form->m_edNo->SetText(" 1 ");
  form->m_edLoanNo->SetText(" 2 ");
  for (TKVXComboBox* box :
       {form->m_cbxAcc, form->m_cbxType, form->m_cbxLoanType, form->m_cbxLoanResult, form->m_cbxBankRmk}) {
    box->SetItemIndex(1);
  }
  screen.SetDates("20260101", "20260102");
  EXPECT_EQ(screen.Sent(),
            "APLYDTE=20260102 APLYDTS=20260101 APPLYNO= 2  APPREST=01 APPTYPE=01 BILLNUM= 1  BILLTYP=AC01 "
            "BKRMKTY=01 BSNCODE=CB200320 A1 of 24");
  form->m_pnlAdvance->SetRollState(true);
  EXPECT_EQ(screen.Sent().find("APLYDT"), std::string::npos);
  form->Close();
  EXPECT_EQ(form->m_edNo->Text() + form->m_edLoanNo->Text(), "");
}

TEST(NorvikDtlQry, SendsItsConditions) {
  Opened<TfrmNorvikDTLQry> screen;
  TfrmNorvikDTLQry* form = screen.form;
  EXPECT_EQ(form->m_cbxBankNo->Items().Count(), 0u);
  EXPECT_EQ(screen.Sent(), "BILLTYP=AC00 BSNCODE=CB200330 A1|A2 of 24");
  form->m_edBillId->SetText("a1");
  form->m_edFlowNo->SetText("f2");
  form->m_cbxLoanType->SetItemIndex(1);
  EXPECT_EQ(screen.Sent(), "APPTYPE=01 BILLSID=a1 BILLTYP=AC00 BSNCODE=CB200330 BSNFLOW=f2 A1|A2 of 24");
}

TEST(PeriodScreens, CaptionTheirConditions) {
  const std::string shared =
      "m_lbAcc=UI44003 m_lbBankNo=UI44001 m_lbNo=UI44008 m_lbType=UI44007 Label2=* Label3=* "
      "m_lbBankRmk=" +
      Ansi("银行备注");
  {
    Opened<TfrmNorvikELoanQry> loans;
    ExpectCaptions(*loans.form, shared);
    ExpectCaptions(
        *loans.form,
        "=UI25828 m_lbLoanNo=UI44474 m_lbLoanType=UI44475 m_lbLoanResult=UI44476 m_lbStartDate=UI44477 "
        "m_lbEndDate=UI44478 Label1=* Label4=*");
    EXPECT_EQ(loans.form->m_edNo->InputRule().maxLength, 16);
    EXPECT_EQ(loans.form->m_edLoanNo->InputRule().maxLength, 18);
  }
  Opened<TfrmNorvikDTLQry> events;
  ExpectCaptions(*events.form, shared);
  ExpectCaptions(*events.form,
                 "=UI25830 m_lbLoanType=UI44496 m_lbBillId=UI44006 m_lbFlowNo=UI44497 m_lbStartDate=UI44556 "
                 "m_lbEndDate=UI44557 m_lbeee=*");
  EXPECT_EQ(events.form->m_edBillId->InputRule().maxLength, 20);
  EXPECT_EQ(events.form->m_edFlowNo->InputRule().maxLength, 18);
}

TEST(PeriodScreens, DecodeTheirColumnsAndNameTheirExports) {
  const ScreenHost::Table row = {
      {"BILLNUM", "APPREST", "APPTYPE", "BILLTYP", "TENDFLG", "AUTOCOL", "HASIMPN", "KZRFLAG"},
      {"1", "01", "01", "AC02", "1", "0", "1", "EM00"}};
  const auto look = [&](auto& screen, const char* typeDictionary) {
    const std::pair<const char*, const char*> texts[] = {
        {"LOANRESULT", "result"}, {typeDictionary, "type"}, {"TRANSMK", "transfer"}};
    for (const auto& [dictionary, text] : texts) {
      screen.host.SetText(text, text);
      screen.host.SetTable(
          "BUSINESSDICT", dictionary,
          ScreenHost::ListOf({{"TYPEKEY", "TYPE"}, {"-9999", "UI40115"}, {"01", text}, {"EM00", text}}));
    }
    const corvane::Property shown = screen.Shown(row);
    std::string values;
    for (const std::string& field : row[0]) values += shown.getValue(field) + " ";
    screen.form->OutputRecords("/x/a.xls", true);
    const auto written = screen.host.libraries.CallsOf(fakehost::Library::kExcel, 2);
    return values + corvane::Row(written.at(0).arguments.at(1)).getValue("TYPEVAL");
  };
  {
    Opened<TfrmNorvikELoanQry> loans;
    EXPECT_EQ(look(loans, "LOANTYPEAPP"), "1 result type UI40117 UI12016 UI12017 UI12016 transfer ELoanQry");
  }
  Opened<TfrmNorvikDTLQry> events;
  EXPECT_EQ(look(events, "BUSITYPE"), "1 01 type UI40117 UI12016 UI12017 UI12016 transfer BusinessDTLQry");
}

TEST(PeriodScreens, StartAfreshAtEachShow) {
  Opened<TfrmNorvikDTLQry> screen;
  TfrmNorvikDTLQry* form = screen.form;
  for (TKVXEdit* edit : {form->m_edNo, form->m_edBillId, form->m_edFlowNo}) edit->SetText("1");
  for (TKVXComboBox* box : {form->m_cbxAcc, form->m_cbxType, form->m_cbxLoanType, form->m_cbxBankRmk}) {
    box->SetItemIndex(1);
  }
  screen.Shown({{"BILLNUM"}, {"1"}});
  form->m_rgSelDate->SetItemIndex(0);
  form->m_cbxAccChange(form);
  EXPECT_GT(form->m_cbxBankNo->Items().Count(), 0u);
  form->m_pnlAdvance->SetRollState(true);
  form->Close();
  form->Show();
  EXPECT_EQ(screen.Sent(), "BILLTYP=AC00 BSNCODE=CB200330 A1|A2 of 24");
  EXPECT_EQ(form->m_cbxBankNo->Items().Count(), 0u);
  EXPECT_EQ(form->m_lvMain->Items().Count(), 0);
  EXPECT_EQ(form->m_rgSelDate->ItemIndex(), 4);
  EXPECT_FALSE(form->m_pnlAdvance->RollState());
}

TEST(PeriodScreens, LeaveOutputOnAndNameTheInstitutions) {
  Opened<TfrmNorvikELoanQry> screen;
  const corvane::Property row = screen.Shown({{"BILLNUM", "BSNPUNO"}, {"1", "short"}});
  EXPECT_TRUE(screen.form->m_actOutput->Enabled());
  EXPECT_FALSE(screen.form->m_actTicketInfo->Enabled());
  EXPECT_TRUE(row.hasField("BSNPUNM"));
}

TEST(PeriodScreens, HoldTypedDatesToTodayAndTheQuickChoiceToThem) {
  Opened<TfrmNorvikELoanQry> screen;
  TfrmNorvikELoanQry* form = screen.form;
  form->m_rgSelDate->SetItemIndex(1);
  EXPECT_EQ(form->m_dtStartDate->Text() + form->m_dtEndDate->Text(), "2026111620261122");
  form->m_dtStartDate->SetText("");
  form->m_dtStartDateChange(form);
  EXPECT_EQ(form->m_rgSelDate->ItemIndex(), 1);  // an empty date is left alone altogether
  form->m_rgSelDate->SetItemIndex(1);
  form->m_dtEndDate->SetText("20301231");
  form->m_dtEndDateChange(form);
  EXPECT_EQ(form->m_dtEndDate->Text(), "20261122");
  EXPECT_EQ(form->m_rgSelDate->ItemIndex(), 1);  // today ends this week's range
  form->m_dtStartDate->SetText("20261101");
  form->m_dtStartDateChange(form);
  EXPECT_EQ(form->m_rgSelDate->ItemIndex(), 4);
}

}  // namespace
