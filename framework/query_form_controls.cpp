// The form resource of TQueryForm: its controls, where they stand, what they are bound to, and their caption
// keys.
#include <initializer_list>
#include <vector>

#include "framework/action_table.h"
#include "framework/query_form.h"
#include "toolkit/action.h"
#include "toolkit/buttons.h"
#include "toolkit/layout.h"
#include "toolkit/menu.h"
#include "toolkit/panels.h"

namespace {

constexpr int kLastInTabOrder = 1000;

using Q = TQueryForm;
constexpr ActionLine<Q> kActions[] = {
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
    {&Q::m_actSynState, "m_actSynState", "UI52421", siSynchronize, &Q::m_actSynStateExecute},
    {&Q::m_actReason, "m_actReason", "UI52435", siReason, &Q::m_actReasonExecute},
    {&Q::m_actAudit, "m_actAudit", "UI12516", siAudit, &Q::m_actAuditExecute},
    {&Q::m_actClose, "m_actClose", "UI12517", siClose, &Q::m_actCloseExecute},
    {&Q::m_actDelete, "m_actDelete", "UI54181", siDelete, &Q::m_actDeleteExecute},
    {&Q::m_actSum, "m_actSum", "UI12580", siSum, &Q::m_actSumExecute},
    {&Q::m_actViewAuditFoot, "m_actViewAuditFoot", "UI42803", siDetail, &Q::m_actViewAuditFootExecute},
};

}  // namespace

void TQueryForm::BuildControls() {
  TListForm::BuildControls();
  BuildActionList("m_iglQuery");
  BuildActions(this, m_alMain, kActions);
  // Nothing is ticked in a list that has not been filled yet.
  for (TAction* action : {m_actOutput, m_actPrint, m_actDetail, m_actDelete}) action->SetEnabled(false);
  BuildMenus();
  BuildToolButtons();
  BuildList(m_pmuListview);
  BuildFrame();
  BuildConditions();
  BuildButtons();
}

void TQueryForm::BuildMenus() {
  m_pmuListview = NewComponent<TPopupMenu>(this, "m_pmuListview");
  m_pmuListview->SetImages(m_alMain->Images());
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
  BuildListMenus();
}

void TQueryForm::BuildFrame() {
  MakeControl(this, m_pnRight, "m_pnRight");
  MakeControl(this, m_pnlTop, "m_pnlTop");
  MakeControl(this, m_pnRightBottom, "m_pnRightBottom");
  BuildStatusLine();
  TColumnLayout form(this);
  form.Add(m_pnRight, 1);
  form.Add(m_sbInfo);
  TColumnLayout frame(m_pnRight);
  frame.SetMargins(kFrameMargin, kFrameMargin, kFrameMargin, kFrameMargin);
  frame.SetSpacing(kFrameGap);
  frame.Add(m_pnTop);
  frame.Add(m_pnCenter, 1);
  frame.Add(m_pnRightBottom);
  TColumnLayout center(m_pnCenter);
  center.SetSpacing(kFrameGap);
  // With a large font the conditions scroll, so that the list and the buttons below it stay on the screen.
  auto* conditions = NewComponent<TbsSkinScrollBox>(this, "m_sbxConditions");
  conditions->SetKeepsWidth(true);
  center.Add(conditions);
  TColumnLayout(conditions).Add(m_pnlTop);
  center.Add(m_pnlData, 1);
}

void TQueryForm::BuildToolButtons() {
  MakeControl(this, m_tbSendToDesktop, "m_tbSendToDesktop", m_actSendToDesktop);
  MakeControl(this, m_tbSynState, "m_tbSynState", m_actSynState);
  MakeControl(this, m_tbReason, "m_tbReason", m_actReason);
  m_tbQuery = BuildToolBar("m_tbQuery", {m_tbSendToDesktop, m_tbSynState, m_tbReason});
}

void TQueryForm::BuildConditions() {
  MakeControl(this, m_pnlNormal, "m_pnlNormal");
  MakeControl(this, m_pnlAdvance, "m_pnlAdvance");
  MakeControl(this, m_spdQuery, "m_spdQuery", m_actQuery);
  // Behind whatever conditions a screen puts into the panel.
  m_spdQuery->SetTabOrder(kLastInTabOrder);
  TRowLayout normal(m_pnlNormal);
  normal.AddStretch();
  normal.Add(m_spdQuery);
  TColumnLayout conditions(m_pnlTop);
  conditions.SetSpacing(kFrameGap);
  conditions.Add(m_pnlNormal);
  conditions.Add(m_pnlAdvance);
}

void TQueryForm::BuildButtons() {
  MakeControl(this, m_btnAudit, "m_btnAudit", m_actAudit);
  MakeControl(this, m_btnDetail, "m_btnDetail", m_actDetail);
  MakeControl(this, m_mubtnDetail, "m_mubtnDetail");
  m_mubtnDetail->SetSkinPopupMenu(m_pmuBillInfo);
  MakeControl(this, m_btnOperInfo, "m_btnOperInfo", m_actOperInfo);
  MakeControl(this, m_btnRecvInfo, "m_btnRecvInfo", m_actOperInfo);
  MakeControl(this, m_btnViewAuditFoot, "m_btnViewAuditFoot", m_actViewAuditFoot);
  MakeControl(this, m_btnDel, "m_btnDel", m_actDelete);
  MakeControl(this, m_btnClose, "m_btnClose", m_actClose);
  PlaceButtons({});
}

void TQueryForm::PlaceButtons(std::initializer_list<TWinControl*> rowButtons) {
  std::vector<TWinControl*> buttons = rowButtons;
  buttons.insert(buttons.end(), {m_btnDetail, m_mubtnDetail, m_btnOperInfo, m_btnRecvInfo, m_btnViewAuditFoot,
                                 m_btnAudit, m_btnDel, m_btnClose});
  TRowLayout bottom(m_pnRightBottom);
  bottom.SetSpacing(kFrameGap);
  bottom.AddStretch();
  for (std::size_t i = 0; i < buttons.size(); ++i) {
    bottom.Add(buttons[i]);
    buttons[i]->SetTabOrder(static_cast<int>(i));
  }
}

void TQueryForm::SetCaptions() {
  SetActionCaptions(this, kActions);
  m_mubtnDetail->SetCaption("UI42992");
  m_btnOperInfo->SetCaption("UI42993");
  m_crbAllCheck->SetCaption("UI12506");
  m_pnlNormal->SetCaption("UI12237");
  m_pnlAdvance->SetCaption("UI12238");
}
