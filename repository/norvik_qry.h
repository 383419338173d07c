// TfrmNorvikQry, menu item "ITEM6066": which bills are held in custody, where, in which status, by deposit
// date, due date and amount. The advanced conditions are off, in check and request alike, while their panel
// is rolled up.
#pragma once

#include "repository/custody_query_form.h"

class TfrmNorvikQry : public TCustodyQueryForm {
  Q_OBJECT

 public:
  using TCustodyQueryForm::TCustodyQueryForm;

  void BuildControls() override;
  bool CheckConditions() override;
  // Tells the first fault of a range of amounts; the edits get the amounts in their normal form.
  bool CheckAmountRange(TKVXEdit* minEdit, TKVXEdit* maxEdit);
  // Fills m_lbxAgentStt from the host's dictionary, with the default set selected. A failed read goes up.
  void InitAgentStatusList();

  // A typed deposit date ends the quick choice's hold on the dates; the other dates leave the quick choice
  // alone.
  virtual void m_dtStorageStartDateChange(TObject* sender);
  virtual void m_dtStorageEndDateChange(TObject*) {}
  virtual void m_dtDeadStartDateChange(TObject*) {}
  virtual void m_dtDeadEndDateChange(TObject*) {}

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
};
