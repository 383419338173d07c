#pragma once

#include <string>

#include "toolkit/control.h"

class QLineEdit;
class QPlainTextEdit;

/// A line of text. OnChange runs after each change by the user, not for SetText.
class TCustomEdit : public TbsSkinControl {
  Q_OBJECT
  Q_PROPERTY(QString Text READ PublishedText WRITE SetPublishedText)
  Q_PROPERTY(int ImeMode READ ImeMode WRITE SetImeMode)
  Q_PROPERTY(QString ImeName READ PublishedImeName WRITE SetPublishedImeName)

 public:
  virtual std::string Text() const;
  virtual void SetText(const std::string& text);
  void Clear() { SetText({}); }
  bool ReadOnly() const;
  void SetReadOnly(bool read_only);
  /// Most bytes of narrow text that the user can enter, 0: no limit. SetText is not cut.
  int MaxLength() const { return max_length_; }
  void SetMaxLength(int bytes) { max_length_ = bytes; }
  TAlignment Alignment() const;
  void SetAlignment(TAlignment alignment);
  void SelectAll();

  TNotifyEvent OnChange;

  QString PublishedText() const;
  void SetPublishedText(const QString& text);

 protected:
  explicit TCustomEdit(TComponent* owner);
  /// Whether a text may stand in the edit while the user types or pastes; here: within MaxLength.
  virtual bool Accepts(const std::string& text) const;
  /// The user changed the text.
  virtual void UserChanged();
  bool ClicksByMouse() const override { return true; }
  void FontChanged() override;
  QLineEdit* Edit() const;

 private:
  class Validator;
  int max_length_ = 0;
};

class TEdit : public TCustomEdit {
  Q_OBJECT

 public:
  explicit TEdit(TComponent* owner) : TCustomEdit(owner) {}
};

/// Kinds of characters that a KVX edit takes.
enum TKVXInputKind { ikAny, ikDigits, ikLettersDigitsChinese, ikCurrency };

/// What may be typed into a KVX edit.
struct TKVXInputRule {
  TKVXInputKind kind = ikAny;
  /// Most bytes of narrow text, 0: no limit.
  int max_length = 0;
  /// Currency: most digits before and behind the point.
  int integer_digits = 0;
  int decimal_digits = 0;
};

/// A line of text with an input rule, enforced while the user types and pastes: what breaks it doesn't go in.
class TKVXEdit : public TCustomEdit {
  Q_OBJECT

 public:
  explicit TKVXEdit(TComponent* owner);

  const TKVXInputRule& InputRule() const { return rule_; }
  /// Sets the rule and its length limit; a currency edit becomes right-aligned.
  void SetInputRule(const TKVXInputRule& rule);

 protected:
  bool Accepts(const std::string& text) const override;

 private:
  TKVXInputRule rule_;
};

/// A text of several lines, parted by "\r\n". OnChange runs after each change by the user, not for SetText.
class TMemo : public TWinControl {
  Q_OBJECT
  Q_PROPERTY(int ImeMode READ ImeMode WRITE SetImeMode)
  Q_PROPERTY(QString ImeName READ PublishedImeName WRITE SetPublishedImeName)

 public:
  explicit TMemo(TComponent* owner);

  std::string Text() const;
  void SetText(const std::string& text);
  void Clear() { SetText({}); }
  bool ReadOnly() const;
  void SetReadOnly(bool read_only);
  /// Most bytes of narrow text that the user can enter, 0: no limit. SetText is not cut.
  int MaxLength() const { return max_length_; }
  void SetMaxLength(int bytes) { max_length_ = bytes; }
  /// Which scroll bars may appear; without a horizontal one the lines wrap.
  void SetScrollBars(TScrollStyle style);

  TNotifyEvent OnChange;

 protected:
  void FontChanged() override;

 private:
  QPlainTextEdit* Edit() const;
  void UserChanged();

  int max_length_ = 0;
  QString accepted_;
};
