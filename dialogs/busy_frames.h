// The pictures of a busy form for the painter that moves it.
#pragma once

#include <QImage>
#include <QRect>
#include <string>
#include <vector>

#include "toolkit/animate.h"

namespace norvik {

struct BusyFrames {
  std::vector<QImage> frames;
  int interval = 100;  // milliseconds
};

// The picture of a whole window with each frame of an animation in `area`, which is in logical pixels of the
// window. The frames are those of the file, at most 128 of them, scaled down to the area where they are
// larger; a file that is missing or cannot be read gives the built-in animation up to its stop frame.
BusyFrames ComposeFrames(const QImage& window, const QRect& area, const std::string& file,
                         TCommonAVI animation, int stopFrame);

}  // namespace norvik
