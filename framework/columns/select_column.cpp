#include "framework/columns/select_column.h"

#include "dialogs/message_keys.h"
#include "dialogs/messages.h"
#include "framework/columns/column_table.h"
#include "host/pub_info.h"
#include "host/translate.h"
#include "toolkit/buttons.h"
#include "toolkit/conversion.h"
#include "toolkit/decimal_text.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/labels.h"
#include "toolkit/layout.h"
#include "toolkit/menu.h"

namespace {

constexpr int kMaxWidthAfterDialog = 1000;
constexpr int kNoMaxWidth = 0;
// A saved width above this is damaged: no user can drag a column so wide.
constexpr int kMaxSavedWidth = 10000;

// Sub-items of an entry of the dialog's list.
enum SubItem { kColumnId = 0, kColumnIdentity = 1, kColumnIndex = 2 };

bool IsOffered(const TListColumn* column) {
  return !column->Caption().empty() && column->Tag() != cfInternal;
}

bool IsShown(const TListColumn* column) {
  return column->MaxWidth() != norvik::kHiddenMaxWidth;
}

void HideColumn(TListColumn* column) {
  column->SetMinWidth(0);
  column->SetMaxWidth(norvik::kHiddenMaxWidth);
  column->SetWidth(0);
}

void ShowColumn(TListColumn* column, int width, int maxWidth) {
  column->SetMinWidth(0);
  column->SetMaxWidth(maxWidth);
  column->SetWidth(width);
}

constexpr int kWidth = 420;
constexpr int kHeight = 480;
constexpr int kMargin = 10;
constexpr int kGap = 8;
constexpr int kColumnWidth = 240;

}  // namespace

struct TfrmSelectColumn::SavedColumn {
  std::string caption;
  std::string id;
  int width;
  int tag;
  TAlignment alignment;
  bool offered;
};

TfrmSelectColumn::TfrmSelectColumn(TComponent* owner, const AnsiString& className, TKVXListView* listView)
    : TBaseForm(owner), m_strClassName(className), m_pListView(listView) {}

void TfrmSelectColumn::Construct() {
  TBaseForm::Construct();
  m_nColumnCount = m_pListView->Columns().Count();
  RememberWidths();
  m_columnInfo = g_pPubInfo->GetIniplus(norvik::kLayoutDocument);
  RestoreWidths();
}

const std::string& TfrmSelectColumn::ColumnId(int index) const {
  return m_pListView->ColumnIds().at(static_cast<std::size_t>(index));
}

void TfrmSelectColumn::RememberWidths() {
  for (int i = 0; i < m_pListView->Columns().Count(); ++i) {
    const int width = m_pListView->Columns()[i]->Width();
    if (width != 0) m_widths[ColumnId(i)] = width;
  }
}

// A saved width that is no number, or that no column can have, leaves the width of the column table.
void TfrmSelectColumn::RestoreWidths() {
  for (const corvane::Row& saved : m_columnInfo.getSection(m_strClassName)) {
    const std::string caption = saved.getValue("ColumnCaption");
    const int width = StrToIntDef(saved.getValue("ColumnWidth"), -1);
    const bool sound = width >= 0 && width <= kMaxSavedWidth;
    TListColumn* column = caption.empty() || !sound ? nullptr : norvik::FindColumn(m_pListView, caption);
    if (column == nullptr) continue;
    ShowColumn(column, width, width == 0 ? norvik::kHiddenMaxWidth : kNoMaxWidth);
  }
}

void TfrmSelectColumn::SaveColumnInfo() {
  const TListColumns& columns = m_pListView->Columns();
  // A list whose columns could not all be built has no layout of the user's: the saved one is left.
  if (columns.Count() == 0 || !m_pListView->ColumnsWhole()) return;
  RememberWidths();
  corvane::List layout;
  for (int i = 0; i < columns.Count(); ++i) {
    if (!IsOffered(columns[i])) continue;
    corvane::Row row;
    row["ColumnID"] = ColumnId(i);
    row["ColumnWidth"] = IntToStr(IsShown(columns[i]) ? m_widths[ColumnId(i)] : 0);
    row["ColumnCaption"] = columns[i]->Caption();
    row["ColumnOrder"] = IntToStr(i);
    layout.addRow(std::move(row));
  }
  try {
    m_columnInfo = g_pPubInfo->GetIniplus(norvik::kLayoutDocument);
  } catch (const corvane::TException&) {
    // The document as it was read at the start is the best that there is.
  }
  m_columnInfo.setSection(m_strClassName, layout);
  g_pPubInfo->SetIniplus(norvik::kLayoutDocument, m_columnInfo);
}

