#include "tests/support/module_library.h"

#include <dlfcn.h>

#include <QApplication>
#include <stdexcept>
#include <utility>

namespace {

template <class Function>
Function Find(void* library, const char* name) {
  void* const symbol = dlsym(library, name);
  if (!symbol) throw std::runtime_error(dlerror());
  return reinterpret_cast<Function>(symbol);
}

void* Load(const char* path) {
  void* const library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
  if (!library) throw std::runtime_error(dlerror());
  return library;
}

intptr_t WriteDown(void* context, uint32_t message, uintptr_t, intptr_t) {
  auto* host = static_cast<WindowedHost*>(context);
  host->messages.push_back(message);
  if (host->duringMessage) host->duringMessage(message);
  return 0;
}

}  // namespace

ModuleLibrary::ModuleLibrary(const char* path) : library_(Load(path)) {
  InitModule = Find<norvik_init_module>(library_, "InitModule");
  MenuConfig = Find<norvik_menu_config>(library_, "MenuConfig");
  FreeBuff = Find<norvik_free_buff>(library_, "FreeBuff");
  CallFunc = Find<norvik_call_func>(library_, "CallFunc");
  Release = Find<norvik_release>(library_, "Release");
}

ModuleLibrary::~ModuleLibrary() {
  Release();
  dlclose(library_);
}

void ModuleLibrary::Pick(const std::string& item) const {
  CallFunc(("<row><ItemName>" + item + "</ItemName></row>").c_str(), 0);
}

std::string ModuleLibrary::Menu() const {
  char* buffer = nullptr;
  MenuConfig(&buffer);
  const std::string text = buffer;
  FreeBuff(buffer);
  return text;
}

WindowedHost::WindowedHost() : publicInformation(RegisterAll()) {
  OpenMainWindow();
  SetAnswer(fakehost::Library::kPublicInformation, 68, {"SYSCONFIG_DATA", "APPLICATION.FONT", "Size"},
            fakehost::Text("9"));
}

WindowedHost::~WindowedHost() {
  CloseMainWindow();
}

void WindowedHost::OpenMainWindow() {
  mainWindow = std::make_unique<QWidget>();
  window_ = norvik_window_register(WriteDown, this, mainWindow.get());
  handles["APPMAINFORMHANDLE"] = window_;
}

void WindowedHost::CloseMainWindow() {
  norvik_window_unregister(std::exchange(window_, 0));
  mainWindow.reset();
}

void WindowedHost::OfferBills() {
  constexpr auto kPub = fakehost::Library::kPublicInformation;
  const std::vector<std::pair<std::string, std::string>> lists = {
      {"CMLGBSN", ListText({{"BSNCODE", "FLOWID"}, {"CB200310", "F1"}})},
      {"CMLGBSNOPR", ListText({{"FLOWID", "PSTCLASS"}, {"F1", "01"}})},
      {"CMLGBSNACC", ListText({{"FLOWID", "ACCNO", "ACCNM"}, {"F1", "A1", "One"}, {"F1", "A2", "Two"}})}};
  for (const auto& [key, text] : lists) SetAnswer(kPub, 40, {key}, fakehost::Text(text));
  const std::string columns = ListText({{"COLID", "DISPLAY", "WIDTH", "ALIGN", "COLFMT"},
                                        {"BILLNUM", "UI44008", "100", "L", "C"},
                                        {"PAYAMT", "UI44344", "80", "R", "M"}});
  for (const char* screen : {"TfrmNorvikQry", "TfrmNorvikELoanQry", "TfrmNorvikDTLQry"}) {
    SetAnswer(kPub, 90, {"FIELDDEF", screen}, fakehost::Text(columns));
  }
  SetAnswer(kPub, 90, {"BUSINESSDICT", "AGENTSTT"},
            fakehost::Text(ListText({{"TYPEKEY", "TYPE"}, {"02", "UI46102"}})));
  const std::string rows =
      "<row><BILLNUM>B1</BILLNUM><PAYAMT>1234.5</PAYAMT></row>"
      "<row><BILLNUM>B2</BILLNUM><PAYAMT>20</PAYAMT></row>";
  SetAnswer(fakehost::Library::kSafeCom, 5,
            fakehost::Text("<stream><list name=\"resultList\">" + rows + "</list></stream>"));
}

std::string ListText(const std::vector<std::vector<std::string>>& lines) {
  corvane::List list;
  for (std::size_t i = 1; i < lines.size(); ++i) {
    corvane::Row row;
    for (std::size_t c = 0; c < lines[0].size(); ++c) row[lines[0][c]] = lines[i][c];
    list.addRow(row);
  }
  return list.toString();
}

QWidget* WindowOf(const std::string& name) {
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    if (widget->objectName().toStdString() == name) return widget;
  }
  return nullptr;
}

DialogCloser::DialogCloser() {
  timer_.callOnTimeout([this] {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (!dialog || dialog->objectName() == QLatin1String("TBarForm")) return;
    ++closed;
    if (const auto step = std::exchange(whenShown, nullptr)) step();
    dialog->close();
  });
  timer_.start(10);
}
