#include "framework/business/query_common.h"

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <unordered_set>

#include "dialogs/message_keys.h"
#include "dialogs/messages.h"
#include "host/pub_info.h"
#include "host/translate.h"
#include "toolkit/combo_box.h"
#include "toolkit/conversion.h"

namespace {

// The texts of a dictionary's codes, each requested from the host when it is first needed.
class CodeTexts {
 public:
  explicit CodeTexts(const corvane::List& dictionary) {
    // If two rows have one code, the first counts.
    for (const corvane::Row& row : dictionary)
      entries_.try_emplace(row.getValue("TYPEKEY"), row.getValue("TYPE"));
  }

  // Null for a code that the dictionary lacks.
  const std::string* TextOf(const std::string& code) {
    const auto entry = entries_.find(code);
    if (entry == entries_.end()) return nullptr;
    if (!entry->second.text) entry->second.text = g_pTranslate->Translate(entry->second.key);
    return &*entry->second.text;
  }

 private:
  struct Entry {
    explicit Entry(std::string textKey) : key(std::move(textKey)) {}
    std::string key;
    std::optional<std::string> text;
  };
  std::unordered_map<std::string, Entry> entries_;
};

// Each account once, also one that several flows reach, after the first entry; an empty box without accounts.
void ShowAccounts(TKVXComboBox* combo, const corvane::List& accounts, const std::string& firstEntry) {
  const TStringsUpdate update(combo->Items());
  std::unordered_set<std::string> shown;
  combo->Clear();
  for (const corvane::Row& row : accounts) {
    const std::string number = row.getValue("ACCNO");
    const std::string name = row.getValue("ACCNM");
    if (!shown.insert(number).second) continue;
    combo->Keys().Add(number);
    combo->Names().Add(name);
    combo->Items().Add(number + combo->LinkSymbol() + name);
  }
  if (!shown.empty()) CQueryCommon::InsertNoChoiceEntry(combo, firstEntry);
}

}  // namespace

void CQueryCommon::LoadDictCombo(TKVXComboBox* combo, const std::string& dictName) {
  combo->Items().Clear();
  corvane::List dictionary = g_pPubInfo->GetIniplusList(kDictionaries, dictName);
  corvane::Row texts;
  for (const corvane::Row& row : dictionary) {
    texts[row.getValue("TYPEKEY")] = g_pTranslate->Translate(row.getValue("TYPE"));
  }
  combo->Init(texts);
  combo->SetItemIndex(0);
}

void CQueryCommon::DecodeDictColumn(corvane::List& rows, const std::string& column,
                                    const std::string& dictName) {
  try {
    CodeTexts texts(g_pPubInfo->GetIniplusList(kDictionaries, dictName));
    for (unsigned i = 0; i < rows.size(); ++i) {
      const std::string* text = texts.TextOf(rows[i].getValue(column));
      if (text != nullptr) SetColumn(rows[i], column, *text);
    }
  } catch (const corvane::TException& failure) {
    ReportException(failure);
  }
}

bool CQueryCommon::LoadAccountCombo(TKVXComboBox* combo, bool withPrompt) {
  try {
    corvane::List accounts = g_pPubInfo->GetList("CMLGBSNACC");
    corvane::StringVector flows;
    for (unsigned i = 0; i < m_flows.size(); ++i) flows.push_back(m_flows[i].getValue("FLOWID"));
    corvane::List reached = accounts.select("FLOWID", flows);
    const std::string firstEntry = g_pTranslate->Translate(withPrompt ? "UI54176" : "UI53241");
    ShowAccounts(combo, reached, firstEntry);
    combo->SetItemIndex(0);
    return true;
  } catch (const corvane::TException& failure) {
    ReportException(failure);
    return false;
  }
}

bool CQueryCommon::CheckRecordLimit(int count) {
  try {
    const int limit =
        StrToInt(g_pPubInfo->GetIniValue("SYSCONFIG_DATA", "APPLICATION.BUSINESS.SET", "LISTVIEW.MAXRECORD"));
    if (limit >= count) return true;
    ShowWarnMsg(g_pTranslate->Translate(norvik::message::kTooManyRecords), nullptr);
  } catch (const corvane::TException& failure) {
    ReportException(failure);
  }
  return false;
}

bool CQueryCommon::IsAlphanumeric(const std::string& text) {
  const auto alphanumeric = [](char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
  };
  return !text.empty() && std::all_of(text.begin(), text.end(), alphanumeric);
}

void CQueryCommon::InsertNoChoiceEntry(TKVXComboBox* combo, const std::string& text) {
  combo->Keys().Insert(0, kNoChoiceKey);
  combo->Names().Insert(0, kNoChoiceKey);
  combo->Items().Insert(0, text);
}

void CQueryCommon::SetColumn(corvane::Row& row, const std::string& column, const std::string& text) {
  row[column] = text;
  row = corvane::Row(row);
}
