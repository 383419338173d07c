#include "toolkit/text.h"

#include "platform/code_page.h"

QString ToQt(std::string_view ansi) {
  const std::u16string wide = norvik::Widen(ansi);
  return QString(reinterpret_cast<const QChar*>(wide.data()), static_cast<qsizetype>(wide.size()));
}

std::string FromQt(const QString& text) {
  return norvik::Narrow(
      {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())});
}

std::string Ansi(const char* utf8) {
  return norvik::AnsiFromUtf8(utf8);
}

std::string Trim(std::string_view text) {
  const auto blank = [](char c) { return static_cast<unsigned char>(c) <= ' '; };
  while (!text.empty() && blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && blank(text.back())) text.remove_suffix(1);
  return std::string(text);
}

QString ToToolTip(std::string_view ansi) {
  if (ansi.empty()) return {};
  QString html = ToQt(ansi).toHtmlEscaped();
  html.replace(QLatin1Char('\n'), QLatin1String("<br>"));
  return QLatin1String("<span>") + html + QLatin1String("</span>");
}
