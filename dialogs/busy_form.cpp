#include "dialogs/busy_form.h"

#include <QApplication>
#include <QFileInfo>
#include <utility>

#include "data/corvane.h"
#include "dialogs/busy_frames.h"
#include "host/pub_info.h"
#include "toolkit/application.h"
#include "toolkit/text.h"

namespace {

constexpr TBusyDesign kBar = {"PROCESS.AVI", aviCopyFiles, 31, 350, 60, poScreenCenter};
constexpr TBusyDesign kWait = {"LOCALPROCESS.AVI", aviFindFolder, 29, 178, 45, poOwnerFormCenter};

}  // namespace

TBarForm::TBarForm(TComponent* owner, std::string key) : TBusyForm(owner, kBar), key_(std::move(key)) {}

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

void TBusyForm::FormDestroy() {
  m_painter.Stop();
  TForm::FormDestroy();
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
