#include "tests/support/screen_host.h"

#include <gtest/gtest.h>

#include <ctime>

#include "dialogs/bank_info.h"
#include "dialogs/com_msg.h"
#include "dialogs/error_msg.h"
#include "host/excel.h"
#include "host/print.h"
#include "host/pub_info.h"
#include "host/safe_com.h"
#include "toolkit/application.h"

using fakehost::Library;

namespace {

constexpr int kMillisecondsInSecond = 1000;

std::int64_t NoonOf(int year, int month, int day) {
  std::tm local{};
  local.tm_year = year - 1900;
  local.tm_mon = month - 1;
  local.tm_mday = day;
  local.tm_hour = 12;
  local.tm_isdst = -1;
  return static_cast<std::int64_t>(std::mktime(&local)) * kMillisecondsInSecond;
}

template <class T>
void End(T*& service) {
  delete service;
  service = nullptr;
}

}  // namespace

ScreenHost::ScreenHost() {
  libraries.serverTime = NoonOf(2026, 11, 22);
  libraries.SetAnswer(Library::kPublicInformation, 90, fakehost::Text(corvane::List().toString()));
  libraries.SetAnswer(Library::kPublicInformation, 82, fakehost::Text(corvane::Iniplus().toString()));
  libraries.SetAnswer(Library::kPublicInformation, 40, fakehost::Text(corvane::List().toString()));
  SetList("CMLGUSERINFO", ListOf({{"OPRNO", "OPRNM"}, {"007", "Operator"}}));
  SetList("CMLGBSN",
          ListOf({{"BSNCODE", "FLOWID"}, {"CB200310", "F1"}, {"CB200320", "F1"}, {"CB200330", "F1"}}));
  SetList("CMLGBSNOPR", ListOf({{"FLOWID", "PSTCLASS"}, {"F1", "01"}}));
  SetAccounts(2);
  SetTable(
      "BUSINESSDICT", "AGENTSTT",
      ListOf(
          {{"TYPEKEY", "TYPE"}, {"01", "UI46101"}, {"02", "UI46102"}, {"03", "UI46103"}, {"12", "UI46112"}}));
  const corvane::List all = ListOf({{"TYPEKEY", "TYPE"}, {"-9999", "UI40115"}, {"01", "UI46201"}});
  for (const char* name : {"BANKRMK", "LOANTYPEAPP", "LOANRESULT", "BUSITYPE"})
    SetTable("BUSINESSDICT", name, all);
  SetTable("BUSINESSDICT", "BILLTYPE",
           ListOf({{"TYPEKEY", "TYPE"}, {"-9999", "UI40115"}, {"AC01", "UI40116"}, {"AC02", "UI40117"}}));
  SetTable("BUSINESSDICT", "YESORNO", ListOf({{"TYPEKEY", "TYPE"}, {"0", "UI12017"}, {"1", "UI12016"}}));
  for (const char* key :
       {"UI40115", "UI40116", "UI40117", "UI46101", "UI46102", "UI46103", "UI46112", "UI46201",
        "UI12016", "UI12017", "UI54176", "UI53241", "UI44564", "UI44565", "UI44566", "UI44567",
        "UI44008", "UI44344", "UI44005", "UI60005", "UI60006", "UI50258", "UI50260", "UI53329"}) {
    SetText(key, key);
  }
  g_pPrint = new PrintIntf(g_pPubInfo->GetHandle("HANDLE_PRINT"));
  g_pSafeCom = new SafeComIntf(g_pPubInfo->GetHandle("HANDLE_SAFECOM"));
  g_pBankInfo = new TBankInfo;
  g_pExcel = new ExcelIntf(g_pPubInfo->GetHandle("HANDLE_EXCEL"));
  SetAnswerRows({});
}

ScreenHost::~ScreenHost() {
  DestroyApplication();
  End(g_pPrint);
  End(g_pSafeCom);
  End(g_pBankInfo);
  End(g_pExcel);
}

corvane::List ScreenHost::ListOf(const Table& lines) {
  corvane::List list;
  for (std::size_t i = 1; i < lines.size(); ++i) {
    corvane::Row row;
    for (std::size_t c = 0; c < lines[0].size(); ++c)
      row[lines[0][c]] = c < lines[i].size() ? lines[i][c] : "";
    list.addRow(row);
  }
  return list;
}

