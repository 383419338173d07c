// CQueryCommon: the business object of a query screen: combo boxes from the host's dictionaries, the decoding
// of stored codes, the user's accounts, and small checks. Each screen owns one, besides the one of its frame.
#pragma once

#include <string>

#include "data/corvane.h"
#include "framework/business/m_query_intf.h"

class TKVXComboBox;

/// The key of the combo box entry that means no choice.
inline constexpr const char* kNoChoiceKey = "-9999";

/// The host's document of the dictionaries: rows of TYPEKEY, a code, and TYPE, the key of its text.
inline constexpr const char* kDictionaries = "BUSINESSDICT";

/// The operations of a query screen.
class CQueryCommon : public CMQueryIntf {
 public:
  /// True if `count` records are within the limit that the host configures (the limit itself included);
  /// otherwise warns. A failed read is reported in the standard way and returns false. The query screens show
  /// any answer whole.
  virtual bool CheckRecordLimit(int count);

  /// Fills a combo box with a dictionary's codes and texts, in key order, and selects entry 0. A failed read
  /// propagates to the caller; the box is empty then.
  void LoadDictCombo(TKVXComboBox* combo, const std::string& dictName);

  /// Replaces the codes in a column by the texts of a dictionary; a code that the dictionary lacks remains
  /// visible. Standard reporting, with the rows decoded so far.
  void DecodeDictColumn(corvane::List& rows, const std::string& column, const std::string& dictName);

  /// Fills the box with the accounts that the flows of the business reach (LoadBusinessFlows comes first),
  /// each once, after a first entry of the key kNoChoiceKey, whose text is that of "UI54176" (`withPrompt`)
  /// or of "UI53241". Without accounts the box is empty. A failure is reported in the standard way and
  /// returns false; the box is then unchanged.
  bool LoadAccountCombo(TKVXComboBox* combo, bool withPrompt);

  /// Sets a column of a row and packs the row again: values opened for writing need several times the memory,
  /// which counts in an answer of many rows. References into the row become invalid.
  static void SetColumn(corvane::Row& row, const std::string& column, const std::string& text);

  /// Inserts an entry of the key kNoChoiceKey before the others; which entry is chosen is up to the caller.
  static void InsertNoChoiceEntry(TKVXComboBox* combo, const std::string& text);

  /// The date operations of framework/rules/date_range.h under the names that the screens know.
  std::string NextDayDate(const std::string& date) { return norvik::NextDayDate(date); }
  std::string NextMonthDate(const std::string& date) { return norvik::NextMonthDate(date); }
  int DaysBetweenDates(const std::string& a, const std::string& b) { return norvik::DaysBetweenDates(a, b); }

  /// True when every byte is a digit or a Latin letter; false for an empty text.
  bool IsAlphanumeric(const std::string& text);
};
