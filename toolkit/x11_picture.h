// Pictures for an X11 window: finding the window's pixel format and putting images into it with plain
// requests. Only the painter of the busy display uses it; it opens no connection and no window.
#pragma once

#include <xcb/xcb.h>

#include <QImage>
#include <cstdint>
#include <optional>
#include <vector>

namespace norvik {

/// How the server wants the pixels of one window.
struct X11PixelFormat {
  /// Bits that carry colour.
  std::uint8_t depth = 0;
  /// Bits that a pixel takes.
  unsigned bitsPerPixel = 0;
  /// Bits that each row is padded to a multiple of.
  unsigned scanlinePad = 0;
  /// Whether the low byte of a pixel comes first.
  bool lowByteFirst = true;
  /// Which bits of a pixel are red, green and blue.
  std::uint32_t redMask = 0;
  std::uint32_t greenMask = 0;
  std::uint32_t blueMask = 0;
};

/// One image in the form the server takes: rows one below the other, each `stride` bytes.
struct X11Picture {
  /// Size in pixels.
  std::uint16_t width = 0;
  std::uint16_t height = 0;
  /// Bytes of a row.
  std::size_t stride = 0;
  /// stride * height bytes.
  std::vector<std::uint8_t> pixels;
};

/// The format of a window of this process; nothing if the window is unknown on this connection, belongs to
/// another process, or is not of true colour with 16, 24 or 32 bits for a pixel.
std::optional<X11PixelFormat> FindPixelFormat(xcb_connection_t* connection, xcb_window_t window);

/// Converts an image of at most 32,767 by 32,767 pixels; translucent pixels are mixed with white.
X11Picture MakePicture(const QImage& image, const X11PixelFormat& format);

/// Sends the picture to the upper left corner of the window, in strips within the server's maximum length of
/// a request.
void PutPicture(xcb_connection_t* connection, xcb_window_t window, xcb_gcontext_t context, std::uint8_t depth,
                const X11Picture& picture);

}  // namespace norvik
