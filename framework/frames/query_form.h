// The frame of a query screen: conditions above, a list of records with a check box each, a status line, and
// the actions that work on the ticked records. It has no condition and no query: m_actQueryExecute is an
// empty hook.
#pragma once

#include <initializer_list>
#include <memory>
#include <string>

#include "data/corvane.h"
#include "framework/business/m_query_intf.h"
#include "framework/frames/list_form.h"
#include "framework/rules/tick_rules.h"

class TbsSkinExPanel;
class TbsSkinMenuButton;

/// The base of the query screens.
///
/// To be a query screen, a descendant
/// 1. places its conditions in m_pnlNormal and m_pnlAdvance and its row buttons in m_pnRightBottom
///    (BuildControls),
/// 2. sets its caption keys (SetCaptions),
/// 3. builds its columns, sets m_strBsnCode and m_strExportType, fills its account box and m_sumColumns
///    (Construct),
/// 4. resets its conditions and its actions' visibility at each show (ResetForm),
/// 5. checks, sends and fills the list (m_actQueryExecute),
/// 6. enables its own row actions by the ticks (m_lvMainClick, SelectAll),
/// and calls this class's operation of the same name first; in FormDestroy and FormClose, last.
class TQueryForm : public TListForm {
  Q_OBJECT

 public:
  explicit TQueryForm(TComponent* owner);
  ~TQueryForm() override;

  void BuildControls() override;
  void SetCaptions() override;
  void Construct() override;
  void ResetForm() override;

  /// Enables the actions by the rows and the ticks; runs after every click, double click, change of a check
  /// box and batch action. The actions that depend on a text of the host come last; if that text can't be
  /// read, they are disabled and the failure propagates.
  void m_lvMainClick(TObject* sender) override;

  /// Writes the ticked records to a file, as WriteRecords.
  virtual void OutputRecords(const AnsiString& fileName, bool allColumns);

  /// Whether a ticked record is in the state for the synchronisation, or for the question why it failed.
  virtual bool CanSynState();
  virtual bool CanReason();
  /// Enables m_actDelete if every ticked record may be cancelled, and there is one. A failure propagates, and
  /// the action is disabled.
  virtual void UpdateDeleteState();
  /// Writes a record back to the selected item; does nothing without one.
  virtual void ModifySelected(corvane::Property& row);
  /// Fills a request to cancel the ticked records: their number, the sum of the face (or business) amounts,
  /// and a row for each.
  virtual void BuildDeleteRequest(corvane::CorvaneStream& request);
  /// Fills a request to carry out the ticked records, at once or on a day that the user chooses: values of
  /// `source`, the booking, and a row for each record. True if the user confirmed; otherwise the request is
  /// filled all the same, without a booking.
  virtual bool BuildDealRequest(corvane::CorvaneStream& source, corvane::CorvaneStream& request,
                                bool startToday);

  void FormDestroy() override;

  void SelectAll(TObject* sender) override;
  void m_lvMainItemCheck(TObject* sender, TListItem* item) override;

  virtual void m_actQueryExecute(TObject*) {}
  virtual void m_actOutputExecute(TObject* sender);
  virtual void m_actDetailExecute(TObject*) {}
  virtual void m_actFaceInfoExecute(TObject*) {}
  virtual void m_actRearInfoExecute(TObject*) {}
  virtual void m_actOperInfoExecute(TObject*) {}
  virtual void m_actAppSendInfoExecute(TObject*) {}
  virtual void m_actRecvSignInfoExecute(TObject*) {}
  void m_actHideColumnExecute(TObject* sender) override;
  virtual void m_actSendToDesktopExecute(TObject* sender);
  virtual void m_actAuditExecute(TObject*) {}
  /// The batch actions. Each is disabled during its exchange; a row of an answer that matches no item is
  /// skipped.
  virtual void m_actSynStateExecute(TObject* sender);
  virtual void m_actReasonExecute(TObject* sender);
  virtual void m_actDeleteExecute(TObject* sender);
  virtual void m_actViewAuditFootExecute(TObject* sender);

  /// The frame: m_pnRight holds m_pnTop, m_pnCenter (conditions in m_pnlTop, then the list) and the buttons
  /// in m_pnRightBottom.
  TPanel* m_pnRight = nullptr;
  TPanel* m_pnlTop = nullptr;
  TPanel* m_pnRightBottom = nullptr;
  TbsSkinExPanel* m_pnlNormal = nullptr;
  TbsSkinExPanel* m_pnlAdvance = nullptr;
  TbsSkinButton* m_spdQuery = nullptr;
  TbsSkinToolBar* m_tbQuery = nullptr;
  TbsSkinSpeedButton* m_tbSendToDesktop = nullptr;
  TbsSkinSpeedButton* m_tbSynState = nullptr;
  TbsSkinSpeedButton* m_tbReason = nullptr;
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

  TAction* m_actQuery = nullptr;
  TAction* m_actOutput = nullptr;
  TAction* m_actDetail = nullptr;
  TAction* m_actFaceInfo = nullptr;
  TAction* m_actRearInfo = nullptr;
  TAction* m_actOperInfo = nullptr;
  TAction* m_actAppSendInfo = nullptr;
  TAction* m_actRecvSignInfo = nullptr;
  TAction* m_actSendToDesktop = nullptr;
  TAction* m_actSynState = nullptr;
  TAction* m_actReason = nullptr;
  TAction* m_actDelete = nullptr;
  TAction* m_actViewAuditFoot = nullptr;

 protected:
  CMInterface& Business() override { return *m_pIntf; }
  TAction* OutputAction() const override { return m_actOutput; }
  /// Places the bottom buttons again, a screen's own row buttons before the frame's.
  void PlaceButtons(std::initializer_list<TWinControl*> rowButtons);

  std::unique_ptr<CMQueryIntf> m_pIntf;
  bool m_bDateByRadio = false;   ///< the quick date choice is writing the date edits; for the screens
  bool m_bHasAdvance = true;     ///< m_pnlAdvance is in use
  std::string m_strBsnCode;      ///< business code
  std::string m_strBsnName;      ///< business name for the audit view
  std::string m_strOprNo;        ///< the user's number, read once
  bool m_bAskColumns = false;    ///< ask before an output whether to write all columns
  bool m_bColumnDialog = false;  ///< offer the column dialog in the column menu

 private:
  bool CanDelete();
  void BuildToolButtons();
  void BuildButtons();
  void BuildMenus();
  void BuildFrame();
  void BuildConditions();
  /// The number of ticked records of a kind, by the rule as it is at present.
  template <class Rule>
  int CheckedCount(norvik::RecordKind kind, Rule norvik::TickRules::*rule, Rule present);
  bool Exchange(TAction* action, const char* code, corvane::CorvaneStream& request,
                corvane::CorvaneStream& answer);
  /// The ticked records in a state, as the rows that ask about them.
  void AddRowsInState(corvane::CorvaneStream& request, const char* stateKey);
  void TakeStates(const corvane::CorvaneStream& answer);
  void TakeReasons(const corvane::CorvaneStream& answer);
  /// The ticked records' sum of the face amounts, or of the business amounts, with two decimals.
  std::string CheckedTotal();

  norvik::TickRules tickRules_;
};
