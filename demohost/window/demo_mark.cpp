#include "demohost/window/demo_mark.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QWidget>

namespace demohost {
namespace {

constexpr const char* kBadge = "demohost_badge";

bool IsMarked(const QWidget* window) {
  const Qt::WindowType type = window->windowType();
  const bool framed = !(window->windowFlags() & Qt::FramelessWindowHint);
  return window->isWindow() && (type == Qt::Window || type == Qt::Dialog) && framed;
}

QLabel* BadgeOf(const QWidget* window) {
  return window->findChild<QLabel*>(kBadge, Qt::FindDirectChildrenOnly);
}

}  // namespace

DemoMark::DemoMark(QObject* parent) : QObject(parent) {
  qApp->installEventFilter(this);
}

void DemoMark::SetText(const QString& text) {
  text_ = text;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (QLabel* badge = BadgeOf(window)) {
      badge->setText(text_);
      Place(window);
    }
  }
}

bool DemoMark::eventFilter(QObject* object, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type != QEvent::Show && type != QEvent::Resize && type != QEvent::WindowTitleChange) return false;
  auto* window = qobject_cast<QWidget*>(object);
  if (window == nullptr || !IsMarked(window)) return false;
  if (type == QEvent::Show) {
    Mark(window);
  } else if (type == QEvent::Resize) {
    Place(window);
  } else {
    MarkTitle(window);
  }
  return false;
}

void DemoMark::Mark(QWidget* window) {
  if (BadgeOf(window) == nullptr) {
    auto* badge = new QLabel(text_, window);
    badge->setObjectName(kBadge);
    badge->setProperty("decoration", true);
    badge->setAttribute(Qt::WA_TransparentForMouseEvents);
    badge->setFocusPolicy(Qt::NoFocus);
    badge->setStyleSheet(
        QStringLiteral("background: #c62828; color: white; padding: 1px 8px; font-size: 8pt;"));
    badge->show();
  }
  MarkTitle(window);
  Place(window);
}

void DemoMark::MarkTitle(QWidget* window) {
  const QString suffix = QStringLiteral(" [") + text_ + QLatin1Char(']');
  if (window->isVisible() && !window->windowTitle().endsWith(suffix))
    window->setWindowTitle(window->windowTitle() + suffix);
}

void DemoMark::Place(QWidget* window) {
  QLabel* badge = BadgeOf(window);
  if (badge == nullptr) return;
  badge->adjustSize();
  badge->move(window->width() - badge->width(), 0);
  badge->raise();
}

}  // namespace demohost
