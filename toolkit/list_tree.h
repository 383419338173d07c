#pragma once

#include <QString>
#include <QTreeView>
#include <functional>

class TCustomListView;
class TListSumBar;

/// The Qt view of a list view: a tree without branches, whose rows are all of one height.
class TListTree : public QTreeView {
 public:
  explicit TListTree(TCustomListView* list);

  void SetGridLines(bool on);
  /// Text of a column's cell in the strip below the rows; unset: no strip.
  void SetSums(std::function<QString(int column)> sums);
  /// Whether the selected row isn't marked: with HideSelection, and without the focus.
  bool HidesSelection() const;
  /// Marks the selected row, or not, as things are now.
  void ShowSelection();
  /// Leaves room for a few rows, whatever the font.
  QSize minimumSizeHint() const override;
  /// No higher than that: a list takes the room that others leave over.
  QSize sizeHint() const override;

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

  TCustomListView* list_;
  TListSumBar* sum_bar_ = nullptr;
  bool grid_lines_ = false;
};
