// The command line of the host, read and checked. Used by main.cpp; acting on an option is up to the parts
// that it concerns.
#pragma once

#include <QString>
#include <QStringList>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>

#include "demohost/calendar.h"

namespace demohost {

/// How the client is started.
struct Options {
  std::filesystem::path program;  ///< this program
  std::filesystem::path module;   ///< NorvikQry.so
  std::filesystem::path share;    ///< texts, tables, skins
  std::filesystem::path data;     ///< the bank, pictures, printed reports
  std::filesystem::path config;   ///< layouts and settings
  std::filesystem::path desktop;  ///< where shortcuts go
  std::int64_t bills = 10000;     ///< of the bank
  Day today = kBankDay;           ///< the bank's day
  int delay = 0;                  ///< milliseconds that an exchange takes at least
  int directoryDelay = 0;         ///< milliseconds more until the bank directory is full
  int patience = 5000;            ///< milliseconds that a step of a script may wait
  QString script;                 ///< a script's file, "-" for the standard input, empty for none
  std::string open;               ///< a menu item to open at start
  std::string language;           ///< instead of the saved one, for this run

  std::filesystem::path check;        ///< the module to check against the contract; empty for no check
  std::string checkCase;              ///< the only case to play; empty for all
  int checkLimit = 20;                ///< seconds that a case may take
  std::filesystem::path checkFolder;  ///< set in the process of a case: its files
};

/// The command line is wrong; what() says how, in UTF-8.
class OptionError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads the command line, whose first entry is the program. Nothing where the user asked for help or the
/// version, which is then in `message`. Throws OptionError.
std::optional<Options> ParseOptions(const QStringList& arguments, QString& message);

}  // namespace demohost
