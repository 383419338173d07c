// The dialog of TfrmSelectColumn: its controls and what they do to its own list.
#include "dialogs/messages.h"
#include "framework/select_column.h"
#include "host/translate.h"
#include "toolkit/buttons.h"
#include "toolkit/labels.h"
#include "toolkit/layout.h"
#include "toolkit/list_view.h"

namespace {

constexpr int kWidth = 420;
constexpr int kHeight = 480;
constexpr int kMargin = 10;
constexpr int kGap = 8;
constexpr int kColumnWidth = 240;

}  // namespace

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
  // The space bar unticks as the mouse does.
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
  // Behind the old item there is one more until that is gone.
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
  if (item == nullptr || item->Checked() || item->SubItems(0) != m_strFirstColId) return;
  item->SetChecked(true);
  ShowWarnMsg(g_pTranslate->Translate("UI60005"), nullptr);
}

void TfrmSelectColumn::m_btnConfirmClick(TObject*) {
  if (m_lvMain->Items().Count() == 0 || !m_lvMain->Items()[0]->Checked()) {
    ShowWarnMsg(g_pTranslate->Translate("UI60006"), nullptr);
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
