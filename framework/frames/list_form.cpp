#include "framework/frames/list_form.h"

#include <QFileInfo>
#include <utility>

#include "dialogs/message_keys.h"
#include "dialogs/messages.h"
#include "dialogs/statistics.h"
#include "framework/business/batch_rows.h"
#include "framework/business/m_interface.h"
#include "framework/columns/column_table.h"
#include "framework/columns/export_rules.h"
#include "framework/columns/select_column.h"
#include "host/pub_info.h"
#include "toolkit/action.h"
#include "toolkit/buttons.h"
#include "toolkit/image_list.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/labels.h"
#include "toolkit/layout.h"
#include "toolkit/menu.h"
#include "toolkit/panels.h"
#include "toolkit/save_dialog.h"
#include "toolkit/screen.h"
#include "toolkit/text.h"

namespace {

// The part of the screen that the frame leaves free, pixels.
constexpr int kFreeWidth = 120;
constexpr int kFreeHeight = 220;

// The choices of the save dialog's filter, in its order.
struct OutputKind {
  const char* extension;
  std::uint8_t type;
};
constexpr OutputKind kOutputKinds[] = {{".xls", 1}, {".txt", 3}, {".xml", 2}};

std::vector<norvik::ShownColumn> ShownColumnsOf(TKVXListView* listView) {
  std::vector<norvik::ShownColumn> shown;
  for (int i = 0; i < listView->Columns().Count(); ++i) {
    const TListColumn* column = listView->Columns()[i];
    if (column->Hidden()) continue;
    shown.push_back({listView->ColumnIds()[static_cast<std::size_t>(i)], column->Caption()});
  }
  return shown;
}

constexpr int kTitleImageSize = 24;
constexpr const char* kOutputFilter = "Excel文件(*.xls)|*.xls|文本文件(*.txt)|*.txt|XML文件(*.xml)|*.xml";

}  // namespace

void TListForm::Construct() {
  TBaseForm::Construct();
  m_lvMain->SetFullDrag(false);
  SetTag(kAnnouncedMark);
  SetPosition(poMainFormCenter);
  SetWidth(Screen->Width() - kFreeWidth);
  SetHeight(Screen->Height() - kFreeHeight);
}

void TListForm::ResetForm() {
  TBaseForm::ResetForm();
  m_crbAllCheck->SetChecked(false);
  SetStatus({});
  m_actSum->SetVisible(!m_lvMain->ShowSumRow());
}

void TListForm::FormShow(TObject* sender) {
  ++shows_;
  TBaseForm::FormShow(sender);
  if (ShownBefore() && m_lvMain->Items().Count() == 0) BuildMissingColumns(Business());
  SelectColumn();
}

TfrmSelectColumn* TListForm::SelectColumn() {
  if (m_pSelectColumn == nullptr) m_pSelectColumn = CreateForm<TfrmSelectColumn>(this, ClassName(), m_lvMain);
  return m_pSelectColumn;
}

void TListForm::BuildMissingColumns(CMInterface& business) {
  if (m_lvMain->Columns().Count() > 0 && m_lvMain->ColumnsWhole()) return;
  business.InitListColumns(m_lvMain, ClassName());
  if (m_lvMain->Columns().Count() == 0) return;
  // The old owner of the columns knows none of the new ones.
  DestroyForm(std::exchange(m_pSelectColumn, nullptr));
  SelectColumn();
}

void TListForm::SaveLayout() {
  if (m_pSelectColumn == nullptr) return;
  // The columns have their owner until they are stored: a Release that comes meanwhile runs this again.
  m_pSelectColumn->SaveColumnInfo();
  DestroyForm(std::exchange(m_pSelectColumn, nullptr));
}

void TListForm::m_lvMainClick(TObject*) {
  const bool ticked = m_lvMain->CheckedCount() > 0;
  OutputAction()->SetEnabled(ticked);
  m_actPrint->SetEnabled(ticked);
  m_crbAllCheck->SetEnabled(m_lvMain->Items().Count() > 0);
}

void TListForm::EmptyList() {
  m_lvMain->Clear();
  m_lvMainClick(this);
}

bool TListForm::TickAll() {
  const bool all = m_crbAllCheck->Checked() && m_lvMain->Items().Count() > 0;
  all ? m_lvMain->CheckAll() : m_lvMain->UnCheckAll();
  OutputAction()->SetEnabled(all);
  m_actPrint->SetEnabled(all);
  return all;
}

