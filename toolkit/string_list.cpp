#include "toolkit/string_list.h"

#include <algorithm>
#include <stdexcept>

void TStrings::SetStrings(std::size_t index, const std::string& text) {
  strings_.at(index) = text;
  Changed(index);
}

std::size_t TStrings::Add(const std::string& text) {
  strings_.push_back(text);
  Changed(strings_.size() - 1);
  return strings_.size() - 1;
}

void TStrings::Insert(std::size_t index, const std::string& text) {
  if (index > strings_.size()) throw std::out_of_range("TStrings::Insert");
  strings_.insert(strings_.begin() + static_cast<std::ptrdiff_t>(index), text);
  Changed(index);
}

void TStrings::Delete(std::size_t index) {
  if (index >= strings_.size()) throw std::out_of_range("TStrings::Delete");
  strings_.erase(strings_.begin() + static_cast<std::ptrdiff_t>(index));
  Changed(index);
}

void TStrings::Clear() {
  if (strings_.empty()) return;
  strings_.clear();
  Changed(kManyChanges);
}

void TStrings::Assign(std::vector<std::string> strings) {
  strings_ = std::move(strings);
  Changed(kManyChanges);
}

int TStrings::IndexOf(const std::string& text) const {
  const auto found = std::find(strings_.begin(), strings_.end(), text);
  return found == strings_.end() ? -1 : static_cast<int>(found - strings_.begin());
}

std::string TStrings::Text() const {
  std::string text;
  for (const std::string& line : strings_) text += line + "\r\n";
  return text;
}

void TStrings::SetText(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (start < text.size()) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    std::string line = text.substr(start, end - start);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(std::move(line));
    start = end + 1;
  }
  Assign(std::move(lines));
}

void TStrings::EndUpdate() {
  if (--updating_ == 0 && changed_) Report();
}

void TStrings::Changed(std::size_t index) {
  changedAt_ = changed_ ? kManyChanges : index;
  changed_ = true;
  if (updating_ == 0) Report();
}

void TStrings::Report() {
  changed_ = false;
  if (OnChange) OnChange();
}
