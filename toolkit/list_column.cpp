#include "toolkit/list_column.h"

#include <algorithm>

void TListColumn::SetCaption(const std::string& caption) {
  caption_ = caption;
  Changed();
}

int TListColumn::Bounded(int width) const {
  width = std::max({width, minWidth_, 0});
  return maxWidth_ > 0 ? std::min(width, maxWidth_) : width;
}

void TListColumn::SetWidth(int width) {
  width_ = Bounded(width);
  Changed();
}

void TListColumn::SetMinWidth(int width) {
  minWidth_ = width;
  SetWidth(width_);
}

void TListColumn::SetMaxWidth(int width) {
  maxWidth_ = width;
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
  int index = 0;
  while ((*columns_)[index] != this) ++index;
  return index;
}

void TListColumn::TakeDraggedWidth(int width) {
  width_ = std::max(Bounded(width), 1);
}

void TListColumn::Changed() {
  columns_->OnChange(Index());
}

TListColumn* TListColumns::Add() {
  OnCountChange(Count(), Count(), true,
                [this] { columns_.push_back(std::make_unique<TListColumn>(this, nextId_++)); });
  OnChange(Count() - 1);
  return columns_.back().get();
}

void TListColumns::Clear() {
  if (columns_.empty()) return;
  OnCountChange(0, Count() - 1, false, [this] { columns_.clear(); });
}

TListColumn* TListColumns::FindItemID(int id) const {
  const auto found = std::ranges::find(columns_, id, [](const auto& column) { return column->ID(); });
  return found == columns_.end() ? nullptr : found->get();
}

void TListColumns::Move(int from, int to) {
  auto column = std::move(columns_[static_cast<std::size_t>(from)]);
  columns_.erase(columns_.begin() + from);
  columns_.insert(columns_.begin() + to, std::move(column));
}
