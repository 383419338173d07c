// The form resource of TQueryForm: its controls, where they stand, what they are bound to, and their caption
// keys.
#include <initializer_list>
#include <vector>

#include "framework/query_form.h"
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

constexpr int kMargin = 6;
constexpr int kGap = 6;
constexpr int kTitleImageSize = 24;
constexpr int kLastInTabOrder = 1000;
constexpr const char* kOutputFilter = "Excel文件(*.xls)|*.xls|文本文件(*.txt)|*.txt|XML文件(*.xml)|*.xml";

struct ActionLine {
  TAction* TQueryForm::*action;
  const char* name;
  const char* captionKey;
  TStockImage image;
  void (TQueryForm::*execute)(TObject* sender);
};

using Q = TQueryForm;
constexpr ActionLine kActions[] = {
    {&Q::m_actQuery, "m_actQuery", "UI12501", siQuery, &Q::m_actQueryExecute},
    {&Q::m_actOutput, "m_actOutput", "UI43006", siExport, &Q::m_actOutputExecute},
    {&Q::m_actPrintSet, "m_actPrintSet", "UI12504", siPrintSetup, &Q::m_actPrintSetExecute},
    {&Q::m_actPrint, "m_actPrint", "UI43007", siPrint, &Q::m_actPrintExecute},
    {&Q::m_actDetail, "m_actDetail", "UI12515", siDetail, &Q::m_actDetailExecute},
    {&Q::m_actFaceInfo, "m_actFaceInfo", "UI42949", siBill, &Q::m_actFaceInfoExecute},
    {&Q::m_actRearInfo, "m_actRearInfo", "UI42950", siBill, &Q::m_actRearInfoExecute},
    {&Q::m_actOperInfo, "m_actOperInfo", "UI42953", siDetail, &Q::m_actOperInfoExecute},
    {&Q::m_actAppSendInfo, "m_actAppSendInfo", "UI42951", siDetail, &Q::m_actAppSendInfoExecute},
    {&Q::m_actRecvSignInfo, "m_actRecvSignInfo", "UI42954", siDetail, &Q::m_actRecvSignInfoExecute},
    {&Q::m_actHideColumn, "m_actHideColumn", "UI40922", siColumns, &Q::m_actHideColumnExecute},
    {&Q::m_actSendToDesktop, "m_actSendToDesktop", "UI40923", siDesktop, &Q::m_actSendToDesktopExecute},
    {&Q::m_actSynState, "m_actSynState", "UI52421", siSynchronize, nullptr},
    {&Q::m_actReason, "m_actReason", "UI52435", siReason, nullptr},
    {&Q::m_actAudit, "m_actAudit", "UI12516", siAudit, &Q::m_actAuditExecute},
    {&Q::m_actClose, "m_actClose", "UI12517", siClose, &Q::m_actCloseExecute},
    {&Q::m_actDelete, "m_actDelete", "UI54181", siDelete, nullptr},
    {&Q::m_actSum, "m_actSum", "UI12580", siSum, &Q::m_actSumExecute},
    {&Q::m_actViewAuditFoot, "m_actViewAuditFoot", "UI42803", siDetail, nullptr},
};

// A control of a kind that needs no more than its name, and its place in the form.
template <class Control>
void Make(TQueryForm* form, Control*& control, const char* name, TAction* action = nullptr) {
  control = NewComponent<Control>(form, name);
  control->SetAction(action);
}

}  // namespace

void TQueryForm::BuildControls() {
  TBaseForm::BuildControls();
  BuildActions();
  BuildMenus();
  BuildFrame();
  BuildToolBar();
  BuildConditions();
  BuildList();
  BuildButtons();
}

void TQueryForm::BuildActions() {
  m_iglQuery = NewComponent<TImageList>(this, "m_iglQuery");
  m_alMain = NewComponent<TActionList>(this, "m_alMain");
  m_alMain->SetImages(m_iglQuery);
  for (const ActionLine& line : kActions) {
    TAction* action = m_alMain->NewAction(line.name, line.captionKey, m_iglQuery->Add(line.image));
    if (line.execute != nullptr) {
      action->OnExecute = [this, execute = line.execute](TObject* sender) { (this->*execute)(sender); };
    }
    this->*line.action = action;
  }
  // Nothing is ticked in a list that has not been filled yet.
  for (TAction* action : {m_actOutput, m_actPrint, m_actDetail, m_actDelete}) action->SetEnabled(false);
}

