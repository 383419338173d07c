// What an operator sees and does in a window, found and done by Qt's own means: object names, classes,
// models, key events. Used by the operator and by the pictures of dialogs; nothing here knows whose window
// it is.
#pragma once

#include <QAbstractItemView>
#include <QString>
#include <QWidget>
#include <vector>

#include "demohost/script/aligned_table.h"

namespace demohost {

/// The control of that name in the window, a visible one if there is one; null if there is none. Windows that
/// belong to this one aren't searched.
QWidget* FindControl(QWidget* window, const QString& name);

/// That control if it is a T, else the T of that name inside it, else any T inside it; null if there is none.
template <class T>
T* FindControlAs(QWidget* window, const QString& name) {
  QWidget* control = FindControl(window, name);
  if (control == nullptr) return nullptr;
  if (T* wanted = qobject_cast<T*>(control)) return wanted;
  if (T* named = control->findChild<T*>(name)) return named;
  return control->findChild<T*>();
}

/// What the control shows as its text: of an edit, a combo box, a button, a label, a memo; else the window
/// title.
QString ControlText(QWidget* control);

/// The title of a dialog and the texts of its labels and memos, a line each; those with the property
/// "decoration" are left out.
QString DialogText(QWidget* dialog);

/// Types the text into the control that has the focus in the window, character by character.
void TypeText(QWidget* window, const QString& text);

/// Presses and releases the keys, such as "Return", "Shift+Tab" or "Ctrl+A"; false for a name that no key
/// has.
bool PressKeys(QWidget* window, const QString& keys);

/// The button or menu entry of the window that the action of that name is bound to: one with that object
/// name, or with that name in its property "action". Null if there is none.
QObject* FindActionWidget(QWidget* window, const QString& action);

/// What a list shows.
struct ListContent {
  std::vector<TableColumn> columns;
  std::vector<QStringList> rows;
};

/// The shown columns of the list, in the order of the screen, and its rows from `first` on, at most
/// `maxRows`.
ListContent ReadList(const QAbstractItemView& list, int first, int maxRows);

/// The number of rows whose tick is set.
int TickedRows(const QAbstractItemView& list);

}  // namespace demohost
