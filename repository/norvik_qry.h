// TfrmNorvikQry, menu item "ITEM6066": which bills are held in custody, where, in which status, by deposit
// date, due date and amount. The menu opens it. The advanced conditions are ignored, in check and request
// alike, while their panel is rolled up.
#pragma once

#include "repository/custody_query_form.h"

class TEnquiryForm;

/// The screen of the bills in custody.
class TfrmNorvikQry : public TCustodyQueryForm {
  Q_OBJECT

 public:
  using TCustodyQueryForm::TCustodyQueryForm;

  void BuildControls() override;
  bool CheckConditions() override;
  /// Reports the first fault of a range of amounts; the edits receive the amounts in their normal form.
  bool CheckAmountRange(TKVXEdit* minEdit, TKVXEdit* maxEdit);
  /// Fills m_lbxAgentStt from the host's dictionary, with the default set selected. A failed read propagates.
  void InitAgentStatusList();

  /// A typed deposit date ends the quick choice's effect on the dates; the other dates leave the quick choice
  /// alone.
  virtual void m_dtStorageStartDateChange(TObject* sender);
  virtual void m_dtStorageEndDateChange(TObject*) {}
  virtual void m_dtDeadStartDateChange(TObject*) {}
  virtual void m_dtDeadEndDateChange(TObject*) {}

  /// The enquiries on the ticked bill: each sends a request to the bank and shows the answer in a dialog of
  /// its own. A bill without the number that the enquiry needs is reported, and nothing is sent.
  virtual void m_actECDSHistoryInfoExecute(TObject* sender);
  virtual void m_actECDSSignInfoExecute(TObject* sender);
  virtual void m_actBigResultExecute(TObject* sender);
  /// Enables or disables the three actions of the enquiries; m_actTicketInfo is unchanged.
  void EnableRowActions(bool on);

  TKVXEdit* m_edBatNo = nullptr;
  TKVXListBox* m_lbxAgentStt = nullptr;
  TKVXEdit* m_edBillId = nullptr;
  TKVXDateTime* m_dtStorageStartDate = nullptr;
  TKVXDateTime* m_dtStorageEndDate = nullptr;
  TKVXEdit* m_edBackName = nullptr;
  TKVXDateTime* m_dtDeadStartDate = nullptr;
  TKVXDateTime* m_dtDeadEndDate = nullptr;
  TKVXEdit* m_edMinAmount = nullptr;
  TKVXEdit* m_edMaxAmount = nullptr;
  TbsSkinButton* m_btnECDSSignInfo = nullptr;
  TbsSkinButton* m_btnECDSHistoryInfo = nullptr;
  TbsSkinButton* m_btnBigResult = nullptr;

 protected:
  const norvik::CustodyProfile& Profile() const override;
  std::vector<norvik::Condition> Conditions() override;
  void LoadDictionaries() override;
  std::pair<TKVXDateTime*, TKVXDateTime*> QuickDates() override {
    return {m_dtDeadStartDate, m_dtDeadEndDate};
  }
  TRecordInfoForm* NewRecordView() override;

 private:
  struct Enquiry;

  void Enquire(const Enquiry& enquiry);
  void ShowAnswer(const Enquiry& enquiry, const corvane::Row& fields);
};
