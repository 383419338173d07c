#include "toolkit/labels.h"

#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QLabel>
#include <stdexcept>

#include "toolkit/text.h"

TLabel::TLabel(TComponent* owner) : TGraphicControl(owner) {
  auto* label = new QLabel;
  label->setTextFormat(Qt::PlainText);
  SetWidget(label);
  ApplyAlignment();
}

QLabel* TLabel::Label() const {
  return static_cast<QLabel*>(Widget());
}

void TLabel::CaptionChanged() {
  if (Label() != nullptr) Label()->setText(ToQt(Caption()));
}

void TLabel::FontChanged() {
  TControl::FontChanged();
  if (Label() == nullptr) return;
  const QColor color = Font()->ToQColor();
  const QString sheet = color.isValid() ? QLatin1String("color:") + color.name() : QString();
  if (Label()->styleSheet() != sheet) Label()->setStyleSheet(sheet);
}

void TLabel::SetWordWrap(bool wrap) {
  wordWrap_ = wrap;
  if (Label() != nullptr) Label()->setWordWrap(wrap);
}

void TLabel::SetAlignment(TAlignment alignment) {
  alignment_ = alignment;
  ApplyAlignment();
}

void TLabel::SetLayout(TTextLayout layout) {
  layout_ = layout;
  ApplyAlignment();
}

void TLabel::SetTransparent(bool transparent) {
  transparent_ = transparent;
  if (Label() != nullptr) Label()->setAutoFillBackground(!transparent);
}

void TLabel::SetSelectable(bool selectable) {
  selectable_ = selectable;
  if (Label() == nullptr) return;
  Label()->setTextInteractionFlags(selectable ? Qt::TextSelectableByMouse : Qt::NoTextInteraction);
}

void TLabel::ApplyAlignment() {
  if (Label() == nullptr) return;
  const Qt::Alignment across = alignment_ == taCenter         ? Qt::AlignHCenter
                               : alignment_ == taRightJustify ? Qt::AlignRight
                                                              : Qt::AlignLeft;
  const Qt::Alignment down = layout_ == tlTop      ? Qt::AlignTop
                             : layout_ == tlBottom ? Qt::AlignBottom
                                                   : Qt::AlignVCenter;
  Label()->setAlignment(across | down);
}

TImage::TImage(TComponent* owner) : TGraphicControl(owner) {
  auto* label = new QLabel;
  label->setAlignment(Qt::AlignCenter);
  SetWidget(label);
}

QLabel* TImage::Label() const {
  return static_cast<QLabel*>(Widget());
}

void TImage::Show(const QPixmap& picture) {
  picture_ = picture;
  if (Label() != nullptr) Label()->setPixmap(picture);
}

void TImage::SetStock(TStockImage image, int size) {
  Show(StockPixmap(image, size));
}

void TImage::SetPicture(const TImageList* images, int index, int size) {
  Show(images == nullptr ? QPixmap() : images->Icon(index).pixmap(size));
}

void TImage::LoadFromFile(const std::string& path) {
  QImageReader reader(ToQt(path));
  const QImage image = reader.read();
  if (image.isNull()) throw std::runtime_error(FromQt(reader.errorString()));
  Show(QPixmap::fromImage(image));
}

void TImage::SaveIconToFile(const std::string& path) const {
  QImageWriter writer(ToQt(path), "ico");
  const QImage image = picture_.isNull() ? StockPixmap(siBill, 32).toImage() : picture_.toImage();
  if (!writer.write(image)) throw std::runtime_error(FromQt(writer.errorString()) + ": " + path);
}

TBevel::TBevel(TComponent* owner, TBevelShape shape) : TGraphicControl(owner) {
  auto* frame = new QFrame;
  const bool upright = shape == bsLeftLine || shape == bsRightLine;
  frame->setFrameShape(shape == bsBox ? QFrame::StyledPanel : upright ? QFrame::VLine : QFrame::HLine);
  frame->setFrameShadow(shape == bsBox ? QFrame::Plain : QFrame::Sunken);
  SetWidget(frame);
}
