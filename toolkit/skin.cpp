#include "toolkit/skin.h"

#include <QFile>
#include <algorithm>

#include "toolkit/form.h"
#include "toolkit/text.h"

namespace {
constexpr qsizetype kSizeHeader = 4;
constexpr quint32 kLargestSheet = 4 * 1024 * 1024;

/// Size that the head of a compressed file announces, big-endian.
quint32 AnnouncedSize(const QByteArray& packed) {
  quint32 size = 0;
  for (qsizetype i = 0; i < kSizeHeader; ++i) size = (size << 8) | static_cast<unsigned char>(packed[i]);
  return size;
}

}  // namespace

bool TbsSkinData::LoadFromCompressedFile(const std::string& path) {
  QFile file(ToQt(path));
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QByteArray packed = file.read(kLargestSheet);
  if (packed.size() <= kSizeHeader || AnnouncedSize(packed) == 0 || AnnouncedSize(packed) > kLargestSheet)
    return false;
  const QByteArray sheet = qUncompress(packed);
  if (sheet.isEmpty() || sheet.size() > static_cast<qsizetype>(kLargestSheet)) return false;
  style_sheet_ = QString::fromUtf8(sheet);
  for (TbsBusinessSkinForm* frame : frames_) frame->Apply();
  return true;
}

TbsSkinData::~TbsSkinData() {
  for (TbsBusinessSkinForm* frame : frames_) frame->skin_data_ = nullptr;
}

TbsBusinessSkinForm::TbsBusinessSkinForm(TForm* form)
    : TComponent(form),
      form_(form),
      caption_font_(new TFont(this)),
      inactive_caption_font_(new TFont(this)),
      menu_font_(new TFont(this)) {}

TbsBusinessSkinForm::~TbsBusinessSkinForm() {
  SetSkinData(nullptr);
}

TbsBusinessSkinForm* TbsBusinessSkinForm::Of(const TForm* form) {
  return form->findChild<TbsBusinessSkinForm*>(QString(), Qt::FindDirectChildrenOnly);
}

void TbsBusinessSkinForm::SetSkinData(TbsSkinData* data) {
  if (skin_data_ != nullptr) std::erase(skin_data_->frames_, this);
  skin_data_ = data;
  if (skin_data_ == nullptr) return;
  skin_data_->frames_.push_back(this);
  Apply();
}

void TbsBusinessSkinForm::Apply() {
  QWidget* window = form_->Widget();
  if (window == nullptr || window->styleSheet() == skin_data_->StyleSheet()) return;
  window->setStyleSheet(skin_data_->StyleSheet());
}

void TbsBusinessSkinForm::SetPublishedDefCaptionFont(QObject* font) {
  if (const auto* other = qobject_cast<TFont*>(font)) caption_font_->Assign(*other);
}

void TbsBusinessSkinForm::SetPublishedDefInActiveCaptionFont(QObject* font) {
  if (const auto* other = qobject_cast<TFont*>(font)) inactive_caption_font_->Assign(*other);
}

void TbsBusinessSkinForm::SetPublishedDefMenuItemFont(QObject* font) {
  if (const auto* other = qobject_cast<TFont*>(font)) menu_font_->Assign(*other);
}
