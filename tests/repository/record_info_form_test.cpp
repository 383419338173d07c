// The three record views.
#include "repository/record_info_form.h"

#include <gtest/gtest.h>

#include "repository/app_qry_info.h"
#include "repository/detail_qry_info.h"
#include "repository/qry_info.h"
#include "tests/support/screen_host.h"
#include "toolkit/application.h"
#include "toolkit/labels.h"
#include "toolkit/panels.h"

namespace {

struct RecordInfoForm : testing::Test {
  template <class View>
  void Open(const corvane::Property& record) {
    view = CreateForm<View>(Application);
    view->SetRecord(record);
    view->Show();
  }
  TLabel* Label(const std::string& name) const { return dynamic_cast<TLabel*>(view->FindComponent(name)); }
  // The caption and the value of a row; "hidden" where it is.
  std::string Row(const std::string& name) const {
    const TLabel* caption = Label(name);
    const TLabel* value = Label(name + "Val");
    if (caption == nullptr || value == nullptr) return "missing";
    if (caption->Visible() != value->Visible()) return "torn";
    return caption->Visible() ? caption->Caption() + "=" + value->Caption() : "hidden" + value->Caption();
  }
  static corvane::Property RecordOf(const std::string& type) {
    corvane::Row row;
    for (const char* field :
         {"ACCPRNAM", "ACCPRACC", "ACCPBNM", "ACCPNAM", "ACPTADR", "ACPNM", "ACPNAM", "ACPADR"}) {
      row[field] = field;
    }
    row["BILLTYP"] = type;
    return corvane::Property(row);
  }

  ScreenHost host;
  TRecordInfoForm* view = nullptr;
};

TEST_F(RecordInfoForm, FollowsTheTypeOfTheBill) {
  const struct {
    const char* type;
    const char* rows[5];  // name, account, bank number, bank name, bank address
  } cases[] = {
      {"UI40116", {"hidden", "hidden", "UI44726=ACPNM", "UI44725=ACPNAM", "UI44729=ACPADR"}},
      {"UI40117",
       {"UI44724=ACCPRNAM", "UI44019=ACCPRACC", "UI44711=ACCPBNM", "UI44712=ACCPNAM", "UI44727=ACPTADR"}},
      {"", {"UI44724=ACCPRNAM", "UI44019=ACCPRACC", "UI44711=ACCPBNM", "UI44712=ACCPNAM", "UI44727=ACPTADR"}},
  };
  const char* names[] = {"m_lbAccpName", "m_lbAccpAcc", "m_lbBankNum", "m_lbBankNM", "m_lbAccpAddr"};
  for (const auto& c : cases) {
    Open<TfrmQryInfo>(RecordOf(c.type));
    EXPECT_EQ(Label("m_lbTypeVal")->Caption(), c.type);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(Row(names[i]), c.rows[i]) << c.type;
    auto* panel = dynamic_cast<TbsSkinExPanel*>(view->FindComponent("m_spBillInfo"));
    for (const bool rolledUp : {true, false}) {
      panel->SetRollState(rolledUp);
      panel->OnChangeRollState(panel);
    }
    EXPECT_EQ(Row(names[0]), c.rows[0]) << c.type;
    DestroyForm(view);
  }
}

TEST_F(RecordInfoForm, ShowsValuesAsTheyStand) {
  corvane::Property record;
  record["PAYAMT"] = "1234567.5";
  Open<TfrmQryInfo>(record);
  EXPECT_EQ(Row("m_lbMoney"), "UI44344=1234567.5");
  EXPECT_EQ(Row("m_lbEndRmnt"), "UI44033=0");
  EXPECT_EQ(Row("m_lbTicketNo"), "UI44307=");
  DestroyForm(view);
  record["ENDRMNT"] = "12";
  Open<TfrmAppQryInfo>(record);
  EXPECT_EQ(Row("m_lbEndRmnt"), "UI44033=12");
}

TEST_F(RecordInfoForm, HasTheRowsOfItsKind) {
  const struct {
    const char* row;
    bool ofBill;
    bool ofApplication;
    bool ofEvent;
  } cases[] = {
      {"m_lbAgtStt", true, false, false},  {"m_lbPurpose", true, false, true},
      {"m_lbCustRem", false, true, false}, {"m_lbBankRem", false, true, false},
      {"m_lbAppNo", false, true, false},   {"m_lbBsnFlwNo", false, false, true},
      {"m_lbTranFlg", false, true, true},  {"m_lbBankPur", true, true, true},
      {"m_lbCustNo", true, true, true},
  };
  const auto expect = [&](auto which) {
    for (const auto& c : cases)
      EXPECT_EQ(Row(c.row) != "missing", c.*which) << view->ClassName() << " " << c.row;
    DestroyForm(view);
  };
  using Case = std::remove_cvref_t<decltype(cases[0])>;
  Open<TfrmQryInfo>({});
  expect(&Case::ofBill);
  Open<TfrmAppQryInfo>({});
  expect(&Case::ofApplication);
  Open<TfrmDetailQryInfo>({});
  expect(&Case::ofEvent);
}

}  // namespace