void TfrmSelectColumn::PrepareColumnMenu(TPopupMenu* menu) {
  m_pMenu = menu;
  RememberWidths();
  m_pMenu->Items()->Clear();
  corvane::List fieldDefs = g_pPubInfo->GetIniplusList(norvik::kColumnTable, m_strClassName);
  m_strFirstColId = fieldDefs.size() == 0 ? std::string() : fieldDefs[0].getValue("COLID");
  const auto addEntry = [this](const std::string& caption, void (TfrmSelectColumn::*click)(TObject*)) {
    auto* entry = new TMenuItem(m_pMenu);
    entry->SetCaption(caption);
    entry->OnClick = [this, click](TObject* sender) { (this->*click)(sender); };
    m_pMenu->Items()->Add(entry);
    return entry;
  };
  for (int i = 0; i < m_pListView->Columns().Count(); ++i) {
    const TListColumn* column = m_pListView->Columns()[i];
    if (!IsOffered(column)) continue;
    TMenuItem* entry = addEntry(column->Caption(), &TfrmSelectColumn::ItemClick);
    entry->SetAutoCheck(true);
    entry->SetTag(column->ID());
    entry->SetImageIndex(i);
    entry->SetChecked(IsShown(column));
    // A layout of an older column table may have hidden the column that must be shown: it can be shown again.
    entry->SetEnabled(!IsShown(column) || (i != 0 && ColumnId(i) != m_strFirstColId));
  }
  if (m_bDialogOffered) {
    m_pMenu->Items()->AddLine();
    addEntry(TranslateKey("UI12568"), &TfrmSelectColumn::DialogClick);
    m_btnConfirm->SetEnabled(true);
    m_btnClose->SetEnabled(true);
  }
  // Translates the dialog, with the entries just made, and prepares it as a show does; it stays invisible.
  FormShow(this);
}

void TfrmSelectColumn::ItemClick(TObject* sender) {
  const auto* entry = dynamic_cast<TMenuItem*>(sender);
  if (entry == nullptr) return;
  TListColumn* column = m_pListView->Columns().FindItemID(static_cast<int>(entry->Tag()));
  if (column == nullptr) return;
  if (entry->Checked()) {
    ShowColumn(column, m_widths[ColumnId(entry->ImageIndex())], kNoMaxWidth);
  } else {
    HideColumn(column);
  }
}

void TfrmSelectColumn::DialogClick(TObject*) {
  RememberWidths();
  FillList();
  ShowModal();
}

void TfrmSelectColumn::FillList() {
  m_lvMain->Items().Clear();
  for (int i = 0; i < m_pListView->Columns().Count(); ++i) {
    const TListColumn* column = m_pListView->Columns()[i];
    if (!IsOffered(column)) continue;
    TListItem* item = m_lvMain->Items().Add();
    item->SetCaption(column->Caption());
    item->AddSubItem(ColumnId(i));
    item->AddSubItem(IntToStr(column->ID()));
    item->AddSubItem(IntToStr(column->Index()));
    item->SetChecked(IsShown(column));
  }
}

void TfrmSelectColumn::RebuildColumns() {
  std::vector<SavedColumn> saved;
  for (int i = 0; i < m_pListView->Columns().Count(); ++i) {
    const TListColumn* column = m_pListView->Columns()[i];
    saved.push_back({column->Caption(), ColumnId(i), column->Width(), column->Tag(), column->Alignment(),
                     IsOffered(column)});
  }
  m_pListView->Clear();
  m_pListView->Columns().Clear();
  m_pListView->ColumnIds().clear();
  for (int i = 0; i < m_lvMain->Items().Count(); ++i) {
    const TListItem* item = m_lvMain->Items()[i];
    for (const SavedColumn& column : saved) {
      if (!column.offered || column.id != item->SubItems(kColumnId)) continue;
      AddColumn(column, item->Checked());
      break;
    }
  }
  for (const SavedColumn& column : saved) {
    if (!column.offered) AddColumn(column, false);
  }
}

