// CMQueryIntf: the business object of a list of records: state and approval codes as texts, the records under
// audit, and the date range of a condition panel. Each query frame owns one; the screens' own business
// object, CQueryCommon, builds on it.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "framework/business/m_interface.h"
#include "framework/rules/date_range.h"

class TKVXDateTime;
class TbsSkinRadioGroup;

/// The operations of a list of records.
class CMQueryIntf : public CMInterface {
 public:
  bool ReservedCheck1() override { return true; }
  bool ReservedCheck2() override { return true; }
  bool ReservedCheck3() override { return true; }

  /// Builds an audit request from the ticked records: the list "userDataList", and the fields of the
  /// approver's verdict under the business code `code`. False, which leaves the request unfinished, if
  /// nothing is ticked, if a booking lies in the past and the user declines, if the audit dialog is
  /// cancelled, or if the opinion is too long. Nothing ticked and a long opinion are reported to the user.
  virtual bool BuildAuditRequest(TKVXListView* listView, const std::string& code,
                                 corvane::CorvaneStream& request, std::int32_t subType);

  /// The same. With `subType` 0 the dialog sets `agree` and `remark`; otherwise no dialog opens and their
  /// values are used.
  virtual bool BuildAgreedAuditRequest(TKVXListView* listView, const std::string& code,
                                       corvane::CorvaneStream& request, bool& agree, std::string& remark,
                                       std::int32_t subType);

  /// Builds the audit request of the batch that the first ticked record belongs to; fields alone. False as
  /// above; TException "ET10104" where nothing is ticked.
  virtual bool BuildBatchAuditRequest(TKVXListView* listView, const std::string& code,
                                      corvane::CorvaneStream& request);

  virtual bool ReservedCheck4() { return true; }

  /// Sets the records under audit, for ConfirmBookedRecords.
  void SetAuditRows(const corvane::List& rows) { m_auditRows = rows; }

  /// Asks the user whether to continue if a booking among the audit rows lies before the bank's present hour;
  /// true if the audit may continue. The audit rows are empty afterwards.
  bool ConfirmBookedRecords();

  /// Replaces the rows of the list view, which owns them from then on.
  void FillListView(TKVXListView* listView, corvane::List& rows);

  /// Replaces the state codes in STT of each row by their texts; code 7 has the text of `key7`. A number that
  /// is no state is left. A code that is no number raises the toolkit's EConvertError, with the rows done so
  /// far.
  void FormatStatus(corvane::List& rows, const std::string& key7);

  /// Replaces the approval codes in AGREE of each row by their texts; any other value is left.
  void FormatAgree(corvane::List& rows);

  // The date edits below hold "yyyymmdd"; the radio group has the items of norvik::QuickDate. Today is the
  // bank's day.

  /// Writes the range of the chosen item into the edits; QuickDate::kOther leaves them alone.
  void ApplyDateRadio(TKVXDateTime* startEdit, TKVXDateTime* endEdit, TbsSkinRadioGroup* radio);

  /// Sets the group to QuickDate::kOther unless the edits hold the range of the item that it shows.
  void SyncDateRadio(TKVXDateTime* startEdit, TKVXDateTime* endEdit, TbsSkinRadioGroup* radio);

  /// Sets a start date later than today to today, then syncs the group; an empty start date does nothing.
  void LimitStartDate(TKVXDateTime* startEdit, TKVXDateTime* endEdit, TbsSkinRadioGroup* radio);

  /// The same for the end date.
  void LimitEndDate(TKVXDateTime* startEdit, TKVXDateTime* endEdit, TbsSkinRadioGroup* radio);

 protected:
  corvane::List m_auditRows;                         ///< records under audit, empty at other times
  std::map<std::string, std::string> m_statusTexts;  ///< state text to code, as FormatStatus met them

 private:
  /// The rows of a single audit into the request, once the user has confirmed past bookings.
  bool TakeAuditRecords(TKVXListView* listView, corvane::CorvaneStream& request);

  void LimitDate(TKVXDateTime* limited, TKVXDateTime* startEdit, TKVXDateTime* endEdit,
                 TbsSkinRadioGroup* radio);
};
