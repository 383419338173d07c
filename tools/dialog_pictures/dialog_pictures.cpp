// dialog_pictures LANGUAGE FOLDER: leaves pictures of the column dialog and of the dialogs round the approval
// of a record in the folder, opened from the applications of the demonstration bank by the actions that the
// screens of the menu hide. Fails where a dialog doesn't come, shows a key or has no room for a text.
#include <QApplication>
#include <QTimer>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <vector>

#include "demohost/check/check_host.h"
#include "demohost/host_words.h"
#include "demohost/script/controls.h"
#include "demohost/window/demo_mark.h"
#include "dialogs/audit_foot_form.h"
#include "dialogs/audit_form.h"
#include "dialogs/booking_form.h"
#include "dialogs/view_bsn_flow.h"
#include "platform/code_page.h"
#include "repository/norvik_e_loan_qry.h"
#include "shell/module.h"
#include "toolkit/action.h"
#include "toolkit/application.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/menu.h"
#include "toolkit/screen.h"
#include "tools/dialog_pictures/fitting.h"

namespace {

constexpr const char* kBusiness = "CB200320";
constexpr const char* kFirstDay = "20251101";
constexpr const char* kLastDay = "20260415";
constexpr const char* kOrder = "OD000000000004";  // went through three steps, one with an opinion
constexpr int kLooks = 20;                        // milliseconds between two looks at what is open
constexpr int kPatience = 250;                    // looks that a dialog may take to come

// A dialog: what is done before its picture is taken, and what after it.
struct Scene {
  const char* form;
  const char* picture;
  std::function<void(TForm*)> prepare;
  std::function<void(TForm*)> leave;
};

TForm* FormOf(const QWidget* window) {
  int i = 0;
  while (Screen->Forms(i)->Widget() != window) ++i;
  return Screen->Forms(i);
}

// Takes the scenes in their order, each as soon as its dialog is open; gives up on any other dialog.
class Photographer {
 public:
  Photographer(std::vector<Scene> scenes, QString folder)
      : scenes_(std::move(scenes)), folder_(std::move(folder)) {
    timer_.callOnTimeout([this] { Look(); });
    timer_.start(kLooks);
  }
  bool Done() const { return next_ == scenes_.size(); }
  // Nothing is wrong so far.
  bool Content() const { return content_; }

 private:
  void Look() {
    QWidget* window = QApplication::activeModalWidget();
    if (window == nullptr || window == last_) return;
    const QString expected = Done() ? QString() : QLatin1String(scenes_[next_].form);
    if (window->objectName() == expected) {
      last_ = window;
      Take(FormOf(window));
    } else if (++looks_ > kPatience) {
      Complain(QStringLiteral("%1 came instead of %2: %3")
                   .arg(window->objectName(), expected, demohost::DialogText(window)));
      looks_ = 0;
      window->close();
    }
  }
  void Take(TForm* form) {
    const Scene& scene = scenes_[next_++];
    looks_ = 0;
    scene.prepare(form);
    Application->ProcessMessages();
    for (const QString& fault : FaultsOfTexts(form->Widget()))
      Complain(QStringLiteral("%1: %2").arg(QLatin1String(scene.form), fault));
    const QString file = folder_ + QLatin1Char('/') + QLatin1String(scene.picture);
    if (!form->Widget()->grab().save(file)) Complain(file + QStringLiteral(" can't be written"));
    // After this look, since a timer stands still while its own call opens a dialog.
    QTimer::singleShot(0, form, [&scene, form] { scene.leave(form); });
  }
  void Complain(const QString& what) {
    content_ = false;
    std::cerr << "dialog_pictures: " << what.toStdString() << std::endl;
  }

