#include "toolkit/skin.h"

#include <QFile>
#include <algorithm>

#include "toolkit/form.h"
#include "toolkit/text.h"

namespace {
constexpr qsizetype kSizeHeader = 4;
constexpr quint32 kMaxSheetSize = 4 * 1024 * 1024;

// Size that the head of a compressed file announces, big-endian.
quint32 AnnouncedSize(const QByteArray& packed) {
  quint32 size = 0;
  for (qsizetype i = 0; i < kSizeHeader; ++i) size = (size << 8) | static_cast<unsigned char>(packed[i]);
  return size;
}

}  // namespace

bool TbsSkinData::LoadFromCompressedFile(const std::string& path) {
  QFile file(ToQt(path));
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QByteArray packed = file.read(kMaxSheetSize);
  if (packed.size() <= kSizeHeader || AnnouncedSize(packed) == 0 || AnnouncedSize(packed) > kMaxSheetSize)
    return false;
  const QByteArray sheet = qUncompress(packed);
  if (sheet.isEmpty() || sheet.size() > static_cast<qsizetype>(kMaxSheetSize)) return false;
  styleSheet_ = QString::fromUtf8(sheet);
  for (TbsBusinessSkinForm* frame : frames_) frame->Apply();
  return true;
}

TbsSkinData::~TbsSkinData() {
  for (TbsBusinessSkinForm* frame : frames_) frame->skinData_ = nullptr;
}

TbsBusinessSkinForm::TbsBusinessSkinForm(TForm* form)
    : TComponent(form),
      form_(form),
      captionFont_(new TFont(this)),
      inactiveCaptionFont_(new TFont(this)),
      menuFont_(new TFont(this)) {
  SetUseSkinFontInMenu(false);
}

TbsBusinessSkinForm::~TbsBusinessSkinForm() {
  SetSkinData(nullptr);
}

TbsBusinessSkinForm* TbsBusinessSkinForm::Of(const TForm* form) {
  return form->findChild<TbsBusinessSkinForm*>(QString(), Qt::FindDirectChildrenOnly);
}

void TbsBusinessSkinForm::SetSkinData(TbsSkinData* data) {
  if (skinData_ != nullptr) std::erase(skinData_->frames_, this);
  skinData_ = data;
  if (skinData_ == nullptr) return;
  skinData_->frames_.push_back(this);
  Apply();
}

void TbsBusinessSkinForm::SetUseSkinFontInMenu(bool use) {
  useSkinFontInMenu_ = use;
  form_->SetMenuFont(use ? nullptr : menuFont_);
}

void TbsBusinessSkinForm::Apply() {
  QWidget* window = form_->Widget();
  if (window == nullptr || window->styleSheet() == skinData_->StyleSheet()) return;
  window->setStyleSheet(skinData_->StyleSheet());
}

void TbsBusinessSkinForm::SetPublishedDefCaptionFont(QObject* font) {
  if (const auto* other = qobject_cast<TFont*>(font)) captionFont_->Assign(*other);
}

void TbsBusinessSkinForm::SetPublishedDefInActiveCaptionFont(QObject* font) {
  if (const auto* other = qobject_cast<TFont*>(font)) inactiveCaptionFont_->Assign(*other);
}

void TbsBusinessSkinForm::SetPublishedDefMenuItemFont(QObject* font) {
  if (const auto* other = qobject_cast<TFont*>(font)) menuFont_->Assign(*other);
}
