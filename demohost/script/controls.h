#pragma once

#include <QAbstractItemView>
#include <QString>
#include <QWidget>
#include <vector>

#include "demohost/script/aligned_table.h"

// What an operator sees and does in a window, found and done by Qt's own means: object names, classes,
// models, key events. Nothing here knows whose window it is.
namespace demohost {

// The control of that name in the window, a visible one first; null if there is none. Windows that belong to
// this one aren't looked into.
QWidget* FindControl(QWidget* window, const QString& name);

// The same, as a T or as the T of that name or of any name inside it; null if there is none.
template <class T>
T* FindControlAs(QWidget* window, const QString& name) {
  QWidget* control = FindControl(window, name);
  if (control == nullptr) return nullptr;
  if (T* wanted = qobject_cast<T*>(control)) return wanted;
  if (T* named = control->findChild<T*>(name)) return named;
  return control->findChild<T*>();
}

// What the control shows as its text: of an edit, a combo box, a button, a label, a memo; else the window
// title.
QString ControlText(QWidget* control);

// The title of a dialog and all that its labels and memos say, a line each; not what bears the property
// "decoration".
QString DialogText(QWidget* dialog);

// Types the text into the control that has the focus in the window, character by character.
void TypeText(QWidget* window, const QString& text);

// Presses and releases the keys, such as "Return", "Shift+Tab" or "Ctrl+A"; false where there are no such
// keys.
bool PressKeys(QWidget* window, const QString& keys);

// The button or menu entry of the window that the action of that name is bound to: one that bears the name
// itself, or bears it in its property "action". Null if there is none.
QObject* FindActionWidget(QWidget* window, const QString& action);

// The columns that a list shows, in the order of the screen, and its rows from `first` on, at most `most` of
// them.
struct ListContent {
  std::vector<TableColumn> columns;
  std::vector<QStringList> rows;
};
ListContent ReadList(const QAbstractItemView& list, int first, int most);

// Rows whose tick is set.
int TickedRows(const QAbstractItemView& list);

}  // namespace demohost
