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
  m_amtmain->SetCommonAVI(design_.animation);
  m_amtmain->SetStopFrame(design_.stopFrame);
  OnShow = [this](TObject* sender) { FormShow(sender); };
}

void TBusyForm::Construct() {
  TForm::Construct();
  m_imagePath = g_pPubInfo->GetField("ENVIRONMENT", "ENV.IMAGES").getValue();
}

void TBusyForm::FormDestroy() {
  painter_.Stop();
  TForm::FormDestroy();
}

void TBusyForm::FormShow(TObject*) {
  m_imagePath += design_.file;
  if (QFileInfo(ToQt(m_imagePath)).isFile()) m_amtmain->SetFileName(m_imagePath);
  SetHeight(design_.height);
  SetWidth(design_.width);
  SetFormStyle(fsStayOnTop);
  SetBorderStyle(bsNone);
  SetPosition(design_.position);
  m_amtmain->SetAlign(alClient);
  m_pnlmain->SetAlign(alClient);
  m_amtmain->SetActive(true);
}

void TBusyForm::Begin() {
  before_ = QApplication::activeWindow();
  Widget()->setWindowModality(Qt::ApplicationModal);
  Show();
  Application->ProcessMessages();
  StartPainter();
}

void TBusyForm::StartPainter() {
  if (!TBusyPainter::Available()) return;
  const QRect area(m_amtmain->Widget()->mapTo(Widget(), QPoint(0, 0)), m_amtmain->Widget()->size());
  painter_.Start(Widget()->winId(),
                 norvik::ComposeFrames(Widget()->grab().toImage(), area, m_amtmain->Frames(area.size())),
                 TAnimate::kFrameTime);
}

void TBusyForm::End() {
  const QPointer<TBusyForm> self(this);
  Application->ProcessMessages();
  if (self.isNull()) return;
  painter_.Stop();
  Close();
  if (before_ && before_->isVisible()) before_->activateWindow();
}
