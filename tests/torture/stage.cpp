#include "tests/torture/stage.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QTreeView>
#include <sstream>

namespace {

constexpr int kMaxDialogs = 20;  // at one move; more are no end of them
constexpr int kBillsOfAnAnswer = 3;

std::string CellsOf(const QAbstractItemView* view) {
  const QAbstractItemModel* model = view->model();
  std::string cells;
  for (int column = 0; column < model->columnCount(); ++column) {
    cells += model->headerData(column, Qt::Horizontal).toString().toStdString() + "|";
  }
  for (int cell = 0; cell < model->rowCount() * model->columnCount(); ++cell) {
    const QModelIndex index = model->index(cell / model->columnCount(), cell % model->columnCount());
    cells += index.data().toString().toStdString() + index.data(Qt::CheckStateRole).toString().toStdString() +
             (view->selectionModel()->isSelected(index) ? "*|" : "|");
  }
  return cells;
}

// What a screen reader gets of a window, but for the cells of lists, which it keeps longer than they live.
std::string PictureOf(const QAccessibleInterface* at) {
  if (const auto* view = qobject_cast<const QAbstractItemView*>(at->object())) return CellsOf(view);
  const QAccessible::State state = at->state();
  QString text = at->text(QAccessible::Name) + QLatin1Char('=') + at->text(QAccessible::Value);
  if (state.checked) text += QLatin1Char('+');
  if (state.disabled) text += QLatin1Char('!');
  std::string picture = text.toStdString() + " ";
  for (int i = 0; i < at->childCount(); ++i) {
    const QAccessibleInterface* child = at->child(i);
    if (child && !child->state().invisible) picture += PictureOf(child);
  }
  return picture;
}

std::string PictureOf(QWidget* window) {
  return window->objectName().toStdString() + ": " +
         PictureOf(QAccessible::queryAccessibleInterface(window)) + "\n";
}

// The shown windows of the module, in the order of their names.
QWidgetList ShownWindows() {
  QWidgetList windows;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->objectName().startsWith(QLatin1Char('T'))) windows << window;
  }
  std::sort(windows.begin(), windows.end(),
            [](const QWidget* a, const QWidget* b) { return a->objectName() < b->objectName(); });
  return windows;
}

void Press(const QWidget* window, const std::string& name) {
  auto* button = window ? window->findChild<QAbstractButton*>(QString::fromStdString(name)) : nullptr;
  if (button && button->isEnabled()) button->click();
}

}  // namespace

Stage::Stage(const ModuleLibrary& module, FailingHost& host) : module_(module), host_(host) {
  Watch();
}

std::string Stage::Play(const std::string& scenario) {
  seen_.clear();
  file_.clear();
  busy_ = false;
  std::istringstream moves(scenario + " close");
  for (std::string move; moves >> move;) {
    dialogs_ = 0;
    seen_ += "-- " + move + "\n";
    const std::size_t end = std::min(move.find_first_of(":="), move.size());
    try {
      Move(move.substr(0, end), move.substr(std::min(end + 1, move.size())));
    } catch (const corvane::TException& exception) {
      seen_ += "thrown " + exception.getMessage("|") + "\n";
    } catch (const std::exception& exception) {
      broken.insert(std::string("an exception of another class: ") + exception.what());
    }
    QCoreApplication::processEvents();
    Check();
    for (QWidget* window : ShownWindows()) seen_ += PictureOf(window);
  }
  return seen_ + host_.sent;
}

void Stage::Move(const std::string& verb, const std::string& what) {
  if (verb == "start") {
    if (!running_) module_.InitModule(host_.publicInformation);
    running_ = true;
  } else if (verb == "release") {
    Release();
  } else if (verb == "pick") {
    screen_ = what == "6" ? "TfrmNorvikQry" : what == "7" ? "TfrmNorvikELoanQry" : "TfrmNorvikDTLQry";
    module_.Pick("ITEM606" + what);
  } else if (verb == "tick") {
    Tick(std::stoi(what));
  } else if (verb == "column") {
    ClickColumnEntry(std::stoi(what));
  } else if (verb == "bank") {
    host_.bank = what[0];
  } else if (verb == "file") {
    file_ = QString::fromStdString(what);
  } else if (verb == "busy") {
    busy_ = true;
  } else if (verb == "close") {
    for (QWidget* window : ShownWindows()) window->close();
  } else if (auto* box = Find<QComboBox>(verb)) {
    box->setCurrentIndex(std::stoi(what));
  } else if (auto* edit = Find<QLineEdit>(verb)) {
    edit->setText(QString::fromStdString(what));
  } else {
    Press(Find<QWidget>(""), verb);
  }
}

