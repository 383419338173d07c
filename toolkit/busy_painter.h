// Keeps a picture moving in a window while the user-interface thread is blocked and pumps no messages.
#pragma once

#include <qwindowdefs.h>
#include <QImage>
#include <memory>
#include <vector>

/// A painter for one window at a time.
///
/// 1. The painter gets finished pictures of the complete window and draws them by itself, from a thread of its
///    own and through a connection of its own to the display. The thread touches these pictures and nothing
///    else.
/// 2. X11 is served. On every other platform, without a display, and for a window whose picture format is
///    not true colour nothing is drawn and nothing fails: the window keeps what the toolkit painted last.
/// 3. All operations belong to the user-interface thread. The window must outlive the running painter.
class TBusyPainter {
 public:
  TBusyPainter();
  /// Stops.
  ~TBusyPainter();
  TBusyPainter(const TBusyPainter&) = delete;
  TBusyPainter& operator=(const TBusyPainter&) = delete;

  /// Whether there is a display that the painter serves.
  static bool Available();

  /// Starts showing the frames in the window, round and round, each for `interval` milliseconds (at least
  /// 10); a painter that runs is stopped first. A frame is as large as the window in device pixels: its
  /// device pixel ratio is not looked at, and what is outside the window is not seen. False, with nothing
  /// running, if there is no frame or no X11.
  bool Start(WId window, std::vector<QImage> frames, int interval);

  /// Ends the showing and waits for the thread. Harmless when nothing runs.
  void Stop();

 private:
  class Worker;
  std::unique_ptr<Worker> worker_;
};
