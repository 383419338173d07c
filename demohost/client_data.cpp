#include "demohost/client_data.h"

#include "demohost/bank/messages.h"
#include "demohost/skins.h"
#include "platform/code_page.h"

namespace demohost {
namespace {

constexpr const char* kSettingsKey = "SYSCONFIG_DATA";

struct Default {
  Setting setting;
  const char* value;
};

// The settings of a client in which nothing was chosen. CONTROL.UPDOWN and CONTROL.RETURN name the kinds of
// control that need the key for themselves.
constexpr Default kDefaults[] = {
    {kLanguageSetting, "Simplified Chinese"},
    {kFontNameSetting, "Noto Sans CJK SC"},
    {kFontSizeSetting, "9"},
    {kStyleSetting, "SK01"},
    {{"APPLICATION.OPERATOR", "ImeName"}, ""},
    {{"APPLICATION.OPERATOR", "ControlWithImeName"}, "0"},
    {{"APPLICATION.OPERATOR", "SimulateTab"}, "1"},
    {{"CONTROL.UPDOWN", "TKVXListView"}, "1"},
    {{"CONTROL.UPDOWN", "TKVXTreeView"}, "1"},
    {{"CONTROL.UPDOWN", "TKVXListBox"}, "1"},
    {{"CONTROL.UPDOWN", "TKVXComboBox"}, "1"},
    {{"CONTROL.UPDOWN", "TbsSkinRadioGroup"}, "1"},
    {{"CONTROL.UPDOWN", "TMemo"}, "1"},
    {{"CONTROL.UPDOWN", "TMonthCalendar"}, "1"},
    {{"CONTROL.RETURN", "TMemo"}, "1"},
    {{"CONTROL.RETURN", "TbsSkinButton"}, "1"},
    {{"CONTROL.RETURN", "TbsSkinSpeedButton"}, "1"},
    {{"CONTROL.RETURN", "TbsSkinMenuButton"}, "1"},
    {kPaperSetting, "A4"},
    {kPortraitSetting, "0"},
    {{"APPLICATION.BUSINESS.SET", "LISTVIEW.MAXRECORD"}, "100000"},
};

// The businesses of the user: code, flow, class of the operation. Accounts are entered under every flow, so
// the first business reaches each of them by two.
struct Flow {
  const char* business;
  const char* flow;
  const char* operation;
};
constexpr Flow kFlows[] = {
    {"CB200310", "F31001", "01"},
    {"CB200310", "F31002", "02"},
    {"CB200320", "F32001", "01"},
    {"CB200330", "F33001", "01"},
};

corvane::Iniplus DocumentOf(const Sections& sections, const std::vector<const char*>& names) {
  corvane::Iniplus document;
  for (const auto& [section, lines] : sections) {
    corvane::List list;
    for (const std::vector<std::string>& words : lines) {
      corvane::Row row;
      for (std::size_t at = 0; at < names.size(); ++at) row[names[at]] = words[at];
      list.addRow(row);
    }
    document.addSection(section, list);
  }
  return document;
}

void FillSettings(InfoStore& store) {
  store.KeepIni(kSettingsKey);
  for (const auto& [setting, value] : kDefaults) {
    if (store.GetIni(kSettingsKey).getSection(setting.section).hasField(setting.item)) continue;
    ChangeSetting(store, setting, value);
  }
  corvane::Ini patterns;
  corvane::Row styles;
  for (const SkinStyle& style : SkinStyles()) styles[std::string(style.number) + "_FileName"] = style.file;
  patterns.addSection("PATTERN.STYLES", styles);
  store.SetIni("PATTERN_DATA", patterns);
}

void FillUser(InfoStore& store, const std::vector<BankAccount>& accounts) {
  corvane::List user;
  user.addRow(RowOf({{"OPRNO", "000310"},
                     {"OPRNM", "演示操作员"},
                     {"CSTNO", "C010000310"},
                     {"CSTNMCN", "演示集团有限公司"}}));
  store.SetList("CMLGUSERINFO", user);
  corvane::List businesses;
  corvane::List operations;
  corvane::List businessAccounts;
  for (const auto& [business, flow, operation] : kFlows) {
    businesses.addRow(RowOf({{"BSNCODE", business}, {"FLOWID", flow}}));
    operations.addRow(RowOf({{"FLOWID", flow}, {"PSTCLASS", operation}}));
    for (const BankAccount& account : accounts) {
      businessAccounts.addRow(RowOf({{"FLOWID", flow}, {"ACCNO", account.number}, {"ACCNM", account.name}}));
    }
  }
  store.SetList("CMLGBSN", businesses);
  store.SetList("CMLGBSNOPR", operations);
  store.SetList("CMLGBSNACC", businessAccounts);
}

// A folder's path with the slash to which a file name can be added.
std::string Prefix(const std::filesystem::path& folder) {
  return norvik::AnsiFromUtf8(folder.string() + "/");
}

}  // namespace

std::string SettingOf(const InfoStore& store, const Setting& setting) {
  return norvik::Utf8FromAnsi(store.GetIniValue(kSettingsKey, setting.section, setting.item));
}

void ChangeSetting(InfoStore& store, const Setting& setting, const std::string& value) {
  store.SetIniValue(kSettingsKey, setting.section, setting.item, norvik::AnsiFromUtf8(value));
}

void SaveSettings(const InfoStore& store) {
  store.SaveIni(kSettingsKey);
}

Tables ReadTables(const std::filesystem::path& share) {
  return {ReadSections(share / "tables/fielddef.txt", 5), ReadSections(share / "tables/businessdict.txt", 2)};
}

CodeTables CodesOf(const Tables& tables) {
  CodeTables codes;
  for (const auto& [dictionary, lines] : tables.dictionaries) {
    for (const std::vector<std::string>& words : lines) codes[dictionary].push_back(words[0]);
  }
  return codes;
}

void FillStore(InfoStore& store, const Tables& tables, const std::vector<BankAccount>& accounts,
               const ClientFolders& folders) {
  FillSettings(store);
  FillUser(store, accounts);
  store.KeepIniplus("COLUMN_INFO");
  store.SetIniplus("FIELDDEF", DocumentOf(tables.columns, {"COLID", "DISPLAY", "WIDTH", "ALIGN", "COLFMT"}));
  store.SetIniplus("BUSINESSDICT", DocumentOf(tables.dictionaries, {"TYPEKEY", "TYPE"}));
  store.SetField("ENVIRONMENT", corvane::Field("ENV.IMAGES", Prefix(folders.images)));
  store.SetField("ENVIRONMENT", corvane::Field("ENV.SKIN", Prefix(folders.skins)));
}

}  // namespace demohost
