// The form of ShowErrorMsg: a summary, and below it a pane with the whole text that opens and closes. Callers
// use dialogs/messages.h; tests read the form.
#pragma once

#include <string>

#include "framework/base/base_form.h"
#include "toolkit/buttons.h"
#include "toolkit/edits.h"
#include "toolkit/labels.h"

/// A failure; the pane is closed when the form opens.
class TFrmErrorMsg : public TBaseForm {
  Q_OBJECT

 public:
  TFrmErrorMsg(TComponent* owner, std::string summary, std::string detail);

  void BuildControls() override;
  void SetCaptions() override;
  void Construct() override;
  void PreInitHook1() override {}
  void PreInitHook2() override {}
  void ResetForm() override;

  TImage* m_img = nullptr;
  TLabel* m_lblInfo = nullptr;
  TBevel* Bevel1 = nullptr;
  TbsSkinButton* m_btnMail = nullptr;  ///< hidden
  TbsSkinButton* m_btnCopy = nullptr;  ///< shown with the pane
  TbsSkinButton* m_btnDetail = nullptr;
  TbsSkinButton* m_btnOK = nullptr;
  TMemo* m_memo = nullptr;
  bool m_detailShown = false;

 private:
  void m_btnDetailClick(TObject* sender);
  void m_btnCopyClick(TObject* sender);
  void m_memoChange(TObject* sender);
  void ShowDetail(bool shown);
  void FitToFont();
  void Arrange();

  const std::string summary_;
  const std::string detail_;
};
