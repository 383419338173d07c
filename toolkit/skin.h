#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/component.h"
#include "toolkit/font.h"

class TForm;

/// A loaded skin: a style sheet with its colours. Without one the platform's own look stays.
class TbsSkinData : public TComponent {
  Q_OBJECT

 public:
  explicit TbsSkinData(TComponent* owner) : TComponent(owner) {}
  ~TbsSkinData() override;

  /// Loads a skin file: a style sheet in UTF-8, compressed as qCompress does. A file that is missing, isn't
  /// such a file, or would unpack to more than 4 MiB changes nothing and gives false.
  bool LoadFromCompressedFile(const std::string& path);
  /// The loaded style sheet, empty without a skin.
  const QString& StyleSheet() const { return style_sheet_; }

 private:
  friend class TbsBusinessSkinForm;
  QString style_sheet_;
  std::vector<class TbsBusinessSkinForm*> frames_;
};

/// The skin frame of a form: puts the skin on the form's window and all it holds.
class TbsBusinessSkinForm : public TComponent {
  Q_OBJECT
  Q_PROPERTY(QObject* DefCaptionFont READ PublishedDefCaptionFont WRITE SetPublishedDefCaptionFont)
  Q_PROPERTY(QObject* DefInActiveCaptionFont READ PublishedDefInActiveCaptionFont WRITE
                 SetPublishedDefInActiveCaptionFont)
  Q_PROPERTY(QObject* DefMenuItemFont READ PublishedDefMenuItemFont WRITE SetPublishedDefMenuItemFont)

 public:
  /// form: the form that the frame skins.
  explicit TbsBusinessSkinForm(TForm* form);
  ~TbsBusinessSkinForm() override;
  /// The skin frame of a form, null when it has none.
  static TbsBusinessSkinForm* Of(const TForm* form);

  TbsSkinData* SkinData() const { return skin_data_; }
  /// Takes a skin; its present and every later content goes to the form.
  void SetSkinData(TbsSkinData* data);
  /// Fonts of the frame and of the form's menus. The window manager draws the frame, so only the menu's is
  /// used.
  TFont* DefCaptionFont() const { return caption_font_; }
  TFont* DefInActiveCaptionFont() const { return inactive_caption_font_; }
  TFont* DefMenuItemFont() const { return menu_font_; }
  /// Whether menus take the skin's font; off: DefMenuItemFont.
  bool UseSkinFontInMenu() const { return use_skin_font_in_menu_; }
  void SetUseSkinFontInMenu(bool use) { use_skin_font_in_menu_ = use; }

  QObject* PublishedDefCaptionFont() const { return caption_font_; }
  void SetPublishedDefCaptionFont(QObject* font);
  QObject* PublishedDefInActiveCaptionFont() const { return inactive_caption_font_; }
  void SetPublishedDefInActiveCaptionFont(QObject* font);
  QObject* PublishedDefMenuItemFont() const { return menu_font_; }
  void SetPublishedDefMenuItemFont(QObject* font);

 private:
  friend class TbsSkinData;
  void Apply();

  TForm* form_;
  TbsSkinData* skin_data_ = nullptr;
  TFont* caption_font_;
  TFont* inactive_caption_font_;
  TFont* menu_font_;
  bool use_skin_font_in_menu_ = false;
};
