// What the frames of the query screens and of the detail dialogs share: a list of records with a check box
// each, a status line, output to a file, print, the column menu and the sums. It has no query; the frames and
// their screens fill the list.
//
// The list view owns the records: an index is valid until the list changes.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

#include "data/corvane.h"
#include "framework/base/base_form.h"

class CMInterface;
class TAction;
class TActionList;
class TbsSkinButton;
class TbsSkinCheckRadioBox;
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
class TMenuItem;
class TPanel;
class TPopupMenu;
class TSaveDialog;

/// The base of both frames.
class TListForm : public TBaseForm {
  Q_OBJECT

 public:
  void Construct() override;
  void PreInitHook1() override {}
  void PreInitHook2() override {}
  void ResetForm() override;
  /// Enables output and print by the ticks, the check-all box by the rows. Runs after every click, double
  /// click, change of a check box and batch action.
  void m_lvMainClick(TObject* sender) override;
  /// Marks the records that the answer to a batch action refused, and removes those that were carried out.
  virtual void ProcessResult(const corvane::CorvaneStream& answer);

  /// The first show makes the owner of the columns, which sets the user's widths; each later one builds
  /// missing columns. A layout document that can't be read propagates; the next use of the columns tries
  /// again.
  void FormShow(TObject* sender) override;

  /// The check-all box was clicked.
  virtual void SelectAll(TObject* sender) = 0;
  /// The other events of the list, the save dialog and the actions; an override calls this class's first.
  virtual void m_lvMainItemCheck(TObject* sender, TListItem* item);
  virtual void m_lvMainKeyPress(TObject* sender, char& key);
  virtual void m_lvMainSelectItem(TObject* sender, TListItem* item, bool selected);
  virtual void m_lvMainMouseDown(TObject*, TMouseButton, TShiftState, int, int) {}
  virtual void m_sdOutputTypeChange(TObject* sender);
  virtual void m_actPrintSetExecute(TObject* sender);
  virtual void m_actPrintExecute(TObject* sender);
  virtual void m_actHideColumnExecute(TObject* sender);
  virtual void m_actCloseExecute(TObject* sender);
  virtual void m_actSumExecute(TObject* sender);

  /// Status line.
  TbsSkinStatusBar* m_sbInfo = nullptr;
  TbsSkinStatusPanel* m_pnStatusText = nullptr;
  /// m_pnTop holds title and toolbar, m_pnCenter what is above the list and the list in m_pnlData.
  TPanel* m_pnTop = nullptr;
  TPanel* m_pnCenter = nullptr;
  TPanel* m_pnlData = nullptr;
  TImage* m_imgTitle = nullptr;
  TbsSkinSpeedButton* m_tbPrintSetup = nullptr;
  TbsSkinSpeedButton* m_tbPrint = nullptr;
  TbsSkinSpeedButton* m_tbExport = nullptr;
  TbsSkinSpeedButton* m_tbHideColumn = nullptr;
  TbsSkinButton* m_spdSum = nullptr;
  TbsSkinCheckRadioBox* m_crbAllCheck = nullptr;
  TKVXListView* m_lvMain = nullptr;
  TbsSkinScrollBar* m_sbListH = nullptr;
  TbsSkinScrollBar* m_sbListV = nullptr;
  TPopupMenu* m_pumColumn = nullptr;
  TSaveDialog* m_sdOutput = nullptr;

  TActionList* m_alMain = nullptr;
  TAction* m_actPrintSet = nullptr;
  TAction* m_actPrint = nullptr;
  TAction* m_actHideColumn = nullptr;
  TAction* m_actAudit = nullptr;
  TAction* m_actClose = nullptr;
  TAction* m_actSum = nullptr;

 protected:
  /// Space around a frame and between its parts, pixels.
  static constexpr int kFrameMargin = 6;
  static constexpr int kFrameGap = 6;
  /// The state of an item that has the focus, for TListItem::SetState.
  static constexpr int kFocusedState = 2;

  explicit TListForm(TComponent* owner) : TBaseForm(owner) {}

  /// The business object of the frame; valid until FormDestroy.
  virtual CMInterface& Business() = 0;
  /// The action of output, which has a different name in each frame.
  virtual TAction* OutputAction() const = 0;
  /// What the status line shows for a record's reason, which isn't empty: the host's text for it as a code,
  /// or the reason itself.
  virtual std::string ReasonText(const std::string& reason);

  /// Steps of BuildControls, in this order: BuildActionList before the frame makes its actions, the others
  /// after that.
  void BuildActionList(const char* imagesName);
  void BuildListMenus();
  void BuildStatusLine();
  TbsSkinToolBar* BuildToolBar(const char* name, std::initializer_list<TbsSkinSpeedButton*> furtherButtons);
  void BuildList(TPopupMenu* popup);

  /// Ticks or unticks all rows by the check-all box, and enables output and print accordingly; true if rows
  /// are ticked now.
  bool TickAll();
  /// The ticked records.
  corvane::List CheckedRecords();
  /// Shows a text in the status line.
  void SetStatus(const std::string& text);
  /// Empties the list, and immediately sets what depends on rows and ticks: whatever fails afterwards, no
  /// action stays enabled for a row that is gone.
  void EmptyList();
  /// True from the second show on, even if the earlier ones failed: the form then asks the host again for
  /// what it could not read when the form was made.
  bool ShownBefore() const { return shows_ > 1; }
  /// Asks for the file of an output; empty if the user cancels or declines to overwrite an existing file.
  std::string AskOutputFile();
  /// Writes the ticked records to a file: all columns of the column table except the data columns, in table
  /// order, or the visible columns in their order on the screen. Standard reporting; then nothing is written.
  void WriteRecords(const std::string& fileName, bool allColumns);
  /// A print action: head from the column table, the ticked records, through `business`.
  void PrintChecked(CMInterface& business);
  /// Saves the list's layout and deletes the owner of the columns; nothing before the first show.
  void SaveLayout();
  /// Rebuilds the columns of a list that lacks some or all of them because the host could not supply them
  /// earlier; for a screen before it fills its list, which is emptied. Standard reporting; a layout that
  /// can't be read propagates.
  void BuildMissingColumns(CMInterface& business);

  /// The owner of the columns, made if it doesn't exist yet. Fails as FormShow does.
  TfrmSelectColumn* SelectColumn();

  TfrmSelectColumn* m_pSelectColumn = nullptr;  ///< owned; null until the first show
  std::string m_strExportType;                  ///< value of TYPEVAL in an export's head
  std::uint8_t m_nOutputType = 1;               ///< of the next output: 1 workbook, 2 XML, 3 text

 private:
  void BindList();

  int shows_ = 0;  // shows begun
};

/// Makes a control that needs no more than its name and, if it has one, its action.
template <class Control>
void MakeControl(TComponent* form, Control*& control, const char* name, TAction* action = nullptr) {
  control = NewComponent<Control>(form, name);
  control->SetAction(action);
}
