// Shared immutable parts of documents: counted pointers, labels, attributes.
//
// For the classes of documents. // Copies of documents share their parts; a part that is shared is never
// changed. Counts are atomic, so that copies may be used on different threads; one object is not to be used
// on two at once.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <new>
#include <string>
#include <string_view>
#include <utility>

namespace corvane::detail {

/// The base of a part T that Shared<T> points to.
template <class T>
class Counted {
 public:
  Counted() = default;
  Counted(const Counted&) {}
  Counted& operator=(const Counted&) { return *this; }

  void retain() const {
    if (!permanent()) references_.fetch_add(1, std::memory_order_relaxed);
  }
  void release() const {
    if (permanent()) return;
    if (references_.fetch_sub(1, std::memory_order_acq_rel) == 1) T::destroy(static_cast<const T*>(this));
  }
  bool unique() const { return references_.load(std::memory_order_acquire) == 1; }
  /// Ends the counting: the part is shared from here on, and never destroyed.
  void makePermanent() const { references_.store(kPermanent, std::memory_order_relaxed); }
  static void destroy(const T* part) { delete part; }

 protected:
  ~Counted() = default;

 private:
  static constexpr std::uint32_t kPermanent = 0x80000000;

  bool permanent() const { return references_.load(std::memory_order_relaxed) >= kPermanent; }

  mutable std::atomic<std::uint32_t> references_{0};
};

/// The place of a part that documents may point to at any time, also while static objects are destroyed, and
/// at no cost of counting. For static storage.
template <class T>
class PermanentPart {
 public:
  PermanentPart() { (new (&part_) T)->makePermanent(); }
  PermanentPart(const PermanentPart&) = delete;
  PermanentPart& operator=(const PermanentPart&) = delete;
  ~PermanentPart() {}

  T* get() { return &part_; }

 private:
  union {
    T part_;  // NOLINT(readability-identifier-naming): private, as the union is
  };
};

/// A pointer that keeps its part alive; null by default and after a move.
template <class T>
class Shared {
 public:
  Shared() = default;
  explicit Shared(T* part) : part_(part) {
    if (part_) part_->retain();
  }
  Shared(const Shared& other) : Shared(other.part_) {}
  Shared(Shared&& other) noexcept : part_(std::exchange(other.part_, nullptr)) {}
  Shared& operator=(Shared other) noexcept {
    std::swap(part_, other.part_);
    return *this;
  }
  ~Shared() {
    if (part_) part_->release();
  }

  T* get() const { return part_; }
  T* operator->() const { return part_; }
  T& operator*() const { return *part_; }
  explicit operator bool() const { return part_ != nullptr; }

  /// The part for changing: made where there is none, copied first where it is shared.
  T& edit() {
    if (!part_)
      *this = Shared(new T);
    else if (!part_->unique())
      *this = Shared(new T(*part_));
    return *part_;
  }

 private:
  T* part_ = nullptr;
};

/// A short text that many objects bear: a tag, a column's name, an encoding.
class Label {
 public:
  Label() = default;
  explicit Label(std::string_view text);

  /// The text; empty for a default label.
  const std::string& text() const { return text_ ? text_->value : kEmpty; }
  /// Takes `text`; costs nothing where it is the text already.
  void assign(std::string_view text);
  /// True for labels that share their text; equal texts may be shared or not.
  bool sharedWith(const Label& other) const { return text_.get() == other.text_.get(); }

 private:
  friend class PermanentLabel;
  static const std::string kEmpty;
  struct Text : Counted<Text> {
    std::string value;
  };
  explicit Label(Text* text) : text_(text) {}

  Shared<Text> text_;
};

/// The label that a class of documents bears by default. For static storage; at most 15 characters, which
/// need no memory of their own.
class PermanentLabel {
 public:
  explicit PermanentLabel(const char* text) : label_(text_.get()) { text_.get()->value = text; }
  operator const Label&() const { return label_; }

 private:
  PermanentPart<Label::Text> text_;
  Label label_;
};

/// The attributes of one element, an AttributeMap; nothing but a null pointer where there are none.
struct AttributePart : Counted<AttributePart> {
  std::map<std::string, std::string, std::less<>> map;
};

}  // namespace corvane::detail
