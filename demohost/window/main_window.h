// The host's main window: menus, welcome page, status bar, and the procedure that takes the module's
// messages. Used by the client, which gives it as functions what the menus do.
#pragma once

#include <QMainWindow>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "demohost/window/open_forms.h"

class QLabel;
class QMenu;
class QVBoxLayout;

namespace demohost {

/// An entry of the business menu: what the module is called with, and its caption in the present language.
struct BusinessItem {
  std::string name;
  QString caption;
};

/// What the operator chose in the host's window.
struct ClientSettings {
  std::string language;
  QString fontName;
  int fontSize = 9;
  std::string style;
};

/// What the main window asks of the client.
struct MainWindowActions {
  std::function<void(const std::string& item)> pick;
  std::function<void(const std::string& language)> chooseLanguage;
  std::function<void(const QString& name, int size)> chooseFont;
  std::function<void(const std::string& style)> chooseStyle;
  std::function<void()> makeShortcut;
};

/// The host's main window: the business menu, the settings, the open forms. It is also the window that the
/// module's messages go to.
class MainWindow : public QMainWindow {
 public:
  /// Registers the window with the platform; `forms` outlives it.
  MainWindow(OpenForms& forms, MainWindowActions actions);
  ~MainWindow() override;

  /// Builds menus and captions for the settings, the items and the bank's day; does not open the window.
  void Show(const ClientSettings& settings, const std::vector<BusinessItem>& items, const QString& bankDay);

  /// A line for the operator in the status bar.
  void Tell(const QString& text);

  /// The handle that the module sends its messages to.
  norvik_handle Handle() const { return handle_; }

 private:
  static intptr_t Procedure(void* context, uint32_t message, uintptr_t wparam, intptr_t lparam);
  void BuildMenus(const std::vector<BusinessItem>& items);
  void BuildSettings(QMenu* menu);
  void BuildWelcome(const std::vector<BusinessItem>& items);
  void ShowOpenForms();
  void FillWindowMenu(QMenu* menu);
  void ChooseFont();

  OpenForms& forms_;
  MainWindowActions actions_;
  ClientSettings settings_;
  QLabel* openForms_;
  QLabel* bankDay_;
  norvik_handle handle_;
};

}  // namespace demohost
