// The invented people, firms and banks of the demonstration bank, in UTF-8. Code page 936 has all their
// characters. Used by what fills the bank's tables; nothing else may depend on a name.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace demohost::names {

/// A place of settlement: its four digits in an interbank number, and its name.
struct City {
  std::string_view area;
  std::string_view name;
};

/// A bank that accepts drafts: the three digits of its kind in an interbank number, and its name.
struct AcceptingBank {
  std::string_view type;
  std::string_view name;
};

/// The bank itself: the three digits of its kind, and its name.
inline constexpr std::string_view kOwnBankType = "901";
inline constexpr std::string_view kOwnBankName = "示范银行";

/// The words that names, addresses and remarks are made of; each list has two or more, and some remarks are
/// empty.
std::span<const City> Cities();
std::span<const AcceptingBank> AcceptingBanks();
std::span<const std::string_view> FirmWords();
std::span<const std::string_view> Trades();
std::span<const std::string_view> Districts();
std::span<const std::string_view> Surnames();
std::span<const std::string_view> GivenNames();
std::span<const std::string_view> CustomerRemarks();
std::span<const std::string_view> BankRemarks();

/// A twelve-digit interbank number: kind, area, a serial number below 10000 and a check digit.
std::string InterbankNumber(std::string_view type, std::string_view area, unsigned serial);

}  // namespace demohost::names
