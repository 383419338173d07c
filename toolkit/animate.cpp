#include "toolkit/animate.h"

#include <QImageReader>
#include <QPainter>
#include <QTimer>

#include "toolkit/text.h"

namespace {

constexpr int kRound = 32;
const QColor kTrack(0xD5, 0xDE, 0xEA);
const QColor kMover(0x2F, 0x6D, 0xB5);

// A block that runs along a track, and fades in and out at the ends.
void PaintMover(QPainter& painter, const QRectF& area, int step) {
  const qreal height = qMin<qreal>(area.height() / 3, 8);
  QRectF track(area.left() + 12, area.center().y() - height / 2, area.width() - 24, height);
  painter.setBrush(kTrack);
  painter.drawRoundedRect(track, height / 2, height / 2);
  const qreal width = track.width() / 4;
  const qreal at = track.left() - width + (track.width() + width) * (step % kRound) / kRound;
  painter.setClipRect(track);
  painter.setBrush(kMover);
  painter.drawRoundedRect(QRectF(at, track.top(), width, height), height / 2, height / 2);
}

// Dots on a ring, of which the darkest goes round.
void PaintRing(QPainter& painter, const QRectF& area, int step) {
  constexpr int kDots = 8;
  const qreal radius = qMin(area.width(), area.height()) / 3;
  painter.translate(area.center());
  for (int dot = 0; dot < kDots; ++dot) {
    QColor color = kMover;
    color.setAlphaF(0.15F +
                    0.85F * static_cast<float>((dot - step % kDots + 2 * kDots - 1) % kDots + 1) / kDots);
    painter.setBrush(color);
    painter.drawEllipse(QPointF(0, -radius), radius / 4, radius / 4);
    painter.rotate(360.0 / kDots);
  }
}

}  // namespace

// Shows the frames one after the other while it is running.
class TAnimate::Canvas : public QWidget {
 public:
  explicit Canvas(const TAnimate* control) : control_(control) {
    QObject::connect(&timer_, &QTimer::timeout, this, [this] { ++step_, update(); });
  }

  void Load() { frames_ = ReadFile(control_->fileName_); }
  const std::vector<QImage>& Frames() const { return frames_; }

  void Run(bool on) {
    step_ = 0;
    on ? timer_.start(kFrameTime) : timer_.stop();
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (frames_.empty()) {
      PaintBuiltIn(painter, rect(), control_->common_, step_);
      return;
    }
    const QImage& frame = frames_[static_cast<std::size_t>(step_) % frames_.size()];
    painter.drawImage(QPointF(width() - frame.width(), height() - frame.height()) / 2, frame);
  }

 private:
  static std::vector<QImage> ReadFile(const std::string& path) {
    constexpr std::size_t kMaxFrames = 256;
    std::vector<QImage> frames;
    if (path.empty()) return frames;
    QImageReader reader(ToQt(path));
    reader.setDecideFormatFromContent(true);
    while (frames.size() < kMaxFrames && reader.canRead()) {
      QImage frame = reader.read();
      if (frame.isNull()) break;
      frames.push_back(std::move(frame));
    }
    return frames;
  }

  const TAnimate* control_;
  QTimer timer_;
  std::vector<QImage> frames_;
  int step_ = 0;
};

TAnimate::TAnimate(TComponent* owner) : TWinControl(owner) {
  SetWidget(new Canvas(this));
}

TAnimate::~TAnimate() {
  delete Widget();
}

TAnimate::Canvas* TAnimate::ShownOn() const {
  return static_cast<Canvas*>(Widget());
}

void TAnimate::SetFileName(const std::string& path) {
  fileName_ = path;
  if (ShownOn() != nullptr) ShownOn()->Load();
}

void TAnimate::SetCommonAVI(TCommonAVI animation) {
  common_ = animation;
  if (ShownOn() != nullptr) ShownOn()->update();
}

void TAnimate::SetActive(bool active) {
  active_ = active;
  if (ShownOn() != nullptr) ShownOn()->Run(active);
}

std::vector<QImage> TAnimate::Frames(QSize size) const {
  std::vector<QImage> round;
  const std::vector<QImage> none;
  const std::vector<QImage>& read = ShownOn() == nullptr ? none : ShownOn()->Frames();
  const std::size_t count = read.empty() ? kRound : read.size();
  for (std::size_t i = 0; i < count; ++i) {
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    if (read.empty()) {
      PaintBuiltIn(painter, QRectF(QPointF(0, 0), size), common_, static_cast<int>(i));
    } else {
      const QSize room = size - read[i].size();
      painter.drawImage(QPointF(room.width(), room.height()) / 2, read[i]);
    }
    round.push_back(picture);
  }
  return round;
}

void TAnimate::PaintBuiltIn(QPainter& painter, const QRectF& area, TCommonAVI animation, int step) {
  if (animation == aviNone) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  if (animation == aviFindFolder) {
    PaintRing(painter, area, step);
  } else {
    PaintMover(painter, area, step);
  }
  painter.restore();
}