void TfrmSelectColumn::AddColumn(const SavedColumn& saved, bool shown) {
  TListColumn* column = m_pListView->Columns().Add();
  m_pListView->ColumnIds().push_back(saved.id);
  column->SetCaption(saved.caption);
  column->SetTag(saved.tag);
  column->SetAlignment(saved.alignment);
  if (shown) {
    ShowColumn(column, saved.width != 0 ? saved.width : m_widths[saved.id], kMaxWidthAfterDialog);
  } else {
    HideColumn(column);
  }
}

void TfrmSelectColumn::BuildControls() {
  TBaseForm::BuildControls();
  SetBorderStyle(bsDialog);
  SetPosition(poOwnerFormCenter);
  SetWidth(kWidth);
  SetHeight(kHeight);
  m_lbTitle = NewComponent<TLabel>(this, "m_lbTitle");
  m_lbTitle->SetWordWrap(true);
  m_lbColumns = NewComponent<TLabel>(this, "m_lbColumns");
  m_lvMain = NewComponent<TListView>(this, "m_lvMain");
  m_lvMain->Columns().Add()->SetWidth(kColumnWidth);
  m_lvMain->Columns().Add()->SetWidth(0);
  m_lvMain->SetShowColumnHeaders(false);
  m_lvMain->OnClick = [this](TObject* sender) { m_lvMainClick(sender); };
  m_lvMain->OnSelectItem = [this](TObject* sender, TListItem*, bool) { m_lvMainClick(sender); };
  // The space bar unticks an entry as the mouse does.
  m_lvMain->OnItemCheck = [this](TObject*, TListItem* item) { KeepFirstColumn(item); };
  m_lvMain->OnMouseUp = [this](TObject* sender, TMouseButton button, TShiftState shift, int x, int y) {
    m_lvMainMouseUp(sender, button, shift, x, y);
  };
  TColumnLayout form(this);
  form.SetMargins(kMargin, kMargin, kMargin, kMargin);
  form.SetSpacing(kGap);
  form.Add(m_lbTitle);
  form.Add(m_lbColumns);
  TRowLayout middle = form.AddRow(1);
  middle.SetSpacing(kGap);
  middle.Add(m_lvMain, 1);
  TColumnLayout side = middle.AddColumn();
  side.SetSpacing(kGap);
  TRowLayout bottom = form.AddRow();
  bottom.SetSpacing(kGap);
  bottom.AddStretch();
  struct ButtonLine {
    TbsSkinButton* TfrmSelectColumn::*button;
    const char* name;
    void (TfrmSelectColumn::*click)(TObject*);
    TBoxLayout& place;
  };
  using S = TfrmSelectColumn;
  const ButtonLine buttons[] = {{&S::m_btnUp, "m_btnUp", &S::m_btnUpClick, side},
                                {&S::m_btnDown, "m_btnDown", &S::m_btnDownClick, side},
                                {&S::m_btnShow, "m_btnShow", &S::m_btnShowClick, side},
                                {&S::m_btnHide, "m_btnHide", &S::m_btnHideClick, side},
                                {&S::m_btnConfirm, "m_btnConfirm", &S::m_btnConfirmClick, bottom},
                                {&S::m_btnClose, "m_btnClose", &S::m_btnCloseClick, bottom}};
  for (const ButtonLine& line : buttons) {
    TbsSkinButton* button = NewComponent<TbsSkinButton>(this, line.name);
    button->OnClick = [this, click = line.click](TObject* sender) { (this->*click)(sender); };
    line.place.Add(button);
    this->*line.button = button;
  }
  side.AddStretch();
  SetCancelButton(m_btnClose);
}

