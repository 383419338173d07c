// Opens the bank's file, and makes it where there is none that fits. Used by the client, the contract check
// and the tests; the rows come from seed_tables.h.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "demohost/bank/database.h"
#include "demohost/calendar.h"

namespace demohost {

/// The codes of the bank's tables by dictionary name ("AGENTSTT" and its like), in the tables' order.
using CodeTables = std::map<std::string, std::vector<std::string>>;

/// What a bank is made of. The same values make the same bank.
struct BankPlan {
  std::int64_t bills = 10000;  ///< how many there are
  Day today{};                 ///< the dates of the bills are around this day
  CodeTables codes;  ///< each code is in some record; "-9999" and "AC00", which mean no choice, are in none
};

/// The accounts and the custody institutions of every bank.
inline constexpr int kAccountCount = 45;
inline constexpr int kInstitutionCount = 30;

/// Opens the bank's file. A file that is missing or was made from another plan is made anew beside its place
/// and put there in one step; its folder is made too. Throws DatabaseError, or
/// std::filesystem::filesystem_error.
Database OpenBank(const std::filesystem::path& file, const BankPlan& plan);

}  // namespace demohost
