#include "framework/base/base_form.h"

#include <QFileInfo>
#include <string_view>

#include "dialogs/date_calendar.h"
#include "framework/base/form_translation.h"
#include "host/pub_info.h"
#include "host/translate.h"
#include "platform/host_api.h"
#include "toolkit/conversion.h"
#include "toolkit/life.h"
#include "toolkit/properties.h"
#include "toolkit/text.h"

namespace {

constexpr const char* kConfiguration = "SYSCONFIG_DATA";
constexpr const char* kOperator = "APPLICATION.OPERATOR";
constexpr const char* kDefaultStyle = "SK00";

// Every property of a control that holds a font.
constexpr const char* kFontProperties[] = {
    "Font", "DefCaptionFont", "DefInActiveCaptionFont", "DefMenuItemFont", "DefaultFont", "DefItemFont"};

// A switch of the configuration: empty and "0" are off, everything else is on.
bool IsOn(const std::string& value) {
  return !value.empty() && value != "0";
}

std::uint8_t CharsetOf(std::string_view language) {
  if (language == "Simplified Chinese") return kSimplifiedChinese;
  if (language == "Traditional Chinese") return kTraditionalChinese;
  if (language == "English") return kEnglish;
  return kDefaultCharset;
}

}  // namespace

TBaseForm::TBaseForm(TComponent* owner) : TForm(owner) {}

void TBaseForm::BuildControls() {
  TForm::BuildControls();
  m_SkinData = NewComponent<TbsSkinData>(this, "m_SkinData");
  m_BusinessSkinForm = new TbsBusinessSkinForm(this);
  m_BusinessSkinForm->SetName("m_BusinessSkinForm");
  OnShow = [this](TObject* sender) { FormShow(sender); };
  OnClose = [this](TObject* sender) { FormClose(sender); };
  OnKeyDown = [this](TObject* sender, std::uint16_t& key, TShiftState shift) {
    FormKeyDown(sender, key, shift);
  };
  SetTag(0);
  m_BusinessSkinForm->SetSkinData(m_SkinData);
}

void TBaseForm::FormShow(TObject*) {
  PreInitHook1();
  PreInitHook2();
  InitForm();
  ResetForm();
  if (Tag() != 0) SendToHost(kMessageFormShown);
}

void TBaseForm::InitForm() {
  ApplySkinData(this);
  TranslateForm(*this);
  AfterTranslate();
  ReadFont();
  ApplyFonts(this);
  LoadSkin();
  ReadIme();
  ApplyIme(this);
  g_pPubInfo->SetHandle(ClassName(), Handle());
}

void TBaseForm::ResetForm() {
  SetKeyPreview(true);
  OnKeyDown = [this](TObject* sender, std::uint16_t& key, TShiftState shift) {
    FormKeyDown(sender, key, shift);
  };
  m_BusinessSkinForm->SetUseSkinFontInMenu(false);
  SetFont(m_BusinessSkinForm->DefMenuItemFont());
}

void TBaseForm::m_lvMainClick(TObject*) {}

void TBaseForm::FormClose(TObject*) {
  g_pPubInfo->SetHandle(ClassName(), 0);
  if (Tag() != 0) SendToHost(kMessageFormClosed);
}

// On a control that the configuration lists, a key moves the focus only with Shift; on any other control
// Shift makes no difference.
bool TBaseForm::MovesFocus(TShiftState shift) const {
  const std::string control = ActiveControl()->ClassName();
  const bool listed =
      IsOn(Configured("CONTROL.UPDOWN", control)) || IsOn(Configured("CONTROL.RETURN", control));
  return (!listed || shift.Contains(ssShift)) && IsOn(Configured(kOperator, "SimulateTab"));
}

void TBaseForm::FormKeyDown(TObject*, std::uint16_t& key, TShiftState shift) {
  if (ActiveControl() == nullptr || (key != VK_UP && key != VK_DOWN && key != VK_RETURN)) return;
  if (!MovesFocus(shift)) return;
  const bool forward = key != VK_UP;
  key = 0;
  SelectNext(ActiveControl(), forward, true);
}

