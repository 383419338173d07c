#include "toolkit/layout.h"

#include <QBoxLayout>
#include <QGridLayout>

#include "toolkit/labels.h"
#include "toolkit/win_control.h"

namespace {

Qt::Alignment ToAlignment(TCellAlign align) {
  switch (align) {
    case caLeft:
      return Qt::AlignLeft | Qt::AlignVCenter;
    case caRight:
      return Qt::AlignRight | Qt::AlignVCenter;
    case caCenter:
      return Qt::AlignCenter;
    case caTop:
      return Qt::AlignTop;
    case caFill:
      break;
  }
  return {};
}

// A container that gets a new layout loses its old one; the controls stay its children.
QWidget* Cleared(TWinControl* container) {
  QWidget* client = container->ClientWidget();
  delete client->layout();
  return client;
}

}  // namespace

void TLayout::Init(QLayout* layout) {
  layout_ = layout;
  layout_->setContentsMargins(0, 0, 0, 0);
}

void TLayout::Adopt(TControl* control) {
  control->SetParent(parent_);
}

void TLayout::SetMargins(int left, int top, int right, int bottom) {
  layout_->setContentsMargins(left, top, right, bottom);
}

void TLayout::SetSpacing(int spacing) {
  layout_->setSpacing(spacing);
}

QBoxLayout* TBoxLayout::Box() const {
  return static_cast<QBoxLayout*>(layout_);
}

void TBoxLayout::Add(TControl* control, int stretch, TCellAlign align) {
  Adopt(control);
  Box()->addWidget(control->Widget(), stretch, ToAlignment(align));
}

void TBoxLayout::AddSpace(int size) {
  Box()->addSpacing(size);
}

void TBoxLayout::AddStretch(int stretch) {
  Box()->addStretch(stretch);
}

TRowLayout TBoxLayout::AddRow(int stretch) {
  auto* row = new QHBoxLayout;
  Box()->addLayout(row, stretch);
  return TRowLayout(parent_, row);
}

TColumnLayout TBoxLayout::AddColumn(int stretch) {
  auto* column = new QVBoxLayout;
  Box()->addLayout(column, stretch);
  return TColumnLayout(parent_, column);
}

TGridLayout TBoxLayout::AddGrid(int stretch) {
  auto* grid = new QGridLayout;
  Box()->addLayout(grid, stretch);
  return TGridLayout(parent_, grid);
}

TRowLayout::TRowLayout(TWinControl* container) : TRowLayout(container, new QHBoxLayout(Cleared(container))) {}

TRowLayout::TRowLayout(TWinControl* parent, QLayout* layout) : TBoxLayout(parent) {
  Init(layout);
}

TColumnLayout::TColumnLayout(TWinControl* container)
    : TColumnLayout(container, new QVBoxLayout(Cleared(container))) {}

TColumnLayout::TColumnLayout(TWinControl* parent, QLayout* layout) : TBoxLayout(parent) {
  Init(layout);
}

TGridLayout::TGridLayout(TWinControl* container)
    : TGridLayout(container, new QGridLayout(Cleared(container))) {}

TGridLayout::TGridLayout(TWinControl* parent, QLayout* layout) : TLayout(parent) {
  Init(layout);
}

QGridLayout* TGridLayout::Grid() const {
  return static_cast<QGridLayout*>(layout_);
}

void TGridLayout::Put(TControl* control, int row, int column, int rowSpan, int columnSpan, TCellAlign align) {
  Adopt(control);
  Grid()->addWidget(control->Widget(), row, column, rowSpan, columnSpan, ToAlignment(align));
}

TRowLayout TGridLayout::PutRow(int row, int column, int rowSpan, int columnSpan) {
  auto* inside = new QHBoxLayout;
  Grid()->addLayout(inside, row, column, rowSpan, columnSpan);
  return TRowLayout(parent_, inside);
}

void TGridLayout::PutField(int row, int column, TLabel* label, TControl* control, TLabel* star) {
  label->SetAlignment(taRightJustify);
  Put(label, row, column);
  Put(control, row, column + 1);
  if (star != nullptr) Put(star, row, column + 2);
}

void TGridLayout::SetColumnStretch(int column, int stretch) {
  Grid()->setColumnStretch(column, stretch);
}
void TGridLayout::SetRowStretch(int row, int stretch) {
  Grid()->setRowStretch(row, stretch);
}
void TGridLayout::SetColumnMinimum(int column, int width) {
  Grid()->setColumnMinimumWidth(column, width);
}
void TGridLayout::SetRowMinimum(int row, int height) {
  Grid()->setRowMinimumHeight(row, height);
}
