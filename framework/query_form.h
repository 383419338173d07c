// The frame of a query screen: conditions above, a list of records with a check box each, a status line, and
// the actions that work on the ticked records. It holds no condition and no query: m_actQueryExecute is an
// empty hook.
//
// To be a query screen, a descendant
// 1. places its conditions in m_pnlNormal and m_pnlAdvance and its row buttons in m_pnRightBottom
// (BuildControls),
// 2. sets its caption keys (SetCaptions),
// 3. builds its columns, sets m_strBsnCode and m_strExportType, fills its account box and m_sumColumns
// (Construct),
// 4. starts its conditions and its actions' visibility afresh at each show (ResetForm),
// 5. checks, asks and fills the list (m_actQueryExecute),
// 6. follows the ticks with its own row actions (m_lvMainClick, SelectAll),
// and calls this class's operation of the same name first; in FormDestroy and FormClose, last.
//
// The list view owns the records: an index is valid until the list changes.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>

#include "data/corvane.h"
#include "framework/base_form.h"
#include "framework/m_query_intf.h"

class TAction;
class TActionList;
class TbsSkinButton;
class TbsSkinCheckRadioBox;
class TbsSkinExPanel;
class TbsSkinMenuButton;
class TbsSkinScrollBar;
class TbsSkinSpeedButton;
class TbsSkinStatusBar;
class TbsSkinStatusPanel;
class TbsSkinToolBar;
class TfrmSelectColumn;
class TImage;
class TImageList;
class TKVXListView;
class TListItem;
class TPanel;
class TPopupMenu;
class TSaveDialog;

class TQueryForm : public TBaseForm {
  Q_OBJECT

 public:
  explicit TQueryForm(TComponent* owner);
  ~TQueryForm() override;

  void BuildControls() override;
  void SetCaptions() override;
  void Construct() override;
  void PreInitHook1() override {}
  void PreInitHook2() override {}
  void ResetForm() override;

  // The enabling rule; runs after every click, double click, change of a check box and batch action.
  void m_lvMainClick(TObject* sender) override;

  // Writes the ticked records to a file: all columns of the column table but the data columns, in table
  // order, or the visible columns in their order on the screen. Standard reporting; then nothing is written.
  virtual void OutputRecords(const AnsiString& fileName, bool allColumns);

  // Whether a ticked record is in the state that the synchronisation, or the question for the reason, is for.
  virtual bool CanSynState();
  virtual bool CanReason();
  // Enables m_actDelete when every ticked record may be cancelled, and there is one.
  virtual void UpdateDeleteState();
  // Writes a record back to the selected item; does nothing without one.
  virtual void ModifySelected(corvane::Property& row);

  void FormShow(TObject* sender) override;
  void FormDestroy() override;

  virtual void SelectAll(TObject* sender);
  virtual void m_lvMainItemCheck(TObject* sender, TListItem* item);
  virtual void m_lvMainKeyPress(TObject* sender, char& key);
  virtual void m_lvMainSelectItem(TObject* sender, TListItem* item, bool selected);
  virtual void m_lvMainMouseDown(TObject*, TMouseButton, TShiftState, int, int) {}
  virtual void m_sdOutputTypeChange(TObject* sender);

  virtual void m_actQueryExecute(TObject*) {}
  virtual void m_actOutputExecute(TObject* sender);
  virtual void m_actPrintSetExecute(TObject* sender);
  virtual void m_actPrintExecute(TObject* sender);
  virtual void m_actDetailExecute(TObject*) {}
  virtual void m_actFaceInfoExecute(TObject*) {}
  virtual void m_actRearInfoExecute(TObject*) {}
  virtual void m_actOperInfoExecute(TObject*) {}
  virtual void m_actAppSendInfoExecute(TObject*) {}
  virtual void m_actRecvSignInfoExecute(TObject*) {}
  virtual void m_actHideColumnExecute(TObject* sender);
  virtual void m_actSendToDesktopExecute(TObject* sender);
  virtual void m_actAuditExecute(TObject*) {}
  virtual void m_actCloseExecute(TObject* sender);
  virtual void m_actSumExecute(TObject* sender);

