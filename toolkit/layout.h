// How the controls of a container are arranged: rows, columns and grids that follow the fonts. Forms build
// their pages with them in BuildControls; controls placed by pixels or by TAlign need none.
#pragma once

class QBoxLayout;
class QGridLayout;
class QLayout;
class QWidget;
class TControl;
class TLabel;
class TWinControl;

/// How a control fills its cell.
enum TCellAlign { caFill, caLeft, caRight, caCenter, caTop };

class TGridLayout;
class TRowLayout;
class TColumnLayout;

/// Handles to layouts of a container's client area. A handle is a small value; Qt owns the layout. Adding a
/// control makes the container its parent. Sizes follow the controls' fonts, so a form stays readable at any
/// font size.
class TLayout {
 public:
  /// Room round the layout, pixels.
  void SetMargins(int left, int top, int right, int bottom);
  /// Room between controls, pixels.
  void SetSpacing(int spacing);

 protected:
  explicit TLayout(TWinControl* parent) : parent_(parent) {}
  void Init(QLayout* layout);
  void Adopt(TControl* control);

  TWinControl* parent_;
  QLayout* layout_ = nullptr;
};

/// Controls in a row or a column, one after the other.
class TBoxLayout : public TLayout {
 public:
  /// Adds a control; of the room left over it takes a share by its stretch.
  void Add(TControl* control, int stretch = 0, TCellAlign align = caFill);
  /// Adds room of a fixed size, pixels.
  void AddSpace(int size);
  /// Adds room that takes a share of what is left over.
  void AddStretch(int stretch = 1);
  /// Adds a row inside this layout, which takes a share of the room left over by its stretch.
  TRowLayout AddRow(int stretch = 0);
  /// The same for a column.
  TColumnLayout AddColumn(int stretch = 0);
  /// The same for a grid.
  TGridLayout AddGrid(int stretch = 0);

 protected:
  using TLayout::TLayout;
  QBoxLayout* Box() const;
};

/// From left to right.
class TRowLayout : public TBoxLayout {
 public:
  /// Replaces the container's layout; the margins are 0.
  explicit TRowLayout(TWinControl* container);

 private:
  friend class TBoxLayout;
  friend class TGridLayout;
  TRowLayout(TWinControl* parent, QLayout* layout);
};

/// From top to bottom.
class TColumnLayout : public TBoxLayout {
 public:
  /// Replaces the container's layout; the margins are 0.
  explicit TColumnLayout(TWinControl* container);

 private:
  friend class TBoxLayout;
  friend class TGridLayout;
  TColumnLayout(TWinControl* parent, QLayout* layout);
};

/// Cells in rows and columns, counted from 0.
class TGridLayout : public TLayout {
 public:
  /// Replaces the container's layout; the margins are 0.
  explicit TGridLayout(TWinControl* container);

  /// Puts a control into a cell, over the given numbers of rows and columns.
  void Put(TControl* control, int row, int column, int rowSpan = 1, int columnSpan = 1,
           TCellAlign align = caFill);
  /// Puts a row of controls into a cell.
  TRowLayout PutRow(int row, int column, int rowSpan = 1, int columnSpan = 1);
  /// Puts a label, its control and the "*" of a mandatory field (null: none) into three cells from
  /// column on: the label right-aligned, the control filling.
  void PutField(int row, int column, TLabel* label, TControl* control, TLabel* star = nullptr);
  /// Share of a column in the width left over; 0 at the start.
  void SetColumnStretch(int column, int stretch);
  /// Share of a row in the height left over; 0 at the start.
  void SetRowStretch(int row, int stretch);
  /// Minimum width of a column, pixels.
  void SetColumnMinimum(int column, int width);
  /// Minimum height of a row, pixels.
  void SetRowMinimum(int row, int height);

 private:
  friend class TBoxLayout;
  TGridLayout(TWinControl* parent, QLayout* layout);
  QGridLayout* Grid() const;
};
