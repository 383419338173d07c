// The three record views.
#include "repository/record_info_form.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

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
    SCOPED_TRACE(c.type);
    Open<TfrmQryInfo>(RecordOf(c.type));
    EXPECT_EQ(Label("m_lbTypeVal")->Caption(), c.type);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(Row(names[i]), c.rows[i]);
    auto* panel = dynamic_cast<TbsSkinExPanel*>(view->FindComponent("m_spBillInfo"));
    for (const bool rolledUp : {true, false}) {
      panel->SetRollState(rolledUp);
      panel->OnChangeRollState(panel);
    }
    EXPECT_EQ(Row(names[0]), c.rows[0]);
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
  EXPECT_EQ(view->ActiveControl(), view->m_btnClose) << "a focus further down would scroll the record";
  DestroyForm(view);
  record["ENDRMNT"] = "12";
  Open<TfrmAppQryInfo>(record);
  EXPECT_EQ(Row("m_lbEndRmnt"), "UI44033=12");
}

TEST_F(RecordInfoForm, HasTheRowsOfItsKind) {
  // B: of a bill, A: of an application, E: of an event; the rows as name=caption=field. A bill's type and
  // payer are tested above.
  const struct {
    std::string_view kinds;
    const char* rows;
  } cases[] = {
      {"BAE",
       "m_lbTicketNo=UI44307=BILLNUM m_lbBillId=票据ID=BILLSID m_lbOutData=UI44342=ISSDATE "
       "m_lbDeadData=UI44343=DUEDATE m_lbMoney=UI44344=PAYAMT m_lbOuterNM=UI44345=DRWRNAM "
       "m_lbOuterAcc=UI44348=DRWRACC m_lbRecverNM=UI44349=PYEENAM m_lbRecverBankName=UI44351=PYEEBNA "
       "m_lbRecverAcc=UI44352=PYEEACC m_lbPtEndNm=UI44031=PTENDNM m_lbEndRmnt=UI44033=ENDRMNT "
       "m_lbHasImpn=UI44362=HASIMPN m_lbSaveNo=存票批次号=BATCHNO m_lbSaveDate=存票日期=SAVEDAT "
       "m_lbAutoCol=UI44410=AUTOCOL m_lbRetmAcc=UI44411=RETMACC m_lbTendFlg=UI44032=TENDFLG "
       "m_lbType=UI44308=BILLTYP m_lbCustAcc=代保管账号=CUSTACC m_lbCustName=代保管客户名称=CUSTNAM "
       "m_lbAgtName=代保管机构名称=AGTBNAM m_lbAgtBank=代保管机构联行号=AGTBHNM "
       "m_lbCustNo=代保管客户号=CUSTNUM"},
      {"BE", "m_lbPurpose=客户备注=APLYRMK m_lbBankPur=银行备注=CHEKRMK"},
      {"A",
       "m_lbCustRem=客户备注=APLYRMK m_lbBankRem=银行备注=CHEKRMK m_lbAppNo=申请编号=APPLYNO "
       "m_lbAppStt=申请状态=APPREST m_lbAppTyp=申请类别=APPTYPE m_lbAppDate=申请日期=APPDATE "
       "m_lbAppPur=客户申请备注=CUSTRMK m_lbBankPur=银行备注=BANKRMK"},
      {"B", "m_lbAgtStt=代保管状态=AGTSTAT"},
      {"E", "m_lbAppTyp=业务类别=APPTYPE m_lbBsnFlwNo=业务流水号=BSNFLWNO m_lbBsnDat=业务发生日期=BSNDAT"},
      {"AE",
       "m_lbCustDat=客户经办日期=DLDAT m_lbCustOpr=客户经办操作员=DLOPR m_lbCustAudDat=客户审核日期=CKDAT "
       "m_lbCustAudOpr=客户审核操作员=CKOPR m_lbAccpBankNo=业务受理机构联行号=BSNPUNO "
       "m_lbAccpAgtNm=业务受理机构名称=BSNPUNM m_lbBankAudDat=银行审批日期=CHCKDAT "
       "m_lbBankAudOpr=银行审批操作员=BKCKOPR m_lbGetName=取票人名称=GETPNAM "
       "m_lbCertTyp=取票人证件类型=GETPTYP m_lbCertNo=取票人证件号码=GETPNUM m_lbTranFlg=是否可转让=KZRFLAG"},
  };
  struct Line {
    std::string name, captionAndField;
    std::string_view kinds;
  };
  std::vector<Line> lines;
  corvane::Property record;
  for (const auto& [kinds, rows] : cases) {
    std::istringstream words(rows);
    for (std::string word; words >> word;) {
      const std::size_t sign = word.find('=');
      lines.push_back({word.substr(0, sign), word.substr(sign + 1), kinds});
      const std::string field = word.substr(word.rfind('=') + 1);
      record[field] = field;
    }
  }
  const auto expect = [&](char kind) {
    std::set<std::string> others;
    for (const Line& line : lines) others.insert(line.name);
    for (const Line& line : lines) {
      if (line.kinds.find(kind) == std::string_view::npos) continue;
      EXPECT_EQ(Row(line.name), Ansi(line.captionAndField.c_str())) << kind;
      others.erase(line.name);
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
