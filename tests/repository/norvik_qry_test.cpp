// The repository screen with real widgets and a host of the tests' own.
#include "repository/norvik_qry.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QRadioButton>

#include "dialogs/com_msg.h"
#include "repository/enquiry_form.h"
#include "tests/support/screen_host.h"
#include "toolkit/action.h"
#include "toolkit/application.h"
#include "toolkit/buttons.h"
#include "toolkit/combo_box.h"
#include "toolkit/date_edit.h"
#include "toolkit/edits.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/labels.h"
#include "toolkit/list_box.h"
#include "toolkit/panels.h"
#include "toolkit/radio_group.h"
#include "toolkit/text.h"

namespace {

using fakehost::Library;

const corvane::List kBills = ScreenHost::ListOf({{"BILLNUM", "BILLTYP", "AGTSTAT", "PAYAMT", "TENDFLG"},
                                                 {"B1", "AC01", "02", "10.50", "1"},
                                                 {"B2", "AC02", "99", "20.00", "0"},
                                                 {"B3", "AC02", "03", "", ""}});

struct NorvikQry : testing::Test {
  void SetUp() override {
    host.SetColumns("TfrmNorvikQry", {{"BILLNUM", "UI44008", "100", "L", "C"},
                                      {"PAYAMT", "UI44344", "80", "R", "M"},
                                      {"AGTSTAT", "UI44005", "80", "L", "C"}});
  }
  TfrmNorvikQry* Open() {
    form = CreateForm<TfrmNorvikQry>(Application);
    form->Show();
    return form;
  }
  std::string Request() {
    corvane::CorvaneStream stream;
    form->BuildQueryRequest(stream);
    return stream.toString();
  }
  // What is enabled of the row actions, output, print and the check-all box; "all" if the box is checked.
  std::string Enabled() const {
    return WhatIsOn({{"record", form->m_actTicketInfo->Enabled()},
                     {"sign", form->m_actECDSSignInfo->Enabled()},
                     {"history", form->m_actECDSHistoryInfo->Enabled()},
                     {"big", form->m_actBigResult->Enabled()},
                     {"output", form->m_actOutput->Enabled()},
                     {"print", form->m_actPrint->Enabled()},
                     {"box", form->m_crbAllCheck->Enabled()},
                     {"all", form->m_crbAllCheck->Checked()}});
  }
  void Query(const corvane::List& rows = kBills) {
    host.SetAnswerRows(rows);
    form->m_actQuery->Execute();
  }

