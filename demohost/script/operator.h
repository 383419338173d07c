#pragma once

#include <QPointer>
#include <QTextStream>
#include <QWidget>
#include <functional>
#include <stdexcept>

#include "demohost/script/script.h"

class QAbstractItemView;
class QComboBox;

namespace demohost {

// What the operator asks of the client itself.
struct OperatorClient {
  std::function<void(const QString& item)> pick;
  std::function<void(const QString& name)> language;
  std::function<void(const QString& name, int size)> font;
  // Makes something of the host go wrong: "exchange" the next one, with the key of a refusal; "row" the first
  // bill of the next query; "text" a key's text, "entry" a read of the public information and "images" the
  // folder of pictures, from now on; "none" ends all that.
  std::function<void(const QString& what, const QString& key)> fail;
  // The window of the module that is in front, null if there is none.
  std::function<QWidget*()> front;
  // Ends the module, whatever of it is open.
  std::function<void()> end = {};
};

// A step can't be done as things stand; what() says why, in UTF-8.
class NotYet : public std::runtime_error {
 public:
  explicit NotYet(const QString& reason) : std::runtime_error(reason.toStdString()) {}
};

// Does what the steps of a script say with the windows of this process.
class Operator {
 public:
  using Action = std::function<void()>;

  // out: takes tables and what the script says.
  Operator(OperatorClient client, QTextStream& out) : client_(std::move(client)), out_(out) {}

  // Looks whether the step can be done now, and gives what does it; for an expectation that is nothing.
  // Throws NotYet.
  Action Prepare(const ScriptStep& step);

  // The dialog in front that can be answered, or null.
  static QWidget* Dialog();

 private:
  using Preparer = Action (Operator::*)(const QStringList& words);
  Action Pick(const QStringList& words);
  Action Window(const QStringList& words);
  Action Set(const QStringList& words);
  Action Select(const QStringList& words);
  Action SelectInCombo(QComboBox* combo, const QString& choice);
  Action SelectInList(QAbstractItemView* list, const QStringList& choices);
  Action SelectInGroup(QWidget* group, const QString& choice);
  Action Tick(const QStringList& words);
  Action Row(const QStringList& words);
  Action Press(const QStringList& words);
  Action Start(const QStringList& words);
  Action Menu(const QStringList& words);
  Action Key(const QStringList& words);
  Action Type(const QStringList& words);
  Action Answer(const QStringList& words);
  Action Choose(const QStringList& words);
  Action Expect(const QStringList& words);
  // For what the player does itself.
  Action Nothing(const QStringList& words);
  Action Picture(const QStringList& words);
  Action Print(const QStringList& words);
  Action Say(const QStringList& words);
  Action Close(const QStringList& words);
  Action Language(const QStringList& words);
  Action Font(const QStringList& words);
  Action Remove(const QStringList& words);
  Action Fail(const QStringList& words);
  Action End(const QStringList& words);

  void ExpectDialog(const QString& text);
  void ExpectCount(const QString& what, const QStringList& words);
  void ExpectCell(const QString& place, const QString& text);
  void ExpectColumn(const QString& caption, const QString& state);
  void ExpectFocus(const QWidget* control);
  void ExpectState(const QString& state, const QString& control);

  // The dialog, else the chosen window, else the client's front window. Throws NotYet.
  QWidget* Target() const;
  // The open menu, else the target. Throws NotYet.
  QWidget* Front() const;
  QWidget* Control(const QString& name) const;
  template <class T>
  T* ControlAs(const QString& name, const char* kind) const;
  QAbstractItemView* List(const QString& name = {}) const;

  OperatorClient client_;
  QTextStream& out_;
  QPointer<QWidget> window_;
  QPointer<QWidget> menu_asked_of_;
};

// The button, list or edit that a step works on must take input. Throws NotYet.
void RequireEnabled(const QWidget* control);

}  // namespace demohost
