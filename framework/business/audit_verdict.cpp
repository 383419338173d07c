#include "framework/business/audit_verdict.h"

#include <cstdint>

#include "dialogs/audit.h"
#include "dialogs/message_keys.h"
#include "dialogs/messages.h"
#include "framework/business/batch_rows.h"
#include "host/translate.h"
#include "toolkit/conversion.h"

namespace {

void Warn(const char* key) {
  ShowWarnMsg(g_pTranslate->Translate(key), nullptr);
}

// 0 for a text that is no number.
std::int64_t NumberOf(const std::string& digits) {
  return ParseInteger(digits).value_or(0);
}

// The digits of "yyyy-mm-dd"; empty for a shorter text.
std::string DigitsOfDate(const std::string& date) {
  return date.size() < 10 ? std::string() : date.substr(0, 4) + date.substr(5, 2) + date.substr(8, 2);
}

}  // namespace

namespace norvik {

corvane::List AuditRows(TKVXListView* listView) {
  return TickedRows(listView, "ID", [](const corvane::Row& record, corvane::Row& row) {
    for (const char* field : {"ORDERNO", "FLOWID", "TRNAMT"}) row[field] = record.getValue(field);
    return true;
  });
}

void WarnOfNothingTicked() {
  Warn(message::kNothingTicked);
}

bool AskVerdict(bool& agree, std::string& opinion) {
  if (!ShowAuditDlg(agree, opinion, nullptr)) return false;
  if (opinion.size() <= kMaxOpinionBytes) return true;
  Warn(message::kOpinionTooLong);
  return false;
}

void SetVerdict(corvane::Row& fields, bool agree, const std::string& opinion, const std::string& code) {
  fields["AGREEFLAG"] = agree ? "0" : "1";
  fields["AGREEREM"] = opinion;
  fields["BPBSNCODE"] = code;
}

corvane::Row SingleAudit(bool agree, const std::string& opinion, const std::string& code) {
  corvane::Row fields;
  fields["FLAG"] = "0";
  SetVerdict(fields, agree, opinion, code);
  return fields;
}

bool IsPastBooking(const corvane::Row& record, const std::string& bookedText, const std::string& present) {
  if (!record.hasField("PREFLG") || record.getValue("PREFLG") != bookedText) return false;
  const std::string hour = record.getValue("PRETIME").substr(0, 2);
  return NumberOf(DigitsOfDate(record.getValue("PREDATE")) + hour) < NumberOf(present);
}

}  // namespace norvik