void TListForm::ProcessResult(const corvane::CorvaneStream& answer) {
  Business().ApplyResultList(answer, norvik::kAnswerList, m_lvMain);
  Business().RemoveCompletedItems(m_lvMain);
}

void TListForm::m_lvMainItemCheck(TObject* sender, TListItem*) {
  m_lvMainClick(sender);
}

void TListForm::m_lvMainKeyPress(TObject*, char& key) {
  if (key != ' ' || !m_lvMain->Checkboxes() || !m_lvMain->OnItemCheck) return;
  if (TListItem* selected = m_lvMain->Selected()) m_lvMain->OnItemCheck(m_lvMain, selected);
}

void TListForm::m_lvMainSelectItem(TObject*, TListItem* item, bool selected) {
  const corvane::Property* record = selected ? m_lvMain->PropertyOf(item) : nullptr;
  const std::string reason = record == nullptr ? std::string() : record->getValue("Reason");
  SetStatus(reason.empty() ? reason : ReasonText(reason));
}

std::string TListForm::ReasonText(const std::string& reason) {
  const std::string text = norvik::ReasonOf(reason);
  return text.empty() ? reason : text;
}

void TListForm::SetStatus(const std::string& text) {
  m_pnStatusText->SetCaption(text);
}

void TListForm::m_actHideColumnExecute(TObject*) {
  SelectColumn()->PrepareColumnMenu(m_pumColumn);
  const QPoint corner = m_tbHideColumn->ClientToScreen(0, m_tbHideColumn->Height());
  m_pumColumn->Popup(corner.x(), corner.y());
}

void TListForm::m_actCloseExecute(TObject*) {
  Close();
}

void TListForm::m_actSumExecute(TObject*) {
  ShowStatistics(this, m_lvMain, Caption(), m_sumColumns);
}

corvane::List TListForm::CheckedRecords() {
  return norvik::TickedRecords(m_lvMain);
}

void TListForm::m_sdOutputTypeChange(TObject*) {
  const int index = m_sdOutput->FilterIndex() - 1;
  if (index < 0 || index >= static_cast<int>(std::size(kOutputKinds))) return;
  m_sdOutput->SetDefaultExt(kOutputKinds[index].extension);
  m_nOutputType = kOutputKinds[index].type;
}

std::string TListForm::AskOutputFile() {
  if (!m_sdOutput->Execute(this)) return {};
  const std::string fileName = m_sdOutput->FileName();
  const bool kept = QFileInfo::exists(ToQt(fileName)) &&
                    !ShowConfirmMsg(TranslateKey(norvik::message::kOverwriteFile), this);
  return kept ? std::string() : fileName;
}

void TListForm::WriteRecords(const std::string& fileName, bool allColumns) {
  corvane::List records = CheckedRecords();
  corvane::Row head;
  corvane::List columns;
  try {
    head["TYPENAME"] = TranslateKey("UI20000");
    head["TYPEVAL"] = m_strExportType;
    head["TITLENAME"] = TranslateKey("UI20001");
    head["TITLEVAL"] = Caption();
    head["FONTNAME"] = Configured(kFontSection, "Name");
    head["FONTSIZE"] = Configured(kFontSection, "Size");
    corvane::List fieldDefs = g_pPubInfo->GetIniplusList(norvik::kColumnTable, ClassName());
    columns = allColumns ? norvik::TableColumns(fieldDefs, &TBaseForm::TranslateKey)
                         : norvik::ShownColumns(fieldDefs, ShownColumnsOf(m_lvMain));
  } catch (const corvane::TException& failure) {
    ReportException(failure);
    return;
  }
  Business().ExportRecords(fileName, head, columns, records, m_nOutputType);
}

void TListForm::m_actPrintExecute(TObject*) {
  PrintChecked(Business());
}

void TListForm::PrintChecked(CMInterface& business) {
  corvane::Row head;
  try {
    head = g_pPubInfo->GetIniplusRow(norvik::kColumnTable, ClassName(), 0);
  } catch (const corvane::TException& failure) {
    ReportException(failure);
    return;
  }
  corvane::List records = CheckedRecords();
  business.PrintRecords(ClassName(), {}, head, records);
}

void TListForm::m_actPrintSetExecute(TObject*) {
  Business().PrintSetup(ClassName());
}

void TListForm::BuildActionList(const char* imagesName) {
  m_alMain = NewComponent<TActionList>(this, "m_alMain");
  m_alMain->SetImages(NewComponent<TImageList>(this, imagesName));
}

