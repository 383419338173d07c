#include "dialogs/busy_frames.h"

#include <QPainter>

namespace norvik {

std::vector<QImage> ComposeFrames(const QImage& window, const QRect& area,
                                  const std::vector<QImage>& animation) {
  std::vector<QImage> result;
  if (window.isNull()) return result;
  for (const QImage& picture : animation) {
    QImage frame = window;
    QPainter painter(&frame);
    painter.setClipRect(area);
    painter.fillRect(area, window.pixelColor(0, 0));
    painter.drawImage(area.topLeft(), picture);
    painter.end();
    result.push_back(std::move(frame));
  }
  return result;
}

}  // namespace norvik
