// What a client's public information holds at the start: settings, tables, the user and the accounts. Used
// by the client and the contract check; the store itself is info_store.h.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "demohost/bank/bank.h"
#include "demohost/bank/seed.h"
#include "demohost/info_store.h"
#include "demohost/text_file.h"

namespace demohost {

/// A setting of the client: the section and the item of "SYSCONFIG_DATA".
struct Setting {
  const char* section;
  const char* item;
};
inline constexpr Setting kLanguageSetting = {"APPLICATION.LANG", "Language"};  ///< one of kLanguages
inline constexpr Setting kFontNameSetting = {"APPLICATION.FONT", "Name"};      ///< a font's family
inline constexpr Setting kFontSizeSetting = {"APPLICATION.FONT", "Size"};      ///< points
inline constexpr Setting kStyleSetting = {"APPLICATION.STYLE", "Style"};       ///< one of SkinStyles
inline constexpr Setting kPaperSetting = {"CLIENT.PRINT", "Paper"};            ///< A4 or A3
inline constexpr Setting kPortraitSetting = {"CLIENT.PRINT", "Portrait"};      ///< 1 or 0

/// The value of a setting in UTF-8. Throws Refused where the store has no settings.
std::string SettingOf(const InfoStore& store, const Setting& setting);

/// Changes a setting, given in UTF-8, without writing a file.
void ChangeSetting(InfoStore& store, const Setting& setting, const std::string& value);

/// Writes the settings to their file. Throws Refused with kNotSaved.
void SaveSettings(const InfoStore& store);

/// The column and code tables of share/tables.
struct Tables {
  Sections columns;       ///< COLID DISPLAY WIDTH ALIGN COLFMT by form class
  Sections dictionaries;  ///< TYPEKEY TYPE by dictionary name
};

/// Reads both tables of the share folder. Throws FileError.
Tables ReadTables(const std::filesystem::path& share);

/// The codes of the dictionaries, as the bank's plan takes them.
CodeTables CodesOf(const Tables& tables);

/// The folders that the module finds in the store.
struct ClientFolders {
  std::filesystem::path images;  ///< the module saves icons there
  std::filesystem::path skins;
};

/// Fills the store with what a client's host has for its modules: settings, skins, folders, tables, the user
/// and the accounts. Settings that were saved in the store's folder stay as they were chosen.
void FillStore(InfoStore& store, const Tables& tables, const std::vector<BankAccount>& accounts,
               const ClientFolders& folders);

}  // namespace demohost
