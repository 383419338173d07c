// The root of the module's forms. A form does not list its controls: each is translated, skinned and given
// the host's font and input method because of the properties that it publishes.
#pragma once

#include <cstdint>
#include <string>

#include "data/corvane.h"
#include "toolkit/date_edit.h"
#include "toolkit/form.h"
#include "toolkit/skin.h"

/// Messages between a form and the host's main window.
inline constexpr std::uint32_t kMessageLookChanged = 0x7E9;     ///< to the form: reload skin and fonts
inline constexpr std::uint32_t kMessageCreateShortcut = 0x7FC;  ///< to the host: parameters 0, 0
inline constexpr std::uint32_t kMessageFormShown = 0x824;       ///< to the host: the form's address, its Tag
inline constexpr std::uint32_t kMessageFormClosed = 0x825;      ///< to the host: the same
inline constexpr std::uint32_t kMessageFormActivated = 0x826;   ///< to the host: the same

/// Character sets of the host's languages.
inline constexpr std::uint8_t kSimplifiedChinese = 134;
inline constexpr std::uint8_t kTraditionalChinese = 136;
inline constexpr std::uint8_t kEnglish = 0;
inline constexpr std::uint8_t kDefaultCharset = 1;  ///< any other language

/// The section of the host's configuration that names the font of all forms.
inline constexpr const char* kFontSection = "APPLICATION.FONT";

/// Tag of a graphic control that is a label whose translated caption is followed by ":".
inline constexpr int kLabelMark = 8;

/// Tag of a form whose show, activation and close are reported to the host.
inline constexpr int kAnnouncedMark = 1;

/// The base of every form of the module but the busy forms.
///
/// 1. Made by CreateForm: BuildControls makes the controls, SetCaptions sets their keys, Construct does the
///    rest. A descendant's BuildControls, SetCaptions (if its base has one to call) and Construct call their
///    base's first.
/// 2. Skin, texts and fonts are read from g_pPubInfo and g_pTranslate at each show; a failing read propagates
///    as their exception and leaves that show unfinished.
/// 3. User-interface thread only. A message to the host returns when the host has answered it, and the host
///    may call the form meanwhile; the form is consistent before it sends.
class TBaseForm : public TForm {
  Q_OBJECT

 public:
  explicit TBaseForm(TComponent* owner);

  void BuildControls() override;
  /// The captions of the form and its controls, as keys; run once, when the form is made.
  void SetCaptions() override = 0;
  /// Hooks of each show: the first two run before the set-up, AfterTranslate runs as soon as the texts are
  /// translated, and nothing calls SpareHook. They do nothing here; each form has to define PreInitHook1 and
  /// 2.
  virtual void PreInitHook1() = 0;
  virtual void PreInitHook2() = 0;
  virtual void AfterTranslate() {}
  virtual void SpareHook() {}
  /// Runs at each show after the set-up: starts the form afresh. Here: the form receives keys before its
  /// controls do, and the skin frame's menus use the host's font. A descendant calls its base's first.
  virtual void ResetForm();
  /// Recomputes what is enabled; nothing here.
  virtual void m_lvMainClick(TObject* sender);

  /// The form's show: hooks, InitForm, ResetForm, then the message to the host if the form has a Tag.
  virtual void FormShow(TObject* sender);
  /// Up, down and Return move the focus if the user has enabled that; a key that moved it becomes 0.
  virtual void FormKeyDown(TObject* sender, std::uint16_t& key, TShiftState shift);
  /// Enters handle 0 for the form, then sends the message to the host if the form has a Tag.
  virtual void FormClose(TObject* sender);

  /// Handles the host's 0x7E9 and passes activation on, then the toolkit's own messages.
  std::intptr_t Dispatch(std::uint32_t message, std::uintptr_t wparam, std::intptr_t lparam) override;

  /// The text of a key, or the key itself if it has none. A text that contains a NUL is no key.
  static std::string TranslateKey(const std::string& key);
  /// Asks the host for a desktop shortcut to a menu item under the form's caption.
  void SendToDesktop(const std::string& itemName);
  /// The calendar that a date field opens: the picked text, or `date` unchanged. For SetDateTimeForm of the
  /// date edits.
  std::string ShowDateCalendar(const std::string& date, TKVXDateType type);

  TbsBusinessSkinForm* m_BusinessSkinForm = nullptr;
  TbsSkinData* m_SkinData = nullptr;
  corvane::StringVector m_sumColumns;  ///< ids of the columns that the sum action totals
  std::string m_strItemName;           ///< the menu item that opened the form; empty for dialogs

 protected:
  /// A value of the host's configuration; empty if it lacks the item.
  static std::string Configured(const char* section, const std::string& item);
  /// Skin, texts, fonts, input method and the handle entry, in this order; at each show.
  void InitForm();
  /// Loads the skin that the user has chosen; a missing file leaves the skin as it is.
  void LoadSkin();
  /// Sets the host's font on a control and all that it holds; null is allowed.
  void ApplyFonts(TControl* control);

  bool m_bImeOff = true;
  std::int32_t m_nFontSize = 0;
  std::string m_strFontName;
  std::uint8_t m_nFontCharset = kDefaultCharset;
  std::string m_strImeName;

 private:
  void ApplySkinData(TWinControl* parent);
  void ReadFont();
  void ReadIme();
  void ApplyIme(TWinControl* parent);
  void SetFont(TFont* font) const;
  bool MovesFocus(TShiftState shift) const;
  void SendToHost(std::uint32_t message);
};
