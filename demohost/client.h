// The client as a whole: it owns all parts of the host, joins them, and does what the main window and a
// script ask. Used by main.cpp; decides nothing about bills.
#pragma once

#include <QString>
#include <QTextStream>
#include <memory>
#include <string>
#include <vector>

#include "demohost/bank/bank.h"
#include "demohost/bank_directory.h"
#include "demohost/calendar.h"
#include "demohost/client_data.h"
#include "demohost/host_words.h"
#include "demohost/info_store.h"
#include "demohost/libraries/libraries.h"
#include "demohost/libraries/services.h"
#include "demohost/module.h"
#include "demohost/options.h"
#include "demohost/script/operator.h"
#include "demohost/texts.h"
#include "demohost/window/demo_mark.h"
#include "demohost/window/main_window.h"
#include "demohost/window/open_forms.h"

namespace demohost {

/// The whole client: bank, store, libraries, main window and module, made in this order and destroyed in the
/// reverse one. Needs a QApplication.
class Client {
 public:
  /// Throws FileError, DatabaseError, ModuleError or std::filesystem::filesystem_error where the client can't
  /// start.
  explicit Client(const Options& options);
  ~Client();
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  /// Shows the main window.
  void Show();

  /// Opens a menu item's screen; a failure of the module is shown in a dialog.
  void Pick(const std::string& item);
  /// Starts the module anew in the language, since its forms keep the texts that they were made with, and
  /// opens the open screens again. Throws std::invalid_argument for a name that isn't in kLanguages.
  void ChooseLanguage(const std::string& language);
  /// Takes the font for the host and all open forms.
  void ChooseFont(const QString& name, int size);
  /// Takes the skin style, one of SkinStyles, for all open forms.
  void ChooseStyle(const std::string& style);

  /// Ends the module whatever is open, as a client does when its user's time is over.
  void EndModule();

  /// This client as the operator of a script asks it; valid while the client lives.
  OperatorClient ForOperator();

 private:
  std::filesystem::path BankFile(const Options& options) const;
  BankPlan Plan(const Options& options) const;
  void ShowWindow();
  /// Saves the settings and announces the new look to the open forms.
  void LookChanged();
  void Save();
  void MakeShortcut();
  bool MayReplace(const std::filesystem::path& file);
  void ShowFailure(const std::exception& failure);
  void Announce(HostWord word, const std::string& detail);
  std::string ChosenLanguage() const;

  Options options_;
  Texts texts_;
  Tables tables_;
  BankClock clock_;
  Bank bank_;
  BankDirectory directory_;
  InfoStore store_;
  Output output_;
  OpenForms forms_;
  DemoMark mark_;
  MainWindow window_;
  std::unique_ptr<Libraries> libraries_;
  Module module_;
  std::vector<std::string> items_;
  std::map<std::string, std::string> itemOf_;  ///< by the class name of its form
};

}  // namespace demohost
