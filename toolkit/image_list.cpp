#include "toolkit/image_list.h"

#include "toolkit/text.h"

int TImageList::Add(TStockImage image) {
  QIcon icon(StockPixmap(image, size_));
  icon.addPixmap(StockPixmap(image, size_ * 2));
  icons_.push_back(icon);
  return Count() - 1;
}

int TImageList::AddFile(const std::string& path) {
  const QPixmap picture(ToQt(path));
  if (picture.isNull()) return -1;
  icons_.emplace_back(picture);
  return Count() - 1;
}

QIcon TImageList::Icon(int index) const {
  return index < 0 || index >= Count() ? QIcon() : icons_[static_cast<std::size_t>(index)];
}
