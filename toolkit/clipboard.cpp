#include "toolkit/clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "toolkit/text.h"

std::string TClipboard::AsText() const {
  return FromQt(QGuiApplication::clipboard()->text());
}

void TClipboard::SetAsText(const std::string& text) {
  QGuiApplication::clipboard()->setText(ToQt(text));
}

TClipboard& Clipboard() {
  static TClipboard clipboard;
  return clipboard;
}