  // Status line.
  TbsSkinStatusBar* m_sbInfo = nullptr;
  TbsSkinStatusPanel* m_pnStatusText = nullptr;
  // The frame: m_pnRight holds m_pnTop (title, toolbar), m_pnCenter (conditions in m_pnlTop, list in
  // m_pnlData) and the buttons in m_pnRightBottom.
  TPanel* m_pnRight = nullptr;
  TPanel* m_pnTop = nullptr;
  TPanel* m_pnlTop = nullptr;
  TPanel* m_pnCenter = nullptr;
  TPanel* m_pnRightBottom = nullptr;
  TPanel* m_pnlData = nullptr;
  TImage* m_imgTitle = nullptr;
  TbsSkinExPanel* m_pnlNormal = nullptr;
  TbsSkinExPanel* m_pnlAdvance = nullptr;
  TbsSkinButton* m_spdQuery = nullptr;
  TbsSkinToolBar* m_tbQuery = nullptr;
  TbsSkinSpeedButton* m_tbPrintSetup = nullptr;
  TbsSkinSpeedButton* m_tbPrint = nullptr;
  TbsSkinSpeedButton* m_tbExport = nullptr;
  TbsSkinSpeedButton* m_tbHideColumn = nullptr;
  TbsSkinSpeedButton* m_tbSendToDesktop = nullptr;
  TbsSkinSpeedButton* m_tbSynState = nullptr;
  TbsSkinSpeedButton* m_tbReason = nullptr;
  TbsSkinButton* m_spdSum = nullptr;
  TbsSkinCheckRadioBox* m_crbAllCheck = nullptr;
  TKVXListView* m_lvMain = nullptr;
  TbsSkinScrollBar* m_sbListH = nullptr;
  TbsSkinScrollBar* m_sbListV = nullptr;
  TbsSkinButton* m_btnAudit = nullptr;
  TbsSkinButton* m_btnClose = nullptr;
  TbsSkinButton* m_btnDetail = nullptr;
  TbsSkinButton* m_btnDel = nullptr;
  TbsSkinButton* m_btnViewAuditFoot = nullptr;
  TbsSkinMenuButton* m_mubtnDetail = nullptr;
  TbsSkinButton* m_btnOperInfo = nullptr;
  TbsSkinButton* m_btnRecvInfo = nullptr;
  TPopupMenu* m_pmuListview = nullptr;
  TPopupMenu* m_pmuBillInfo = nullptr;
  TPopupMenu* m_pumColumn = nullptr;
  TSaveDialog* m_sdOutput = nullptr;
  TImageList* m_iglQuery = nullptr;

  TActionList* m_alMain = nullptr;
  TAction* m_actQuery = nullptr;
  TAction* m_actOutput = nullptr;
  TAction* m_actPrintSet = nullptr;
  TAction* m_actPrint = nullptr;
  TAction* m_actDetail = nullptr;
  TAction* m_actFaceInfo = nullptr;
  TAction* m_actRearInfo = nullptr;
  TAction* m_actOperInfo = nullptr;
  TAction* m_actAppSendInfo = nullptr;
  TAction* m_actRecvSignInfo = nullptr;
  TAction* m_actHideColumn = nullptr;
  TAction* m_actSendToDesktop = nullptr;
  TAction* m_actSynState = nullptr;
  TAction* m_actReason = nullptr;
  TAction* m_actAudit = nullptr;
  TAction* m_actClose = nullptr;
  TAction* m_actDelete = nullptr;
  TAction* m_actSum = nullptr;
  TAction* m_actViewAuditFoot = nullptr;

 protected:
  // The ticked records.
  corvane::List CheckedRecords();
  // Lays the bottom buttons out anew, a screen's own row buttons before the frame's.
  void PlaceButtons(std::initializer_list<TWinControl*> rowButtons);
  // A print action: head from the column table, the ticked records, through `business`.
  void PrintChecked(CMInterface& business);

  std::unique_ptr<CMQueryIntf> m_pIntf;
  TfrmSelectColumn* m_pSelectColumn = nullptr;  // owned; null until the first show
  bool m_bDateByRadio = false;     // the quick date choice is writing the date edits; for the screens
  bool m_bHasAdvance = true;       // m_pnlAdvance is in use
  std::string m_strExportType;     // value of TYPEVAL in an export's head
  std::string m_strBsnCode;        // business code
  std::string m_strBsnName;        // business name for the audit view
  std::string m_strOprNo;          // the user's number, read once
  std::uint8_t m_nOutputType = 1;  // of the next output: 1 workbook, 2 XML, 3 text
  bool m_bAskColumns = false;      // ask before an output whether to write all columns
  bool m_bColumnDialog = false;    // offer the column dialog in the column menu

 private:
  void BuildActions();
  void BuildToolBar();
  void BuildList();
  void BuildButtons();
  void BuildMenus();
  void BuildFrame();
  void BuildConditions();
  void SetStatus(const std::string& text);
  bool AnyCheckedIn(const char* stateKey);
};
