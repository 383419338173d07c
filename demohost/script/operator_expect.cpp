#include <QAbstractButton>
#include <QFileInfo>

#include "demohost/script/operator.h"

namespace demohost {
namespace {

// A count as a script writes it: "5", ">0" or "<10". Throws NotYet for anything else.
bool Meets(int count, const QString& wanted) {
  const QChar sign = wanted.isEmpty() ? QChar() : wanted[0];
  const bool compared = sign == QLatin1Char('>') || sign == QLatin1Char('<');
  bool good = false;
  const int number = wanted.mid(compared ? 1 : 0).toInt(&good);
  if (!good) throw NotYet(QStringLiteral("\"%1\" isn't a count").arg(wanted));
  if (sign == QLatin1Char('>')) return count > number;
  if (sign == QLatin1Char('<')) return count < number;
  return count == number;
}

void RequireText(const QString& text, const QString& wanted) {
  if (text != wanted) throw NotYet(QStringLiteral("it says \"%1\"").arg(text));
}

}  // namespace

Operator::Action Operator::Expect(const QStringList& words) {
  const QString& kind = words[0];
  if (kind == QLatin1String("dialog")) {
    ExpectDialog(words[1]);
  } else if (kind == QLatin1String("title")) {
    RequireText(Target()->windowTitle(), words[1]);
  } else if (kind == QLatin1String("text")) {
    RequireText(ControlText(Control(words[1])), words[2]);
  } else if (kind == QLatin1String("rows") || kind == QLatin1String("ticked")) {
    ExpectCount(kind, words.mid(1));
  } else if (kind == QLatin1String("cell")) {
    ExpectCell(words[1], words[2]);
  } else if (kind == QLatin1String("file")) {
    if (!QFileInfo::exists(words[1])) throw NotYet(QStringLiteral("there is no file %1").arg(words[1]));
  } else if (kind == QLatin1String("column")) {
    ExpectColumn(words[1], words[2]);
  } else if (kind == QLatin1String("focus")) {
    ExpectFocus(Control(words[1]));
  } else {
    ExpectState(kind, words[1]);
  }
  return {};
}

void Operator::ExpectCount(const QString& what, const QStringList& words) {
  const QAbstractItemView* list = List(words.value(1));
  const int count = what == QLatin1String("rows") ? list->model()->rowCount() : TickedRows(*list);
  if (!Meets(count, words[0])) throw NotYet(QStringLiteral("the list has %1 %2").arg(count).arg(what));
}

void Operator::ExpectCell(const QString& place, const QString& text) {
  const QAbstractItemModel* model = List()->model();
  const int row = place.section(QLatin1Char(':'), 0, 0).toInt() - 1;
  const QString caption = place.section(QLatin1Char(':'), 1);
  if (row < 0 || row >= model->rowCount()) throw NotYet(QStringLiteral("the list has no such row"));
  for (int column = 0; column < model->columnCount(); ++column) {
    if (model->headerData(column, Qt::Horizontal).toString() != caption) continue;
    return RequireText(model->index(row, column).data().toString(), text);
  }
  throw NotYet(QStringLiteral("the list has no column \"%1\"").arg(caption));
}

void Operator::ExpectColumn(const QString& caption, const QString& state) {
  const bool wanted = state == QLatin1String("shown");
  if (!wanted && state != QLatin1String("hidden"))
    throw NotYet(QStringLiteral("a column is shown or hidden"));
  bool shown = false;
  for (const TableColumn& column : ReadList(*List(), 0, 0).columns)
    shown = shown || column.caption == caption;
  if (shown != wanted) throw NotYet(QStringLiteral("it isn't"));
}

void Operator::ExpectFocus(const QWidget* control) {
  const QWidget* focus = Target()->focusWidget();
  if (focus != nullptr && (focus == control || control->isAncestorOf(focus))) return;
  while (focus != nullptr && focus->objectName().isEmpty()) focus = focus->parentWidget();
  throw NotYet(QStringLiteral("the focus is on %1").arg(focus == nullptr ? QString() : focus->objectName()));
}

void Operator::ExpectState(const QString& state, const QString& control) {
  if (state == QLatin1String("checked") || state == QLatin1String("unchecked")) {
    const bool checked = ControlAs<QAbstractButton>(control, "button")->isChecked();
    if (checked != (state == QLatin1String("checked"))) throw NotYet(QStringLiteral("it isn't"));
    return;
  }
  // An action is in the state of what is bound to it.
  QWidget* widget = FindControl(Target(), control);
  if (widget == nullptr) widget = qobject_cast<QWidget*>(FindActionWidget(Target(), control));
  if (widget == nullptr) Control(control);
  const bool met = state == QLatin1String("enabled")    ? widget->isEnabled()
                   : state == QLatin1String("disabled") ? !widget->isEnabled()
                   : state == QLatin1String("visible")  ? widget->isVisible()
                                                        : !widget->isVisible();
  if (!met) throw NotYet(QStringLiteral("it isn't"));
}

}  // namespace demohost