  ScreenHost host;
  TfrmNorvikQry* form = nullptr;
};

// The fields that no condition fills.
constexpr const char* kEmptyRequest =
    "<ACCPNAM/><AGTBHNM/><AGTSTAT>02|03|12</AGTSTAT><AMTBEGN/><AMTENDS/><APLYDTE/><APLYDTS/><APPLYNO/>"
    "<APPREST/><APPTYPE/><BATCHNO/><BILLNUM/><BILLSID/><BILLTYP>AC00</BILLTYP><BKRMKTY/>"
    "<BSNCODE>CB200310</BSNCODE><BSNFLOW/><DSBKBNM/><DUEDATE/><DUEDATS/><HASIMPN/><PTENDNM/><SAVEDTE/><SAVEDTS/>";

TEST_F(NorvikQry, SendsItsDefaults) {
  Open();
  EXPECT_EQ(form->ClassName(), "TfrmNorvikQry");
  EXPECT_EQ(host.Requests("EBBADQAH").size(), 0u);
  EXPECT_EQ(form->m_cbxBankNo->GetKey(), "-9999");
  EXPECT_TRUE(form->m_pnlAdvance->RollState());
  EXPECT_FALSE(form->m_pnlNormal->RollState());
  EXPECT_EQ(form->m_rgSelDate->ItemIndex(), 4);
  EXPECT_EQ(Enabled(), "nothing");
  EXPECT_EQ(Request(), std::string("<?xml version=\"1.0\" encoding=\"UTF-8\"?><stream>") + kEmptyRequest +
                           "<list name=\"resultList\"><row><CUSTACC>A1|A2</CUSTACC></row></list></stream>");
}

TEST_F(NorvikQry, SendsEveryConditionAsTheBankMustGetIt) {
  Open();
  host.SetAnswerRows(ScreenHost::ListOf({{"AGTBHNM"}, {"313001000011"}, {"313001000022"}}));
  form->m_cbxAcc->SetItemIndex(2);
  form->m_cbxAccChange(form);
  form->m_cbxBankNo->SetItemIndex(2);
  form->m_edBatNo->SetText(" batch ");
  form->m_edNo->SetText(" no ");
  form->m_edBillId->SetText(" 12 ");
  form->m_edBackName->SetText(Ansi(" 甲 "));
  form->m_cbxType->SetItemIndex(1);
  form->m_cbxBankRmk->SetItemIndex(1);
  form->m_dtStorageStartDate->SetText("20260101");
  form->m_dtStorageEndDate->SetText("20260102");
  form->m_lbxAgentStt->SetSelected(0, true);
  form->m_dtDeadStartDate->SetText("20260201");
  form->m_dtDeadEndDate->SetText("20260202");
  form->m_edMinAmount->SetText("1");
  form->m_edMaxAmount->SetText("2");
  form->m_pnlAdvance->SetRollState(false);
  const std::string expected = Ansi(
      "<AGTBHNM>313001000022</AGTBHNM><AGTSTAT>01|02|03|12</AGTSTAT><AMTBEGN>1</AMTBEGN><AMTENDS>2</AMTENDS>"
      "<APLYDTE/><APLYDTS/><APPLYNO/><APPREST/><APPTYPE/><BATCHNO>batch</BATCHNO><BILLNUM>no</BILLNUM>"
      "<BILLSID> 12 </BILLSID><BILLTYP>AC01</BILLTYP><BKRMKTY>01</BKRMKTY><BSNCODE>CB200310</BSNCODE><BSNFLOW/>"
      "<DSBKBNM/><DUEDATE>20260202</DUEDATE><DUEDATS>20260201</DUEDATS><HASIMPN/><PTENDNM>甲</PTENDNM>"
      "<SAVEDTE>20260102</SAVEDTE><SAVEDTS>20260101</SAVEDTS>"
      "<list name=\"resultList\"><row><CUSTACC>A2</CUSTACC></row></list>");
  EXPECT_NE(Request().find(expected), std::string::npos) << Request();
  form->m_pnlAdvance->SetRollState(true);
  const std::string rolledUp = Request();
  for (const char* field : {"<DUEDATS/>", "<DUEDATE/>", "<AMTBEGN/>", "<AMTENDS/>"}) {
    EXPECT_NE(rolledUp.find(field), std::string::npos) << field;
  }
}

TEST_F(NorvikQry, ShowsDecodedRows) {
  Open();
  Query();
  ASSERT_EQ(form->m_lvMain->Items().Count(), 3);
  const corvane::Property& first = *form->m_lvMain->Items()[0]->Data();
  EXPECT_EQ(first.getValue("BILLTYP") + first.getValue("AGTSTAT") + first.getValue("TENDFLG"),
            "UI40116UI46102UI12016");
  EXPECT_EQ(form->m_lvMain->Items()[1]->Data()->getValue("AGTSTAT"), "99");
}

TEST_F(NorvikQry, AsksForTheInstitutionsOfAnAccount) {
  Open();
  const struct {
    ScreenHost::Table rows;
    const char* entries;
  } cases[] = {{{{"AGTBHNM"}, {"1"}, {"2"}}, "-9999=UI40115 1=1- 2=2- "},
               {{{"AGTBHNM"}, {"1"}}, "1=1- "},
               {{{"AGTBHNM"}}, "-9999=UI40115 "}};
  const auto entries = [this] {
    std::string text;
    for (std::size_t i = 0; i < form->m_cbxBankNo->Items().Count(); ++i) {
      text += form->m_cbxBankNo->Keys()[i] + "=" + form->m_cbxBankNo->Items()[i] + " ";
    }
    return text;
  };
  form->m_cbxAcc->SetItemIndex(1);
  for (const auto& c : cases) {
    SCOPED_TRACE(c.entries);
    host.SetAnswerRows(ScreenHost::ListOf(c.rows));
    form->m_cbxAccChange(form);
    EXPECT_EQ(entries(), c.entries);
    EXPECT_EQ(form->m_cbxBankNo->ItemIndex(), 0);
  }
  EXPECT_EQ(host.Requests("EBBADQAH").back(),
            "<?xml version=\"1.0\" encoding=\"GBK\"?><stream><SRC>1</SRC>"
            "<list name=\"userDataList\"><row><CUSTACC>A1</CUSTACC></row></list></stream>");
  EXPECT_EQ(form->m_cbxAcc->Hint(), "A1-Name 1");
  host.RefuseExchange("ET90001");
  FailureOf([&] { form->m_cbxAccChange(form); });
  EXPECT_EQ(entries(), "-9999=UI40115 ");
  host.SetAnswerRows(ScreenHost::ListOf(cases[0].rows));
  form->m_cbxAccChange(form);
  form->m_cbxAcc->SetItemIndex(0);
  form->m_cbxAccChange(form);
  EXPECT_EQ(entries(), "-9999=UI40115 ");
}

TEST_F(NorvikQry, ShowsManyInstitutionsInOneStep) {
  Open();
  ScreenHost::Table rows = {{"AGTBHNM"}};
  for (int i = 0; i < 1000; ++i) rows.push_back({std::to_string(i)});
  host.SetAnswerRows(ScreenHost::ListOf(rows));
  int steps = 0;
  const auto* model = static_cast<QComboBox*>(form->m_cbxBankNo->Widget())->model();
  QObject::connect(model, &QAbstractItemModel::rowsInserted, form, [&] { ++steps; });
  form->m_cbxAcc->SetItemIndex(1);
  form->m_cbxAccChange(form);
  EXPECT_EQ(model->rowCount(), 1001);
  EXPECT_LE(steps, 2);  // the institutions, and the entry before them
}

TEST_F(NorvikQry, StartsAfreshAtEachShowButKeepsTheBillId) {
  Open();
  Query();
  form->m_edBatNo->SetText("1");
  form->m_edNo->SetText("2");
  form->m_edBackName->SetText("3");
  form->m_edBillId->SetText("4");
  form->m_dtDeadStartDate->SetText("20260101");
  form->m_edMaxAmount->SetText("5");
  form->m_lbxAgentStt->SetSelected(1, false);
  form->m_pnlAdvance->SetRollState(false);
  form->m_pnlNormal->SetRollState(true);
  form->m_rgSelDate->SetItemIndex(1);
  form->m_cbxAcc->SetItemIndex(1);
  form->m_cbxType->SetItemIndex(1);
  form->m_cbxBankRmk->SetItemIndex(1);
  form->m_lvMain->CheckAll();
  form->m_lvMainClick(form);
  form->m_crbAllCheck->SetChecked(true);
  form->m_pnStatusText->SetCaption("reason");
  form->m_btnClose->SetFocus();
  form->Close();
  form->Show();
  EXPECT_EQ(form->ActiveControl(), form->m_cbxAcc);
  EXPECT_EQ(form->m_cbxAcc->ItemIndex() + form->m_cbxType->ItemIndex() + form->m_cbxBankRmk->ItemIndex(), 0);
  EXPECT_EQ(form->m_rgSelDate->ItemIndex(), 4);
  EXPECT_EQ(form->m_pnStatusText->Caption(), "");
  EXPECT_EQ(Enabled(), "nothing");
  EXPECT_FALSE(form->m_pnlNormal->RollState());
  EXPECT_EQ(form->m_edBatNo->Text() + form->m_edNo->Text() + form->m_edBackName->Text() +
                form->m_edBillId->Text() + form->m_dtDeadStartDate->Text() + form->m_edMaxAmount->Text(),
            "4");
  EXPECT_EQ(form->m_lbxAgentStt->SelCount(), 3);
  EXPECT_TRUE(form->m_pnlAdvance->RollState());
  EXPECT_EQ(form->m_lvMain->Items().Count(), 0);
}

TEST_F(NorvikQry, WritesTheQuickChoiceIntoTheDueDates) {
  Open();
  form->m_rgSelDate->SetItemIndex(2);
  EXPECT_EQ(form->m_dtDeadStartDate->Text() + form->m_dtDeadEndDate->Text(), "2026110120261122");
  EXPECT_EQ(form->m_dtStorageStartDate->Text(), "");
  form->m_dtDeadStartDate->SetText("20260101");
  form->m_dtDeadStartDateChange(form);
  EXPECT_EQ(form->m_rgSelDate->ItemIndex(), 2);
  form->m_dtDeadStartDate->Clear();  // as a check does it
  form->m_dtDeadEndDate->Clear();
  form->Widget()->findChild<QRadioButton*>("m_rgSelDate_2")->click();
  EXPECT_EQ(form->m_dtDeadStartDate->Text() + form->m_dtDeadEndDate->Text(), "2026110120261122");
}

TEST_F(NorvikQry, EmptiesTheMaximumAfterTheMessage) {
  Open();
  form->m_pnlAdvance->SetRollState(false);
  form->m_edMinAmount->SetText("1");
  form->m_edMaxAmount->SetText("0");
  std::string read;
  WhenShown<TFrmComMsg> look([&](TFrmComMsg& message) {
    read = message.m_lblInfo->Caption() + " " + form->m_edMaxAmount->Text();
    message.Close();
  });
  form->m_actQuery->Execute();
  EXPECT_EQ(read, "UI44566 0.00");
  EXPECT_EQ(form->m_edMaxAmount->Text(), "");
}

TEST_F(NorvikQry, BearsTheCaptionsOfItsTable) {
  Open();
  ExpectCaptions(
      *form,
      "=UI25826 m_lbAcc=UI44003 m_lbBankNo=UI44001 m_lbBatNo=UI44004 m_lbSTT=UI44005 m_lbBillId=UI44006 "
      "m_lbNo=UI44008 m_lbType=UI44007 m_lbStorageStartDate=UI44010 m_lbStorageEndDate=UI44011 "
      "m_lbBackName=UI44304 m_lbDeadStartDate=UI44302 m_lbDeadEndDate=UI44303 m_lbMinAmount=UI44498 "
      "m_lbMaxAmount=UI44499 m_rgSelDate=UI40109 m_pnlNormal=UI40305 m_pnlAdvance=UI40306 "
      "m_tbHideColumn=UI40922 m_tbSendToDesktop=UI40923 m_tbExport=UI43006 m_spdQuery=UI12501 "
      "m_spdSum=UI12580 m_crbAllCheck=UI12506 m_btnClose=UI12517 m_btnTicketInfo=UI44316 "
      "m_btnECDSSignInfo=UI44317 m_btnECDSHistoryInfo=UI44318 m_btnBigResult=UI44319 m_lbBankRmk=" +
          Ansi("银行备注"));
  ExpectCaptions(*form, "m_lbStarlAgentAcc=* Label1=* Label2=* Label3=*");
  for (const char* star : {"m_lbStarlAgentAcc", "Label1", "Label2", "Label3"})
    EXPECT_EQ(static_cast<TLabel*>(form->FindComponent(star))->Font()->Color(), clRed) << star;
  std::string items;
  for (std::size_t i = 0; i < form->m_rgSelDate->Items().Count(); ++i) items += form->m_rgSelDate->Items()[i];
  EXPECT_EQ(items, "UI40110UI40111UI40112UI40113UI40114");
  EXPECT_EQ(form->m_rgSelDate->Columns(), 5);
}

TEST_F(NorvikQry, OffersNoneOfTheActionsOfOtherScreens) {
  Open();
  std::string hidden;
  for (int i = 0; i < form->m_alMain->ActionCount(); ++i) {
    if (!form->m_alMain->Actions(i)->Visible()) hidden += form->m_alMain->Actions(i)->Name() + " ";
  }
  EXPECT_EQ(hidden,
            "m_actPrintSet m_actPrint m_actDetail m_actSynState m_actReason m_actAudit m_actDelete "
            "m_actViewAuditFoot ");
}

TEST_F(NorvikQry, AsksAgainForTheAccountsThatItCouldNotRead) {
  host.libraries.SetAnswer(Library::kPublicInformation, 40, {"CMLGBSNACC"}, fakehost::Refusal("gone"));
  host.SetErrorText("gone", "no accounts");
  enum Moment { kNextShow, kShowAfterAFailedOne, kQuery };
  for (const Moment moment : {kNextShow, kShowAfterAFailedOne, kQuery}) {
    SCOPED_TRACE(moment);
    host.libraries.SetAnswer(Library::kPublicInformation, 40, {"CMLGBSNACC"}, fakehost::Refusal("gone"));
    if (moment == kShowAfterAFailedOne) host.Configure("APPLICATION.FONT", "Size", "large");
    EXPECT_EQ(FailureOf([&] { Open(); }), "no accounts");
    EXPECT_EQ(form->m_cbxAcc->Items().Count(), 0u);
    host.Configure("APPLICATION.FONT", "Size", "9");
    host.libraries.calls.clear();
    if (moment == kQuery) {
      EXPECT_EQ(FailureOf([&] { Query(); }), "no accounts");
      EXPECT_EQ(host.Requests("EBBADQDB").size(), 0u) << "a query for no account";
    }
    host.SetAccounts(2);
    if (moment != kQuery) form->Close();
    moment == kQuery ? Query() : form->Show();
    EXPECT_EQ(form->m_cbxAcc->GetKey(), "-9999");
    EXPECT_EQ(form->m_cbxBankNo->GetKey(), "-9999");
    EXPECT_NE(Request().find("<row><CUSTACC>A1|A2</CUSTACC></row>"), std::string::npos);
    EXPECT_EQ(host.Requests("EBBADQDB").size(), moment == kQuery ? 1u : 0u);
    DestroyForm(form);
  }
}

TEST_F(NorvikQry, LeavesNoRowActionOnOverAListThatAFailureEmptied) {
  host.libraries.SetAnswer(Library::kTranslate, 4, {"UI42", "UI42512"}, fakehost::Refusal("gone"));
  Open();
  const struct {
    const char* what;
    std::function<void()> fail;
  } cases[] = {{"a show",
                [&] {
                  host.libraries.SetAnswer(Library::kPublicInformation, 90, {"BUSINESSDICT", "BANKRMK"},
                                           fakehost::Refusal("gone"));
                  form->Close();
                  form->Show();
                }},
               {"a result", [&] { Query({}); }}};
  for (const auto& c : cases) {
    form->m_lbxAgentStt->SetSelected(0, true);
    Query();
    form->m_lvMain->Items()[0]->SetChecked(true);
    form->m_lvMainClick(form);
    EXPECT_EQ(Enabled(), "record sign history big output print box") << c.what;
    c.fail();
    EXPECT_EQ(form->m_lvMain->Items().Count(), 0) << c.what;
    EXPECT_EQ(Enabled(), "nothing") << c.what;
    host.SetTable("BUSINESSDICT", "BANKRMK", ScreenHost::ListOf({{"TYPEKEY", "TYPE"}, {"01", "UI46201"}}));
    form->Close();
    form->Show();
  }
  // Nor for another row than the one that is ticked, when a text for the ticks is refused.
  Query();
  form->m_lvMain->Items()[0]->SetChecked(true);
  form->m_lvMainItemCheck(form->m_lvMain, form->m_lvMain->Items()[0]);
  host.libraries.SetAnswer(Library::kTranslate, 4, fakehost::Refusal("gone"));
  form->m_lvMain->Items()[1]->SetChecked(true);
  EXPECT_THROW(form->m_lvMainItemCheck(form->m_lvMain, form->m_lvMain->Items()[1]), corvane::TIOException);
  EXPECT_EQ(Enabled(), "output print box");
}

TEST_F(NorvikQry, LeavesTheFocusOnTheButtonThatAsked) {
  Open();
  host.SetAnswerRows(ScreenHost::ListOf({{"BILLNUM", "BILLSID"}, {"B1", "1"}}));
  const auto press = [this](TbsSkinButton* button) {
    button->SetFocus();
    button->Click();
    return form->ActiveControl() == button;
  };
  EXPECT_TRUE(press(form->m_spdQuery));
  form->m_lvMain->CheckAll();
  form->m_lvMainClick(form);
  WhenShown<TEnquiryForm> close([](TEnquiryForm& dialog) { dialog.Close(); });
  EXPECT_TRUE(press(form->m_btnECDSHistoryInfo));
  EXPECT_TRUE(close.Came());
}

TEST_F(NorvikQry, FollowsTheRightMouseButtonButNotTheOthers) {
  Open();
  Query();
  form->m_lvMain->Items()[0]->SetChecked(true);
  form->m_lvMainMouseDown(form->m_lvMain, mbLeft, {}, 0, 0);
  EXPECT_EQ(Enabled(), "box");
  form->m_lvMainMouseDown(form->m_lvMain, mbRight, {}, 0, 0);
  EXPECT_EQ(Enabled(), "record sign history big output print box");
}

TEST_F(NorvikQry, PrintsTheTickedRowsByItsColumnTable) {
  Open();
  Query();
  form->m_lvMain->Items()[2]->SetChecked(true);
  form->m_actPrintExecute(form);
  const auto printed = host.libraries.CallsOf(Library::kPrint, 3);
  ASSERT_EQ(printed.size(), 1u);
  EXPECT_EQ(printed[0].arguments.at(0), "TfrmNorvikQry");
  EXPECT_EQ(corvane::Row(printed[0].arguments.at(1)).getValue("COLID"), "BILLNUM");
  EXPECT_EQ(corvane::List(printed[0].arguments.at(2))[0].getValue("BILLNUM"), "B3");
  form->m_actPrintSetExecute(form);
  EXPECT_EQ(host.libraries.CallsOf(Library::kPrint, 5).size(), 1u);
  host.libraries.SetAnswer(Library::kPublicInformation, 87, {"FIELDDEF", "TfrmNorvikQry", "0"},
                           fakehost::Refusal("gone"));
  host.SetErrorText("gone", "no table");
  EXPECT_EQ(FailureOf([&] { form->m_actPrintExecute(form); }), "no table");
  EXPECT_EQ(host.libraries.CallsOf(Library::kPrint, 3).size(), 1u);
}

TEST_F(NorvikQry, OpensWithoutAnyAccount) {
  host.SetAccounts(0);
  Open();
  EXPECT_EQ(form->m_cbxAcc->Items().Count(), 0u);
  // The box is not on all accounts, so the bank is asked for the institutions of what it is on: nothing.
  EXPECT_EQ(host.Requests("EBBADQAH").size(), 1u);
  EXPECT_EQ(form->m_cbxBankNo->GetKey(), "-9999");
  EXPECT_NE(Request().find("<row><CUSTACC/></row>"), std::string::npos);
}

}  // namespace