void TQueryForm::BuildMenus() {
  m_pmuListview = NewComponent<TPopupMenu>(this, "m_pmuListview");
  m_pmuListview->SetImages(m_iglQuery);
  const auto addGroup = [menu = m_pmuListview->Items()](std::initializer_list<TAction*> actions) {
    if (menu->Count() > 0) menu->AddLine();
    for (TAction* action : actions) menu->AddAction(action);
  };
  addGroup({m_actOutput, m_actPrintSet, m_actPrint});
  addGroup({m_actReason, m_actHideColumn, m_actSendToDesktop});
  addGroup({m_actQuery, m_actAudit, m_actDelete});
  addGroup({m_actSum});
  addGroup({m_actSynState});
  m_pmuBillInfo = NewComponent<TPopupMenu>(this, "m_pmuBillInfo");
  m_pmuBillInfo->Items()->AddAction(m_actFaceInfo);
  m_pmuBillInfo->Items()->AddAction(m_actRearInfo);
  m_pumColumn = NewComponent<TPopupMenu>(this, "m_pumColumn");
  m_sdOutput = NewComponent<TSaveDialog>(this, "m_sdOutput");
  m_sdOutput->SetFilter(Ansi(kOutputFilter));
  m_sdOutput->SetDefaultExt(".xls");
  m_sdOutput->OnTypeChange = [this](TObject* sender) { m_sdOutputTypeChange(sender); };
}

void TQueryForm::BuildFrame() {
  Make(this, m_pnRight, "m_pnRight");
  Make(this, m_pnTop, "m_pnTop");
  Make(this, m_pnCenter, "m_pnCenter");
  Make(this, m_pnlTop, "m_pnlTop");
  Make(this, m_pnlData, "m_pnlData");
  Make(this, m_pnRightBottom, "m_pnRightBottom");
  Make(this, m_sbInfo, "m_sbInfo");
  Make(this, m_pnStatusText, "m_pnStatusText");
  TColumnLayout form(this);
  form.Add(m_pnRight, 1);
  form.Add(m_sbInfo);
  m_sbInfo->Add(m_pnStatusText);
  TColumnLayout frame(m_pnRight);
  frame.SetMargins(kMargin, kMargin, kMargin, kMargin);
  frame.SetSpacing(kGap);
  frame.Add(m_pnTop);
  frame.Add(m_pnCenter, 1);
  frame.Add(m_pnRightBottom);
  TColumnLayout center(m_pnCenter);
  center.SetSpacing(kGap);
  center.Add(m_pnlTop);
  center.Add(m_pnlData, 1);
}

void TQueryForm::BuildToolBar() {
  m_imgTitle = NewComponent<TImage>(this, "m_imgTitle");
  m_imgTitle->SetStock(siBill, kTitleImageSize);
  Make(this, m_tbQuery, "m_tbQuery");
  Make(this, m_tbPrintSetup, "m_tbPrintSetup", m_actPrintSet);
  Make(this, m_tbPrint, "m_tbPrint", m_actPrint);
  Make(this, m_tbExport, "m_tbExport", m_actOutput);
  Make(this, m_tbHideColumn, "m_tbHideColumn", m_actHideColumn);
  Make(this, m_tbSendToDesktop, "m_tbSendToDesktop", m_actSendToDesktop);
  Make(this, m_tbSynState, "m_tbSynState", m_actSynState);
  Make(this, m_tbReason, "m_tbReason", m_actReason);
  for (TControl* button :
       std::initializer_list<TControl*>{m_tbPrintSetup, m_tbPrint, m_tbExport, m_tbHideColumn,
                                        m_tbSendToDesktop, m_tbSynState, m_tbReason}) {
    m_tbQuery->Add(button);
  }
  TRowLayout top(m_pnTop);
  top.SetSpacing(kGap);
  top.Add(m_imgTitle, 0, caCenter);
  top.Add(m_tbQuery, 1);
}