std::intptr_t TBaseForm::Dispatch(std::uint32_t message, std::uintptr_t wparam, std::intptr_t lparam) {
  if (message == kMessageLookChanged) {
    LoadSkin();
    ApplyFonts(this);
  }
  const bool activated = message == WM_ACTIVATE && (wparam == WA_ACTIVE || wparam == WA_CLICKACTIVE);
  if (Tag() != 0 && activated) SendToHost(kMessageFormActivated);
  return TForm::Dispatch(message, wparam, lparam);
}

void TBaseForm::SendToHost(std::uint32_t message) {
  norvik_window_send(g_pPubInfo->GetHandle("APPMAINFORMHANDLE"), message,
                     reinterpret_cast<std::uintptr_t>(this), Tag());
  CheckLife();
}

std::string TBaseForm::TranslateKey(const std::string& key) {
  if (key.find('\0') != std::string::npos) return key;
  const std::string text = g_pTranslate->Translate(key);
  return text.empty() ? key : text;
}

std::string TBaseForm::Configured(const char* section, const std::string& item) {
  return g_pPubInfo->GetIniValue(kConfiguration, section, item);
}

void TBaseForm::SendToDesktop(const std::string& itemName) {
  g_pPubInfo->SetField("ENVIRONMENT", corvane::Field("CURSHORTCUT.ITEMCAPTION", Caption()));
  g_pPubInfo->SetField("ENVIRONMENT", corvane::Field("CURSHORTCUT.ITEMNAME", itemName));
  norvik_window_send(g_pPubInfo->GetHandle("APPMAINFORMHANDLE"), kMessageCreateShortcut, 0, 0);
  CheckLife();
}

std::string TBaseForm::ShowDateCalendar(const std::string& date, TKVXDateType type) {
  return PickDateTime(date, type);
}

void TBaseForm::ApplySkinData(TWinControl* parent) {
  for (int i = 0; i < parent->ControlCount(); ++i) {
    if (auto* child = qobject_cast<TWinControl*>(parent->Controls(i))) ApplySkinData(child);
  }
  if (IsPublishedProp(parent, "SkinData")) SetObjectProp(parent, "SkinData", m_SkinData);
}

void TBaseForm::ReadFont() {
  m_nFontSize = StrToInt(Configured(kFontSection, "Size"));
  m_strFontName = Configured(kFontSection, "Name");
  m_nFontCharset = CharsetOf(Configured("APPLICATION.LANG", "Language"));
}

void TBaseForm::SetFont(TFont* font) const {
  font->SetSize(m_nFontSize);
  font->SetName(m_strFontName);
  font->SetCharset(m_nFontCharset);
}

void TBaseForm::ApplyFonts(TControl* control) {
  if (control == nullptr) return;
  if (auto* parent = qobject_cast<TWinControl*>(control)) {
    for (int i = 0; i < parent->ControlCount(); ++i) ApplyFonts(parent->Controls(i));
  }
  for (const char* property : kFontProperties) {
    if (!IsPublishedProp(control, property)) continue;
    if (auto* font = qobject_cast<TFont*>(GetObjectProp(control, property))) SetFont(font);
  }
}

void TBaseForm::LoadSkin() {
  std::string style = Configured("APPLICATION.STYLE", "Style");
  if (style.empty()) style = kDefaultStyle;
  const std::string file = g_pPubInfo->GetIniValue("PATTERN_DATA", "PATTERN.STYLES", style + "_FileName");
  const std::string path = g_pPubInfo->GetField("ENVIRONMENT", "ENV.SKIN").getValue() + file;
  if (QFileInfo(ToQt(path)).isFile()) m_SkinData->LoadFromCompressedFile(path);
}

void TBaseForm::ReadIme() {
  m_strImeName = Configured(kOperator, "ImeName");
  if (m_strImeName.empty()) m_strImeName = Ansi("中文 (简体) - 全拼");
  m_bImeOff = Configured(kOperator, "ControlWithImeName") != "1";
}

void TBaseForm::ApplyIme(TWinControl* parent) {
  if (m_bImeOff || parent == nullptr) return;
  for (int i = 0; i < parent->ControlCount(); ++i) {
    if (auto* child = qobject_cast<TWinControl*>(parent->Controls(i))) ApplyIme(child);
  }
  if (!IsPublishedProp(parent, "ImeName") || !IsPublishedProp(parent, "ImeMode")) return;
  SetOrdProp(parent, "ImeMode", imOpen);
  SetStrProp(parent, "ImeName", m_strImeName);
}
