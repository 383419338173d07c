#pragma once

#include <QString>
#include <QTextStream>
#include <memory>
#include <string>
#include <vector>

#include "demohost/bank/bank.h"
#include "demohost/bank_clock.h"
#include "demohost/bank_directory.h"
#include "demohost/client_data.h"
#include "demohost/host_words.h"
#include "demohost/info_store.h"
#include "demohost/libraries/libraries.h"
#include "demohost/module.h"
#include "demohost/options.h"
#include "demohost/output/output.h"
#include "demohost/script/operator.h"
#include "demohost/texts.h"
#include "demohost/window/demo_mark.h"
#include "demohost/window/main_window.h"
#include "demohost/window/open_forms.h"

namespace demohost {

// The whole client: bank, store, libraries, main window and module, made in this order and ended in the
// reverse. Needs a QApplication.
class Client {
 public:
  // Throws FileError, DatabaseError, ModuleError or std::filesystem::filesystem_error where the client can't
  // start.
  explicit Client(const Options& options);
  ~Client();
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  void Show();
  // Opens a menu item's screen; a failure of the module is told in a dialog.
  void Pick(const std::string& item);
  // The chosen language takes effect at once: the module is started anew, since its forms keep the texts that
  // they were made with, and the open screens open again.
  void ChooseLanguage(const std::string& language);
  void ChooseFont(const QString& name, int size);
  void ChooseStyle(const std::string& style);

  // Ends the module, as a client does when its user's time is over, whatever is open.
  void EndModule();

  // What the operator of a script asks of this client.
  OperatorClient ForOperator();

 private:
  std::filesystem::path BankFile(const Options& options) const;
  BankPlan Plan(const Options& options) const;
  void ShowWindow();
  // Saves the settings and tells the open forms of their new look.
  void LookChanged();
  void Save();
  void MakeShortcut();
  bool MayReplace(const std::filesystem::path& file);
  void TellFailure(const std::exception& failure);
  void Tell(HostWord word, const std::string& detail);
  std::string Setting(const char* section, const char* item) const;

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
  std::map<std::string, std::string> item_of_;  // by the class name of its form
};

}  // namespace demohost
