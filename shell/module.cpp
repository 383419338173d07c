#include "shell/module.h"

#include <QScopedValueRollback>
#include <algorithm>
#include <cstring>
#include <exception>
#include <utility>
#include <vector>

#include "dialogs/messages.h"
#include "host/keys.h"
#include "shell/menu.h"
#include "shell/services.h"
#include "toolkit/application.h"

namespace norvik {
namespace {

void ReportKeys(const corvane::TException& failure) {
  try {
    ReportException(failure);
  } catch (const corvane::TException& second) {
    // The error library has failed; what it said is all that there is.
    ShowErrorMsg(second.getMessage("\r\n"), nullptr);
  }
}

// A failure while another one is shown goes to the log alone.
void ReportEscaped(TObject*, std::exception_ptr error) {
  Services* const services = ServicesOf(Application);
  const bool nested = services->reporting;
  const QScopedValueRollback reporting(services->reporting, true);
  try {
    std::rethrow_exception(std::move(error));
  } catch (const corvane::TException& exception) {
    if (nested) throw;
    ReportKeys(exception);
  } catch (const std::exception& exception) {
    if (nested) throw;
    ShowErrorMsg(exception.what(), nullptr);
  }
}

// The steps of the start. Each service is in its place before it is bound.
void MakeServices(norvik_handle publicInformation) {
  g_pPubInfo = new PubInfoIntf();
  g_pPubInfo->Bind(publicInformation);
  g_pTranslate = new TranslateIntf(g_pPubInfo->GetHandle("HANDLE_TRANSLATE"));
  g_pTranslate->Bind(publicInformation);
  g_pError = new ErrorIntf(g_pPubInfo->GetHandle("HANDLE_ERROR"));
  g_pError->Bind(publicInformation);
  g_pPrint = new PrintIntf(g_pPubInfo->GetHandle("HANDLE_PRINT"));
  g_pPrint->Init(publicInformation);
  g_pSafeCom = new SafeComIntf(g_pPubInfo->GetHandle("HANDLE_SAFECOM"));
  g_pBankInfo = new TBankInfo();
  g_pExcel = new ExcelIntf(g_pPubInfo->GetHandle("HANDLE_EXCEL"));
  Application->SetHandle(g_pPubInfo->GetHandle("APPMAINFORMHANDLE"));
}

// Opens the item's screen now; the host may end the life meanwhile, and there is nothing left to open then.
void Open(const MenuItem& item) {
  try {
    item.open(std::string(item.item));
  } catch (const LifeEnded&) {
  }
}

}  // namespace

void StartModule(norvik_handle publicInformation) {
  // What is served around this call is served again after it.
  const TLifeScope calling(nullptr, TLifeScope::Returns::kToHost);
  StopModule();
  CreateApplication();
  const TLifeScope scope(Application, TLifeScope::Returns::kToHost);
  auto* services = new Services(Application);
  Application->OnException = ReportEscaped;
  try {
    MakeServices(publicInformation);
    scope.Check();
    services->started = true;
  } catch (const LifeEnded&) {
    // The host has released the module while it was starting; another start may have succeeded in this one's
    // place.
    const Services* newest = ServicesOf(NewestApplication());
    if (newest == nullptr || !newest->started) throw corvane::TException(key::kNotInitialised);
  }
}

void StopModule() {
  DeleteEndedLives();
  TApplication* const life = NewestApplication();
  if (life == nullptr) return;
  const TLifeScope scope(life, TLifeScope::Returns::kToHost);
  Services* const services = ServicesOf(life);
  services->started = false;
  std::vector<TForm*> screens;
  for (const MenuItem& item : Menu()) {
    if (TForm* screen = item.screen()) screens.push_back(screen);
  }
  life->CloseAll(screens);
  for (const MenuItem& item : Menu()) item.forget(life);
  services->Close();
  life->End();
}

void CallItem(const std::string& request) {
  corvane::Row row(request);
  const std::string name = row.getValue("ItemName");
  const auto menu = Menu();
  const auto picked =
      std::find_if(menu.begin(), menu.end(), [&](const MenuItem& item) { return item.item == name; });
  if (picked == menu.end()) return;
  TApplication* const life = NewestApplication();
  const Services* services = ServicesOf(life);
  if (services == nullptr || !services->started) throw corvane::TException(key::kNotInitialised);
  const TLifeScope scope(life, TLifeScope::Returns::kToHost);
  if (life->Held()) {
    life->QueueCall(life, [picked] { Open(*picked); });
  } else {
    Open(*picked);
  }
}

void CopyMenu(char** buffer) {
  const std::string text = MenuText();
  if (!*buffer) *buffer = new char[text.size() + 1];
  std::memcpy(*buffer, text.c_str(), text.size() + 1);
}

}  // namespace norvik
