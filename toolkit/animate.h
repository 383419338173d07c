#pragma once

#include <QImage>
#include <string>
#include <vector>

#include "toolkit/win_control.h"

enum TCommonAVI { aviNone, aviFindFolder, aviCopyFiles };

/// A place for a looping animation: frames of a file, or a built-in one. The pictures come from the event
/// loop; where that stands still, the painter of the busy display draws the same frames.
class TAnimate : public TWinControl {
  Q_OBJECT

 public:
  explicit TAnimate(TComponent* owner);
  ~TAnimate() override;

  /// File of frames that the platform can read (GIF, WebP, animated PNG), which is played to its end; one
  /// that it can't leaves the built-in one.
  std::string FileName() const { return file_name_; }
  void SetFileName(const std::string& path);
  TCommonAVI CommonAVI() const { return common_; }
  void SetCommonAVI(TCommonAVI animation);
  /// Last frame of the original's built-in animation; kept for the forms, since those here end where they
  /// begin.
  int StopFrame() const { return stop_frame_; }
  void SetStopFrame(int frame) { stop_frame_ = frame; }
  bool Active() const { return active_; }
  void SetActive(bool active);

  /// The frames of one round at a size in pixels, for a painter that has no event loop.
  std::vector<QImage> Frames(QSize size) const;
  /// Time that each frame stands, milliseconds.
  static constexpr int kFrameTime = 80;
  /// Paints a frame of the built-in animation into a rectangle; step counts on without end. Safe on any
  /// thread.
  static void PaintBuiltIn(class QPainter& painter, const class QRectF& area, TCommonAVI animation, int step);

 protected:
  QWidget* FocusWidget() const override { return nullptr; }

 private:
  class Canvas;
  Canvas* ShownOn() const;

  std::string file_name_;
  TCommonAVI common_ = aviNone;
  int stop_frame_ = 0;
  bool active_ = false;
};
