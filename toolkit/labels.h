// What a form shows and the user doesn't operate: texts, pictures, dividing lines. They take no focus; a text
// may be marked and copied where the form lets it. Links and shadows are not there.
#pragma once

#include <QPixmap>
#include <string>

#include "toolkit/control.h"
#include "toolkit/image_list.h"

class QLabel;

/// A text that the user can't change. It is never read as markup.
class TLabel : public TGraphicControl {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ PublishedCaption WRITE SetPublishedCaption)

 public:
  explicit TLabel(TComponent* owner);

  /// Whether the text wraps at blanks; off at the start.
  bool WordWrap() const { return wordWrap_; }
  void SetWordWrap(bool wrap);
  /// Where the text is between left and right; taLeftJustify at the start.
  TAlignment Alignment() const { return alignment_; }
  void SetAlignment(TAlignment alignment);
  /// Where the text is between top and bottom; tlCenter at the start.
  TTextLayout Layout() const { return layout_; }
  void SetLayout(TTextLayout layout);
  /// Whether what is behind the label shows through; on at the start.
  bool Transparent() const { return transparent_; }
  void SetTransparent(bool transparent);
  /// Whether the user can mark and copy the text; off at the start.
  void SetSelectable(bool selectable);

 protected:
  void CaptionChanged() override;
  void FontChanged() override;
  bool EndsMouseEvents() const override { return !selectable_; }

 private:
  QLabel* Label() const;
  void ApplyAlignment();

  bool selectable_ = false;
  bool wordWrap_ = false;
  bool transparent_ = true;
  TAlignment alignment_ = taLeftJustify;
  TTextLayout layout_ = tlCenter;
};

/// A picture.
class TImage : public TGraphicControl {
  Q_OBJECT

 public:
  explicit TImage(TComponent* owner);

  /// Shows a stock picture at a size in pixels.
  void SetStock(TStockImage image, int size = 32);
  /// Shows a picture of a list; an unknown index shows nothing.
  void SetPicture(const TImageList* images, int index, int size = 32);
  /// Shows the picture of a file; std::runtime_error when it is none.
  void LoadFromFile(const std::string& path);
  /// Writes the picture as an icon over any file of that name; std::runtime_error when it can't be written.
  void SaveIconToFile(const std::string& path) const;

 private:
  QLabel* Label() const;
  void Show(const QPixmap& picture);

  QPixmap picture_;
};

/// Where a bevel draws its line.
enum TBevelShape { bsBox, bsTopLine, bsBottomLine, bsLeftLine, bsRightLine };

/// A line or frame that divides groups of controls.
class TBevel : public TGraphicControl {
  Q_OBJECT

 public:
  explicit TBevel(TComponent* owner, TBevelShape shape = bsTopLine);
};
