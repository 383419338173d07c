// The moving picture of the busy display. A form places it like any control; the painter of the busy display
// draws the same frames while the event loop is blocked. Sound and the original's film files are not there.
#pragma once

#include <QImage>
#include <string>
#include <vector>

#include "toolkit/win_control.h"

/// The built-in animations.
enum TCommonAVI { aviNone, aviFindFolder, aviCopyFiles };

/// A place for a looping animation: frames of a file, or a built-in one. The pictures come from the event
/// loop; where that is blocked, the painter of the busy display draws the same frames.
class TAnimate : public TWinControl {
  Q_OBJECT

 public:
  explicit TAnimate(TComponent* owner);
  ~TAnimate() override;

  /// File of frames that the platform can read (GIF, WebP, animated PNG), which is played to its end; one
  /// that it can't leaves the built-in one.
  std::string FileName() const { return fileName_; }
  void SetFileName(const std::string& path);
  /// The built-in animation, which shows where there is no file.
  TCommonAVI CommonAVI() const { return common_; }
  void SetCommonAVI(TCommonAVI animation);
  /// Last frame of the original's built-in animation. Stored only: the animations here end where they begin.
  int StopFrame() const { return stopFrame_; }
  void SetStopFrame(int frame) { stopFrame_ = frame; }
  /// Whether the frames move; false at the start.
  bool Active() const { return active_; }
  void SetActive(bool active);

  /// The frames of one round at a size in pixels, for a painter that has no event loop.
  std::vector<QImage> Frames(QSize size) const;
  /// Time that each frame shows, milliseconds.
  static constexpr int kFrameTime = 80;
  /// Paints a frame of the built-in animation into a rectangle; step is any number that grows by 1 from frame
  /// to frame. Safe on any thread.
  static void PaintBuiltIn(class QPainter& painter, const class QRectF& area, TCommonAVI animation, int step);

 protected:
  QWidget* FocusWidget() const override { return nullptr; }

 private:
  class Canvas;
  Canvas* ShownOn() const;

  std::string fileName_;
  TCommonAVI common_ = aviNone;
  int stopFrame_ = 0;
  bool active_ = false;
};
