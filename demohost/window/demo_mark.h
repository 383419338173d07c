#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace demohost {

// Tells every window of the program apart from those of a real bank: a badge in its upper right corner and a
// suffix of its title. Windows without a frame, menus and tool tips stay as they are.
class DemoMark : public QObject {
 public:
  explicit DemoMark(QObject* parent);
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