void TfrmSelectColumn::SetCaptions() {
  SetCaption("UI12560");
  m_lbTitle->SetCaption("UI12561");
  m_lbColumns->SetCaption("UI12562");
  m_btnUp->SetCaption("UI12563");
  m_btnDown->SetCaption("UI12564");
  m_btnShow->SetCaption("UI12565");
  m_btnHide->SetCaption("UI12566");
  m_btnConfirm->SetCaption("UI12567");
  m_btnClose->SetCaption("UI12559");
}

void TfrmSelectColumn::ResetForm() {
  TBaseForm::ResetForm();
  m_lvMain->SetViewStyle(vsReport);
  m_lvMain->SetHideSelection(false);
  m_lvMain->SetRowSelect(true);
  m_lvMain->SetCheckboxes(true);
  m_lvMain->SetReadOnly(true);
  m_btnShow->SetVisible(false);
  m_btnHide->SetVisible(false);
  m_btnUp->SetEnabled(false);
  m_btnDown->SetEnabled(false);
}

void TfrmSelectColumn::m_lvMainClick(TObject*) {
  const TListItem* focused = m_lvMain->ItemFocused();
  if (focused == nullptr) return;
  m_btnShow->SetEnabled(!focused->Checked());
  m_btnHide->SetEnabled(focused->Checked());
  m_btnUp->SetEnabled(focused->Index() != 0);
  m_btnDown->SetEnabled(focused->Index() != m_lvMain->Items().Count() - 1);
}

void TfrmSelectColumn::MoveFocused(int by) {
  TListItem* old = m_lvMain->ItemFocused();
  if (old == nullptr) return;
  const int place = old->Index() + by;
  if (place < 0 || place >= m_lvMain->Items().Count()) return;
  // Until the old item is deleted there is one more item after it.
  TListItem* moved = m_lvMain->Items().Insert(by > 0 ? place + 1 : place);
  moved->SetCaption(old->Caption());
  for (int i = 0; i < old->SubItemCount(); ++i) moved->AddSubItem(old->SubItems(i));
  moved->SetChecked(old->Checked());
  old->Delete();
  m_lvMain->SetSelected(moved);
  m_lvMain->SetItemFocused(moved);
  m_lvMainClick(this);
}

void TfrmSelectColumn::m_btnUpClick(TObject*) {
  MoveFocused(-1);
}

void TfrmSelectColumn::m_btnDownClick(TObject*) {
  MoveFocused(1);
}

void TfrmSelectColumn::CheckFocused(bool checked) {
  if (TListItem* focused = m_lvMain->ItemFocused()) {
    focused->SetChecked(checked);
    m_btnShow->SetEnabled(!checked);
    m_btnHide->SetEnabled(checked);
  }
}

void TfrmSelectColumn::m_btnShowClick(TObject*) {
  CheckFocused(true);
}

void TfrmSelectColumn::m_btnHideClick(TObject*) {
  CheckFocused(false);
}

void TfrmSelectColumn::m_lvMainMouseUp(TObject*, TMouseButton, TShiftState, int x, int y) {
  KeepFirstColumn(m_lvMain->GetItemAt(x, y));
}

void TfrmSelectColumn::KeepFirstColumn(TListItem* item) {
  if (item == nullptr || item->Checked() || item->SubItems(kColumnId) != m_strFirstColId) return;
  item->SetChecked(true);
  ShowWarnMsg(g_pTranslate->Translate(norvik::message::kFirstColumnStays), nullptr);
}

void TfrmSelectColumn::m_btnConfirmClick(TObject*) {
  if (m_lvMain->Items().Count() == 0 || !m_lvMain->Items()[0]->Checked()) {
    ShowWarnMsg(g_pTranslate->Translate(norvik::message::kTopColumnHidden), nullptr);
    return;
  }
  m_btnConfirm->SetEnabled(false);
  m_btnClose->SetEnabled(false);
  m_pListView->UnCheckAll();
  if (auto* listForm = dynamic_cast<TBaseForm*>(Owner())) listForm->m_lvMainClick(this);
  RebuildColumns();
  Close();
}

void TfrmSelectColumn::m_btnCloseClick(TObject*) {
  Close();
}
