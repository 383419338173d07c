// Fields for text: lines, lines with a rule for what goes in, and texts of several lines. Conditions, dialogs
// and messages are made of them. Passwords, masks, borders and undo of the original's edits are not there.
#pragma once

#include <string>

#include "toolkit/input_limits.h"
#include "toolkit/win_control.h"

class QLineEdit;
class QPlainTextEdit;

/// A line of text. OnChange runs after each change by the user, not for SetText. What the limits of the edit
/// don't let in is left out while the user types and pastes; SetText is not limited.
class TCustomEdit : public TbsSkinControl {
  Q_OBJECT
  Q_PROPERTY(QString Text READ PublishedText WRITE SetPublishedText)
  Q_PROPERTY(int ImeMode READ ImeMode WRITE SetImeMode)
  Q_PROPERTY(QString ImeName READ PublishedImeName WRITE SetPublishedImeName)

 public:
  /// The text, narrow.
  virtual std::string Text() const;
  virtual void SetText(const std::string& text);
  /// Empties the field.
  void Clear() { SetText({}); }
  /// Whether the user can't change the text; false at the start.
  bool ReadOnly() const;
  void SetReadOnly(bool readOnly);
  /// Maximum bytes of narrow text that the user can enter, 0: no limit. SetText is not cut.
  int MaxLength() const { return limits_.maxLength; }
  void SetMaxLength(int bytes) { limits_.maxLength = bytes; }
  /// Where the text is in the field; taLeftJustify at the start.
  TAlignment Alignment() const;
  void SetAlignment(TAlignment alignment);
  /// Selects the complete text.
  void SelectAll();

  /// Runs after each change by the user.
  TNotifyEvent OnChange;

  /// Published properties (see properties.h).
  QString PublishedText() const;
  void SetPublishedText(const QString& text);

 protected:
  explicit TCustomEdit(TComponent* owner);
  TInputLimits& Limits() { return limits_; }
  /// The user changed the text.
  void UserChanged();
  QLineEdit* Edit() const;

 private:
  class Validator;

  TInputLimits limits_;
  QString text_;
  bool setting_ = false;
};

/// A line of text without a rule.
class TEdit : public TCustomEdit {
  Q_OBJECT

 public:
  explicit TEdit(TComponent* owner) : TCustomEdit(owner) {}
};

/// Kinds of characters that a KVX edit takes. Chinese: what takes two bytes in the code page, so also its
/// full-width punctuation. Currency: digits and one point.
enum TKVXInputKind { ikAny, ikDigits, ikLettersDigitsChinese, ikCurrency };

/// What may be typed into a KVX edit.
struct TKVXInputRule {
  /// Which characters go in.
  TKVXInputKind kind = ikAny;
  /// Maximum bytes of narrow text, 0: no limit.
  int maxLength = 0;
  /// Currency: maximum digits before and after the point.
  int integerDigits = 0;
  int decimalDigits = 0;
};

/// A line of text with an input rule: what breaks it does not go in.
class TKVXEdit : public TCustomEdit {
  Q_OBJECT

 public:
  explicit TKVXEdit(TComponent* owner);

  /// The rule; any text of any length at the start.
  const TKVXInputRule& InputRule() const { return rule_; }
  /// Sets the rule and its length limit; a currency edit becomes right-aligned.
  void SetInputRule(const TKVXInputRule& rule);

 private:
  TKVXInputRule rule_;
};

/// A text of several lines, separated by "\r\n". OnChange runs after each change by the user, not for
/// SetText.
class TMemo : public TWinControl {
  Q_OBJECT
  Q_PROPERTY(int ImeMode READ ImeMode WRITE SetImeMode)
  Q_PROPERTY(QString ImeName READ PublishedImeName WRITE SetPublishedImeName)

 public:
  explicit TMemo(TComponent* owner);

  /// The text, narrow.
  std::string Text() const;
  void SetText(const std::string& text);
  /// Empties the field.
  void Clear() { SetText({}); }
  /// Whether the user can't change the text; false at the start.
  bool ReadOnly() const;
  void SetReadOnly(bool readOnly);
  /// Maximum bytes of narrow text that the user can enter, 0: no limit. SetText is not cut.
  /// A line end counts as two.
  int MaxLength() const { return limits_.maxLength; }
  void SetMaxLength(int bytes) { limits_.maxLength = bytes; }
  /// Maximum characters that the user can enter, 0: no limit; counted as in TInputLimits.
  int MaxCharacters() const { return limits_.maxCharacters; }
  void SetMaxCharacters(int characters) { limits_.maxCharacters = characters; }
  /// Which scroll bars may appear; without a horizontal one the lines wrap.
  void SetScrollBars(TScrollStyle style);

  /// Runs after each change by the user.
  TNotifyEvent OnChange;

 protected:
  bool WantsReturn() const override { return true; }

 private:
  QPlainTextEdit* Edit() const;
  void TextChanged();
  void Replace(const QString& text, int cursor);

  TInputLimits limits_;
  QString text_;
  bool setting_ = false;
};
