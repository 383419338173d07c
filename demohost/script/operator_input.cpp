#include <QAbstractButton>
#include <QComboBox>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <algorithm>

#include "demohost/script/operator.h"

namespace demohost {
namespace {

// The place of the one choice that is meant: by its whole text, by its key, by a beginning that only it has,
// or by its place counted from 0; -1 if there is none.
int PlaceOf(const QStringList& texts, const QStringList& keys, const QString& choice) {
  if (const auto place = texts.indexOf(choice); place >= 0) return static_cast<int>(place);
  if (const auto place = keys.indexOf(choice); place >= 0) return static_cast<int>(place);
  const QStringList beginning =
      texts.filter(QRegularExpression(QLatin1Char('^') + QRegularExpression::escape(choice)));
  if (beginning.size() == 1) return static_cast<int>(texts.indexOf(beginning[0]));
  bool counted = false;
  const int place = choice.toInt(&counted);
  return counted && place >= 0 && place < texts.size() ? place : -1;
}

int RequirePlace(const QWidget* control, const QStringList& texts, const QStringList& keys,
                 const QString& choice) {
  const int place = PlaceOf(texts, keys, choice);
  if (place >= 0) return place;
  throw NotYet(QStringLiteral("%1 doesn't offer \"%2\", but: %3")
                   .arg(control->objectName(), choice, texts.join(QLatin1String(", "))));
}

QStringList Entries(const QAbstractItemModel& model, int role) {
  QStringList entries;
  for (int row = 0; row < model.rowCount(); ++row) entries << model.index(row, 0).data(role).toString();
  return entries;
}

void SetTick(QAbstractItemModel& model, int row, bool on) {
  model.setData(model.index(row, 0), on ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
}

}  // namespace

Operator::Action Operator::Set(const QStringList& words) {
  QWidget* control = Control(words[0]);
  RequireEnabled(control);
  const QString text = words.value(1);
  if (auto* button = FindControlAs<QAbstractButton>(Target(), words[0]);
      button != nullptr && button->isCheckable()) {
    return [button, on = text == QLatin1String("on")] {
      if (button->isChecked() != on) button->click();
    };
  }
  auto* edit = FindControlAs<QLineEdit>(Target(), words[0]);
  auto* memo = edit == nullptr ? FindControlAs<QPlainTextEdit>(Target(), words[0]) : nullptr;
  if (edit == nullptr && memo == nullptr) throw NotYet(QStringLiteral("%1 isn't an edit").arg(words[0]));
  QWidget* field = edit != nullptr ? static_cast<QWidget*>(edit) : memo;
  return [field, text] {
    field->window()->activateWindow();
    field->setFocus(Qt::TabFocusReason);
    PressKeys(field, QStringLiteral("Ctrl+A"));
    PressKeys(field, QStringLiteral("Del"));
    TypeText(field, text);
  };
}

Operator::Action Operator::Select(const QStringList& words) {
  QWidget* control = Control(words[0]);
  RequireEnabled(control);
  if (auto* combo = FindControlAs<QComboBox>(Target(), words[0])) return SelectInCombo(combo, words[1]);
  if (auto* list = FindControlAs<QAbstractItemView>(Target(), words[0]))
    return SelectInList(list, words.mid(1));
  return SelectInGroup(control, words[1]);
}

Operator::Action Operator::SelectInCombo(QComboBox* combo, const QString& choice) {
  const QAbstractItemModel& model = *combo->model();
  const int place =
      RequirePlace(combo, Entries(model, Qt::DisplayRole), Entries(model, Qt::UserRole), choice);
  return [combo, place] {
    combo->setFocus(Qt::TabFocusReason);
    // The keys that the operator would press run the box's own handling of a choice.
    while (combo->currentIndex() != place) {
      const int before = combo->currentIndex();
      PressKeys(combo, before < place ? QStringLiteral("Down") : QStringLiteral("Up"));
      if (combo->currentIndex() == before)
        throw NotYet(QStringLiteral("%1 doesn't move").arg(combo->objectName()));
    }
  };
}

Operator::Action Operator::SelectInList(QAbstractItemView* list, const QStringList& choices) {
  const QAbstractItemModel* model = list->model();
  std::vector<int> places;
  const bool all = choices == QStringList{"all"};
  const bool none = choices == QStringList{"none"};
  for (const QString& choice : all || none ? QStringList() : choices) {
    places.push_back(
        RequirePlace(list, Entries(*model, Qt::DisplayRole), Entries(*model, Qt::UserRole), choice));
  }
  for (int row = 0; all && row < model->rowCount(); ++row) places.push_back(row);
  return [list, model, places] {
    list->setFocus(Qt::TabFocusReason);
    list->selectionModel()->clearSelection();
    for (const int place : places) {
      list->selectionModel()->select(model->index(place, 0), QItemSelectionModel::Select);
    }
  };
}

Operator::Action Operator::SelectInGroup(QWidget* group, const QString& choice) {
  const QList<QRadioButton*> buttons = group->findChildren<QRadioButton*>();
  QStringList texts;
  for (const QRadioButton* button : buttons) texts << button->text();
  QRadioButton* button = buttons.value(RequirePlace(group, texts, {}, choice));
  return [button] { button->click(); };
}

Operator::Action Operator::Tick(const QStringList& words) {
  QAbstractItemView* list = List(words.value(1));
  RequireEnabled(list);
  QAbstractItemModel* model = list->model();
  std::vector<int> rows;
  const bool on = words[0] != QLatin1String("none");
  if (on && words[0] != QLatin1String("all")) {
    rows = ParseNumbers(words[0]);
  } else {
    for (int row = 1; row <= model->rowCount(); ++row) rows.push_back(row);
  }
  if (!rows.empty() && *std::max_element(rows.begin(), rows.end()) > model->rowCount()) {
    throw NotYet(QStringLiteral("the list has %1 rows").arg(model->rowCount()));
  }
  return [model, rows, on] {
    for (const int row : rows) SetTick(*model, row - 1, on);
  };
}

Operator::Action Operator::Row(const QStringList& words) {
  QAbstractItemView* list = List(words.value(1));
  const int row = words[0].toInt();
  if (row < 1 || row > list->model()->rowCount()) {
    throw NotYet(QStringLiteral("the list has %1 rows").arg(list->model()->rowCount()));
  }
  return [list, row] {
    list->setFocus(Qt::TabFocusReason);
    list->setCurrentIndex(list->model()->index(row - 1, 0));
  };
}

}  // namespace demohost
