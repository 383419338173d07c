// The three enquiries of the repository screen.
#include "framework/kept_focus.h"
#include "repository/big_result_dtl.h"
#include "repository/ecd_sign_dtl.h"
#include "repository/ecds_history_dtl.h"
#include "repository/norvik_qry.h"
#include "toolkit/action.h"
#include "toolkit/list_view.h"

namespace {

constexpr const char* kBillId = "BILLSID";
constexpr const char* kAccount = "CUSTACC";
constexpr const char* kAnswerList = "resultList";
constexpr norvik::CodedColumn kRegistrationType = {"INFOTYP", "SIGNINFOTYPE"};

template <class Dialog>
TEnquiryForm* NewDialog(TComponent* owner) {
  return CreateForm<Dialog>(owner);
}

}  // namespace

// What the enquiries differ in.
struct TfrmNorvikQry::Enquiry {
  const char* transaction;
  const char* numberField;  // sent beside the bill's id and account
  bool byNumber;            // the number does where the bill has no id
  const char* missingKey;   // told for a bill without what the enquiry goes by
  const norvik::CodedColumn* coded;
  TEnquiryForm* (*newDialog)(TComponent* owner);
};

void TfrmNorvikQry::m_actECDSHistoryInfoExecute(TObject*) {
  Enquire({"EBBADEHQ", "QURYNUM", true, "UI44810", nullptr, &NewDialog<TfrmECDSHistoryDtl>});
}

void TfrmNorvikQry::m_actECDSSignInfoExecute(TObject*) {
  Enquire({"EBBADERQ", "QURYNUM", true, "UI44810", &kRegistrationType, &NewDialog<TfrmECDSignDtl>});
}

void TfrmNorvikQry::m_actBigResultExecute(TObject*) {
  Enquire({"EBBADHHQ", "BILLNUM", false, "UI44418", nullptr, &NewDialog<TfrmBigResultDtl>});
}

void TfrmNorvikQry::EnableRowActions(bool on) {
  for (TAction* action : {m_actECDSSignInfo, m_actECDSHistoryInfo, m_actBigResult}) action->SetEnabled(on);
}

void TfrmNorvikQry::Enquire(const Enquiry& enquiry) {
  corvane::Row fields;
  for (const char* field : {kBillId, kAccount, enquiry.numberField}) {
    fields[field] = m_selectedRow.getValue(field);
  }
  const bool identified = !fields.getValue(kBillId).empty();
  if (!identified && !(enquiry.byNumber && !fields.getValue(enquiry.numberField).empty())) {
    Refuse(enquiry.missingKey);
    return;
  }
  if (enquiry.byNumber) fields["QURYTYP"] = identified ? "1" : "2";
  const KeptFocus focus(this);
  try {
    ShowAnswer(enquiry, fields);
  } catch (...) {
    m_lvMainClick(this);
    throw;
  }
  m_lvMainClick(this);
}

void TfrmNorvikQry::ShowAnswer(const Enquiry& enquiry, const corvane::Row& fields) {
  const TFormPointer<TEnquiryForm> dialog(enquiry.newDialog(this));
  corvane::CorvaneStream request;
  corvane::CorvaneStream answer;
  request.addFields(fields);
  EnableRowActions(false);
  if (!m_pCommon->SendRequest(enquiry.transaction, request, answer, this)) return;
  dialog->SetRecord(answer.getFieldsRow());
  corvane::List& rows = answer.getList(kAnswerList);
  if (rows.size() > 0) {
    if (enquiry.coded != nullptr) {
      m_pCommon->DecodeDictColumn(rows, enquiry.coded->field, enquiry.coded->dictionary);
    }
    m_pCommon->FillListView(dialog->m_lvMain, rows);
  }
  dialog->ShowModal();
}
