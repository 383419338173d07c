// The controls that TListForm gives its frames.
#include "framework/list_form.h"
#include "toolkit/action.h"
#include "toolkit/buttons.h"
#include "toolkit/dialogs.h"
#include "toolkit/image_list.h"
#include "toolkit/labels.h"
#include "toolkit/layout.h"
#include "toolkit/list_view.h"
#include "toolkit/menu.h"
#include "toolkit/panels.h"
#include "toolkit/text.h"

namespace {

constexpr int kTitleImageSize = 24;
constexpr const char* kOutputFilter = "Excel文件(*.xls)|*.xls|文本文件(*.txt)|*.txt|XML文件(*.xml)|*.xml";

}  // namespace

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
