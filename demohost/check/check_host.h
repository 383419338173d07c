// A whole host without a user: the six libraries, a bank, a directory and an invisible main window, and a
// record of what the module does to them. Used by the cases of the check and by the pictures of dialogs.
#pragma once

#include <QWidget>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "demohost/bank/bank.h"
#include "demohost/bank_directory.h"
#include "demohost/calendar.h"
#include "demohost/client_data.h"
#include "demohost/info_store.h"
#include "demohost/libraries/libraries.h"
#include "demohost/libraries/services.h"
#include "demohost/options.h"
#include "demohost/texts.h"

namespace demohost::check {

/// Makes what all cases of a check share in the folder: the bank and the skins. Throws FileError,
/// DatabaseError or std::filesystem::filesystem_error.
void PrepareFolder(const Options& options, const std::filesystem::path& folder);

/// The host that a case plays: everything that a module may ask for, a main window that isn't shown, and an
/// eye on the module's windows. Needs a QApplication.
class CheckHost {
 public:
  /// `folder` is one that PrepareFolder has filled. Throws as PrepareFolder does.
  CheckHost(const Options& options, const std::filesystem::path& folder);
  ~CheckHost();
  CheckHost(const CheckHost&) = delete;
  CheckHost& operator=(const CheckHost&) = delete;

  /// The handle that InitModule takes.
  norvik_handle PublicInformation() const { return libraries_->PublicInformation(); }
  /// Registers the six libraries anew, whole or without one function; no module may hold them.
  void RegisterLibraries(std::optional<MissingFunction> missing = std::nullopt);

  /// Runs inside each function of the libraries and each message to the main window, with the name of the
  /// place in plain words.
  std::function<void(const std::string& place)> during;

  /// Destroys the main window and its handle.
  void CloseWindow();

  /// Makes a main window with a handle where there is none.
  void OpenWindow();

  /// The module's windows: all but the host's and those that were open before this host.
  std::vector<QWidget*> Windows() const;

  /// The visible ones of these.
  std::vector<QWidget*> ShownWindows() const;
  /// How often the main window was sent this message.
  int Told(std::uint32_t message) const;
  /// The forms that have a handle under their class names.
  const std::set<std::string>& FormHandles() const { return formHandles_; }

 private:
  void Called(void* function) const;
  static intptr_t Procedure(void* context, uint32_t message, uintptr_t wparam, intptr_t lparam);

  Texts texts_;
  Tables tables_;
  BankClock clock_;
  Bank bank_;
  BankDirectory directory_;
  InfoStore store_;
  Output output_;
  std::optional<QWidget> window_;
  norvik_handle windowHandle_ = 0;
  std::optional<Libraries> libraries_;
  std::set<QWidget*> windowsOfHost_;
  std::map<std::uint32_t, int> told_;
  std::set<std::string> formHandles_;
  std::map<void*, std::string> functionNames_;
};

}  // namespace demohost::check
