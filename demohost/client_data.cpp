#include "demohost/client_data.h"

#include "platform/code_page.h"

namespace demohost {
namespace {

struct Setting {
  const char* section;
  const char* item;
  const char* value;
};

// The settings of a client that was never told otherwise. Under CONTROL.UPDOWN and CONTROL.RETURN stand the
// kinds of control that need the key for themselves.
constexpr Setting kSettings[] = {
    {"APPLICATION.LANG", "Language", "Simplified Chinese"},
    {"APPLICATION.FONT", "Name", "Noto Sans CJK SC"},
    {"APPLICATION.FONT", "Size", "9"},
    {"APPLICATION.STYLE", "Style", "SK01"},
    {"APPLICATION.OPERATOR", "ImeName", ""},
    {"APPLICATION.OPERATOR", "ControlWithImeName", "0"},
    {"APPLICATION.OPERATOR", "SimulateTab", "1"},
    {"CONTROL.UPDOWN", "TKVXListView", "1"},
    {"CONTROL.UPDOWN", "TKVXTreeView", "1"},
    {"CONTROL.UPDOWN", "TKVXListBox", "1"},
    {"CONTROL.UPDOWN", "TKVXComboBox", "1"},
    {"CONTROL.UPDOWN", "TbsSkinRadioGroup", "1"},
    {"CONTROL.UPDOWN", "TMemo", "1"},
    {"CONTROL.UPDOWN", "TMonthCalendar", "1"},
    {"CONTROL.RETURN", "TMemo", "1"},
    {"CONTROL.RETURN", "TbsSkinButton", "1"},
    {"CONTROL.RETURN", "TbsSkinSpeedButton", "1"},
    {"CONTROL.RETURN", "TbsSkinMenuButton", "1"},
    {"CLIENT.PRINT", "Paper", "A4"},
    {"CLIENT.PRINT", "Portrait", "0"},
    {"APPLICATION.BUSINESS.SET", "LISTVIEW.MAXRECORD", "100000"},
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

corvane::Row RowOf(std::initializer_list<std::pair<const char*, std::string>> fields) {
  corvane::Row row;
  for (const auto& [name, value] : fields) row[name] = norvik::AnsiFromUtf8(value);
  return row;
}

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
  store.KeepIni("SYSCONFIG_DATA");
  for (const auto& [section, item, value] : kSettings) {
    const corvane::Ini& settings = store.GetIni("SYSCONFIG_DATA");
    if (settings.getSection(section).hasField(item)) continue;
    store.SetIniValue("SYSCONFIG_DATA", section, item, value);
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

// A folder's path with the slash behind which a file name can follow.
std::string Prefix(const std::filesystem::path& folder) {
  return norvik::AnsiFromUtf8(folder.string() + "/");
}

}  // namespace

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

const std::vector<SkinStyle>& SkinStyles() {
  static const std::vector<SkinStyle> kStyles = {
      {"SK00", "plain.skin"}, {"SK01", "light.skin"}, {"SK02", "dark.skin"}};
  return kStyles;
}

}  // namespace demohost