void ScreenHost::SetAccounts(int count) {
  Table lines = {{"FLOWID", "ACCNO", "ACCNM"}};
  for (int i = 1; i <= count; ++i) {
    lines.push_back({"F1", "A" + std::to_string(i), "Name " + std::to_string(i)});
  }
  SetList("CMLGBSNACC", ListOf(lines));
}

void ScreenHost::SetList(const std::string& key, const corvane::List& rows) {
  libraries.SetAnswer(Library::kPublicInformation, 40, {key}, fakehost::Text(rows.toString()));
}

void ScreenHost::SetColumns(const std::string& className, const Table& columns) {
  Table lines = {{"COLID", "DISPLAY", "WIDTH", "ALIGN", "COLFMT"}};
  lines.insert(lines.end(), columns.begin(), columns.end());
  const corvane::List rows = ListOf(lines);
  SetTable("FIELDDEF", className, rows);
  if (rows.size() == 0) return;
  libraries.SetAnswer(Library::kPublicInformation, 87, {"FIELDDEF", className, "0"},
                      fakehost::Text(rows.getRow(0).toString()));
}

void ScreenHost::SetLayout(const std::string& className, const Table& columns) {
  Table lines = {{"ColumnID", "ColumnWidth", "ColumnCaption"}};
  lines.insert(lines.end(), columns.begin(), columns.end());
  const corvane::List rows = ListOf(lines);
  corvane::Iniplus layouts;
  layouts.addSection(className, rows);
  layouts.addSection("TOther", ListOf({{"ColumnID"}, {"KEPT"}}));
  SetTable("COLUMN_INFO", className, rows);
  libraries.SetAnswer(Library::kPublicInformation, 82, {"COLUMN_INFO"}, fakehost::Text(layouts.toString()));
}

void ScreenHost::SetAnswerRows(const corvane::List& rows) {
  corvane::CorvaneStream answer;
  corvane::List list = rows;
  list.setAttribute("name", "resultList");
  answer.addList(list);
  libraries.SetAnswer(Library::kSafeCom, 5, fakehost::Text(answer.toString()));
}

void ScreenHost::RefuseExchange(const std::string& key) {
  libraries.SetAnswer(Library::kSafeCom, 5, fakehost::Refusal(key));
}

std::vector<std::string> ScreenHost::Requests(const std::string& code) const {
  std::vector<std::string> requests;
  for (const fakehost::Call& call : libraries.CallsOf(Library::kSafeCom, 5)) {
    if (call.arguments.at(0) == code) requests.push_back(call.arguments.at(1));
  }
  return requests;
}

std::vector<fakehost::Call> ScreenHost::Stored(std::uint32_t ordinal, const std::string& key) const {
  std::vector<fakehost::Call> calls = libraries.CallsOf(Library::kPublicInformation, ordinal);
  std::erase_if(calls, [&key](const fakehost::Call& call) { return call.arguments.at(0) != key; });
  return calls;
}

void ExpectCaptions(const TForm& form, const std::string& captions) {
  std::istringstream parts(captions);
  for (std::string part; parts >> part;) {
    const std::string name = part.substr(0, part.find('='));
    const auto* control = name.empty() ? static_cast<const TControl*>(&form)
                                       : qobject_cast<const TControl*>(form.FindComponent(name));
    ASSERT_NE(control, nullptr) << form.ClassName() << " " << name;
    EXPECT_EQ(name + "=" + control->Caption(), part) << form.ClassName();
  }
}

std::string WhatIsOn(std::initializer_list<std::pair<const char*, bool>> switches) {
  std::string names;
  for (const auto& [name, on] : switches) {
    if (on) names += (names.empty() ? "" : " ") + std::string(name);
  }
  return names.empty() ? "nothing" : names;
}

std::string MessageOf(const std::function<void()>& action, bool yes) {
  std::string text;
  WhenShown<TFrmComMsg> answer([&](TFrmComMsg& message) {
    text = message.m_lblInfo->Caption();
    (yes ? message.m_btnOk : message.m_btnNo)->Click();
  });
  action();
  return text;
}

std::string FailureOf(const std::function<void()>& action) {
  std::string text = "nothing";
  WhenShown<TFrmErrorMsg> answer([&](TFrmErrorMsg& message) {
    text = message.m_lblInfo->Caption();
    message.Close();
  });
  action();
  return text;
}
