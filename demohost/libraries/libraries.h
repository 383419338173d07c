// The host's six libraries, registered with the platform. Each of them is implemented by the file of its
// name here: public_information.cpp, translate.cpp, error.cpp, print.cpp, secure_communication.cpp,
// spreadsheet.cpp. Used by the client and the contract check.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "demohost/libraries/support.h"
#include "platform/host_api.h"

namespace demohost {

/// The tables of the six libraries, one function a file: every ordinal that a module may bind.
std::vector<norvik_ordinal> PublicInformationTable();
std::vector<norvik_ordinal> TranslateTable();
std::vector<norvik_ordinal> ErrorTable();
std::vector<norvik_ordinal> SecureCommunicationTable();
std::vector<norvik_ordinal> SpreadsheetTable();
std::vector<norvik_ordinal> PrintTable();

/// One of the six libraries.
struct HostLibrary {
  const char* name;                        ///< in plain words, for reports
  const char* handleKey;                   ///< where the store keeps its handle; null for public information
  std::vector<norvik_ordinal> (*table)();  ///< its functions
};
/// The six libraries; public information is the first.
extern const std::array<HostLibrary, 6> kHostLibraries;

/// A function that a library is registered without.
struct MissingFunction {
  std::size_t library;    ///< its place in kHostLibraries
  std::uint32_t ordinal;  ///< its number in the library
};

/// The six libraries, registered as modules of this program from construction to destruction. At most one
/// object at a time.
class Libraries {
 public:
  /// Takes the services over, registers the libraries, all functions but the missing one, and enters the
  /// handles of five of them in the store under their handle keys.
  explicit Libraries(Services services, std::optional<MissingFunction> missing = std::nullopt);
  ~Libraries();
  Libraries(const Libraries&) = delete;
  Libraries& operator=(const Libraries&) = delete;

  /// The handle of the public information library, which a module's InitModule takes.
  norvik_handle PublicInformation() const { return modules_.front(); }

 private:
  std::vector<norvik_handle> modules_;
};

}  // namespace demohost
