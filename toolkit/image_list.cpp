#include "toolkit/image_list.h"

#include "toolkit/text.h"

int TImageList::Add(TStockImage image) {
  icons_.push_back(StockIcon(image));
  return Count() - 1;
}

int TImageList::AddFile(const std::string& path) {
  const QPixmap picture(ToQt(path));
  if (picture.isNull()) return -1;
  icons_.push_back(MadeIcon([picture](const QSize& size) {
    const QSize smaller = picture.size().boundedTo(picture.size().scaled(size, Qt::KeepAspectRatio));
    return picture.scaled(smaller, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  }));
  return Count() - 1;
}

QIcon TImageList::Icon(int index) const {
  return index < 0 || index >= Count() ? QIcon() : icons_[static_cast<std::size_t>(index)];
}
