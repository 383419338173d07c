#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

#include "tests/module/any_moment.h"

namespace anymoment {
namespace {

using fakehost::Library;
constexpr auto kPub = Library::kPublicInformation;
constexpr auto kBank = Library::kSafeCom;
constexpr auto kTexts = Library::kTranslate;
constexpr std::uint32_t kLookUp =
    1000;  // a look-up in the bank directory, as an ordinal of public information

// The moments.

std::string InFront() {
  const QWidget* dialog = QApplication::activeModalWidget();
  return dialog ? dialog->objectName().toStdString() : std::string();
}

auto Dialog(const char* name) {
  return [name](const Place& place) { return !place.call && !place.message && InFront() == name; };
}

bool Popup(const Place& place) {
  return !place.call && !place.message && QApplication::activePopupWidget();
}

// The pump of that number while a busy form is up; 0: the one after it has gone.
auto Pump(const char* form, int number) {
  return [form, number, seen = 0](const Place& place) mutable {
    if (place.call || place.message) return false;
    const bool up = InFront() == form;
    if (up) ++seen;
    return number == 0 ? seen > 0 && !up : up && seen == number;
  };
}

auto In(Library library, std::uint32_t ordinal, const char* argument = "") {
  return [=](const Place& place) {
    if (!place.call || place.call->library != library || place.call->ordinal != ordinal) return false;
    const auto& given = place.call->arguments;
    return !*argument || std::find(given.begin(), given.end(), argument) != given.end();
  };
}

auto Told(std::uint32_t message) {
  return [message](const Place& place) { return place.message == message; };
}

// What leads to them.

void Start(Scene& scene) {
  scene.host.OfferBills();
  scene.host.serverTime = 1780000000000;
  scene.host.SetAnswer(
      kPub, 90, {"FIELDDEF", "TfrmECDSHistoryDtl"},
      fakehost::Text("<list><row><COLID>BILLNUM</COLID><DISPLAY>UI44008</DISPLAY><WIDTH>100</WIDTH>"
                     "<ALIGN>L</ALIGN><COLFMT>C</COLFMT></row></list>"));
  scene.host.SetAnswer(
      kBank, 5,
      fakehost::Text("<stream><list name=\"resultList\"><row><BILLNUM>B1</BILLNUM><PAYAMT>1</PAYAMT>"
                     "<BILLSID>7</BILLSID><AGTSTAT>02</AGTSTAT><AGTBHNM>313100001</AGTBHNM>"
                     "<Reason>R1</Reason></row></list></stream>"));
  scene.host.SetAnswer(
      kPub, 24, {"ENVIRONMENT", "ENV.IMAGES"},
      fakehost::Text(corvane::Field("ENV.IMAGES", scene.images.path().toStdString() + "/").toString()));
  scene.module.InitModule(scene.host.publicInformation);
}

void Pick(Scene& scene) {
  scene.module.Pick(kItems[scene.at].item);
}

void Open(Scene& scene) {
  Start(scene);
  Pick(scene);
}

Deed Click(const char* name) {
  return [name](Scene& scene) { scene.Click(name); };
}

const Deed kQuery = Click("m_spdQuery");

void Tick(Scene& scene) {
  scene.Tick(0);
}

// A screen with one record, which is ticked.
void Ticked(Scene& scene) {
  Open(scene);
  kQuery(scene);
  Tick(scene);
}

Deed TickedAt(std::size_t item) {
  return [item](Scene& scene) {
    scene.at = item;
    Open(scene);
    for (const char* date : {"m_dtStartDate", "m_dtEndDate"}) {
      qobject_cast<QLineEdit*>(scene.Find(date))->setText(QStringLiteral("20260301"));
    }
    kQuery(scene);
    Tick(scene);
  };
}

void Nothing(Scene&) {}

void OpenBox(Scene& scene) {
  qobject_cast<QComboBox*>(scene.Find("m_cbxAcc"))->showPopup();
}

void ChooseAccount(Scene& scene) {
  qobject_cast<QComboBox*>(scene.Find("m_cbxAcc"))->setCurrentIndex(2);
}

void ChooseDates(Scene& scene) {
  scene.Find("m_rgSelDate")->findChild<QRadioButton*>()->click();
}

// The host's directory of banks is still being filled, as far as the module can see.
void WithBanks(Scene& scene) {
  static Scene* looking = nullptr;
  looking = &scene;
  static const norvik_bank_directory kDirectory = {
      nullptr,
      [](void*, std::uint32_t index) {
        const fakehost::Call call = {kPub, kLookUp, {}};
        looking->Reach({.call = &call});
        return index == 0 ? "104" : nullptr;
      },
      [](void*, const char*, const char*) { return 1; },
      [](void*, const char*, const char*, const char*, const char*) { return "Bank"; }};
  scene.host.handles["BANK_PDATA"] = norvik_bank_directory_register(&kDirectory);
  norvik_mutex_create("_BankInfoLoader_");
  Open(scene);
}

// The bank refuses what is asked from here on.
Deed Refused(Deed deed) {
  return [deed](Scene& scene) {
    scene.host.SetAnswer(kBank, 5, fakehost::Refusal("BK1"));
    deed(scene);
  };
}

Deed Choose(const char* file) {
  return [file](Scene& scene) { scene.Choose(file); };
}

Deed Menu(bool columns) {
  return [columns](Scene& scene) { columns ? scene.Click("m_tbHideColumn") : scene.ListMenu(); };
}

void Traditional(Scene& scene) {
  scene.host.SetAnswer(kPub, 68, {"SYSCONFIG_DATA", "APPLICATION.LANG", "Language"},
                       fakehost::Text("Traditional Chinese"));
  Open(scene);
}

void Close(Scene& scene) {
  WindowOf(kItems[scene.at].screen)->close();
}

void ChangeLook(Scene& scene) {
  norvik_window_send(scene.host.handles[kItems[scene.at].screen], 0x7E9, 0, 0);
}

void Release(Scene& scene) {
  scene.module.Release();
}

// Two screens, whose layouts are to be stored.
void OpenTwo(Scene& scene) {
  Open(scene);
  scene.module.Pick("ITEM6067");
}

void NoStates(Scene& scene) {
  qobject_cast<QAbstractItemView*>(scene.Find("m_lbxAgentStt"))->clearSelection();
  kQuery(scene);
}

void NoRows(Scene& scene) {
  scene.host.SetAnswer(kBank, 5, fakehost::Text("<stream/>"));
  kQuery(scene);
}

void RefusedExport(Scene& scene) {
  scene.host.SetAnswer(Library::kExcel, 2, fakehost::Refusal("full"));
  scene.Click("m_btnECDSHistoryInfo");
}

void SelectRow(Scene& scene) {
  auto* list = qobject_cast<QAbstractItemView*>(scene.Find("m_lvMain"));
  list->setCurrentIndex({});
  list->setCurrentIndex(list->model()->index(0, 0));
}

const Deed kExport = Click("m_tbExport");
const Deed kHistory = Click("m_btnECDSHistoryInfo");
constexpr const char* kHistoryForm = "TfrmECDSHistoryDtl";
constexpr const char* kFileDialog = "m_sdOutput";
using enum Doing;
using Steps = std::vector<Moment::Step>;
const Steps kDetail = {{"TFrmErrorMsg", Click("m_btnDetail")}};
const Steps kAfterDetail = {kDetail[0], {"TFrmErrorMsg", Nothing}};
const Steps kSave = {{kFileDialog, Choose("/nowhere/a.xls")}};
const Steps kSaveText = {{kFileDialog, Choose("/nowhere/a.txt")}};
const Steps kReplace = {{kFileDialog, Choose(NORVIK_QRY)}};
const Steps kSum = {{kHistoryForm, Click("m_spdSum")}};
const Steps kExportHistory = {{kHistoryForm, Tick}, {kHistoryForm, kExport}};
const Steps kSaveHistory = {kExportHistory[0], kExportHistory[1], kSave[0]};

const Moment kMoments[] = {
    {"a warning", NoStates, Dialog("TFrmComMsg"), kWaiting, Open},
    {"a warning after the exchange", NoRows, Dialog("TFrmComMsg"), kWaiting, Open},
    {"a question", kExport, Dialog("TFrmComMsg"), kWaiting, Ticked, kReplace},
    {"an error", Refused(kQuery), Dialog("TFrmErrorMsg"), kWaiting, Open},
    {"an error's detail opening", Refused(kQuery), Dialog("TFrmErrorMsg"), kElse, Open, kDetail},
    {"an error's detail", Refused(kQuery), Dialog("TFrmErrorMsg"), kWaiting, Open, kAfterDetail},
    {"the calendar", Click("m_dtStorageStartDate_button"), Dialog("TDateCalendar"), kWaiting, Open},
    {"the totals", Click("m_spdSum"), Dialog("TfrmStatistics"), kWaiting, Ticked},
    {"a bill", Click("m_btnTicketInfo"), Dialog("TfrmQryInfo"), kWaiting, Ticked},
    {"an application", Click("m_btnTicketInfo"), Dialog("TfrmAppQryInfo"), kWaiting, TickedAt(1)},
    {"an event", Click("m_btnTicketInfo"), Dialog("TfrmDetailQryInfo"), kWaiting, TickedAt(2)},
    {"the history", kHistory, Dialog(kHistoryForm), kWaiting, Ticked},
    {"the registration", Click("m_btnECDSSignInfo"), Dialog("TfrmECDSignDtl"), kWaiting, Ticked},
    {"the large-value result", Click("m_btnBigResult"), Dialog("TfrmBigResultDtl"), kWaiting, Ticked},
    {"an enquiry refused", Refused(kHistory), Dialog("TFrmErrorMsg"), kWaiting, Ticked},
    {"an error over an enquiry", RefusedExport, Dialog("TFrmErrorMsg"), kWaiting, Ticked, kSaveHistory},
    {"the totals over an enquiry", kHistory, Dialog("TfrmStatistics"), kWaiting, Ticked, kSum},
    {"the file dialog", kExport, Dialog(kFileDialog), kWaiting, Ticked},
    {"the file dialog over an enquiry", kHistory, Dialog(kFileDialog), kWaiting, Ticked, kExportHistory},
    {"the list's menu", Menu(false), Popup, kWaiting, Open},
    {"the column menu", Menu(true), Popup, kWaiting, Open},
    {"the list's menu of an enquiry", kHistory, Popup, kWaiting, Ticked, {{kHistoryForm, Menu(false)}}},
    {"the column menu of an enquiry", kHistory, Popup, kWaiting, Ticked, {{kHistoryForm, Menu(true)}}},
    {"an open box", OpenBox, Popup, kWaiting, Open},

    {"the bar before the exchange", kQuery, Pump("TBarForm", 1), kExchange, Open},
    {"the bar after the exchange", kQuery, Pump("TBarForm", 2), kExchange, Open},
    {"the bar just gone", kQuery, Pump("TBarForm", 0), kElse, Open},
    {"the bar of an enquiry", kHistory, Pump("TBarForm", 1), kExchange, Ticked},
    {"the bar after an enquiry", kHistory, Pump("TBarForm", 2), kExchange, Ticked},
    {"the wait form", ChooseAccount, Pump("TWaitForm", 1), kElse, WithBanks},
    {"the wait form after the wait", ChooseAccount, Pump("TWaitForm", 2), kElse, WithBanks},
    {"the wait form just gone", ChooseAccount, Pump("TWaitForm", 0), kElse, WithBanks},

    {"the exchange of a query", kQuery, In(kBank, 5), kExchange, Open},
    {"the exchange of an enquiry", kHistory, In(kBank, 5), kExchange, Ticked},
    {"the exchange of an account", ChooseAccount, In(kBank, 5), kExchange, Open},
    {"the answer's give-back", kQuery, In(kBank, 4), kElse, Open},
    {"bank time", ChooseDates, In(kBank, 8), kElse, Open},
    {"a look-up of a bank", ChooseAccount, In(kPub, kLookUp), kElse, WithBanks},
    {"a text of a message", NoStates, In(kTexts, 4), kElse, Open},
    {"a text of a row", kQuery, In(kTexts, 4, "UI46102"), kElse, Open},
    {"a request into GB", kQuery, In(kTexts, 6), kElse, Traditional},
    {"an error's text", Refused(kQuery), In(Library::kError, 5), kElse, Open},
    {"a reason's text", SelectRow, In(Library::kError, 4), kElse, Ticked},
    {"the bar's picture", kQuery, In(kPub, 24), kElse, Open},
    {"the look", ChangeLook, In(kPub, 68), kElse, Open},
    {"the head of a print", Click("m_tbPrint"), In(kPub, 87), kElse, Ticked},
    {"a print", Click("m_tbPrint"), In(Library::kPrint, 3), kElse, Ticked},
    {"the print settings", Click("m_tbPrintSetup"), In(Library::kPrint, 5), kElse, Open},
    {"the columns for the totals", Click("m_spdSum"), In(kPub, 90), kElse, Ticked},
    {"the columns for the menu", Menu(true), In(kPub, 90), kElse, Open},
    {"the operator's name", kExport, In(kPub, 40), kElse, Ticked, kSave},
    {"a workbook", kExport, In(Library::kExcel, 2), kElse, Ticked, kSave},
    {"a text file", kExport, In(Library::kExcel, 5), kElse, Ticked, kSaveText},
    {"a shortcut's fields", Click("m_tbSendToDesktop"), In(kPub, 23), kElse, Open},
    {"a shortcut", Click("m_tbSendToDesktop"), Told(0x7FC), kElse, Open},
    {"the handle of a message box", NoStates, In(kPub, 122), kElse, Open},

    {"the operator for a new screen", Pick, In(kPub, 40, "CMLGUSERINFO"), kElse, Start},
    {"a text for a new screen", Pick, In(kTexts, 4, "UI40110"), kElse, Start},
    {"the columns for a new screen", Pick, In(kPub, 90), kElse, Start},
    {"the stored table of a new screen", Pick, In(kPub, 58), kElse, Start},
    {"the accounts for a new screen", Pick, In(kPub, 40, "CMLGBSNACC"), kElse, Start},
    {"a text at show", Pick, In(kTexts, 4, "UI12501"), kElse, Start},
    {"the font at show", Pick, In(kPub, 68, "Size"), kElse, Start},
    {"the skin at show", Pick, In(kPub, 24, "ENV.SKIN"), kElse, Start},
    {"the handle at show", Pick, In(kPub, 122), kElse, Start},
    {"the message of the show", Pick, Told(0x824), kElse, Start},
    {"the layout after the show", Pick, In(kPub, 82), kElse, Start},
    {"the message of activation", Pick, Told(0x826), kElse, Start},
    {"the handle at closing", Close, In(kPub, 122), kClosing, Open},
    {"the message of closing", Close, Told(0x825), kClosing, Open},

    {"Release reading a layout", Release, In(kPub, 82), kEnding, OpenTwo},
    {"Release removing a layout", Release, In(kPub, 81), kEnding, OpenTwo},
    {"Release storing a layout", Release, In(kPub, 80), kEnding, OpenTwo},
    {"InitModule asking for a library", Start, In(kPub, 123, "HANDLE_SAFECOM"), kStarting, Nothing},
    {"InitModule starting public information", Start, In(kPub, 1), kStarting, Nothing},
    {"InitModule starting a library", Start, In(Library::kPrint, 1), kStarting, Nothing},
    {"InitModule asking for the language", Start, In(kPub, 68), kStarting, Nothing},
};

}  // namespace

std::span<const Moment> Moments() {
  return kMoments;
}

}  // namespace anymoment
