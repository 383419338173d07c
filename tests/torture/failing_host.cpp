#include "tests/torture/failing_host.h"

#include <QDir>
#include <algorithm>
#include <limits>
#include <utility>

using fakehost::Answer;
using fakehost::Library;
using fakehost::Text;

namespace {

constexpr auto kPub = Library::kPublicInformation;
constexpr const char* kForms[] = {"TfrmNorvikQry",      "TfrmNorvikELoanQry", "TfrmNorvikDTLQry",
                                  "TfrmECDSHistoryDtl", "TfrmECDSignDtl",     "TfrmBigResultDtl"};

// Kinds of functions: they give a handle, only succeed or fail, give a text, give XML.
constexpr unsigned kHandle = 1, kOrder = 2, kText = 4, kXml = 8;

unsigned KindOf(const fakehost::Call& call) {
  const std::uint32_t ordinal = call.ordinal;
  switch (call.library) {
    case kPub:
      if (ordinal == 123) return kHandle;
      if (ordinal == 23) return kOrder;
      if (ordinal == 68) return kText;
      return ordinal == 24 || ordinal == 40 || ordinal == 82 || ordinal == 87 || ordinal == 90 ? kXml : 0;
    case Library::kTranslate:
      return ordinal == 4 ? kText : ordinal == 6 ? kXml : 0;
    case Library::kError:
      return ordinal == 1 ? kOrder : kText;
    case Library::kSafeCom:
      return kXml;
    default:
      return kOrder;
  }
}

std::string Joined(const std::vector<std::string>& texts) {
  std::string all;
  for (const std::string& text : texts) all += " " + text;
  return all;
}

std::string Bills(int exchange, bool some) {
  const std::string bill = "B" + std::to_string(exchange);
  std::vector<std::vector<std::string>> rows = {
      {"BILLNUM", "PAYAMT", "AGTSTAT", "BILLSID", "QURYNUM", "CUSTACC", "BILLTYP", "INFOTYP", "AGTBHNM"}};
  if (some) rows.resize(4, {bill, "1.50", "02", "S1", "Q1", "A1", "02", "02", "N1"});
  corvane::List list(ListText(rows));
  list.setAttribute("name", "resultList");
  corvane::CorvaneStream answer;
  answer.addField(corvane::Field("BILLNUM", bill));
  answer.addList(list);
  return answer.toString();
}

}  // namespace

const std::vector<Fault> kFaults = {
    {"handle 0", kHandle, [](Answer& answer) { answer.result = 0; }},
    {"refused", kOrder | kText | kXml, [](Answer& answer) { answer = fakehost::Refusal("X1"); }},
    {"refused without a text", kOrder | kText | kXml, [](Answer& answer) { answer = fakehost::Refusal(""); }},
    {"refused with a text without an end", kOrder | kText | kXml,
     [](Answer& answer) { answer = fakehost::Refusal(std::string(256, 'E')); }},
    {"null", kText | kXml, [](Answer& answer) { answer = {.text = "x", .noBuffer = true}; }},
    {"null of length 0", kText | kXml, [](Answer& answer) { answer = {.text = {}, .noBuffer = true}; }},
    {"a negative length", kText | kXml, [](Answer& answer) { answer.length = -1; }},
    {"an absurd length", kText | kXml,
     [](Answer& answer) { answer.length = std::numeric_limits<std::int32_t>::max(); }},
    {"half a text", kXml, [](Answer& answer) { answer.text.resize(answer.text.size() / 2); }},
    {"no XML", kXml, [](Answer& answer) { answer.text = "no <XML"; }}};