void Stage::Release() {
  running_ = false;
  module_.Release();
  const std::size_t calls = host_.calls.size();
  QCoreApplication::processEvents();
  if (host_.calls.size() != calls) broken.insert("the host is called after the end");
  if (!ShownWindows().empty()) broken.insert("a window after the end");
}

// A control of the screen picked last, or with no name its window; null where that isn't shown.
template <class Widget>
Widget* Stage::Find(const std::string& name) const {
  QWidget* const window = WindowOf(screen_);
  if (!window || !window->isVisible()) return nullptr;
  return name.empty() ? qobject_cast<Widget*>(window)
                      : window->findChild<Widget*>(QString::fromStdString(name));
}

void Stage::Tick(int row) {
  const auto* view = Find<QTreeView>("m_lvMain");
  if (!view || view->model()->rowCount() <= row) return;
  const QModelIndex box = view->model()->index(row, 0);
  const bool ticked = box.data(Qt::CheckStateRole).toInt() == Qt::Checked;
  view->model()->setData(box, ticked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

void Stage::ClickColumnEntry(int entry) {
  Press(Find<QWidget>(""), "m_tbHideColumn");
  auto* menu = Find<QMenu>("m_pumColumn");
  if (!menu || !menu->isVisible()) return;
  seen_ += PictureOf(menu);
  if (entry < menu->actions().size()) menu->actions()[entry]->trigger();
  menu->close();
}

// The next look is due before this one answers a dialog, since the answer may bring another dialog.
void Stage::Watch() {
  QTimer::singleShot(1, &watch_, [this] { Watch(); });
  QWidget* const dialog = QApplication::activeModalWidget();
  if (dialog && dialog->isVisible() && dialog->objectName() != QLatin1String("TBarForm")) Answer(dialog);
}

void Stage::Answer(QWidget* shown) {
  const QPointer<QWidget> dialog(shown);
  const QString name = dialog->objectName();
  if (++dialogs_ > kMaxDialogs) broken.insert("no end of dialogs");
  const QWidgetList windows = ShownWindows();
  if (std::count_if(windows.begin(), windows.end(), [](const QWidget* window) {
        return window->objectName() == QLatin1String("TFrmErrorMsg");
      }) > 1) {
    broken.insert("two reports at a time");
  }
  CheckRows(dialog);
  if (auto* files = qobject_cast<QFileDialog*>(shown)) {
    files->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(file_);
    file_.isEmpty() ? files->reject() : static_cast<QDialog*>(files)->accept();
    return;
  }
  seen_ += PictureOf(dialog);
  for (const char* button : {"m_crbAllCheck", "m_spdSum", "m_tbExport"}) {
    if (busy_ && dialog && name.endsWith(QLatin1String("Dtl"))) Press(dialog, button);
  }
  if (dialog && busy_) seen_ += PictureOf(dialog);
  if (dialog && name == QLatin1String("TFrmComMsg")) Press(dialog, "m_btnOk");
  if (dialog) dialog->close();
}

void Stage::Check() {
  if (QApplication::activeModalWidget()) broken.insert("a dialog stays open");
  for (const QWidget* window : ShownWindows()) CheckRows(window);
  if (host_.given != host_.released) broken.insert("a buffer was not given back");
  if (host_.wronglyReleased != 0) broken.insert("a buffer was given back twice");
}

// A list holds all bills of one answer that came whole, or none.
void Stage::CheckRows(const QWidget* window) {
  const auto* view = window->findChild<QTreeView*>(QStringLiteral("m_lvMain"));
  if (!view) return;
  const QAbstractItemModel* model = view->model();
  if (model->rowCount() != 0 && model->rowCount() != kBillsOfAnAnswer) broken.insert("a part of an answer");
  for (int cell = 0; cell < model->rowCount() * model->columnCount(); ++cell) {
    const QString text =
        model->index(cell / model->columnCount(), cell % model->columnCount()).data().toString();
    if (text.startsWith(QLatin1Char('B')) && !host_.whole.contains(text.mid(1).toInt())) {
      broken.insert("rows of an answer that did not come");
    }
  }
}
