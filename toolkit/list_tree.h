// The Qt view under a list view: a tree widget that behaves as a list, with room in its rows, captions cut at
// their end, grid lines and a strip of sums. Only the list view uses it; it knows rows and columns as Qt's
// model has them.
#pragma once

#include <QString>
#include <QTreeView>
#include <functional>

class TListSumBar;

/// The Qt view of a list view: a tree without branches, whose rows are all of one height.
class TListTree : public QTreeView {
 public:
  TListTree();

  /// Draws lines between rows and columns, or none.
  void SetGridLines(bool on);
  /// Whether the selection shows only with the focus; true at the start.
  void SetHideSelection(bool on);
  /// Text of a column's cell in the strip below the rows; unset: no strip.
  void SetSums(std::function<QString(int column)> sums);
  /// Whether the selected row isn't marked: the selection is to be hidden, and the focus is elsewhere.
  bool HidesSelection() const;
  /// Marks the selected row, or not, as things are now.
  void ShowSelection();
  /// Leaves room for a few rows, whatever the font.
  QSize minimumSizeHint() const override;
  /// No higher than that: a list takes the room that others leave over.
  QSize sizeHint() const override;

  /// Runs after the view has done what a mouse event on it asks for.
  std::function<void(QMouseEvent* event)> OnMouse;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
  void updateGeometries() override;

 private:
  /// Of the first row; while there is none, that of a row of plain text.
  int RowHeight() const;
  bool OnCheckBox(const QPoint& point) const;
  void Report(QMouseEvent* event);

  TListSumBar* sumBar_ = nullptr;
  bool gridLines_ = false;
  bool hideSelection_ = true;
};
