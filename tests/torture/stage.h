// Where the scenarios of the torture test are played: actions of the operator and the host against the built
// module, each followed by a look at all that the user can see and by checks of what must hold whatever the
// host does.
#pragma once

#include <QWidget>
#include <set>
#include <string>

#include "tests/torture/failing_host.h"

/// A scenario is a line of moves, separated by blanks; one whose control isn't there does nothing:
///   start, release             InitModule unless the module runs, Release
///   pick:6                     the menu item ITEM6066
///   BUTTON                     presses it on the screen picked last
///   CONTROL=TEXT               types into an edit, or picks the entry of a box by its index
///   tick:ROW, column:ENTRY     in the list, in the column menu
///   bank:r, file:PATH, busy    how the bank answers next, the file to write, use what dialogs have
///   close                      all windows
class Stage {
 public:
  Stage(const ModuleLibrary& module, FailingHost& host);

  /// Plays the moves and then "close"; returns what the user saw and what was sent.
  std::string Play(const std::string& scenario);

  std::set<std::string> broken;  // what did not hold

 private:
  void Move(const std::string& verb, const std::string& what);
  void Release();
  void Tick(int row);
  void ClickColumnEntry(int entry);
  void Watch();
  void Answer(QWidget* shown);
  void Check();
  void CheckRows(const QWidget* window);
  template <class Widget>
  Widget* Find(const std::string& name) const;

  const ModuleLibrary& module_;
  FailingHost& host_;
  std::string seen_;
  std::string screen_;  // class of the one picked last
  QString file_;
  bool busy_ = false;
  bool running_ = false;
  int dialogs_ = 0;  // of this move
  QObject watch_;    // ends the looks at dialogs with this
};