void TListForm::BuildListMenus() {
  m_pumColumn = NewComponent<TPopupMenu>(this, "m_pumColumn");
  m_sdOutput = NewComponent<TSaveDialog>(this, "m_sdOutput");
  m_sdOutput->SetFilter(Ansi(kOutputFilter));
  m_sdOutput->SetDefaultExt(".xls");
  m_sdOutput->OnTypeChange = [this](TObject* sender) { m_sdOutputTypeChange(sender); };
}

void TListForm::BuildStatusLine() {
  MakeControl(this, m_sbInfo, "m_sbInfo");
  MakeControl(this, m_pnStatusText, "m_pnStatusText");
  m_sbInfo->Add(m_pnStatusText);
}

TbsSkinToolBar* TListForm::BuildToolBar(const char* name,
                                        std::initializer_list<TbsSkinSpeedButton*> furtherButtons) {
  MakeControl(this, m_pnTop, "m_pnTop");
  m_imgTitle = NewComponent<TImage>(this, "m_imgTitle");
  m_imgTitle->SetStock(siBill, kTitleImageSize);
  auto* toolBar = NewComponent<TbsSkinToolBar>(this, name);
  MakeControl(this, m_tbPrintSetup, "m_tbPrintSetup", m_actPrintSet);
  MakeControl(this, m_tbPrint, "m_tbPrint", m_actPrint);
  MakeControl(this, m_tbExport, "m_tbExport", OutputAction());
  MakeControl(this, m_tbHideColumn, "m_tbHideColumn", m_actHideColumn);
  for (TControl* button : {m_tbPrintSetup, m_tbPrint, m_tbExport, m_tbHideColumn}) toolBar->Add(button);
  for (TControl* button : furtherButtons) toolBar->Add(button);
  TRowLayout top(m_pnTop);
  top.SetSpacing(kFrameGap);
  top.Add(m_imgTitle, 0, caCenter);
  top.Add(toolBar, 1);
  return toolBar;
}

void TListForm::BuildList(TPopupMenu* popup) {
  MakeControl(this, m_pnCenter, "m_pnCenter");
  MakeControl(this, m_pnlData, "m_pnlData");
  MakeControl(this, m_crbAllCheck, "m_crbAllCheck");
  MakeControl(this, m_spdSum, "m_spdSum", m_actSum);
  MakeControl(this, m_lvMain, "m_lvMain");
  m_lvMain->SetViewStyle(vsReport);
  m_lvMain->SetCheckboxes(true);
  m_lvMain->SetGridLines(true);
  m_lvMain->SetRowSelect(true);
  m_lvMain->SetReadOnly(true);
  m_lvMain->SetHideSelection(false);
  m_lvMain->SetPopupMenu(popup);
  BindList();
  m_sbListH = NewComponent<TbsSkinScrollBar>(this, "m_sbListH", sbHorizontal);
  m_sbListV = NewComponent<TbsSkinScrollBar>(this, "m_sbListV", sbVertical);
  m_sbListH->AttachTo(m_lvMain);
  m_sbListV->AttachTo(m_lvMain);
  TColumnLayout data(m_pnlData);
  data.SetSpacing(kFrameGap);
  TRowLayout above = data.AddRow();
  above.SetSpacing(kFrameGap);
  above.Add(m_crbAllCheck);
  above.AddStretch();
  above.Add(m_spdSum);
  data.Add(m_lvMain, 1);
}

void TListForm::BindList() {
  m_crbAllCheck->OnClick = [this](TObject* sender) { SelectAll(sender); };
  m_lvMain->OnClick = [this](TObject* sender) { m_lvMainClick(sender); };
  m_lvMain->OnDblClick = m_lvMain->OnClick;
  m_lvMain->OnItemCheck = [this](TObject* sender, TListItem* item) { m_lvMainItemCheck(sender, item); };
  m_lvMain->OnKeyPress = [this](TObject* sender, char& key) { m_lvMainKeyPress(sender, key); };
  m_lvMain->OnSelectItem = [this](TObject* sender, TListItem* item, bool selected) {
    m_lvMainSelectItem(sender, item, selected);
  };
  m_lvMain->OnMouseDown = [this](TObject* sender, TMouseButton button, TShiftState shift, int x, int y) {
    m_lvMainMouseDown(sender, button, shift, x, y);
  };
}
