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

// The tables of the six libraries: every ordinal that a module may bind.
std::vector<norvik_ordinal> PublicInformationTable();
std::vector<norvik_ordinal> TranslateTable();
std::vector<norvik_ordinal> ErrorTable();
std::vector<norvik_ordinal> SecureCommunicationTable();
std::vector<norvik_ordinal> SpreadsheetTable();
std::vector<norvik_ordinal> PrintTable();

// One of the six libraries.
struct HostLibrary {
  const char* name;                        // in plain words
  const char* handleKey;                   // where the store keeps its handle; null for public information
  std::vector<norvik_ordinal> (*table)();  // its functions
};
// Public information is the first.
extern const std::array<HostLibrary, 6> kHostLibraries;

// A function that a library is registered without.
struct MissingFunction {
  std::size_t library;  // its place in kHostLibraries
  std::uint32_t ordinal;
};

// The six libraries, registered as modules of this program from construction to destruction; one object at a
// time.
class Libraries {
 public:
  // Enters the handles of five libraries in the store under "HANDLE_TRANSLATE" and its like. They are whole
  // but for the missing function, if there is one.
  explicit Libraries(Services services, std::optional<MissingFunction> missing = std::nullopt);
  ~Libraries();
  Libraries(const Libraries&) = delete;
  Libraries& operator=(const Libraries&) = delete;

  // The handle of the public information library, which a module's InitModule takes.
  norvik_handle PublicInformation() const { return modules_.front(); }

 private:
  std::vector<norvik_handle> modules_;
};

}  // namespace demohost
