#include "tools/dialog_pictures/fitting.h"

#include <QAbstractButton>
#include <QFontMetrics>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QRegularExpression>

namespace {

constexpr const char* kDecoration = "decoration";  // property of what the host puts on every window

void Judge(const QString& name, const QString& text, int wanted, int room, QStringList& faults) {
  static const QRegularExpression kKey(QStringLiteral("^[A-Z]{2}[0-9]{5}:?$"));
  if (kKey.match(text).hasMatch()) faults << QStringLiteral("%1 shows the key %2").arg(name, text);
  if (wanted > room) faults << QStringLiteral("%1 has no room for \"%2\"").arg(name, text);
}

void JudgeHeadings(const QHeaderView* header, QStringList& faults) {
  for (int i = 0; i < header->count(); ++i) {
    if (header->isSectionHidden(i) || header->orientation() != Qt::Horizontal) continue;
    const QString text = header->model()->headerData(i, Qt::Horizontal).toString();
    Judge(QStringLiteral("a heading"), text, header->sectionSizeHint(i), header->sectionSize(i), faults);
  }
}

}  // namespace

QStringList FaultsOfTexts(const QWidget* window) {
  QStringList faults;
  Judge(QStringLiteral("the window"), window->windowTitle(), 0, 0, faults);
  for (const QWidget* widget : window->findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->property(kDecoration).toBool()) continue;
    const QString name = widget->objectName();
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
      const int wanted =
          label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().width();
      Judge(name, label->text(), wanted, label->wordWrap() ? label->height() : label->width(), faults);
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
      Judge(name, button->text(), button->text().isEmpty() ? 0 : button->sizeHint().width(), button->width(),
            faults);
    } else if (const auto* group = qobject_cast<const QGroupBox*>(widget)) {
      Judge(name, group->title(), QFontMetrics(group->font()).horizontalAdvance(group->title()),
            group->width(), faults);
    } else if (const auto* header = qobject_cast<const QHeaderView*>(widget)) {
      JudgeHeadings(header, faults);
    }
  }
  return faults;
}
