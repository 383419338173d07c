#include "data/shared.h"

namespace corvane {

Label::Label(std::string_view text) {
  assign(text);
}

const std::string& Label::text() const {
  static const std::string empty;
  return text_ ? text_->value : empty;
}

void Label::assign(std::string_view text) {
  if (text == this->text()) return;
  Shared<Text> fresh(new Text);
  fresh->value = text;
  text_ = std::move(fresh);
}

}  // namespace corvane
