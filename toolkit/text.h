// Where text crosses between the module's narrow strings and Qt's. Everything in the layer that shows or
// takes a text goes through it; the code pages themselves are in platform/code_page.h.
#pragma once

#include <QString>
#include <string>
#include <string_view>

/// Narrow text as Qt's; an undecodable byte becomes one U+FFFD.
QString ToQt(std::string_view ansi);
/// Qt's text as narrow text; a character that the code page lacks becomes '?'.
std::string FromQt(const QString& text);
/// A UTF-8 literal of the source as narrow text: Ansi("代保管账号").
std::string Ansi(const char* utf8);
/// The text with leading and trailing blanks and control characters removed.
std::string Trim(std::string_view text);
/// Narrow text as a tool tip that is never read as markup, complete up to 20,000 characters, which is more
/// than a screen has room for. A run without a blank can be wrapped, too.
QString ToToolTip(std::string_view ansi);
/// The same for text of Qt's.
QString ToolTipOf(QString text);
