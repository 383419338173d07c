#pragma once

#include <QIcon>
#include <QPixmap>
#include <string>
#include <vector>

#include "toolkit/component.h"

/// Pictures that the layer draws by itself.
enum TStockImage {
  siNone,
  siWarning,
  siInformation,
  siQuestion,
  siError,
  siQuery,
  siPrint,
  siPrintSetup,
  siExport,
  siColumns,
  siDesktop,
  siSynchronize,
  siReason,
  siSum,
  siDetail,
  siAudit,
  siDelete,
  siClose,
  siCalendar,
  siClock,
  siBill,
  siUp,
  siDown
};

/// One of the stock pictures at a size in pixels.
QPixmap StockPixmap(TStockImage image, int size);

/// One of the stock pictures, drawn at the size that it is asked for in.
QIcon StockIcon(TStockImage image);

/// Pictures counted from 0.
class TImageList : public TComponent {
  Q_OBJECT

 public:
  explicit TImageList(TComponent* owner) : TComponent(owner) {}

  int Count() const { return static_cast<int>(icons_.size()); }
  /// Size of the pictures, pixels; 16 at the start.
  int Size() const { return size_; }
  void SetSize(int size) { size_ = size; }
  /// Appends a stock picture and returns its index.
  int Add(TStockImage image);
  /// Appends the picture of a file and returns its index, -1 when the file is no picture.
  int AddFile(const std::string& path);
  /// The picture at an index; an empty one when there is none.
  QIcon Icon(int index) const;

 private:
  std::vector<QIcon> icons_;
  int size_ = 16;
};
