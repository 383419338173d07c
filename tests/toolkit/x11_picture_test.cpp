#include "toolkit/x11_picture.h"

#include <gtest/gtest.h>

#include "toolkit/busy_painter.h"

namespace norvik {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr X11PixelFormat kTrueColour{24, 32, 32, true, 0xff0000, 0xff00, 0xff};

X11PixelFormat With(std::uint8_t depth, unsigned bits, bool lowFirst, std::uint32_t red, std::uint32_t green,
                    std::uint32_t blue) {
  return {depth, bits, 32, lowFirst, red, green, blue};
}

TEST(X11Picture, PixelsTakeTheServersForm) {
  const struct {
    const char* name;
    X11PixelFormat format;
    QRgb colour;
    Bytes row;  // one pixel and the padding to 32 bits
  } cases[] = {
      {"usual", kTrueColour, qRgb(1, 2, 3), {3, 2, 1, 0}},
      {"high byte first", With(24, 32, false, 0xff0000, 0xff00, 0xff), qRgb(1, 2, 3), {0, 1, 2, 3}},
      {"blue above red", With(24, 32, true, 0xff, 0xff00, 0xff0000), qRgb(1, 2, 3), {1, 2, 3, 0}},
      {"alpha channel is opaque", With(32, 32, true, 0xff0000, 0xff00, 0xff), qRgb(1, 2, 3), {3, 2, 1, 0xff}},
      {"three bytes", With(24, 24, true, 0xff0000, 0xff00, 0xff), qRgb(1, 2, 3), {3, 2, 1, 0}},
      {"5-6-5", With(16, 16, true, 0xf800, 0x7e0, 0x1f), qRgb(0xff, 0x04, 0x08), {0x21, 0xf8, 0, 0}},
      {"5-6-5 high first", With(16, 16, false, 0xf800, 0x7e0, 0x1f), qRgb(0xff, 4, 8), {0xf8, 0x21, 0, 0}},
      {"ten bits", With(30, 32, true, 0x3ff00000, 0xffc00, 0x3ff), qRgb(0, 0, 0xff), {0xfc, 0x03, 0, 0}},
      {"a translucent pixel is mixed with white", kTrueColour, qRgba(0, 0, 0, 0), {0xff, 0xff, 0xff, 0}},
  };
  for (const auto& row : cases) {
    QImage image(1, 2, QImage::Format_ARGB32);
    image.fill(row.colour);
    const X11Picture picture = MakePicture(image, row.format);
    EXPECT_EQ(picture.stride, 4U) << row.name;
    Bytes expected = row.row;
    expected.insert(expected.end(), row.row.begin(), row.row.end());
    EXPECT_EQ(picture.pixels, expected) << row.name;
  }
}

TEST(X11Picture, DevicePixelsCountNotLogicalOnes) {
  QImage image(6, 4, QImage::Format_RGB32);
  image.fill(Qt::black);
  image.setPixel(5, 3, qRgb(9, 9, 9));
  image.setDevicePixelRatio(2);
  const X11Picture picture = MakePicture(image, kTrueColour);
  EXPECT_EQ(picture.width, 6);
  EXPECT_EQ(picture.height, 4);
  EXPECT_EQ(picture.pixels.at(3 * picture.stride + 5 * 4), 9);
}

TEST(BusyPainter, DoesNothingWithoutADisplay) {
  TBusyPainter painter;
  QImage frame(10, 10, QImage::Format_RGB32);
  frame.fill(Qt::red);
  EXPECT_FALSE(painter.Start(1, {frame}, 50));
  EXPECT_FALSE(painter.Start(1, {}, 50));
  EXPECT_FALSE(painter.Start(0, {QImage()}, 0));
  painter.Stop();
  painter.Stop();
}

}  // namespace
}  // namespace norvik
