// The font of a control and its colour, as values that forms set and the layer puts on the Qt widget. Where a
// skin decides, the values are kept and not used; character spacing and the original's devices are not there.
#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <cstdint>
#include <functional>
#include <string>

/// A colour as 0x00BBGGRR; clWindowText and its like leave the choice to the skin.
using TColor = std::int32_t;
/// The colour of text that the skin chooses.
inline constexpr TColor clWindowText = -16777208;
/// Colours of their own.
inline constexpr TColor clBlack = 0x000000;
inline constexpr TColor clRed = 0x0000FF;
inline constexpr TColor clWhite = 0xFFFFFF;

/// Styles of a font, joined with |.
enum TFontStyle : unsigned { fsPlain = 0, fsBold = 1, fsItalic = 2, fsUnderline = 4 };

/// The font of a control. A change shows at once. What was never set follows the application's font.
class TFont : public QObject {
  Q_OBJECT

 public:
  explicit TFont(QObject* parent = nullptr) : QObject(parent) {}

  /// Name of the family; empty: the application's.
  std::string Name() const { return name_; }
  void SetName(const std::string& name);
  /// Size in points; 0: the application's.
  int Size() const { return size_; }
  void SetSize(int points);
  /// Character set of the original platform: 134, 136 or 0. It is kept and has no effect on drawing.
  std::uint8_t Charset() const { return charset_; }
  void SetCharset(std::uint8_t charset);
  /// Colour of the text; clWindowText at the start.
  TColor Color() const { return color_; }
  void SetColor(TColor color);
  /// fsBold, fsItalic and fsUnderline, joined with |.
  unsigned Style() const { return style_; }
  void SetStyle(unsigned style);
  /// Takes all values of another font.
  void Assign(const TFont& other);
  /// The colour as Qt's; an invalid one when the choice is left to the skin.
  QColor ToQColor() const;
  /// The same as Qt's font, over the application's defaults.
  QFont ToQFont() const;

  /// Runs after each change; set by the font's owner.
  std::function<void()> OnChange;

 private:
  void Changed();

  std::string name_;
  int size_ = 0;
  std::uint8_t charset_ = 1;
  TColor color_ = clWindowText;
  unsigned style_ = fsPlain;
};
