// The look that a deployment gives the module's forms: a skin file as a style sheet, and the frame that puts
// it on a form. Pictures, animated borders and the drawing of the original's skins are not there; the window
// manager draws the frame.
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
  const QString& StyleSheet() const { return styleSheet_; }

 private:
  friend class TbsBusinessSkinForm;
  QString styleSheet_;
  std::vector<class TbsBusinessSkinForm*> frames_;
};

/// The skin frame of a form: puts the skin on the form's window and all that it holds.
class TbsBusinessSkinForm : public TComponent {
  Q_OBJECT
  Q_PROPERTY(QObject* DefCaptionFont READ PublishedDefCaptionFont WRITE SetPublishedDefCaptionFont)
  Q_PROPERTY(QObject* DefInActiveCaptionFont READ PublishedDefInActiveCaptionFont WRITE
                 SetPublishedDefInActiveCaptionFont)
  Q_PROPERTY(QObject* DefMenuItemFont READ PublishedDefMenuItemFont WRITE SetPublishedDefMenuItemFont)

 public:
  /// form: the form that the frame skins, and whose menus get DefMenuItemFont.
  explicit TbsBusinessSkinForm(TForm* form);
  ~TbsBusinessSkinForm() override;
  /// The skin frame of a form, null when it has none.
  static TbsBusinessSkinForm* Of(const TForm* form);

  /// The skin, null: none.
  TbsSkinData* SkinData() const { return skinData_; }
  /// Takes a skin; its present and every later content goes to the form.
  void SetSkinData(TbsSkinData* data);
  /// Font of the frame of the active form; the window manager draws the frame and doesn't use it.
  TFont* DefCaptionFont() const { return captionFont_; }
  /// The same for the frame of an inactive form.
  TFont* DefInActiveCaptionFont() const { return inactiveCaptionFont_; }
  /// Font of the form's menus, unless they take the skin's.
  TFont* DefMenuItemFont() const { return menuFont_; }
  /// Whether menus take the skin's font; off: DefMenuItemFont.
  bool UseSkinFontInMenu() const { return useSkinFontInMenu_; }
  void SetUseSkinFontInMenu(bool use);

  /// Published properties (see properties.h).
  QObject* PublishedDefCaptionFont() const { return captionFont_; }
  void SetPublishedDefCaptionFont(QObject* font);
  QObject* PublishedDefInActiveCaptionFont() const { return inactiveCaptionFont_; }
  void SetPublishedDefInActiveCaptionFont(QObject* font);
  QObject* PublishedDefMenuItemFont() const { return menuFont_; }
  void SetPublishedDefMenuItemFont(QObject* font);

 private:
  friend class TbsSkinData;
  void Apply();

  TForm* form_;
  TbsSkinData* skinData_ = nullptr;
  TFont* captionFont_;
  TFont* inactiveCaptionFont_;
  TFont* menuFont_;
  bool useSkinFontInMenu_ = false;
};
