#include "toolkit/font.h"

#include <QApplication>

#include "toolkit/text.h"

void TFont::SetName(const std::string& name) {
  if (name == name_) return;
  name_ = name;
  Changed();
}

void TFont::SetSize(int points) {
  if (points == size_) return;
  size_ = points;
  Changed();
}

void TFont::SetCharset(std::uint8_t charset) {
  charset_ = charset;
}

void TFont::SetColor(TColor color) {
  if (color == color_) return;
  color_ = color;
  Changed();
}

void TFont::SetStyle(unsigned style) {
  if (style == style_) return;
  style_ = style;
  Changed();
}

void TFont::Assign(const TFont& other) {
  name_ = other.name_;
  size_ = other.size_;
  charset_ = other.charset_;
  color_ = other.color_;
  style_ = other.style_;
  Changed();
}

QFont TFont::ToQFont() const {
  QFont font = QApplication::font();
  if (!name_.empty()) font.setFamily(ToQt(name_));
  if (size_ > 0) font.setPointSize(size_);
  font.setBold((style_ & fsBold) != 0);
  font.setItalic((style_ & fsItalic) != 0);
  font.setUnderline((style_ & fsUnderline) != 0);
  return font;
}

QColor TFont::ToQColor() const {
  if (color_ < 0) return {};
  return QColor(color_ & 0xFF, (color_ >> 8) & 0xFF, (color_ >> 16) & 0xFF);
}

void TFont::Changed() {
  if (OnChange) OnChange();
}
