#include <algorithm>

#include "toolkit/list_model.h"

void TListColumn::SetCaption(const std::string& caption) {
  caption_ = caption;
  Changed();
}

int TListColumn::Bounded(int width) const {
  width = std::max({width, min_width_, 0});
  return max_width_ > 0 ? std::min(width, max_width_) : width;
}

void TListColumn::SetWidth(int width) {
  width_ = Bounded(width);
  Changed();
}

void TListColumn::SetMinWidth(int width) {
  min_width_ = width;
  SetWidth(width_);
}

void TListColumn::SetMaxWidth(int width) {
  max_width_ = width;
  SetWidth(width_);
}

void TListColumn::SetAlignment(TAlignment alignment) {
  alignment_ = alignment;
  Changed();
}

void TListColumn::SetTag(int tag) {
  tag_ = tag;
  Changed();
}

int TListColumn::Index() const {
  const TListColumns& columns = view_->Columns();
  int index = 0;
  while (columns[index] != this) ++index;
  return index;
}

void TListColumn::Changed() {
  view_->ShowColumn(Index());
}

TListColumn* TListColumns::Add() {
  view_->Model()->ChangeColumns(Count(), Count(), true,
                                [this] { columns_.emplace_back(new TListColumn(view_, next_id_++)); });
  view_->ShowColumn(Count() - 1);
  return columns_.back().get();
}

void TListColumns::Clear() {
  if (columns_.empty()) return;
  view_->Model()->ChangeColumns(0, Count() - 1, false, [this] { columns_.clear(); });
}

TListColumn* TListColumns::FindItemID(int id) const {
  const auto found = std::ranges::find(columns_, id, [](const auto& column) { return column->ID(); });
  return found == columns_.end() ? nullptr : found->get();
}
