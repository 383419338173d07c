#include "toolkit/x11_picture.h"

#include <unistd.h>

#include <QPainter>
#include <algorithm>
#include <bit>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace norvik {
namespace {

constexpr int kMaxSide = 32767;

struct Free {
  void operator()(void* reply) const { std::free(reply); }
};
template <class T>
using Reply = std::unique_ptr<T, Free>;

// The window system's process number on the window: it distinguishes a window of ours from one that bears the
// same number on another display.
bool BelongsToThisProcess(xcb_connection_t* connection, xcb_window_t window) {
  constexpr std::string_view kName = "_NET_WM_PID";
  const Reply<xcb_intern_atom_reply_t> atom(
      xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 1, kName.size(), kName.data()), nullptr));
  if (!atom || atom->atom == XCB_ATOM_NONE) return false;
  const auto cookie = xcb_get_property(connection, 0, window, atom->atom, XCB_ATOM_CARDINAL, 0, 1);
  const Reply<xcb_get_property_reply_t> property(xcb_get_property_reply(connection, cookie, nullptr));
  if (!property || property->format != 32 || xcb_get_property_value_length(property.get()) != 4) return false;
  return *static_cast<std::uint32_t*>(xcb_get_property_value(property.get())) ==
         static_cast<std::uint32_t>(getpid());
}

const xcb_visualtype_t* FindVisual(const xcb_setup_t* setup, xcb_visualid_t id) {
  for (auto screen = xcb_setup_roots_iterator(setup); screen.rem > 0; xcb_screen_next(&screen)) {
    for (auto depth = xcb_screen_allowed_depths_iterator(screen.data); depth.rem > 0;
         xcb_depth_next(&depth)) {
      for (auto visual = xcb_depth_visuals_iterator(depth.data); visual.rem > 0;
           xcb_visualtype_next(&visual)) {
        if (visual.data->visual_id == id) return visual.data;
      }
    }
  }
  return nullptr;
}

// An 8-bit channel value laid into the bits of its mask.
std::uint32_t Spread(int value, std::uint32_t mask) {
  if (mask == 0) return 0;
  const int bits = std::popcount(mask);
  const auto channel = static_cast<std::uint32_t>(value);
  const std::uint32_t scaled = bits >= 8 ? channel << (bits - 8) : channel >> (8 - bits);
  return (scaled << std::countr_zero(mask)) & mask;
}

std::uint32_t PixelValue(QRgb pixel, const X11PixelFormat& format) {
  const std::uint32_t colour = Spread(qRed(pixel), format.redMask) | Spread(qGreen(pixel), format.greenMask) |
                               Spread(qBlue(pixel), format.blueMask);
  // A window with an alpha channel is shown opaque: what the three masks leave of its depth is the alpha.
  const std::uint32_t all = format.depth >= 32 ? ~0U : (1U << format.depth) - 1;
  return colour | (all & ~(format.redMask | format.greenMask | format.blueMask));
}

void StorePixel(std::uint8_t* at, std::uint32_t value, unsigned bytes, bool lowByteFirst) {
  for (unsigned i = 0; i < bytes; ++i) {
    const unsigned shift = 8 * (lowByteFirst ? i : bytes - 1 - i);
    at[i] = static_cast<std::uint8_t>(value >> shift);
  }
}

QImage Flatten(const QImage& image) {
  QImage flat(image.size().boundedTo(QSize(kMaxSide, kMaxSide)), QImage::Format_RGB32);
  flat.fill(Qt::white);
  QImage plain = image;
  plain.setDevicePixelRatio(1);
  QPainter(&flat).drawImage(0, 0, plain);
  return flat;
}

}  // namespace

std::optional<X11PixelFormat> FindPixelFormat(xcb_connection_t* connection, xcb_window_t window) {
  if (!BelongsToThisProcess(connection, window)) return std::nullopt;
  const Reply<xcb_get_window_attributes_reply_t> attributes(
      xcb_get_window_attributes_reply(connection, xcb_get_window_attributes(connection, window), nullptr));
  const Reply<xcb_get_geometry_reply_t> geometry(
      xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
  if (!attributes || !geometry) return std::nullopt;
  const xcb_setup_t* setup = xcb_get_setup(connection);
  const xcb_visualtype_t* visual = FindVisual(setup, attributes->visual);
  if (visual == nullptr || visual->_class != XCB_VISUAL_CLASS_TRUE_COLOR) return std::nullopt;
  for (auto found = xcb_setup_pixmap_formats_iterator(setup); found.rem > 0; xcb_format_next(&found)) {
    if (found.data->depth != geometry->depth) continue;
    const unsigned bits = found.data->bits_per_pixel;
    if (bits != 16 && bits != 24 && bits != 32) return std::nullopt;
    return X11PixelFormat{.depth = geometry->depth,
                          .bitsPerPixel = bits,
                          .scanlinePad = found.data->scanline_pad,
                          .lowByteFirst = setup->image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST,
                          .redMask = visual->red_mask,
                          .greenMask = visual->green_mask,
                          .blueMask = visual->blue_mask};
  }
  return std::nullopt;
}

X11Picture MakePicture(const QImage& image, const X11PixelFormat& format) {
  const QImage flat = Flatten(image);
  const auto width = static_cast<std::size_t>(flat.width());
  const auto height = static_cast<std::size_t>(flat.height());
  const std::size_t pad = std::max<std::size_t>(format.scanlinePad, 8);
  X11Picture picture;
  picture.width = static_cast<std::uint16_t>(width);
  picture.height = static_cast<std::uint16_t>(height);
  picture.stride = (width * format.bitsPerPixel + pad - 1) / pad * pad / 8;
  picture.pixels.resize(picture.stride * height);
  const unsigned bytes = format.bitsPerPixel / 8;
  for (std::size_t y = 0; y < height; ++y) {
    const auto* source = reinterpret_cast<const QRgb*>(flat.constScanLine(static_cast<int>(y)));
    std::uint8_t* target = picture.pixels.data() + y * picture.stride;
    for (std::size_t x = 0; x < width; ++x) {
      StorePixel(target + x * bytes, PixelValue(source[x], format), bytes, format.lowByteFirst);
    }
  }
  return picture;
}

void PutPicture(xcb_connection_t* connection, xcb_window_t window, xcb_gcontext_t context, std::uint8_t depth,
                const X11Picture& picture) {
  if (picture.stride == 0) return;
  const std::size_t room =
      std::size_t{xcb_get_maximum_request_length(connection)} * 4 - sizeof(xcb_put_image_request_t) - 4;
  const std::size_t rows = std::max<std::size_t>(room / picture.stride, 1);
  for (std::size_t y = 0; y < picture.height; y += rows) {
    const std::size_t count = std::min<std::size_t>(rows, picture.height - y);
    xcb_put_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, context, picture.width,
                  static_cast<std::uint16_t>(count), 0, static_cast<std::int16_t>(y), 0, depth,
                  static_cast<std::uint32_t>(count * picture.stride),
                  picture.pixels.data() + y * picture.stride);
  }
}

}  // namespace norvik
