// The pictures of a form's buttons, menus and labels, counted from 0. They are the layer's own (see
// stock_images.h) or come from files; masks, overlays and drawing of the original's lists are not there.
#pragma once

#include <QIcon>
#include <string>
#include <vector>

#include "toolkit/component.h"
#include "toolkit/stock_images.h"

/// Pictures counted from 0.
class TImageList : public TComponent {
  Q_OBJECT

 public:
  explicit TImageList(TComponent* owner) : TComponent(owner) {}

  /// Number of the pictures.
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
