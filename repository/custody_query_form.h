// What the three query screens of the bill repository share: accounts and their custody institutions, the
// request, the answer, the row actions and print. A screen adds its table of conditions, its profile and a
// few rules of its own.
//
// When the operator returns to all accounts, m_cbxBankNo has only its all-entry: the institutions of the
// previous account say nothing about all of them.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "framework/business/query_common.h"
#include "framework/frames/query_form.h"
#include "repository/condition.h"
#include "repository/condition_checks.h"

class TbsSkinRadioGroup;
class TRecordInfoForm;

namespace norvik {

/// A column of the answer that holds codes, and the dictionary of their texts.
struct CodedColumn {
  const char* field;
  const char* dictionary;
};

/// The coded columns of a bill, which every answer has, between those that a screen decodes before and after
/// them.
std::vector<CodedColumn> CodedColumns(std::vector<CodedColumn> before,
                                      const std::vector<CodedColumn>& after = {});

/// What a screen is, beside its conditions.
struct CustodyProfile {
  const char* businessCode;
  const char* exportType;
  const char* captionKey;
  std::vector<CodedColumn> codedColumns;  ///< in the order of decoding
  ConditionCell dateChoiceCell;           ///< place of m_rgSelDate in the advanced panel
  int dateChoiceFields;                   ///< and how many fields wide it is
  int queryRow;                           ///< row of the query button in m_pnlNormal
  bool advanceOpen;                       ///< m_pnlAdvance is open after a show
  bool namesInstitutions;                 ///< BSNPUNM is the name of the bank number BSNPUNO
  bool outputAlwaysOn;                    ///< m_actOutput is on after every click, also without a tick
};

}  // namespace norvik

/// The base of the three screens.
class TCustodyQueryForm : public TQueryForm {
  Q_OBJECT

 public:
  explicit TCustodyQueryForm(TComponent* owner);
  ~TCustodyQueryForm() override;

  void BuildControls() override;
  void SetCaptions() override;
  void AfterTranslate() override;
  void Construct() override;
  void ResetForm() override;
  void m_lvMainClick(TObject* sender) override;
  void FormClose(TObject* sender) override;
  void FormDestroy() override;
  void m_lvMainMouseDown(TObject* sender, TMouseButton button, TShiftState shift, int x, int y) override;

  /// One query: checks, request, exchange, list.
  void m_actQueryExecute(TObject* sender) override;
  void m_actPrintExecute(TObject* sender) override;
  void m_actPrintSetExecute(TObject* sender) override;
  /// Shows the record of the ticked row; nothing is requested from the bank.
  virtual void m_actTicketInfoExecute(TObject* sender);
  /// Another account: requests its custody institutions from the bank. All accounts: only the all-entry
  /// remains.
  virtual void m_cbxAccChange(TObject* sender);
  /// The quick choice writes its range into the dates that it applies to.
  virtual void m_rgSelDateClick(TObject* sender);

  /// True if a query may be sent; otherwise the first fault has been reported and the list is unchanged.
  virtual bool CheckConditions() = 0;
  /// Adds the account list and all fields of the request to an empty stream.
  void BuildQueryRequest(corvane::CorvaneStream& stream);
  /// Decodes the answer's rows and shows them in the list; an answer without rows empties the list and warns.
  void ShowQueryResult(corvane::CorvaneStream& answer);

  TKVXComboBox* m_cbxAcc = nullptr;
  TKVXComboBox* m_cbxBankNo = nullptr;
  TKVXEdit* m_edNo = nullptr;
  TKVXComboBox* m_cbxType = nullptr;
  TKVXComboBox* m_cbxBankRmk = nullptr;
  TbsSkinRadioGroup* m_rgSelDate = nullptr;
  TbsSkinButton* m_btnTicketInfo = nullptr;
  TAction* m_actTicketInfo = nullptr;
  TAction* m_actECDSSignInfo = nullptr;
  TAction* m_actECDSHistoryInfo = nullptr;
  TAction* m_actBigResult = nullptr;

 protected:
  virtual const norvik::CustodyProfile& Profile() const = 0;
  virtual std::vector<norvik::Condition> Conditions() = 0;
  /// Fills the boxes from the host's dictionaries; runs at each show. A failure propagates.
  virtual void LoadDictionaries() = 0;
  /// The dates that the quick choice applies to.
  virtual std::pair<TKVXDateTime*, TKVXDateTime*> QuickDates() = 0;
  /// The dialog of a row's record.
  virtual TRecordInfoForm* NewRecordView() = 0;
  /// Runs at each show, after entry 0 of m_cbxAcc has been selected.
  virtual void StartAccount() { m_cbxAccChange(this); }

  /// Lines of the table that all screens have.
  norvik::Condition AccountCondition(norvik::ConditionCell cell, const char* starName);
  norvik::Condition InstitutionCondition(norvik::ConditionCell cell, const char* starName);
  norvik::Condition BillNumberCondition(norvik::ConditionCell cell, bool trimmed);
  norvik::Condition BillTypeCondition(norvik::ConditionCell cell, const char* starName);
  norvik::Condition BankRemarkCondition(norvik::ConditionCell cell);

  /// Reports a fault of the conditions; always false.
  bool Refuse(const std::string& messageKey);
  /// Checks a pair of dates and reports its first fault, which may empty both; true if they pass.
  bool CheckDates(const norvik::DateRangeRule& rule, TKVXDateTime* start, TKVXDateTime* end);

  /// The screen's business object. The frame's own, m_pIntf, is of a base class without accounts and
  /// dictionaries: the frame's actions use that one, everything of the screen uses this one.
  std::unique_ptr<CQueryCommon> m_pCommon;
  corvane::Property m_selectedRow;  ///< the ticked row if it is exactly one; remains when it is unticked

 private:
  void TranslateDateChoices();
  /// Fills m_cbxAcc; false if that failed, which has been reported.
  bool LoadAccounts();
  bool FindAccounts();
  void FollowTicks();
  void ShowOfferedActions();
  void AddAccounts(corvane::CorvaneStream& stream);
  void ShowInstitutions(const corvane::List& institutions);

  norvik::ConditionTable conditions_;
  bool accountsKnown_ = false;  // the last LoadAccounts did not fail
};
