// The enquiries of the repository screen and the dialogs of their answers.
#include "repository/enquiry_form.h"

#include <gtest/gtest.h>

#include "repository/norvik_qry.h"
#include "tests/support/screen_host.h"
#include "toolkit/action.h"
#include "toolkit/application.h"
#include "toolkit/buttons.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/labels.h"

using fakehost::Library;

namespace {

constexpr const char* kDialogs[] = {"TfrmECDSHistoryDtl", "TfrmECDSignDtl", "TfrmBigResultDtl"};

// A line of the repository list; the answer to every enquiry has two records.
struct Enquiries : testing::Test {
  void SetUp() override {
    host.SetColumns("TfrmNorvikQry", {{"BILLNUM", "UI44008", "100", "L", "C"}});
    for (const char* dialog : kDialogs) {
      host.SetColumns(dialog,
                      {{"QURYDAT", "UI44008", "90", "C", "C"}, {"INFOTYP", "UI44005", "90", "L", "C"}});
    }
    host.SetTable("BUSINESSDICT", "SIGNINFOTYPE",
                  ScreenHost::ListOf({{"TYPEKEY", "TYPE"}, {"01", "UI46201"}}));
  }
  // Shows the screen with one bill, ticked.
  void Tick(const char* billId, const char* enquiryNumber) {
    form = CreateForm<TfrmNorvikQry>(Application);
    form->Show();
    host.SetAnswerRows(ScreenHost::ListOf(
        {{"BILLNUM", "BILLSID", "CUSTACC", "QURYNUM"}, {"B1", billId, "A1", enquiryNumber}}));
    form->m_actQuery->Execute();
    form->m_lvMain->Items()[0]->SetChecked(true);
    form->m_lvMainClick(form);
  }
  void Answer(const corvane::Row& fields, const ScreenHost::Table& rows) {
    corvane::CorvaneStream answer;
    answer.addFields(fields);
    corvane::List list = ScreenHost::ListOf(rows);
    list.setAttribute("name", "resultList");
    answer.addList(list);
    host.libraries.SetAnswer(Library::kSafeCom, 5, fakehost::Text(answer.toString()));
  }
  TAction* Action(int enquiry) const {
    TAction* const actions[] = {form->m_actECDSHistoryInfo, form->m_actECDSSignInfo, form->m_actBigResult};
    return actions[enquiry];
  }
  // What is enabled of the row actions.
  std::string Enabled() const {
    return WhatIsOn({{"record", form->m_actTicketInfo->Enabled()},
                     {"history", form->m_actECDSHistoryInfo->Enabled()},
                     {"sign", form->m_actECDSSignInfo->Enabled()},
                     {"big", form->m_actBigResult->Enabled()}});
  }
  // Executes an enquiry and looks at its dialog; false when none came.
  bool Look(int enquiry, const std::function<void(TEnquiryForm&)>& look) {
    WhenShown<TEnquiryForm> shown([&](TEnquiryForm& dialog) {
      look(dialog);
      dialog.m_actClose->Execute();
    });
    Action(enquiry)->Execute();
    return shown.Came();
  }
  // The request without its fixed beginning.
  std::string Request(const char* transaction) const {
    const auto requests = host.Requests(transaction);
    if (requests.size() != 1) return std::to_string(requests.size()) + " requests";
    const std::string& text = requests[0];
    return text.substr(text.find("<stream>"));
  }

