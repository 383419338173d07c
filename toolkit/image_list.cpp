#include "toolkit/image_list.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>
#include <functional>
#include <utility>

#include "toolkit/text.h"

namespace {

// A picture that is made when it is asked for. Qt's own engine would put each into the process's pixmap
// cache, which goes on holding it when the module has gone.
class PictureEngine : public QIconEngine {
 public:
  using Make = std::function<QPixmap(const QSize& size)>;

  explicit PictureEngine(Make make) : make_(std::move(make)) {}

  QIconEngine* clone() const override { return new PictureEngine(make_); }

  void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State state) override {
    const QSize size = area.size() * painter->device()->devicePixelRatio();
    painter->drawPixmap(area, pixmap(size, mode, state));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    QPixmap picture = make_(size);
    if (mode == QIcon::Normal || mode == QIcon::Active) return picture;
    QStyleOption option;
    option.palette = QGuiApplication::palette();
    return QApplication::style()->generatedIconPixmap(mode, picture, &option);
  }

 private:
  Make make_;
};

}  // namespace

QIcon StockIcon(TStockImage image) {
  return QIcon(new PictureEngine(
      [image](const QSize& size) { return StockPixmap(image, std::min(size.width(), size.height())); }));
}

int TImageList::Add(TStockImage image) {
  icons_.push_back(StockIcon(image));
  return Count() - 1;
}

int TImageList::AddFile(const std::string& path) {
  const QPixmap picture(ToQt(path));
  if (picture.isNull()) return -1;
  icons_.emplace_back(new PictureEngine([picture](const QSize& size) {
    const QSize smaller = picture.size().boundedTo(picture.size().scaled(size, Qt::KeepAspectRatio));
    return picture.scaled(smaller, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  }));
  return Count() - 1;
}

QIcon TImageList::Icon(int index) const {
  return index < 0 || index >= Count() ? QIcon() : icons_[static_cast<std::size_t>(index)];
}
