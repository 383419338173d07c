#include "dialogs/busy.h"

#include <QApplication>
#include <QFileInfo>
#include <QPointer>
#include <map>
#include <utility>

#include "data/corvane.h"
#include "dialogs/busy_frames.h"
#include "host/pub_info.h"
#include "toolkit/application.h"
#include "toolkit/text.h"

namespace {

constexpr TBusyDesign kBar = {"PROCESS.AVI", aviCopyFiles, 31, 350, 60, poScreenCenter};
constexpr TBusyDesign kWait = {"LOCALPROCESS.AVI", aviFindFolder, 29, 178, 45, poOwnerFormCenter};

// The bars that are up, by the class name of the form that each belongs to. A bar whose owner goes dies with
// it.
std::map<std::string, QPointer<TBarForm>> g_bars;
QPointer<TWaitForm> g_wait;

TComponent* OwnerOf(TForm* owner) {
  return owner != nullptr ? static_cast<TComponent*>(owner) : Application;
}

// Messages are pumped here, so the form may have gone with its owner behind each step.
void TakeAway(QPointer<TBusyForm> form) {
  if (form.isNull()) return;
  form->End();
  DestroyForm(form);
  Application->ProcessMessages();
}

}  // namespace

TBarForm::TBarForm(TComponent* owner) : TBusyForm(owner, kBar) {}

TWaitForm::TWaitForm(TComponent* owner) : TBusyForm(owner, kWait) {}

void TBusyForm::BuildControls() {
  TForm::BuildControls();
  m_pnlmain = NewComponent<TPanel>(this, "m_pnlmain");
  m_pnlmain->SetParent(this);
  m_amtmain = NewComponent<TAnimate>(this, "m_amtmain");
  m_amtmain->SetParent(m_pnlmain);
  m_amtmain->SetCommonAVI(m_design.animation);
  m_amtmain->SetStopFrame(m_design.stopFrame);
  OnShow = [this](TObject* sender) { FormShow(sender); };
}

void TBusyForm::Construct() {
  TForm::Construct();
  m_imagePath = g_pPubInfo->GetField("ENVIRONMENT", "ENV.IMAGES").getValue();
}

void TBusyForm::FormShow(TObject*) {
  m_imagePath += m_design.file;
  if (QFileInfo(ToQt(m_imagePath)).isFile()) m_amtmain->SetFileName(m_imagePath);
  SetHeight(m_design.height);
  SetWidth(m_design.width);
  SetFormStyle(fsStayOnTop);
  SetBorderStyle(bsNone);
  SetPosition(m_design.position);
  m_amtmain->SetAlign(alClient);
  m_pnlmain->SetAlign(alClient);
  m_amtmain->SetActive(true);
}

void TBusyForm::Begin() {
  m_before = QApplication::activeWindow();
  Widget()->setWindowModality(Qt::ApplicationModal);
  Show();
  Application->ProcessMessages();
  StartPainter();
}

void TBusyForm::StartPainter() {
  if (!TBusyPainter::Available()) return;
  const QRect area(m_amtmain->Widget()->mapTo(Widget(), QPoint(0, 0)), m_amtmain->Widget()->size());
  m_painter.Start(Widget()->winId(),
                  norvik::ComposeFrames(Widget()->grab().toImage(), area, m_amtmain->Frames(area.size())),
                  TAnimate::kFrameTime);
}

void TBusyForm::End() {
  const QPointer<TBusyForm> self(this);
  Application->ProcessMessages();
  if (self.isNull()) return;
  m_painter.Stop();
  Close();
  if (m_before && m_before->isVisible()) m_before->activateWindow();
}

void ShowBar(TForm* owner) {
  const std::string key = owner != nullptr ? owner->ClassName() : std::string();
  TakeAway(g_bars[key].data());
  TBarForm* form = CreateForm<TBarForm>(OwnerOf(owner));
  g_bars[key] = form;
  form->Begin();
}

void HideBar(TForm* owner) {
  const auto found = g_bars.find(owner != nullptr ? owner->ClassName() : std::string());
  if (found == g_bars.end()) return;
  const QPointer<TBusyForm> form(found->second.data());
  g_bars.erase(found);
  TakeAway(form);
}

void ShowWait(TForm* owner) {
  TakeAway(g_wait.data());
  g_wait = CreateForm<TWaitForm>(OwnerOf(owner));
  g_wait->Begin();
}

void HideWait() {
  TakeAway(std::exchange(g_wait, nullptr).data());
}