  ScreenHost host;
  TfrmNorvikQry* form = nullptr;
};

// "caption=value" of each row of a head.
std::string HeadOf(const TEnquiryForm& dialog) {
  std::string text;
  for (const char* name :
       {"m_lbTotalNum", "m_lbTicketNo", "m_lbType", "m_lbLHNo", "m_lbOutData", "m_lbDeadData", "m_lbMoney"}) {
    const auto* caption = dynamic_cast<TLabel*>(dialog.FindComponent(name));
    const auto* value = dynamic_cast<TLabel*>(dialog.FindComponent(std::string(name) + "Val"));
    if (caption != nullptr && value != nullptr) text += caption->Caption() + "=" + value->Caption() + " ";
  }
  return text;
}

TEST_F(Enquiries, AskByTheNumbersOfTheBill) {
  const struct {
    const char* billId;
    const char* enquiryNumber;
    const char* message[3];  // empty: the enquiry goes
    const char* numbers;     // of the two ECDS enquiries
  } cases[] = {
      {"S1", "Q1", {"", "", ""}, "<BILLSID>S1</BILLSID><CUSTACC>A1</CUSTACC><QURYNUM>Q1</QURYNUM><QURYTYP>1"},
      {"S1", "", {"", "", ""}, "<BILLSID>S1</BILLSID><CUSTACC>A1</CUSTACC><QURYNUM/><QURYTYP>1"},
      {"", "Q1", {"", "", "UI44418"}, "<BILLSID/><CUSTACC>A1</CUSTACC><QURYNUM>Q1</QURYNUM><QURYTYP>2"},
      {"", "", {"UI44810", "UI44810", "UI44418"}, ""},
  };
  const char* transactions[] = {"EBBADEHQ", "EBBADERQ", "EBBADHHQ"};
  for (const auto& c : cases) {
    Tick(c.billId, c.enquiryNumber);
    host.libraries.calls.clear();
    Answer({}, {{"QURYDAT"}});
    for (int i = 0; i < 3; ++i) {
      SCOPED_TRACE(std::string(transactions[i]) + c.numbers);
      if (*c.message[i] != '\0') {
        EXPECT_EQ(MessageOf([&] { Action(i)->Execute(); }), c.message[i]);
        EXPECT_EQ(Request(transactions[i]), "0 requests");
        continue;
      }
      EXPECT_TRUE(Look(i, [](TEnquiryForm&) {}));
      const std::string fields = i == 2 ? "<BILLNUM>B1</BILLNUM><BILLSID>S1</BILLSID><CUSTACC>A1</CUSTACC>"
                                        : std::string(c.numbers) + "</QURYTYP>";
      EXPECT_EQ(Request(transactions[i]), "<stream>" + fields + "</stream>");
    }
    EXPECT_EQ(Enabled(), "record history sign big");
    DestroyForm(form);
  }
}

TEST_F(Enquiries, ShowTheirHeads) {
  constexpr const char* kRest = "UI44310=20260101 UI44311=20260701 UI44312=10.00 ";
  const struct {
    int enquiry;
    const char* type;
    std::string head;
  } cases[] = {
      {0, "AC01", std::string("UI44308=UI40116 UI44726=313 ") + kRest},
      {0, "AC02", std::string("UI44308=UI40117 UI44018=313 ") + kRest},
      {0, "AC03", std::string("UI44308= UI44339=313 ") + kRest},
      {1, "AC01", std::string("UI44308=UI40116 UI44726=313 ") + kRest},
      {1, "", std::string("UI44308= UI44339=313 ") + kRest},
      {2, "AC01", ""},
  };
  const char* captions[] = {"UI44318", "UI44382", "UI44383"};
  Tick("S1", "Q1");
  corvane::Row fields;
  for (const auto& [field, value] : {std::pair{"TOTALNM", "7"},
                                     {"BILLNUM", "B1"},
                                     {"ACCPBNM", "313"},
                                     {"ISSDATE", "20260101"},
                                     {"DUEDATE", "20260701"},
                                     {"PMMONEY", "10.00"}}) {
    fields[field] = value;
  }
  for (const auto& c : cases) {
    SCOPED_TRACE(kDialogs[c.enquiry] + std::string(" ") + c.type);
    fields["BILLTYP"] = c.type;
    Answer(fields, {{"QURYDAT", "INFOTYP"}, {"20260301", "01"}, {"20260302", "99"}});
    EXPECT_TRUE(Look(c.enquiry, [&](TEnquiryForm& dialog) {
      EXPECT_EQ(dialog.ClassName(), kDialogs[c.enquiry]);
      EXPECT_EQ(dialog.Caption(), captions[c.enquiry]);
      EXPECT_EQ(HeadOf(dialog), "UI44305=7 UI44307=B1 " + c.head) << c.enquiry << c.type;
      EXPECT_EQ(dialog.m_lvMain->Items().Count(), 2);
      EXPECT_EQ(dialog.m_lvMain->Items()[0]->SubItems(0), c.enquiry == 1 ? "UI46201" : "01");
    }));
  }
  Answer({}, {{"QURYDAT"}});
  EXPECT_TRUE(Look(0, [](TEnquiryForm& dialog) {
    EXPECT_EQ(HeadOf(dialog), "UI44305= UI44307= UI44308= UI44339= UI44310= UI44311= UI44312= ");
    EXPECT_EQ(dialog.m_lvMain->Items().Count(), 0);
  }));
}

TEST_F(Enquiries, OfferSumColumnsAndOutputAlone) {
  Tick("S1", "Q1");
  Answer({}, {{"QURYDAT"}, {"20260301"}});
  for (int i = 0; i < 3; ++i) {
    SCOPED_TRACE(kDialogs[i]);
    host.libraries.calls.clear();
    EXPECT_TRUE(Look(i, [&](TEnquiryForm& dialog) {
      EXPECT_EQ(Enabled(), "record");
      for (const TControl* control : std::initializer_list<TControl*>{
               dialog.m_btnAudit, dialog.bsSkinSpeedButton1, dialog.m_tbPrint, dialog.m_tbPrintSetup}) {
        EXPECT_FALSE(control->Visible()) << control->Name();
      }
      for (const TControl* control : std::initializer_list<TControl*>{
               dialog.m_spdSum, dialog.m_tbExport, dialog.m_tbHideColumn, dialog.m_btnClose}) {
        EXPECT_TRUE(control->Visible()) << control->Name();
      }
      EXPECT_FALSE(dialog.m_actOutPut->Enabled());
      dialog.m_lvMain->Items()[0]->SetChecked(true);
      dialog.m_lvMain->OnItemCheck(dialog.m_lvMain, dialog.m_lvMain->Items()[0]);
      EXPECT_TRUE(dialog.m_actOutPut->Enabled());
      dialog.OutputRecords("/x/a.xls");
    }));
    const auto written = host.libraries.CallsOf(Library::kExcel, 2);
    ASSERT_EQ(written.size(), 1u);
    EXPECT_EQ(corvane::Row(written[0].arguments.at(1)).getValue("TYPEVAL"), "ECDSHISDTL");
    const auto stored = host.Stored(80, "COLUMN_INFO");
    ASSERT_EQ(stored.size(), 1u);
    EXPECT_EQ(corvane::Iniplus(stored[0].arguments.at(1)).getSection(kDialogs[i]).size(), 2u);
  }
}

TEST_F(Enquiries, BringTheActionsBackAfterAFailure) {
  host.SetErrorText("ET90001", "refused");
  Tick("S1", "Q1");
  host.RefuseExchange("ET90001");
  for (int i = 0; i < 3; ++i) {
    SCOPED_TRACE(kDialogs[i]);
    EXPECT_EQ(FailureOf([&] { Action(i)->Execute(); }), "refused");
    EXPECT_EQ(ShownForm(TEnquiryForm::staticMetaObject), nullptr);
    EXPECT_EQ(Enabled(), "record history sign big");
  }
  Answer({}, {{"QURYDAT"}});
  host.libraries.SetAnswer(Library::kPublicInformation, 82, {"COLUMN_INFO"}, fakehost::Refusal("gone"));
  EXPECT_TRUE(Look(0, [this](TEnquiryForm& dialog) {
    EXPECT_EQ(host.failures.size(), 1u);
    dialog.m_actHideColumn->Execute();
    EXPECT_EQ(host.failures.size(), 2u);
  }));
  EXPECT_EQ(Enabled(), "record history sign big");
}

}  // namespace
