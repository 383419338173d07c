// The three record views.
#include "repository/record_info_form.h"

#include <gtest/gtest.h>

#include <set>

#include "repository/app_qry_info.h"
#include "repository/detail_qry_info.h"
#include "repository/qry_info.h"
#include "tests/support/screen_host.h"
#include "toolkit/application.h"
#include "toolkit/buttons.h"
#include "toolkit/labels.h"
#include "toolkit/panels.h"
#include "toolkit/text.h"

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
  // B: of a bill, A: of an application, E: of an event. A bill's type and payer are told above.
  const struct {
    const char* row;
    const char* caption;
    const char* field;
    std::string_view kinds;
  } cases[] = {
      {"m_lbTicketNo", "UI44307", "BILLNUM", "BAE"},
      {"m_lbBillId", "票据ID", "BILLSID", "BAE"},
      {"m_lbOutData", "UI44342", "ISSDATE", "BAE"},
      {"m_lbDeadData", "UI44343", "DUEDATE", "BAE"},
      {"m_lbMoney", "UI44344", "PAYAMT", "BAE"},
      {"m_lbOuterNM", "UI44345", "DRWRNAM", "BAE"},
      {"m_lbOuterAcc", "UI44348", "DRWRACC", "BAE"},
      {"m_lbRecverNM", "UI44349", "PYEENAM", "BAE"},
      {"m_lbRecverBankName", "UI44351", "PYEEBNA", "BAE"},
      {"m_lbRecverAcc", "UI44352", "PYEEACC", "BAE"},
      {"m_lbPtEndNm", "UI44031", "PTENDNM", "BAE"},
      {"m_lbEndRmnt", "UI44033", "ENDRMNT", "BAE"},
      {"m_lbHasImpn", "UI44362", "HASIMPN", "BAE"},
      {"m_lbSaveNo", "存票批次号", "BATCHNO", "BAE"},
      {"m_lbSaveDate", "存票日期", "SAVEDAT", "BAE"},
      {"m_lbAutoCol", "UI44410", "AUTOCOL", "BAE"},
      {"m_lbRetmAcc", "UI44411", "RETMACC", "BAE"},
      {"m_lbTendFlg", "UI44032", "TENDFLG", "BAE"},
      {"m_lbType", "UI44308", "BILLTYP", "BAE"},
      {"m_lbPurpose", "客户备注", "APLYRMK", "BE"},
      {"m_lbBankPur", "银行备注", "CHEKRMK", "BE"},
      {"m_lbCustRem", "客户备注", "APLYRMK", "A"},
      {"m_lbBankRem", "银行备注", "CHEKRMK", "A"},
      {"m_lbCustAcc", "代保管账号", "CUSTACC", "BAE"},
      {"m_lbCustName", "代保管客户名称", "CUSTNAM", "BAE"},
      {"m_lbAgtName", "代保管机构名称", "AGTBNAM", "BAE"},
      {"m_lbAgtBank", "代保管机构联行号", "AGTBHNM", "BAE"},
      {"m_lbCustNo", "代保管客户号", "CUSTNUM", "BAE"},
      {"m_lbAgtStt", "代保管状态", "AGTSTAT", "B"},
      {"m_lbAppNo", "申请编号", "APPLYNO", "A"},
      {"m_lbAppStt", "申请状态", "APPREST", "A"},
      {"m_lbAppTyp", "申请类别", "APPTYPE", "A"},
      {"m_lbAppTyp", "业务类别", "APPTYPE", "E"},
      {"m_lbAppDate", "申请日期", "APPDATE", "A"},
      {"m_lbBsnFlwNo", "业务流水号", "BSNFLWNO", "E"},
      {"m_lbBsnDat", "业务发生日期", "BSNDAT", "E"},
      {"m_lbCustDat", "客户经办日期", "DLDAT", "AE"},
      {"m_lbCustOpr", "客户经办操作员", "DLOPR", "AE"},
      {"m_lbCustAudDat", "客户审核日期", "CKDAT", "AE"},
      {"m_lbCustAudOpr", "客户审核操作员", "CKOPR", "AE"},
      {"m_lbAccpBankNo", "业务受理机构联行号", "BSNPUNO", "AE"},
      {"m_lbAccpAgtNm", "业务受理机构名称", "BSNPUNM", "AE"},
      {"m_lbBankAudDat", "银行审批日期", "CHCKDAT", "AE"},
      {"m_lbBankAudOpr", "银行审批操作员", "BKCKOPR", "AE"},
      {"m_lbGetName", "取票人名称", "GETPNAM", "AE"},
      {"m_lbCertTyp", "取票人证件类型", "GETPTYP", "AE"},
      {"m_lbCertNo", "取票人证件号码", "GETPNUM", "AE"},
      {"m_lbTranFlg", "是否可转让", "KZRFLAG", "AE"},
      {"m_lbAppPur", "客户申请备注", "CUSTRMK", "A"},
      {"m_lbBankPur", "银行备注", "BANKRMK", "A"},
  };
  corvane::Property record;
  for (const auto& c : cases) record[c.field] = c.field;
  const auto expect = [&](char kind) {
    std::set<std::string> others;
    for (const auto& c : cases) others.insert(c.row);
    for (const auto& c : cases) {
      if (c.kinds.find(kind) == std::string_view::npos) continue;
      EXPECT_EQ(Row(c.row), Ansi(c.caption) + "=" + c.field) << kind;
      others.erase(c.row);
    }
    for (const std::string& row : others) EXPECT_EQ(Row(row), "missing") << kind << " " << row;
    EXPECT_EQ(view->FindComponent("m_spBusiInfo") != nullptr, kind != 'B');
    EXPECT_EQ(view->Caption() + view->m_btnClose->Caption(), "UI44399UI41187");
    DestroyForm(view);
  };
  Open<TfrmQryInfo>(record);
  expect('B');
  Open<TfrmAppQryInfo>(record);
  expect('A');
  Open<TfrmDetailQryInfo>(record);
  expect('E');
}

}  // namespace