  std::vector<Scene> scenes_;
  QString folder_;
  QTimer timer_;
  std::size_t next_ = 0;
  QWidget* last_ = nullptr;
  int looks_ = 0;
  bool content_ = true;
};

// What an approver writes, in the language of the pictures.
std::string Opinion(const std::string& language) {
  if (language == "English") return "The trade contract is missing. Please add it.";
  return norvik::AnsiFromUtf8(language == "Simplified Chinese" ? "缺少交易合同，请补充后重新提交。"
                                                               : "缺少交易合同，請補充後重新提交。");
}

std::vector<Scene> Scenes(const std::string& language) {
  const auto close = [](TForm* form) { form->Close(); };
  return {{"TfrmSelectColumn", "column-dialog.png", [](TForm*) {}, close},
          {"TfrmAudit", "audit.png",
           [opinion = Opinion(language)](TForm* form) {
             auto* audit = static_cast<TfrmAudit*>(form);
             audit->m_rdgAudit->SetItemIndex(TfrmAudit::kDisagree);
             audit->m_memInfo->SetText(opinion);
           },
           close},
          {"TfrmBookingProc", "booking.png",
           [](TForm* form) {
             static_cast<TfrmBookingProc*>(form)->m_grpPreFlg->SetItemIndex(TfrmBookingProc::kScheduled);
           },
           close},
          {"TfrmEBillAuditFoot", "audit-trail.png", [](TForm*) {},
           [](TForm* form) {
             static_cast<TfrmEBillAuditFoot*>(form)->m_btnViewFlow->Click();
             form->Close();
           }},
          {"TfrmViewBsnFlow", "approval-flow.png", [](TForm*) {}, close}};
}

// The applications under the name of their business, as a screen with batch actions and the column dialog has
// it.
class TApplications : public TfrmNorvikELoanQry {
 public:
  using TfrmNorvikELoanQry::TfrmNorvikELoanQry;
  void Construct() override {
    TfrmNorvikELoanQry::Construct();
    m_strBsnName = TranslateKey("UI25828");
    m_bColumnDialog = true;
  }
};

// Ticks the application of kOrder, whose payer is the drawer of its bill; false where it isn't there.
bool TickOrder(TKVXListView* list) {
  for (int i = 0; i < list->Items().Count(); ++i) {
    corvane::Property& record = *list->Items()[i]->Data();
    if (record.getValue("ORDERNO") != kOrder) continue;
    record["ACCPACC"] = record.getValue("DRWRACC");
    record["ACCPNAM"] = record.getValue("DRWRNAM");
    list->Items()[i]->SetChecked(true);
    return true;
  }
  std::cerr << "dialog_pictures: the bank has no order " << kOrder << std::endl;
  return false;
}

// Takes the last entry of the column menu, which is the dialog.
void ChooseColumns(TApplications& screen) {
  screen.m_actHideColumn->Execute();
  screen.m_pumColumn->Close();
  const TMenuItem* entries = screen.m_pumColumn->Items();
  entries->Items(entries->Count() - 1)->Click();
}

// Starts the actions that open the dialogs; false without a record for them.
bool Operate() {
  const TFormPointer<TApplications> screen(CreateForm<TApplications>(Application));
  screen->Show();
  screen->m_dtStartDate->SetText(kFirstDay);
  screen->m_dtEndDate->SetText(kLastDay);
  screen->m_actQuery->Execute();
  if (!TickOrder(screen->m_lvMain)) return false;
  ChooseColumns(*screen);
  CMQueryIntf business;
  corvane::CorvaneStream source, request;
  business.BuildAuditRequest(screen->m_lvMain, kBusiness, request, 0);
  screen->BuildDealRequest(source, request, false);
  screen->m_actViewAuditFootExecute(screen.get());
  return true;
}

int Run(const std::string& language, const std::filesystem::path& folder) {
  namespace check = demohost::check;
  demohost::Options options;
  options.share = PICTURES_SHARE;
  options.language = language;
  const std::filesystem::path place = folder / "host";
  check::PrepareFolder(options, place);
  check::CheckHost host(options, place);
  demohost::DemoMark mark(nullptr);
  mark.SetText(
      QString::fromStdString(std::string(demohost::Word(demohost::HostWord::kDemonstration, language))));
  norvik::StartModule(host.PublicInformation());
  const Photographer photographer(Scenes(language), QString::fromStdString(folder.string()));
  const bool operated = Operate();
  norvik::StopModule();
  return operated && photographer.Done() && photographer.Content() ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  if (argc != 3 || !demohost::IsLanguage(argv[1])) {
    std::cerr << "dialog_pictures: the arguments are a language and a folder" << std::endl;
    return EXIT_FAILURE;
  }
  try {
    return Run(argv[1], argv[2]);
  } catch (const std::exception& failure) {
    std::cerr << "dialog_pictures: " << failure.what() << std::endl;
    return EXIT_FAILURE;
  }
}
