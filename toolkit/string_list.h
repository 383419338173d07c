#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// An ordered list of narrow strings that tells its owner of each change. Indexes count from 0.
class TStrings {
 public:
  std::size_t Count() const { return strings_.size(); }
  /// The string at an index; std::out_of_range when there is none.
  const std::string& Strings(std::size_t index) const { return strings_.at(index); }
  const std::string& operator[](std::size_t index) const { return strings_.at(index); }
  /// Replaces the string at an index; std::out_of_range when there is none.
  void SetStrings(std::size_t index, const std::string& text);
  /// Appends a string and returns its index.
  std::size_t Add(const std::string& text);
  /// Inserts a string before an index, at most Count; std::out_of_range beyond.
  void Insert(std::size_t index, const std::string& text);
  /// Removes the string at an index; std::out_of_range when there is none.
  void Delete(std::size_t index);
  void Clear();
  /// Replaces the whole content.
  void Assign(std::vector<std::string> strings);
  /// Index of the first equal string, -1 when there is none.
  int IndexOf(const std::string& text) const;
  /// The strings, each followed by "\r\n".
  std::string Text() const;
  /// Replaces the content by the lines of a text, parted by "\r\n" or "\n".
  void SetText(const std::string& text);

  /// Gathers the changes up to EndUpdate: OnChange runs once then, if there was any. Calls may be nested.
  /// Many entries that are told of one by one take a time that grows with the square of their number.
  void BeginUpdate() { ++updating_; }
  void EndUpdate();

  auto begin() const { return strings_.begin(); }
  auto end() const { return strings_.end(); }

  /// Runs after each change; set by the list's owner.
  std::function<void()> OnChange;
  /// In OnChange: where the one string was put in, taken out or replaced; kManyChanges when it was not one.
  std::size_t ChangedAt() const { return changed_at_; }
  static constexpr std::size_t kManyChanges = static_cast<std::size_t>(-1);

 private:
  void Changed(std::size_t index);
  void Report();

  std::vector<std::string> strings_;
  int updating_ = 0;
  bool changed_ = false;  // since the last OnChange
  std::size_t changed_at_ = kManyChanges;
};

/// Gathers the changes of a list to the end of its block.
class TStringsUpdate {
 public:
  explicit TStringsUpdate(TStrings& strings) : strings_(strings) { strings_.BeginUpdate(); }
  ~TStringsUpdate() { strings_.EndUpdate(); }
  TStringsUpdate(const TStringsUpdate&) = delete;
  TStringsUpdate& operator=(const TStringsUpdate&) = delete;

 private:
  TStrings& strings_;
};
