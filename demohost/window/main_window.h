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

// An entry of the business menu: what the module is called with, and its caption in the present language.
struct BusinessItem {
  std::string name;
  QString caption;
};

// What the operator chose in the host's window.
struct ClientSettings {
  std::string language;
  QString font_name;
  int font_size = 9;
  std::string style;
};

// What the main window asks of the client.
struct MainWindowActions {
  std::function<void(const std::string& item)> pick;
  std::function<void(const std::string& language)> choose_language;
  std::function<void(const QString& name, int size)> choose_font;
  std::function<void(const std::string& style)> choose_style;
  std::function<void()> make_shortcut;
};

// The host's main window: the business menu, the settings, the open forms. It is also the window that the
// module's messages go to.
class MainWindow : public QMainWindow {
 public:
  MainWindow(OpenForms& forms, MainWindowActions actions);
  ~MainWindow() override;

  // Shows menus and captions in the language of the settings.
  void Show(const ClientSettings& settings, const std::vector<BusinessItem>& items, const QString& bank_day);

  // A line for the operator in the status bar.
  void Tell(const QString& text);

  // The handle that the module sends its messages to.
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
  QLabel* open_forms_;
  QLabel* bank_day_;
  norvik_handle handle_;
};

}  // namespace demohost
