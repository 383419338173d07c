#include "demohost/script/operator.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHash>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include "demohost/script/controls.h"

namespace demohost {
namespace {

// The button that ends a dialog where the script names none: the one that Return presses, else one of these.
constexpr const char* kUsualButtons[] = {"m_btnOk", "m_btnOK", "m_btnok", "m_btnConfirm", "m_btnClose"};

QAbstractButton* UsualButton(QWidget* dialog) {
  for (QPushButton* button : dialog->findChildren<QPushButton*>()) {
    if (button->isDefault() && button->isVisible() && button->isEnabled()) return button;
  }
  for (const char* name : kUsualButtons) {
    auto* button = FindControlAs<QAbstractButton>(dialog, name);
    if (button != nullptr && button->isVisible()) return button;
  }
  return nullptr;
}

QString QuietText(QString text) {
  return text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

}  // namespace

void RequireEnabled(const QWidget* control) {
  if (!control->isVisible()) throw NotYet(QStringLiteral("%1 isn't visible").arg(control->objectName()));
  if (!control->isEnabled()) throw NotYet(QStringLiteral("%1 is disabled").arg(control->objectName()));
}

Operator::Action Operator::Prepare(const ScriptStep& step) {
  static const QHash<QString, Preparer> kPreparers = {
      {"pick", &Operator::Pick},        {"window", &Operator::Window},   {"set", &Operator::Set},
      {"select", &Operator::Select},    {"tick", &Operator::Tick},       {"row", &Operator::Row},
      {"press", &Operator::Press},      {"start", &Operator::Start},     {"menu", &Operator::Menu},
      {"key", &Operator::Key},          {"type", &Operator::Type},       {"answer", &Operator::Answer},
      {"choose", &Operator::Choose},    {"expect", &Operator::Expect},   {"wait", &Operator::Nothing},
      {"patience", &Operator::Nothing}, {"picture", &Operator::Picture}, {"print", &Operator::Print},
      {"say", &Operator::Say},          {"close", &Operator::Close},     {"language", &Operator::Language},
      {"font", &Operator::Font},        {"fail", &Operator::Fail},       {"remove", &Operator::Remove},
      {"end", &Operator::End},
  };
  return (this->*kPreparers.value(step.command))(step.words);
}

QWidget* Operator::Dialog() {
  // A modal window without a button is a picture of work in progress; it closes by itself.
  QWidget* modal = QApplication::activeModalWidget();
  return modal == nullptr || modal->findChild<QAbstractButton*>() == nullptr ? nullptr : modal;
}

QWidget* Operator::Target() const {
  if (QWidget* dialog = Dialog()) return dialog;
  if (window_ != nullptr && window_->isVisible()) return window_;
  QWidget* front = client_.front();
  if (front == nullptr) throw NotYet(QStringLiteral("no window of the module is open"));
  return front;
}

QWidget* Operator::Front() const {
  QWidget* menu = QApplication::activePopupWidget();
  return menu == nullptr ? Target() : menu;
}

QWidget* Operator::Control(const QString& name) const {
  QWidget* control = FindControl(Target(), name);
  if (control == nullptr) throw NotYet(QStringLiteral("there is no control %1").arg(name));
  return control;
}

QAbstractItemView* Operator::List(const QString& name) const {
  return ControlAs<QAbstractItemView>(name.isEmpty() ? QStringLiteral("m_lvMain") : name, "list");
}

Operator::Action Operator::Pick(const QStringList& words) {
  return [this, item = words[0]] {
    window_ = nullptr;
    client_.pick(item);
  };
}

Operator::Action Operator::Window(const QStringList& words) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == words[0] && window->isVisible()) {
      return [this, window] {
        window_ = window;
        window->activateWindow();
      };
    }
  }
  throw NotYet(QStringLiteral("no window %1 is open").arg(words[0]));
}

Operator::Action Operator::Press(const QStringList& words) {
  // A panel is pressed at its heading, the button that is its own child.
  QWidget* control = Control(words[0]);
  auto* button = control->findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly);
  if (qobject_cast<QAbstractButton*>(control) != nullptr || button == nullptr) {
    button = ControlAs<QAbstractButton>(words[0], "button");
  }
  RequireEnabled(button);
  return [button] {
    button->setFocus(Qt::MouseFocusReason);
    button->click();
  };
}

Operator::Action Operator::Start(const QStringList& words) {
  QWidget* target = Target();
  QObject* found = FindActionWidget(target, words[0]);
  if (auto* button = qobject_cast<QAbstractButton*>(found)) {
    RequireEnabled(button);
    return [button] { button->click(); };
  }
  if (auto* entry = qobject_cast<QAction*>(found)) {
    if (!entry->isEnabled()) throw NotYet(QStringLiteral("%1 is disabled").arg(words[0]));
    return [this, entry] {
      menuAskedOf_ = nullptr;
      if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
      entry->trigger();
    };
  }
  // The list's menu is made when it opens; the entry is there at the next try.
  auto* list = FindControlAs<QAbstractItemView>(target, QStringLiteral("m_lvMain"));
  if (list != nullptr && menuAskedOf_ != list) {
    menuAskedOf_ = list;
    QWidget* viewport = list->viewport();
    const QPoint middle = viewport->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, viewport->mapToGlobal(middle));
    QApplication::sendEvent(viewport, &event);
  }
  throw NotYet(QStringLiteral("nothing is bound to %1").arg(words[0]));
}