void TQueryForm::BuildConditions() {
  Make(this, m_pnlNormal, "m_pnlNormal");
  Make(this, m_pnlAdvance, "m_pnlAdvance");
  Make(this, m_spdQuery, "m_spdQuery", m_actQuery);
  // Behind whatever conditions a screen puts into the panel.
  m_spdQuery->SetTabOrder(kLastInTabOrder);
  TRowLayout normal(m_pnlNormal);
  normal.AddStretch();
  normal.Add(m_spdQuery);
  TColumnLayout conditions(m_pnlTop);
  conditions.SetSpacing(kGap);
  conditions.Add(m_pnlNormal);
  conditions.Add(m_pnlAdvance);
}

void TQueryForm::BuildList() {
  Make(this, m_crbAllCheck, "m_crbAllCheck");
  Make(this, m_spdSum, "m_spdSum", m_actSum);
  Make(this, m_lvMain, "m_lvMain");
  m_crbAllCheck->OnClick = [this](TObject* sender) { SelectAll(sender); };
  m_lvMain->SetViewStyle(vsReport);
  m_lvMain->SetCheckboxes(true);
  m_lvMain->SetGridLines(true);
  m_lvMain->SetRowSelect(true);
  m_lvMain->SetReadOnly(true);
  m_lvMain->SetHideSelection(false);
  m_lvMain->SetPopupMenu(m_pmuListview);
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
  m_sbListH = NewComponent<TbsSkinScrollBar>(this, "m_sbListH", sbHorizontal);
  m_sbListV = NewComponent<TbsSkinScrollBar>(this, "m_sbListV", sbVertical);
  m_sbListH->AttachTo(m_lvMain);
  m_sbListV->AttachTo(m_lvMain);
  TColumnLayout data(m_pnlData);
  data.SetSpacing(kGap);
  TRowLayout above = data.AddRow();
  above.SetSpacing(kGap);
  above.Add(m_crbAllCheck);
  above.AddStretch();
  above.Add(m_spdSum);
  data.Add(m_lvMain, 1);
}

void TQueryForm::BuildButtons() {
  Make(this, m_btnAudit, "m_btnAudit", m_actAudit);
  Make(this, m_btnDetail, "m_btnDetail", m_actDetail);
  Make(this, m_mubtnDetail, "m_mubtnDetail");
  m_mubtnDetail->SetSkinPopupMenu(m_pmuBillInfo);
  Make(this, m_btnOperInfo, "m_btnOperInfo", m_actOperInfo);
  Make(this, m_btnRecvInfo, "m_btnRecvInfo", m_actOperInfo);
  Make(this, m_btnViewAuditFoot, "m_btnViewAuditFoot", m_actViewAuditFoot);
  Make(this, m_btnDel, "m_btnDel", m_actDelete);
  Make(this, m_btnClose, "m_btnClose", m_actClose);
  PlaceButtons({});
}

void TQueryForm::PlaceButtons(std::initializer_list<TWinControl*> rowButtons) {
  std::vector<TWinControl*> buttons = rowButtons;
  buttons.insert(buttons.end(), {m_btnDetail, m_mubtnDetail, m_btnOperInfo, m_btnRecvInfo, m_btnViewAuditFoot,
                                 m_btnAudit, m_btnDel, m_btnClose});
  TRowLayout bottom(m_pnRightBottom);
  bottom.SetSpacing(kGap);
  bottom.AddStretch();
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    bottom.Add(buttons[i]);
    buttons[i]->SetTabOrder(static_cast<int>(i));
  }
}

void TQueryForm::SetCaptions() {
  for (const ActionLine& line : kActions) (this->*line.action)->SetCaption(line.captionKey);
  m_mubtnDetail->SetCaption("UI42992");
  m_btnOperInfo->SetCaption("UI42993");
  m_crbAllCheck->SetCaption("UI12506");
  m_pnlNormal->SetCaption("UI12237");
  m_pnlAdvance->SetCaption("UI12238");
}
