#include "toolkit/text.h"

#include "platform/code_page.h"

namespace {

constexpr qsizetype kMaxTipLength = 20000;  // characters; longer ones keep the user waiting
constexpr qsizetype kMaxRunLength = 120;    // characters without a place to break
constexpr QChar kBreak(0x200b);             // a blank of no width

}  // namespace

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
  return ToolTipOf(ToQt(ansi));
}

QString ToolTipOf(QString text) {
  if (text.isEmpty()) return {};
  if (text.size() > kMaxTipLength) text = text.first(kMaxTipLength) + QChar(0x2026);
  // A tip wraps at blanks alone, and what is then too wide for the screen would be cut there.
  for (qsizetype i = 0, run = 0; i < text.size(); ++i) {
    run = text[i].isSpace() ? 0 : run + 1;
    if (run <= kMaxRunLength || text[i].isLowSurrogate()) continue;
    text.insert(i, kBreak);
    run = 0;
  }
  QString html = text.toHtmlEscaped();
  html.replace(QLatin1Char('\n'), QLatin1String("<br>"));
  return QLatin1String("<span>") + html + QLatin1String("</span>");
}
