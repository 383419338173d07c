// The frame of a detail dialog: a list of records with a check box each below a head. It has no conditions
// and no query: the dialog is opened with an answer in hand, and the caller fills m_lvMain before it is
// shown.
#pragma once

#include <memory>
#include <string>

#include "framework/business/m_detail_intf.h"
#include "framework/frames/list_form.h"

/// The base of the detail dialogs.
///
/// To be a detail dialog, a descendant
/// 1. places its head in m_pnCenter, above m_pnlData (BuildControls),
/// 2. sets its caption keys (SetCaptions),
/// 3. makes a CDetailCommon, builds its columns and sets m_strExportType (Construct),
/// 4. fills its head at each show (ResetForm),
/// and calls this class's operation of the same name first; in FormDestroy, where it deletes its
/// CDetailCommon, last.
///
/// The layout of the list is saved at each close, and read again at the next show.
class TDetailForm : public TListForm {
  Q_OBJECT

 public:
  void BuildControls() override;
  void SetCaptions() override;
  void Construct() override;
  /// Writes the ticked records to a file: all columns of the column table except the data columns. Standard
  /// reporting; then nothing is written.
  virtual void OutputRecords(const AnsiString& fileName);

  void FormClose(TObject* sender) override;
  /// Audit, output and print follow the check-all box.
  void SelectAll(TObject* sender) override;
  virtual void m_actOutPutExecute(TObject* sender);

  TbsSkinToolBar* m_tbDetail = nullptr;
  TbsSkinSpeedButton* bsSkinSpeedButton1 = nullptr;  ///< of m_actGo, which has no handler in this frame
  TPanel* m_pnBottom = nullptr;
  TbsSkinButton* m_btnAudit = nullptr;
  TbsSkinButton* m_btnClose = nullptr;
  TPopupMenu* m_pmuListView = nullptr;

  TAction* m_actOutPut = nullptr;
  TAction* m_actGo = nullptr;
  TAction* m_actLine = nullptr;  ///< a line of the list's menu

 protected:
  explicit TDetailForm(TComponent* owner);
  ~TDetailForm() override;

  CMInterface& Business() override { return *m_pIntf; }
  TAction* OutputAction() const override { return m_actOutPut; }
  /// The reason's own text if it is a text key, otherwise as in every list.
  std::string ReasonText(const std::string& reason) override;

  std::unique_ptr<CMDetailIntf> m_pIntf;

 private:
  void BuildMenus();
  void BuildButtons();
  void BuildFrame();
};
