#include "dialogs/busy_frames.h"

#include <QImageReader>
#include <QPainter>
#include <algorithm>

#include "toolkit/text.h"

namespace norvik {
namespace {

constexpr std::size_t kMostFrames = 128;
constexpr int kShortestDelay = 20;   // milliseconds
constexpr int kLongestDelay = 1000;  // milliseconds

// The frames of an animation file in the area's size; empty if it cannot be read.
BusyFrames ReadFile(const std::string& file, const QSize& room) {
  BusyFrames result;
  QImageReader reader(ToQt(file));
  reader.setDecideFormatFromContent(true);
  int delays = 0;
  for (QImage frame = reader.read(); !frame.isNull() && result.frames.size() < kMostFrames;
       frame = reader.read()) {
    const bool larger = frame.width() > room.width() || frame.height() > room.height();
    result.frames.push_back(larger ? frame.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                                   : frame);
    delays += std::clamp(reader.nextImageDelay(), kShortestDelay, kLongestDelay);
  }
  if (!result.frames.empty()) result.interval = delays / static_cast<int>(result.frames.size());
  return result;
}

template <class Paint>
QImage Compose(const QImage& window, const QRect& area, Paint paint) {
  QImage frame = window;
  QPainter painter(&frame);
  painter.setClipRect(area);
  painter.fillRect(area, window.pixelColor(0, 0));
  paint(painter);
  return frame;
}

}  // namespace

BusyFrames ComposeFrames(const QImage& window, const QRect& area, const std::string& file,
                         TCommonAVI animation, int stopFrame) {
  BusyFrames result;
  if (window.isNull()) return result;
  const BusyFrames read = file.empty() ? BusyFrames() : ReadFile(file, area.size());
  if (!read.frames.empty()) {
    result.interval = read.interval;
    for (const QImage& picture : read.frames) {
      QRect place(QPoint(), picture.size());
      place.moveCenter(area.center());
      result.frames.push_back(
          Compose(window, area, [&](QPainter& painter) { painter.drawImage(place, picture); }));
    }
    return result;
  }
  for (int step = 0; step <= stopFrame; ++step) {
    result.frames.push_back(Compose(window, area, [&](QPainter& painter) {
      TAnimate::PaintBuiltIn(painter, QRectF(area), animation, step);
    }));
  }
  return result;
}

}  // namespace norvik
