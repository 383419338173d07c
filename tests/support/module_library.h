// The built module library as a host loads it, and a host to load it: fake libraries, a main window and a
// bank. The tests through the C boundary use it; it knows no class of the module.
#pragma once

#include <QTimer>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "data/corvane.h"
#include "platform/host_api.h"
#include "tests/support/fake_host.h"

/// The built module library, loaded as a host loads it.
class ModuleLibrary {
 public:
  explicit ModuleLibrary(const char* path = NORVIK_QRY);
  ModuleLibrary(const ModuleLibrary&) = delete;
  ModuleLibrary& operator=(const ModuleLibrary&) = delete;
  ~ModuleLibrary();

  /// CallFunc with the row of an item.
  void Pick(const std::string& item) const;

  /// The text of MenuConfig; its buffer is released by FreeBuff.
  std::string Menu() const;

  norvik_init_module InitModule;
  norvik_menu_config MenuConfig;
  norvik_free_buff FreeBuff;
  norvik_call_func CallFunc;
  norvik_release Release;

 private:
  void* library_;
};

/// A fake host with all libraries and a main window that records its messages.
class WindowedHost : public fakehost::FakeHost {
 public:
  WindowedHost();
  ~WindowedHost();

  /// Sets two columns for the screens and a bank that answers everything with the bills B1 and B2, and for
  /// the repository screen the accounts A1 and A2 and a custody status.
  void OfferBills();

  /// Makes the main window and registers it; CloseMainWindow unregisters and destroys it.
  void OpenMainWindow();
  void CloseMainWindow();

  norvik_handle publicInformation;
  std::unique_ptr<QWidget> mainWindow;
  std::vector<std::uint32_t> messages;
  std::function<void(std::uint32_t)> duringMessage;  // runs inside each message, after it is recorded

 private:
  norvik_handle window_ = 0;
};

/// A list whose first line names the columns.
std::string ListText(const std::vector<std::vector<std::string>>& lines);

/// The process's window with that object name, null if there is none or it was destroyed.
QWidget* WindowOf(const std::string& name);

/// Closes the module's dialogs as they appear.
class DialogCloser {
 public:
  DialogCloser();

  int closed = 0;
  std::function<void()> whenShown;  // runs once, before the first is closed

 private:
  QTimer timer_;
};
