#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "demohost/bank/bank.h"
#include "demohost/bank/seed.h"
#include "demohost/info_store.h"
#include "demohost/text_file.h"

namespace demohost {

// The column and code tables of share/tables.
struct Tables {
  Sections columns;       // COLID DISPLAY WIDTH ALIGN COLFMT by form class
  Sections dictionaries;  // TYPEKEY TYPE by dictionary name
};

// Reads both tables of the share folder. Throws FileError.
Tables ReadTables(const std::filesystem::path& share);

// The codes of the dictionaries, for the bank.
CodeTables CodesOf(const Tables& tables);

// Folders that the module is told of.
struct ClientFolders {
  std::filesystem::path images;  // the module saves icons there
  std::filesystem::path skins;
};

// Fills the store with what a client's host keeps for its modules: settings, skins, folders, tables, the user
// and its accounts. Settings that were chosen before and saved in the store's folder stay chosen.
void FillStore(InfoStore& store, const Tables& tables, const std::vector<BankAccount>& accounts,
               const ClientFolders& folders);

// The skin styles that there are: the number that the settings hold, and the file's name in the skin folder.
struct SkinStyle {
  const char* number;
  const char* file;
};
const std::vector<SkinStyle>& SkinStyles();

}  // namespace demohost
