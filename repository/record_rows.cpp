#include "repository/record_rows.h"

namespace norvik {
namespace {

constexpr FirstTypeRow kHidden;
constexpr FirstTypeRow kBankNumber = {"UI44726", "ACPNM"};
constexpr FirstTypeRow kBankName = {"UI44725", "ACPNAM"};
constexpr FirstTypeRow kBankAddress = {"UI44729", "ACPADR"};

const std::vector<RecordRow> kBill = {
    {"m_lbType", "UI44308", "票据类型", "BILLTYP"},
    {"m_lbTicketNo", "UI44307", "票号", "BILLNUM"},
    {"m_lbBillId", "", "票据ID", "BILLSID"},
    {"m_lbOutData", "UI44342", "出票日期", "ISSDATE"},
    {"m_lbDeadData", "UI44343", "票据到期日", "DUEDATE"},
    {"m_lbMoney", "UI44344", "票面金额", "PAYAMT"},
    {"m_lbOuterNM", "UI44345", "出票人全称", "DRWRNAM"},
    {"m_lbOuterAcc", "UI44348", "出票人账号", "DRWRACC"},
    {"m_lbRecverNM", "UI44349", "收款人名称", "PYEENAM"},
    {"m_lbRecverBankName", "UI44351", "收款人开户行名称", "PYEEBNA"},
    {"m_lbRecverAcc", "UI44352", "收款人账号", "PYEEACC"},
    {"m_lbAccpName", "UI44724", "付款人全称", "ACCPRNAM", "", &kHidden},
    {"m_lbAccpAcc", "UI44019", "付款人账号", "ACCPRACC", "", &kHidden},
    {"m_lbBankNum", "UI44711", "付款人开户行行号", "ACCPBNM", "", &kBankNumber},
    {"m_lbBankNM", "UI44712", "付款人开户行名称", "ACCPNAM", "", &kBankName},
    {"m_lbAccpAddr", "UI44727", "付款人开户行地址", "ACPTADR", "", &kBankAddress},
    {"m_lbPtEndNm", "UI44031", "委托人前手背书人名称", "PTENDNM"},
    {"m_lbEndRmnt", "UI44033", "已背书手数", "ENDRMNT", "0"},
    {"m_lbHasImpn", "UI44362", "是否曾质押", "HASIMPN"},
    {"m_lbSaveNo", "", "存票批次号", "BATCHNO"},
    {"m_lbSaveDate", "", "存票日期", "SAVEDAT"},
    {"m_lbAutoCol", "UI44410", "是否委托银行收款", "AUTOCOL"},
    {"m_lbRetmAcc", "UI44411", "托收回款账号", "RETMACC"},
    {"m_lbTendFlg", "UI44032", "托管人是否已背书", "TENDFLG"},
};

const std::vector<RecordRow> kAgent = {
    {"m_lbCustAcc", "", "代保管账号", "CUSTACC"},     {"m_lbCustName", "", "代保管客户名称", "CUSTNAM"},
    {"m_lbAgtName", "", "代保管机构名称", "AGTBNAM"}, {"m_lbAgtBank", "", "代保管机构联行号", "AGTBHNM"},
    {"m_lbCustNo", "", "代保管客户号", "CUSTNUM"},
};

const std::vector<RecordRow> kHandling = {
    {"m_lbCustDat", "", "客户经办日期", "DLDAT"},
    {"m_lbCustOpr", "", "客户经办操作员", "DLOPR"},
    {"m_lbCustAudDat", "", "客户审核日期", "CKDAT"},
    {"m_lbCustAudOpr", "", "客户审核操作员", "CKOPR"},
    {"m_lbAccpBankNo", "", "业务受理机构联行号", "BSNPUNO"},
    {"m_lbAccpAgtNm", "", "业务受理机构名称", "BSNPUNM"},
    {"m_lbBankAudDat", "", "银行审批日期", "CHCKDAT"},
    {"m_lbBankAudOpr", "", "银行审批操作员", "BKCKOPR"},
    {"m_lbGetName", "", "取票人名称", "GETPNAM"},
    {"m_lbCertTyp", "", "取票人证件类型", "GETPTYP"},
    {"m_lbCertNo", "", "取票人证件号码", "GETPNUM"},
    {"m_lbTranFlg", "", "是否可转让", "KZRFLAG"},
};

const std::vector<RecordRow> kRemarks = {
    {"m_lbPurpose", "", "客户备注", "APLYRMK"},
    {"m_lbBankPur", "", "银行备注", "CHEKRMK"},
};

std::vector<RecordRow> Joined(std::vector<RecordRow> rows, const std::vector<RecordRow>& more,
                              const std::vector<RecordRow>& last = {}) {
  rows.insert(rows.end(), more.begin(), more.end());
  rows.insert(rows.end(), last.begin(), last.end());
  return rows;
}

RecordPanel BillPanel(const std::vector<RecordRow>& remarks) {
  return {"m_spBillInfo", "存票信息", Joined(kBill, remarks)};
}

RecordPanel AgentPanel(const std::vector<RecordRow>& more) {
  return {"m_spAgentInfo", "代保管信息", Joined(kAgent, more)};
}

RecordPanel BusinessPanel(const std::vector<RecordRow>& first, const std::vector<RecordRow>& last) {
  return {"m_spBusiInfo", "业务信息", Joined(first, kHandling, last)};
}

}  // namespace

std::vector<RecordPanel> BillRecord() {
  return {BillPanel(kRemarks), AgentPanel({{"m_lbAgtStt", "", "代保管状态", "AGTSTAT"}})};
}

std::vector<RecordPanel> ApplicationRecord() {
  return {BillPanel({{"m_lbCustRem", "", "客户备注", "APLYRMK"}, {"m_lbBankRem", "", "银行备注", "CHEKRMK"}}),
          BusinessPanel(
              {{"m_lbAppNo", "", "申请编号", "APPLYNO"},
               {"m_lbAppStt", "", "申请状态", "APPREST"},
               {"m_lbAppTyp", "", "申请类别", "APPTYPE"},
               {"m_lbAppDate", "", "申请日期", "APPDATE"}},
              {{"m_lbAppPur", "", "客户申请备注", "CUSTRMK"}, {"m_lbBankPur", "", "银行备注", "BANKRMK"}}),
          AgentPanel({})};
}

std::vector<RecordPanel> EventRecord() {
  return {BillPanel(kRemarks),
          BusinessPanel({{"m_lbAppTyp", "", "业务类别", "APPTYPE"},
                         {"m_lbBsnFlwNo", "", "业务流水号", "BSNFLWNO"},
                         {"m_lbBsnDat", "", "业务发生日期", "BSNDAT"}},
                        {}),
          AgentPanel({})};
}

}  // namespace norvik
