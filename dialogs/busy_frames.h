// The pictures of a busy form for the painter that moves it. The busy form composes them once; it is images
// alone, without a window.
#pragma once

#include <QImage>
#include <QRect>
#include <vector>

namespace norvik {

/// The picture of a whole window once for each frame of an animation, with the frame in `area`, which is in
/// logical pixels of the window; outside of it nothing changes. A null picture has no frames.
std::vector<QImage> ComposeFrames(const QImage& window, const QRect& area,
                                  const std::vector<QImage>& animation);

}  // namespace norvik
