// The host side of a test of forms: fake libraries, services and a main window, and the means to act on a
// form while it is shown. The tests of dialogs, frames and screens use it; the module is linked, not loaded.
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "data/corvane.h"
#include "tests/support/fake_host.h"
#include "toolkit/form.h"

/// What a form needs to live: registered host libraries that answer by key, the services bound to them, the
/// layer's Application, and a main window of the host that records its messages. One at a time,
/// user-interface thread. A modal window that nobody answers within four to eight seconds fails the test and
/// is closed, so that no wrong answer makes a test hang.
class FormHost {
 public:
  struct Message {
    std::uint32_t number;
    std::uintptr_t wparam;
    std::intptr_t lparam;
    bool operator==(const Message&) const = default;
  };

  /// A host with a font of 9 points, no switch on, and no text for any key.
  FormHost();
  FormHost(const FormHost&) = delete;
  FormHost& operator=(const FormHost&) = delete;
  /// Ends all forms, then the services.
  ~FormHost();

  /// Texts are UTF-8 here and reach the module as narrow text.
  void SetText(const std::string& key, const char* text);
  void SetErrorText(const std::string& keys, const char* text);
  /// One value of "SYSCONFIG_DATA", or of another Ini document.
  void Configure(const std::string& section, const std::string& item, const char* value,
                 const std::string& document = "SYSCONFIG_DATA");
  void SetField(const std::string& block, const std::string& name, const std::string& value);
  void SetTable(const std::string& document, const std::string& section, const corvane::List& rows);

  fakehost::FakeHost libraries;
  QWidget mainWindow;
  std::vector<Message> messages;
  std::function<void(const Message&)> onMessage;
  /// What reached Application->OnException, as text.
  std::vector<std::string> failures;

 private:
  void CloseForgotten();

  std::uint32_t window_ = 0;
  QTimer patience_;
  QPointer<QWidget> unanswered_;
};

/// The shown form of a class, the newest first; null if there is none.
TForm* ShownForm(const QMetaObject& type);

/// Runs a step with the first form of class T that is shown, as soon as it is, once.
template <class T>
class WhenShown {
 public:
  explicit WhenShown(std::function<void(T&)> step) : step_(std::move(step)) {
    timer_.setInterval(5);
    timer_.callOnTimeout([this] { Look(); });
    timer_.start();
  }
  /// Whether the form has come.
  bool Came() const { return came_; }

 private:
  void Look() {
    auto* form = static_cast<T*>(ShownForm(T::staticMetaObject));
    if (form == nullptr) {
      if (came_) timer_.stop();
    } else if (!came_) {
      came_ = true;
      step_(*form);
    }
  }

  std::function<void(T&)> step_;
  QTimer timer_;
  bool came_ = false;
};
