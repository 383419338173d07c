#pragma once

#include <map>
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

// The six libraries, registered as modules of this program from construction to destruction; one object at a
// time.
class Libraries {
 public:
  // Enters the handles of five libraries in the store under "HANDLE_TRANSLATE" and its like.
  explicit Libraries(Services services);
  ~Libraries();
  Libraries(const Libraries&) = delete;
  Libraries& operator=(const Libraries&) = delete;

  // The handle of the public information library, which a module's InitModule takes.
  norvik_handle PublicInformation() const { return public_information_; }

 private:
  norvik_handle public_information_;
  std::vector<norvik_handle> modules_;
};

}  // namespace demohost
