// CMQueryIntf: the business object of a list of records: state and approval codes as texts, the records under
// audit, and the date range of a condition panel.
#pragma once

#include <map>
#include <string>

#include "framework/date_range.h"
#include "framework/m_interface.h"

class TKVXDateTime;
class TbsSkinRadioGroup;

class CMQueryIntf : public CMInterface {
 public:
  bool ReservedCheck1() override { return true; }
  bool ReservedCheck2() override { return true; }
  bool ReservedCheck3() override { return true; }

  // Empties the list view and gives it the rows; the list view owns them from then on.
  void FillListView(TKVXListView* listView, corvane::List& rows);

  // Puts the texts of the state codes into STT of each row; code 7 has the text of `key7`. A number that is
  // no state stays. A code that is no number raises the toolkit's EConvertError, with the rows done so far.
  void FormatStatus(corvane::List& rows, const std::string& key7);

  // Puts the texts of the approval codes into AGREE of each row; any other value stays.
  void FormatAgree(corvane::List& rows);

  // The date edits below hold "yyyymmdd"; the radio group has the items of norvik::QuickDate. Today is the
  // bank's.

  // Writes the range of the chosen item into the edits; item other leaves them alone.
  void ApplyDateRadio(TKVXDateTime* startEdit, TKVXDateTime* endEdit, TbsSkinRadioGroup* radio);

  // Sets the group to other unless the edits hold the range of the item that it shows.
  void SyncDateRadio(TKVXDateTime* startEdit, TKVXDateTime* endEdit, TbsSkinRadioGroup* radio);

  // Sets a start date later than today to today, then syncs the group; an empty start date does nothing.
  void LimitStartDate(TKVXDateTime* startEdit, TKVXDateTime* endEdit, TbsSkinRadioGroup* radio);

  // The same for the end date.
  void LimitEndDate(TKVXDateTime* startEdit, TKVXDateTime* endEdit, TbsSkinRadioGroup* radio);

 protected:
  corvane::List m_auditRows;                         // records under audit, empty at other times
  std::map<std::string, std::string> m_statusTexts;  // state text to code, as FormatStatus met them

 private:
  void LimitDate(TKVXDateTime* limited, TKVXDateTime* startEdit, TKVXDateTime* endEdit,
                 TbsSkinRadioGroup* radio);
};
