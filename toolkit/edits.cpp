#include "toolkit/edits.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QTextCursor>
#include <QValidator>
#include <algorithm>
#include <limits>

#include "toolkit/event_guard.h"
#include "toolkit/text.h"

// Holds the user's changes to the edit's limits, before they show.
class TCustomEdit::Validator : public QValidator {
 public:
  Validator(TCustomEdit* edit, QObject* parent) : QValidator(parent), edit_(edit) {}

  State validate(QString& input, int& cursor) const override {
    if (edit_->setting_ || input == edit_->text_) return Acceptable;
    input = LimitInput(edit_->limits_, edit_->text_, input, cursor);
    return input == edit_->text_ ? Invalid : Acceptable;
  }

 private:
  TCustomEdit* edit_;
};

TCustomEdit::TCustomEdit(TComponent* owner) : TbsSkinControl(owner) {
  auto* edit = new QLineEdit;
  SetWidget(edit);
  SetTabStop(true);
  edit->setMaxLength(std::numeric_limits<int>::max());
  edit->setValidator(new Validator(this, edit));
  connect(edit, &QLineEdit::textChanged, this, [this](const QString& text) {
    text_ = text;
    if (!setting_) UserChanged();
  });
}

QLineEdit* TCustomEdit::Edit() const {
  return static_cast<QLineEdit*>(Widget());
}

std::string TCustomEdit::Text() const {
  return FromQt(text_);
}

void TCustomEdit::SetText(const std::string& text) {
  if (Edit() == nullptr) return;
  const QScopedValueRollback setting(setting_, true);
  Edit()->setText(ToQt(text));
  Edit()->home(false);
}

bool TCustomEdit::ReadOnly() const {
  return Edit() != nullptr && Edit()->isReadOnly();
}

void TCustomEdit::SetReadOnly(bool readOnly) {
  if (Edit() != nullptr) Edit()->setReadOnly(readOnly);
}

TAlignment TCustomEdit::Alignment() const {
  const Qt::Alignment alignment = Edit() == nullptr ? Qt::AlignLeft : Edit()->alignment();
  if (alignment.testFlag(Qt::AlignRight)) return taRightJustify;
  return alignment.testFlag(Qt::AlignHCenter) ? taCenter : taLeftJustify;
}

void TCustomEdit::SetAlignment(TAlignment alignment) {
  if (Edit() == nullptr) return;
  const Qt::AlignmentFlag flag = alignment == taRightJustify ? Qt::AlignRight
                                 : alignment == taCenter     ? Qt::AlignHCenter
                                                             : Qt::AlignLeft;
  Edit()->setAlignment(flag | Qt::AlignVCenter);
}

void TCustomEdit::SelectAll() {
  if (Edit() != nullptr) Edit()->selectAll();
}

void TCustomEdit::UserChanged() {
  FireEvent(OnChange, this);
}

QString TCustomEdit::PublishedText() const {
  return ToQt(Text());
}

void TCustomEdit::SetPublishedText(const QString& text) {
  SetText(FromQt(text));
}

namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool AllowsCharacter(TKVXInputKind kind, std::string_view character) {
  switch (kind) {
    case ikAny:
      return true;
    case ikDigits:
      return IsDigit(character[0]);
    case ikLettersDigitsChinese:
      return character.size() > 1 || IsDigit(character[0]) || IsLetter(character[0]);
    case ikCurrency:
      return IsDigit(character[0]) || character[0] == '.';
  }
  return false;
}

bool IsCurrency(const std::string& text, int integerDigits, int decimalDigits) {
  const std::size_t point = std::min(text.find('.'), text.size());
  const std::string_view whole = std::string_view(text).substr(0, point);
  const std::string_view rest = std::string_view(text).substr(std::min(point + 1, text.size()));
  return std::all_of(whole.begin(), whole.end(), IsDigit) && std::all_of(rest.begin(), rest.end(), IsDigit) &&
         whole.size() <= static_cast<std::size_t>(integerDigits) &&
         rest.size() <= static_cast<std::size_t>(decimalDigits);
}

}  // namespace

TKVXEdit::TKVXEdit(TComponent* owner) : TCustomEdit(owner) {}

void TKVXEdit::SetInputRule(const TKVXInputRule& rule) {
  rule_ = rule;
  Limits().maxLength = rule.maxLength;
  Limits().allows = [kind = rule.kind](std::string_view character) {
    return AllowsCharacter(kind, character);
  };
  Limits().accepts = nullptr;
  if (rule.kind != ikCurrency) return;
  Limits().accepts = [rule](const std::string& text) {
    return IsCurrency(text, rule.integerDigits, rule.decimalDigits);
  };
  SetAlignment(taRightJustify);
}

TMemo::TMemo(TComponent* owner) : TWinControl(owner) {
  auto* edit = new QPlainTextEdit;
  SetWidget(edit);
  SetTabStop(true);
  limits_.multiLine = true;
  edit->setTabChangesFocus(true);
  connect(edit, &QPlainTextEdit::textChanged, this, &TMemo::TextChanged);
}

QPlainTextEdit* TMemo::Edit() const {
  return static_cast<QPlainTextEdit*>(Widget());
}

std::string TMemo::Text() const {
  QString text = text_;
  return FromQt(text.replace(QLatin1Char('\n'), QLatin1String("\r\n")));
}

void TMemo::SetText(const std::string& text) {
  if (Edit() == nullptr) return;
  const QScopedValueRollback setting(setting_, true);
  Edit()->setPlainText(ToQt(text).replace(QLatin1String("\r\n"), QLatin1String("\n")));
}

bool TMemo::ReadOnly() const {
  return Edit() != nullptr && Edit()->isReadOnly();
}

void TMemo::SetReadOnly(bool readOnly) {
  if (Edit() != nullptr) Edit()->setReadOnly(readOnly);
}

void TMemo::SetScrollBars(TScrollStyle style) {
  if (Edit() == nullptr) return;
  const bool horizontal = style == ssHorizontal || style == ssBoth;
  const bool vertical = style == ssVertical || style == ssBoth;
  Edit()->setLineWrapMode(horizontal ? QPlainTextEdit::NoWrap : QPlainTextEdit::WidgetWidth);
  Edit()->setHorizontalScrollBarPolicy(horizontal ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  Edit()->setVerticalScrollBarPolicy(vertical ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

void TMemo::TextChanged() {
  const QString after = Edit()->toPlainText();
  if (!setting_ && after != text_) {
    int cursor = Edit()->textCursor().position();
    const QString limited = LimitInput(limits_, text_, after, cursor);
    if (limited != after) Replace(limited, cursor);
    if (limited == text_) return;
    text_ = limited;
    FireEvent(OnChange, this);
    return;
  }
  text_ = after;
}

void TMemo::Replace(const QString& text, int cursor) {
  const QScopedValueRollback setting(setting_, true);
  const QString kept = text_;
  QTextCursor change(Edit()->document());
  change.joinPreviousEditBlock();
  change.select(QTextCursor::Document);
  change.insertText(text);
  change.endEditBlock();
  text_ = kept;
  change.setPosition(cursor);
  Edit()->setTextCursor(change);
}
