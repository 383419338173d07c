#include "demohost/script/controls.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTreeView>
#include <algorithm>

namespace demohost {
namespace {

QWidget* FocusOf(QWidget* window) {
  QWidget* focus = window->focusWidget();
  return focus == nullptr ? window : focus;
}

void SendKey(QWidget* target, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, modifiers, text);
    QApplication::sendEvent(target, &event);
  }
}

const QHeaderView* HeaderOf(const QAbstractItemView& list) {
  const auto* tree = qobject_cast<const QTreeView*>(&list);
  return tree == nullptr ? list.findChild<QHeaderView*>() : tree->header();
}

}  // namespace

QWidget* FindControl(QWidget* window, const QString& name) {
  if (window->objectName() == name) return window;
  QWidget* hidden = nullptr;
  for (QWidget* control : window->findChildren<QWidget*>(name)) {
    if (control->window() != window->window()) continue;
    if (control->isVisible()) return control;
    if (hidden == nullptr) hidden = control;
  }
  return hidden;
}

QString ControlText(QWidget* control) {
  if (const auto* combo = control->findChild<QComboBox*>(control->objectName())) return combo->currentText();
  if (const auto* combo = qobject_cast<QComboBox*>(control)) return combo->currentText();
  if (const auto* memo = qobject_cast<QPlainTextEdit*>(control)) return memo->toPlainText();
  if (const auto* button = qobject_cast<QAbstractButton*>(control)) return button->text();
  if (const auto* label = qobject_cast<QLabel*>(control)) return label->text();
  if (const auto* box = qobject_cast<QGroupBox*>(control)) return box->title();
  const auto* edit = qobject_cast<QLineEdit*>(control);
  if (edit == nullptr) edit = control->findChild<QLineEdit*>();
  return edit == nullptr ? control->windowTitle() : edit->text();
}

QString DialogText(QWidget* dialog) {
  QStringList lines = {dialog->windowTitle()};
  for (const QLabel* label : dialog->findChildren<QLabel*>()) {
    const bool says = label->isVisible() && !label->property("decoration").toBool();
    if (says && !label->text().trimmed().isEmpty()) lines << label->text();
  }
  for (const QPlainTextEdit* memo : dialog->findChildren<QPlainTextEdit*>()) {
    if (memo->isVisible() && !memo->toPlainText().isEmpty()) lines << memo->toPlainText();
  }
  return lines.join(QLatin1Char('\n'));
}

void TypeText(QWidget* window, const QString& text) {
  for (const char32_t character : text.toStdU32String()) {
    const QString typed = QString::fromUcs4(&character, 1);
    const bool lineEnd = character == U'\n';
    const int key = lineEnd            ? Qt::Key_Return
                    : character < 0x80 ? static_cast<int>(typed.toUpper()[0].unicode())
                                       : 0;
    SendKey(FocusOf(window), key, Qt::NoModifier, lineEnd ? QStringLiteral("\r") : typed);
  }
}

bool PressKeys(QWidget* window, const QString& keys) {
  const QKeySequence sequence = QKeySequence::fromString(keys);
  if (sequence.isEmpty() || sequence[0].key() == Qt::Key_unknown) return false;
  for (int at = 0; at < sequence.count(); ++at) {
    const QKeyCombination combination = sequence[static_cast<unsigned>(at)];
    const int key = combination.key();
    const bool plain = key < 0x80 && !(combination.keyboardModifiers() & ~Qt::ShiftModifier);
    SendKey(FocusOf(window), key, combination.keyboardModifiers(),
            plain ? QString(QChar(key)).toLower() : QString());
  }
  return true;
}

QObject* FindActionWidget(QWidget* window, const QString& action) {
  const auto bears = [&action](const QObject* object) {
    return object->objectName() == action || object->property("action").toString() == action;
  };
  QAbstractButton* hidden = nullptr;
  for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
    if (!bears(button) || button->window() != window->window()) continue;
    if (button->isVisible()) return button;
    hidden = button;
  }
  for (QAction* entry : window->findChildren<QAction*>()) {
    if (bears(entry)) return entry;
  }
  if (const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
    for (QAction* entry : menu->actions()) {
      if (bears(entry)) return entry;
    }
  }
  return hidden;
}

ListContent ReadList(const QAbstractItemView& list, int first, int maxRows) {
  ListContent content;
  const QAbstractItemModel* model = list.model();
  const QHeaderView* header = HeaderOf(list);
  std::vector<int> shown;
  for (int place = 0; place < model->columnCount(); ++place) {
    const int column = header == nullptr ? place : header->logicalIndex(place);
    if (header != nullptr && (header->isSectionHidden(column) || header->sectionSize(column) <= 1)) continue;
    shown.push_back(column);
    const auto alignment =
        Qt::Alignment::fromInt(model->index(0, column).data(Qt::TextAlignmentRole).toInt());
    content.columns.push_back(
        {model->headerData(column, Qt::Horizontal).toString(), alignment.testFlag(Qt::AlignRight)});
  }
  const int last = std::min(model->rowCount() - first, maxRows) + first;
  for (int row = first; row < last; ++row) {
    QStringList cells;
    for (const int column : shown) cells << model->index(row, column).data().toString();
    content.rows.push_back(std::move(cells));
  }
  return content;
}

int TickedRows(const QAbstractItemView& list) {
  int ticked = 0;
  for (int row = 0; row < list.model()->rowCount(); ++row) {
    if (list.model()->index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked) ++ticked;
  }
  return ticked;
}

}  // namespace demohost
