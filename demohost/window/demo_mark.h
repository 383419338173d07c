// The mark by which a window of the demonstration can't be taken for one of a real bank. Watches every
// window of the program, so no window has to ask for it.
#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace demohost {

/// Puts a badge in the upper right corner of every window of the program and a suffix after its title.
/// Windows without a frame, menus and tool tips stay as they are.
class DemoMark : public QObject {
 public:
  /// Begins to watch the application's windows; the text is empty at first.
  explicit DemoMark(QObject* parent);

  /// Changes the text of every badge, also of those that are shown.
  void SetText(const QString& text);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Mark(QWidget* window);
  void MarkTitle(QWidget* window);
  void Place(QWidget* window);

  QString text_;
};

}  // namespace demohost
