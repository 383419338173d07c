// The operator of a script, who does each step with the windows of this process. operator.cpp has the steps
// and the way to a control, operator_input.cpp the steps that fill in a control, operator_expect.cpp the
// expectations. Nothing here waits; the player does.
#pragma once

#include <QPointer>
#include <QTextStream>
#include <QWidget>
#include <functional>
#include <stdexcept>

#include "demohost/script/controls.h"
#include "demohost/script/script.h"

class QComboBox;

namespace demohost {

/// What a script asks of the client itself, beside its windows.
struct OperatorClient {
  /// Picks an item of the menu.
  std::function<void(const QString& item)> pick;
  /// Chooses the language of the client.
  std::function<void(const QString& name)> language;
  /// Chooses its font, with the size in points.
  std::function<void(const QString& name, int size)> font;
  /// Makes something of the host go wrong: "exchange" the next exchange, with the key of a refusal; "row" the
  /// first bill of the next query; from now on "text" the text of a key, "entry" a read of the public
  /// information, "images" the folder of pictures; "none" ends all that.
  std::function<void(const QString& what, const QString& key)> fail;
  /// The window of the module that is in front, null if there is none.
  std::function<QWidget*()> front;
  /// Ends the module, whatever of it is open.
  std::function<void()> end = {};
};

/// A step can't be done at present; what() says why, in UTF-8.
class NotYet : public std::runtime_error {
 public:
  /// The reason becomes what().
  explicit NotYet(const QString& reason) : std::runtime_error(reason.toStdString()) {}
};

/// Does what the steps of a script say with the windows of this process.
class Operator {
 public:
  /// What does a step; empty for nothing.
  using Action = std::function<void()>;

  /// `out` takes tables and what the script says; it outlives the object.
  Operator(OperatorClient client, QTextStream& out) : client_(std::move(client)), out_(out) {}

  /// Throws NotYet unless the step can be done now. Returns the function that does it, an empty one for an
  /// expectation that is met.
  Action Prepare(const ScriptStep& step);

  /// The dialog in front that can be answered, or null.
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
  /// For a step that the player does itself.
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

  /// The dialog, else the chosen window, else the client's front window. Throws NotYet.
  QWidget* Target() const;
  /// The open menu, else the target. Throws NotYet.
  QWidget* Front() const;
  QWidget* Control(const QString& name) const;
  template <class T>
  T* ControlAs(const QString& name, const char* kind) const;
  QAbstractItemView* List(const QString& name = {}) const;

  OperatorClient client_;
  QTextStream& out_;
  QPointer<QWidget> window_;
  QPointer<QWidget> menuAskedOf_;
};

template <class T>
T* Operator::ControlAs(const QString& name, const char* kind) const {
  QWidget* target = Target();
  if (T* control = FindControlAs<T>(target, name)) return control;
  Control(name);
  throw NotYet(QStringLiteral("%1 isn't a %2").arg(name, QLatin1String(kind)));
}

/// Throws NotYet unless the control is visible and takes input.
void RequireEnabled(const QWidget* control);

}  // namespace demohost
