#include "toolkit/list_item.h"

#include <algorithm>
#include <stdexcept>

#include "toolkit/list_model.h"
#include "toolkit/list_view.h"

std::string TListItem::Caption() const {
  return model_->Text(*row_, 0);
}

void TListItem::SetCaption(const std::string& caption) {
  model_->SetText(*row_, 0, caption);
}

std::string TListItem::SubItems(int index) const {
  return model_->Text(*row_, index + 1);
}

void TListItem::SetSubItems(int index, const std::string& text) {
  if (index < 0) throw std::out_of_range("no such sub-item");
  model_->SetText(*row_, index + 1, text);
}

int TListItem::SubItemCount() const {
  const std::size_t fields = row_->record && model_->columnIds != nullptr ? model_->columnIds->size() : 0;
  const std::size_t texts = std::max(fields, row_->texts.size());
  return texts == 0 ? 0 : static_cast<int>(texts) - 1;
}

void TListItem::AddSubItem(const std::string& text) {
  SetSubItems(SubItemCount(), text);
}

bool TListItem::Checked() const {
  return row_->checked;
}

void TListItem::SetChecked(bool checked) {
  model_->SetChecked(*row_, checked);
}

bool TListItem::Selected() const {
  return model_->View()->Selected() == this;
}

void TListItem::SetSelected(bool selected) {
  if (selected) {
    model_->View()->SetSelected(this);
  } else if (Selected()) {
    model_->View()->SetSelected(nullptr);
  }
}

bool TListItem::Focused() const {
  return model_->View()->ItemFocused() == this;
}

void TListItem::SetFocused(bool focused) {
  if (focused) {
    model_->View()->SetItemFocused(this);
  } else if (Focused()) {
    model_->View()->SetItemFocused(nullptr);
  }
}

void TListItem::SetState(int index, bool on) {
  constexpr int kFocused = 2;
  constexpr int kSelected = 3;
  if (index == kFocused) SetFocused(on);
  if (index == kSelected) SetSelected(on);
}

int TListItem::Index() const {
  return model_->IndexOf(row_);
}

corvane::Property* TListItem::Data() const {
  return row_->record ? &*row_->record : nullptr;
}

void TListItem::Delete() {
  model_->View()->Items().Delete(Index());
}

int TListItems::Count() const {
  return model_->Count();
}

TListItem* TListItems::Item(int index) const {
  return &model_->Row(index).item;
}

TListItem* TListItems::Add() {
  return Insert(Count());
}

TListItem* TListItems::Insert(int index) {
  return &model_->Insert(index).item;
}

void TListItems::Delete(int index) {
  const TListItem* item = Item(index);
  TCustomListView* view = model_->View();
  if (item == view->Selected()) view->SetSelected(nullptr);
  if (item == view->ItemFocused()) view->SetItemFocused(nullptr);
  model_->Delete(index);
}

void TListItems::Clear() {
  model_->View()->Clear();
}
