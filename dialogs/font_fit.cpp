#include "dialogs/font_fit.h"

#include <QFontMetrics>
#include <algorithm>

#include "toolkit/buttons.h"
#include "toolkit/screen.h"
#include "toolkit/text.h"

namespace {

constexpr QChar kFullWidth(0x56fd);
constexpr int kMaxMeasured = 8000;  // characters
constexpr int kButtonSide = 16;     // room left and right of a button's caption, pixels
constexpr int kButtonFrame = 7;     // room above and below together, pixels

QFontMetrics MetricsOf(const TControl& control) {
  return QFontMetrics(control.Widget()->font());
}

int NeededHeight(const TControl& control, const QString& text, int width) {
  const QRect room(0, 0, width, Screen->Height() * 4);
  return MetricsOf(control).boundingRect(room, Qt::TextWordWrap, text.left(kMaxMeasured)).height();
}

}  // namespace

int TextWidth(const TControl& control, int characters, int minimum) {
  const int wanted = MetricsOf(control).horizontalAdvance(kFullWidth) * characters;
  return std::max(minimum, std::min(wanted, Screen->Width() * 7 / 10));
}

int TextHeight(const TControl& control, const std::string& text, int width, int minimum) {
  return std::min(std::max(minimum, NeededHeight(control, ToQt(text), width)), Screen->Height() / 2);
}

bool TextFits(const TControl& control, const std::string& text, int width) {
  const QString shown = ToQt(text);
  return shown.size() <= kMaxMeasured && NeededHeight(control, shown, width) <= Screen->Height() / 2;
}

void FitButton(TbsSkinButton& button, int minWidth, int minHeight) {
  // A skin has a minimum width of its own, which it enforces when the button shows.
  button.Widget()->ensurePolished();
  const QFontInfo font(button.Widget()->font());
  const int text = MetricsOf(button).horizontalAdvance(ToQt(button.Caption())) + 2 * kButtonSide;
  button.SetWidth(std::max({minWidth, text, button.Widget()->sizeHint().width()}));
  button.SetHeight(std::max(minHeight, font.pixelSize() + kButtonFrame));
}
