// The form of ShowInfoMsg, ShowWarnMsg and ShowConfirmMsg: an icon, a text and one or two buttons. Callers
// use dialogs/messages.h; tests answer the form.
#pragma once

#include <string>

#include "framework/base/base_form.h"
#include "toolkit/buttons.h"
#include "toolkit/edits.h"
#include "toolkit/image_list.h"
#include "toolkit/labels.h"

enum class TMessageMode { kInformation = 0, kWarning = 1, kQuestion = 2 };

/// Tag is the user's answer: kConfirmed after m_btnOk was pressed, otherwise 0. A text that is higher than
/// half of the screen is shown in m_memo, where it scrolls, instead of in the label.
class TFrmComMsg : public TBaseForm {
  Q_OBJECT

 public:
  static constexpr int kConfirmed = 1;

  TFrmComMsg(TComponent* owner, std::string text, TMessageMode mode);

  void BuildControls() override;
  void SetCaptions() override;
  void Construct() override;
  void PreInitHook1() override {}
  void PreInitHook2() override {}
  void ResetForm() override;

  /// Pixels that a text adds to the designed height: 14 for each 44 of its bytes and each of its lines, less
  /// 42.
  static int ExtraHeight(const std::string& text);

  TImage* m_Img = nullptr;
  TLabel* m_lblInfo = nullptr;
  TMemo* m_memo = nullptr;
  TImageList* m_imgList = nullptr;
  TbsSkinButton* m_btnOk = nullptr;
  TbsSkinButton* m_btnNo = nullptr;

 private:
  void m_btnOkClick(TObject* sender);
  void m_btnNoClick(TObject* sender);
  void FitToFont();
  void Arrange();

  const std::string text_;
  const TMessageMode mode_;
};