FailingHost::FailingHost() {
  OfferBills();
  serverTime = 1775000000000;  // 2026-03-31 or, far in the east, the day after
  SetAnswer(kPub, 40, {"CMLGUSERINFO"}, Text(ListText({{"OPRNO", "OPRNM"}, {"007", "Operator"}})));
  SetAnswer(
      kPub, 40, {"CMLGBSN"},
      Text(ListText({{"BSNCODE", "FLOWID"}, {"CB200310", "F1"}, {"CB200320", "F1"}, {"CB200330", "F1"}})));
  const std::string columns = ListText({{"COLID", "DISPLAY", "WIDTH", "ALIGN", "COLFMT"},
                                        {"BILLNUM", "UI44008", "100", "L", "C"},
                                        {"PAYAMT", "UI44344", "80", "R", "M"},
                                        {"AGTSTAT", "UI44005", "60", "L", "C"},
                                        {"QURYNUM", "UI99999", "5", "L", "X"}});
  for (const char* form : kForms) SetAnswer(kPub, 90, {"FIELDDEF", form}, Text(columns));
  for (const char* name : {"AGENTSTT", "BILLTYPE", "BANKRMK", "LOANTYPEAPP", "LOANRESULT", "BUSITYPE",
                           "YESORNO", "TRANSMK", "SIGNINFOTYPE"}) {
    SetAnswer(kPub, 90, {"BUSINESSDICT", name},
              Text(ListText({{"TYPEKEY", "TYPE"}, {"-9999", "UI40115"}, {"02", "UI46102"}})));
  }
  SetAnswer(kPub, 24, {"ENVIRONMENT", "ENV.IMAGES"},
            Text(corvane::Field("ENV.IMAGES", QDir::tempPath().toStdString() + "/").toString()));
  onAnswer = [this](const fakehost::Call& call, Answer& answer) { Change(call, answer); };
}

void FailingHost::SpeakTraditionalChinese(bool on) {
  SetAnswer(kPub, 68, {"SYSCONFIG_DATA", "APPLICATION.LANG", "Language"},
            Text(on ? "Traditional Chinese" : "English"));
}

void FailingHost::ResetLayouts() {
  corvane::List layout(ListText({{"ColumnID", "ColumnWidth", "ColumnCaption", "ColumnOrder"},
                                 {"PAYAMT", "91", "T44344", "0"},
                                 {"BILLNUM", "92", "T44008", "1"},
                                 {"AGTSTAT", "0", "T44005", "2"}}));
  for (const char* form : kForms) layouts_.setSection(form, layout);
}

std::map<std::string, std::string> FailingHost::Layouts() {
  std::map<std::string, std::string> texts;
  for (const char* form : kForms) texts[form] = layouts_.getSection(form).toString();
  return texts;
}

void FailingHost::Begin(std::size_t failingCall, Extent extent, const Fault* fault) {
  failingCall_ = failingCall;
  extent_ = extent;
  fault_ = fault;
  exchanges_ = 0;
  bank = 'a';
  failable.clear();
  whole.clear();
  calls.clear();
  sent.clear();
  failed.clear();
}

void FailingHost::Change(const fakehost::Call& call, Answer& answer) {
  Serve(call, answer);
  const unsigned kind = KindOf(call);
  if (kind == 0) return;
  failable.push_back(kind);
  const std::size_t index = failable.size() - 1;
  const bool after =
      extent_ == Extent::kOnward || (extent_ == Extent::kReported && call.library != Library::kError);
  if (!fault_ || index < failingCall_ || (index > failingCall_ && !after)) return;
  if (failed.empty()) failed = std::to_string(call.ordinal) + Joined(call.arguments).substr(0, 60);
  // What can't fail in this way fails in the first that it can.
  const auto fault = std::find_if(kFaults.begin(), kFaults.end(), [&](const Fault& other) {
    return (&other == fault_ || (fault_->functions & kind) == 0) && (other.functions & kind) != 0;
  });
  fault->apply(answer);
  const bool converted = call.library == Library::kTranslate && call.ordinal == 6;
  if (call.library == Library::kSafeCom || (converted && call.arguments[1] == "1")) whole.erase(exchanges_);
}

void FailingHost::Serve(const fakehost::Call& call, Answer& answer) {
  const std::vector<std::string>& told = call.arguments;
  const bool layout = call.library == kPub && !told.empty() && told[0] == "COLUMN_INFO";
  if (layout && call.ordinal == 80) layouts_ = corvane::Iniplus(told[1]);
  if (layout && call.ordinal == 82) answer.text = layouts_.toString();
  if (layout && call.ordinal == 90) answer.text = layouts_.getSection(told[1]).toString();
  // Only a key has a text, so that nothing is translated twice.
  if (call.library == Library::kTranslate && call.ordinal == 4) {
    answer.text = told[1].starts_with("UI") ? "T" + told[1].substr(2) : "";
  }
  const bool exchange = call.library == Library::kSafeCom;
  if (exchange || call.library == Library::kExcel || (call.library == kPub && call.ordinal == 23)) {
    sent += Joined(told) + "\n";
  }
  if (!exchange) return;
  const char now = std::exchange(bank, 'a');
  ++exchanges_;
  answer = now == 'r' ? fakehost::Refusal("BK1") : Text(Bills(exchanges_, now == 'a'));
  if (now == 'a') whole.insert(exchanges_);
}
