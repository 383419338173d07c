#include "framework/frames/detail_form.h"

#include "framework/base/action_table.h"
#include "host/translate.h"
#include "toolkit/buttons.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/layout.h"
#include "toolkit/menu.h"
#include "toolkit/panels.h"

namespace {

using D = TDetailForm;
constexpr ActionLine<D> kActions[] = {
    {&D::m_actHideColumn, "m_actHideColumn", "UI12573", siColumns, &D::m_actHideColumnExecute},
    {&D::m_actPrint, "m_actPrint", "UI12545", siPrint, &D::m_actPrintExecute},
    {&D::m_actPrintSet, "m_actPrintSet", "UI12546", siPrintSetup, &D::m_actPrintSetExecute},
    {&D::m_actOutPut, "m_actOutPut", "UI12547", siExport, &D::m_actOutPutExecute},
    {&D::m_actAudit, "m_actAudit", "UI12558", siAudit, nullptr},
    {&D::m_actClose, "m_actClose", "UI12559", siClose, &D::m_actCloseExecute},
    {&D::m_actGo, "m_actGo", "UI12519", siDetail, nullptr},
    {&D::m_actSum, "m_actSum", "UI12580", siSum, &D::m_actSumExecute},
    {&D::m_actLine, "m_actLine", "-", siNone, nullptr},
};

}  // namespace

TDetailForm::TDetailForm(TComponent* owner) : TListForm(owner) {}

TDetailForm::~TDetailForm() = default;

void TDetailForm::BuildControls() {
  TListForm::BuildControls();
  BuildActionList("m_iglDetail");
  BuildActions(this, m_alMain, kActions);
  // Nothing is ticked in a list that has not been filled yet.
  for (TAction* action : {m_actOutPut, m_actPrint, m_actAudit}) action->SetEnabled(false);
  BuildMenus();
  MakeControl(this, bsSkinSpeedButton1, "bsSkinSpeedButton1", m_actGo);
  m_tbDetail = BuildToolBar("m_tbDetail", {bsSkinSpeedButton1});
  BuildList(m_pmuListView);
  BuildButtons();
  BuildFrame();
}

void TDetailForm::BuildMenus() {
  m_pmuListView = NewComponent<TPopupMenu>(this, "m_pmuListView");
  m_pmuListView->SetImages(m_alMain->Images());
  for (TAction* action : {m_actOutPut, m_actPrintSet, m_actPrint, m_actLine, m_actHideColumn, m_actLine,
                          m_actAudit, m_actLine, m_actSum}) {
    m_pmuListView->Items()->AddAction(action);
  }
  BuildListMenus();
}

void TDetailForm::BuildButtons() {
  MakeControl(this, m_pnBottom, "m_pnBottom");
  MakeControl(this, m_btnAudit, "m_btnAudit", m_actAudit);
  MakeControl(this, m_btnClose, "m_btnClose", m_actClose);
  SetCancelButton(m_btnClose);
  TRowLayout bottom(m_pnBottom);
  bottom.SetSpacing(kFrameGap);
  bottom.AddStretch();
  for (TControl* button : {m_btnAudit, m_btnClose}) bottom.Add(button);
}

void TDetailForm::BuildFrame() {
  BuildStatusLine();
  TColumnLayout form(this);
  form.SetSpacing(0);
  TColumnLayout frame = form.AddColumn(1);
  frame.SetMargins(kFrameMargin, kFrameMargin, kFrameMargin, kFrameMargin);
  frame.SetSpacing(kFrameGap);
  frame.Add(m_pnTop);
  frame.Add(m_pnCenter, 1);
  frame.Add(m_pnBottom);
  form.Add(m_sbInfo);
  TColumnLayout center(m_pnCenter);
  center.Add(m_pnlData, 1);
}

void TDetailForm::SetCaptions() {
  SetActionCaptions(this, kActions);
  m_crbAllCheck->SetCaption("UI12548");
}

void TDetailForm::Construct() {
  TListForm::Construct();
  m_pIntf = std::make_unique<CMDetailIntf>();
}

void TDetailForm::FormClose(TObject* sender) {
  TListForm::FormClose(sender);
  SaveLayout();
}

void TDetailForm::SelectAll(TObject*) {
  m_actAudit->SetEnabled(TickAll());
}

std::string TDetailForm::ReasonText(const std::string& reason) {
  const std::string text = g_pTranslate->Translate(reason);
  return text.empty() ? TListForm::ReasonText(reason) : text;
}

void TDetailForm::m_actOutPutExecute(TObject*) {
  const std::string fileName = AskOutputFile();
  if (!fileName.empty()) OutputRecords(fileName);
}

void TDetailForm::OutputRecords(const AnsiString& fileName) {
  WriteRecords(fileName, true);
}
