#include "data/detail/shared.h"

namespace corvane::detail {

Label::Label(std::string_view text) {
  assign(text);
}

const std::string Label::kEmpty;

void Label::assign(std::string_view text) {
  if (text == this->text()) return;
  if (!text_ || !text_->unique()) text_ = Shared<Text>(new Text);
  text_->value = text;
}

}  // namespace corvane::detail