Operator::Action Operator::Menu(const QStringList& words) {
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (menu == nullptr) throw NotYet(QStringLiteral("no menu is open"));
  for (QAction* entry : menu->actions()) {
    if (entry->objectName() != words[0] && entry->text().remove(QLatin1Char('&')) != words[0]) continue;
    return [menu, entry] {
      menu->close();
      entry->trigger();
    };
  }
  throw NotYet(QStringLiteral("the menu has no entry %1").arg(words[0]));
}

Operator::Action Operator::Key(const QStringList& words) {
  return [target = Front(), keys = words[0]] { PressKeys(target, keys); };
}

Operator::Action Operator::Type(const QStringList& words) {
  return [target = Target(), text = words[0]] { TypeText(target, text); };
}

Operator::Action Operator::Answer(const QStringList& words) {
  QWidget* dialog = Dialog();
  if (dialog == nullptr) throw NotYet(QStringLiteral("no dialog is open"));
  const bool named = !words.isEmpty() && words[0].startsWith(QLatin1String("m_"));
  if (words.size() > (named ? 1 : 0)) ExpectDialog(words[named ? 1 : 0]);
  auto* button = named ? ControlAs<QAbstractButton>(words[0], "button") : UsualButton(dialog);
  if (button == nullptr) throw NotYet(QStringLiteral("the dialog has no usual button"));
  RequireEnabled(button);
  return [button] { button->click(); };
}

Operator::Action Operator::Choose(const QStringList& words) {
  auto* dialog = qobject_cast<QFileDialog*>(Dialog());
  if (dialog == nullptr) throw NotYet(QStringLiteral("no file dialog is open"));
  return [dialog, file = QFileInfo(words[0]).absoluteFilePath()] {
    QDir().mkpath(QFileInfo(file).path());
    const QString ending = QStringLiteral("*.") + QFileInfo(file).suffix().toLower();
    for (const QString& filter : dialog->nameFilters()) {
      if (!filter.contains(ending)) continue;
      dialog->selectNameFilter(filter);
      Q_EMIT dialog->filterSelected(filter);
    }
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    // The name counts where no file of the list is selected, such as the one that the dialog was opened with.
    if (auto* edit = dialog->findChild<QLineEdit*>()) edit->setText(file);
    for (auto* view : dialog->findChildren<QAbstractItemView*>()) view->clearSelection();
    QMetaObject::invokeMethod(dialog, "accept");
  };
}

Operator::Action Operator::Nothing(const QStringList&) {
  return {};
}

Operator::Action Operator::Picture(const QStringList& words) {
  QWidget* widget = words.size() > 1 ? Control(words[1]) : Front();
  return [this, widget, file = QFileInfo(words[0]).absoluteFilePath()] {
    QDir().mkpath(QFileInfo(file).path());
    if (!widget->grab().save(file)) throw NotYet(QStringLiteral("%1 can't be written").arg(file));
    out_ << QStringLiteral("picture: %1\n").arg(file) << Qt::flush;
  };
}

Operator::Action Operator::Print(const QStringList& words) {
  bool counted = false;
  const int maxRows = words.isEmpty() ? 0 : words.last().toInt(&counted);
  const QString name = words.size() == (counted ? 2 : 1) ? words[0] : QString();
  const QAbstractItemView* list = List(name);
  return [this, list, maxRows, counted] {
    const int rows = list->model()->rowCount();
    const ListContent content = ReadList(*list, 0, counted ? maxRows : rows);
    out_ << AlignedTable(content.columns, content.rows);
    const int left = rows - static_cast<int>(content.rows.size());
    out_ << (left > 0 ? QStringLiteral("%1 rows, %2 more not printed\n").arg(rows).arg(left)
                      : QStringLiteral("%1 rows\n").arg(rows))
         << Qt::flush;
  };
}

Operator::Action Operator::Say(const QStringList& words) {
  return [this, text = words[0]] { out_ << text << '\n' << Qt::flush; };
}

Operator::Action Operator::Close(const QStringList&) {
  return [target = Target()] { target->close(); };
}

Operator::Action Operator::Language(const QStringList& words) {
  return [this, name = words[0]] { client_.language(name); };
}

Operator::Action Operator::Font(const QStringList& words) {
  return [this, name = words[0], size = words[1].toInt()] { client_.font(name, size); };
}

Operator::Action Operator::Remove(const QStringList& words) {
  return [file = words[0]] { QFile::remove(file); };
}

Operator::Action Operator::Fail(const QStringList& words) {
  return [this, what = words[0], key = words.value(1)] { client_.fail(what, key); };
}

Operator::Action Operator::End(const QStringList&) {
  return [this] { client_.end(); };
}

void Operator::ExpectDialog(const QString& text) {
  QWidget* dialog = Dialog();
  if (text == QLatin1String("none")) {
    if (dialog != nullptr) throw NotYet(QStringLiteral("a dialog is open"));
    return;
  }
  if (dialog == nullptr) throw NotYet(QStringLiteral("no dialog is open"));
  if (!QuietText(DialogText(dialog)).contains(text)) {
    throw NotYet(QStringLiteral("the dialog doesn't say \"%1\"").arg(text));
  }
}

}  // namespace demohost
