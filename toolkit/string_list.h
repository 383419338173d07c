// The string lists that boxes and radio groups offer as their entries, and the way in which a control hears
// of a change in one. Objects beside the strings, sorting, files and name-value pairs of the original's lists
// are not there.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// An ordered list of narrow strings that reports each change to its owner. Indexes count from 0.
class TStrings {
 public:
  /// Number of the strings.
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
  /// Removes all strings.
  void Clear();
  /// Replaces all strings.
  void Assign(std::vector<std::string> strings);
  /// Index of the first equal string, -1 when there is none.
  int IndexOf(const std::string& text) const;
  /// The strings, each followed by "\r\n".
  std::string Text() const;
  /// Replaces the content by the lines of a text, separated by "\r\n" or "\n".
  void SetText(const std::string& text);

  /// Gathers the changes up to EndUpdate: OnChange runs once then, if there was any. Calls may be nested.
  /// Many entries that are reported one by one take a time that grows with the square of their number.
  void BeginUpdate() { ++updating_; }
  /// Ends one BeginUpdate.
  void EndUpdate();

  /// The strings in order.
  auto begin() const { return strings_.begin(); }
  auto end() const { return strings_.end(); }

  /// Runs after each change; set by the list's owner.
  std::function<void()> OnChange;
  /// In OnChange: where the one string was inserted, removed or replaced; kManyChanges when it was not one.
  std::size_t ChangedAt() const { return changedAt_; }
  /// What ChangedAt gives for more than one string.
  static constexpr std::size_t kManyChanges = static_cast<std::size_t>(-1);

 private:
  void Changed(std::size_t index);
  void Report();

  std::vector<std::string> strings_;
  int updating_ = 0;
  bool changed_ = false;  // since the last OnChange
  std::size_t changedAt_ = kManyChanges;
};

/// Gathers the changes of a list up to the end of its block.
class TStringsUpdate {
 public:
  explicit TStringsUpdate(TStrings& strings) : strings_(strings) { strings_.BeginUpdate(); }
  ~TStringsUpdate() { strings_.EndUpdate(); }
  TStringsUpdate(const TStringsUpdate&) = delete;
  TStringsUpdate& operator=(const TStringsUpdate&) = delete;

 private:
  TStrings& strings_;
};
