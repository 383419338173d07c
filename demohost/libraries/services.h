// What the functions of the host's libraries work on. They get no context, so the parts of the running host
// are in one place of the process, which whoever registers the libraries fills.
#pragma once

#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <string_view>

#include "demohost/bank/bank.h"
#include "demohost/calendar.h"
#include "demohost/info_store.h"
#include "demohost/texts.h"

namespace demohost {

/// What becomes of the files that the libraries make: where reports go, and who answers for the operator.
struct Output {
  /// The folder of the reports.
  std::filesystem::path printFolder;
  /// Shows the operator a file that was made; may be empty.
  std::function<void(const std::filesystem::path& file)> made;
  /// Asks the operator whether a file may be replaced; empty where there is nobody to ask, and it may not.
  std::function<bool(const std::filesystem::path& file)> mayReplace;
  /// Opens the print settings for the report of that name; empty where there is no window to open them in.
  std::function<void(const std::string& report)> printSettings;
};

/// What a demonstration makes go wrong in the host, so that the module's answer to it can be seen.
struct Faults {
  /// The key of refusals.h that the bank refuses the next exchange with; empty: it answers.
  std::string exchange;
  /// Keys that have no text in any language.
  std::set<std::string, std::less<>> texts;
  /// Keys of the public information whose reads are refused.
  std::set<std::string, std::less<>> entries;
  /// The first bill of the bank's next answer to a query is marked as refused.
  bool row = false;
  /// The folder of the client's pictures can't be written to.
  bool images = false;
};

/// The parts of the running host. Each outlives the libraries; a null store is no host.
struct Services {
  InfoStore* store = nullptr;
  const Texts* texts = nullptr;
  Bank* bank = nullptr;
  const BankClock* clock = nullptr;
  Output* output = nullptr;
  /// The bank takes at least this long for an exchange.
  int delayMilliseconds = 0;
  /// Takes a failure that a function has no way to report, in UTF-8; may be empty.
  std::function<void(const std::string& text)> report = {};
  /// Runs at the beginning of each call of a function, with the function's address in its library's table;
  /// may be empty.
  std::function<void(void* function)> called = {};
  /// What goes wrong at present.
  Faults faults = {};
};

/// The services of the libraries that are registered now. The functions of a host's library get no context,
/// so there is one set in the process.
Services& CurrentServices();

/// The name of the language in the store; empty without a host.
std::string CurrentLanguage();

/// The text of a key in that language, UTF-8; empty where there is none.
std::string CurrentText(std::string_view key);

}  // namespace demohost
