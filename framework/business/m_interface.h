// CMInterface: what every screen asks of the bank and the host, whatever its business. A screen owns an
// object of a descendant and does all exchanges through it. Everything runs on the user-interface thread.
//
// The standard reporting, where an operation promises it: the failure's keys become one text, the text is
// shown, and the operation ends with the state that it had reached.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "data/corvane.h"

class TControl;
class TForm;
class TKVXListView;

/// The operations that all business objects share.
class CMInterface {
 public:
  virtual ~CMInterface() = default;

  /// Hooks of the family; nothing calls them.
  virtual bool ReservedCheck1() = 0;
  virtual bool ReservedCheck2() = 0;
  virtual bool ReservedCheck3() = 0;

  /// Shows in one warning how many records of a batch succeeded and how many failed, with their amounts.
  virtual void ShowResultTotals(const corvane::CorvaneStream& answer);

  /// Sends `request` under the transaction code `code`, with the busy form over `owner` meanwhile. True:
  /// `answer` holds the bank's answer. False: `answer` is empty; a TException has been reported, a failure of
  /// any other class has not. The call blocks as long as the host does, and sets the encoding of `request` to
  /// "GBK". LifeEnded if the host ends the life meanwhile.
  bool SendRequest(const std::string& code, corvane::CorvaneStream& request, corvane::CorvaneStream& answer,
                   TForm* owner);

  /// The user's number; empty when the host fails, which is reported, or knows no user.
  std::string GetOperatorNo();

  /// The bank's day as "yyyymmdd"; the local clock is never asked.
  std::string GetServerDate();

  /// Converts an amount as typed into the form with two decimals; true if it had that form already. A null
  /// text counts as empty. A text that is no number raises the toolkit's EConvertError.
  bool NormalizeAmount(const char* text, std::string& out);

  /// Reads the flows of a business from the host's tables into m_flows and its two parts. A failure is
  /// reported in the standard way and returns false; what was added remains.
  bool LoadBusinessFlows(const char* bsnCode);

  /// Builds the columns of a list view from the column table and the user's saved layout of `className`, and
  /// stores the working table. A class without a column table leaves the list without columns. A failure is
  /// reported in the standard way; the columns built so far remain, and the list's ColumnsWhole becomes
  /// false, as it does if a column that the layout names has no caption.
  void InitListColumns(TKVXListView* listView, const std::string& className);

  /// Adds one column for a row of the column table, which becomes internal (COLFMT "X") if its width is 0.
  /// `columnRow` receives the column's COLID, `caption` its text; a data column leaves `caption` empty.
  void AddListColumn(TKVXListView* listView, corvane::Row& fieldDef, corvane::Row& columnRow,
                     std::string& caption);

  /// The position, counted from 1, of the first column with that caption, as GetTotalMoney expects it; -1
  /// without one.
  int FindColumnByCaption(TKVXListView* listView, const std::string& caption);

  /// Prints `rows` by the report of `className`; `text` is the text of the conditions. Standard reporting.
  void PrintRecords(const std::string& className, const std::string& text, corvane::Row& head,
                    corvane::List& rows);

  /// Opens the host's print settings for the report of `className`. Standard reporting.
  void PrintSetup(const std::string& className);

  /// Writes `rows` to a file: type 1 a workbook, 3 a text with "|"; any other type writes nothing and reports
  /// nothing. A file name with the extension ".txt", in any case, is always a text. Standard reporting.
  void ExportRecords(const std::string& fileName, corvane::Row& head, corvane::List& columns,
                     corvane::List& rows, std::uint8_t fileType);

  /// Marks the items that the answer's list names as refused: reason and colour. A row whose ID is no item is
  /// skipped. No item is selected afterwards.
  void ApplyResultList(const corvane::CorvaneStream& answer, const std::string& listName,
                       TKVXListView* listView);

  /// Removes the ticked items that the last ApplyResultList did not name: they were carried out.
  void RemoveCompletedItems(TKVXListView* listView);

  /// Sets the hint of a combo box or a label to its own text; leaves any other control, and null, alone.
  void SetControlHint(TControl* control);

 protected:
  corvane::List m_flowsPrimary;  ///< flows whose operation has PSTCLASS "01"
  corvane::List m_flowsOther;
  corvane::List m_flows;  ///< all flows of the business; each row has the one column FLOWID
  std::map<std::int32_t, std::string> m_resultFlags;  ///< item index to FLAG, of the last ApplyResultList
  std::string m_bsnCode;

 private:
  bool Exchange(const std::string& code, corvane::CorvaneStream& request, corvane::CorvaneStream& answer,
                TForm* owner);
};
