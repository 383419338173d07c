#include "shell/module.h"

#include <QScopedValueRollback>
#include <algorithm>
#include <cstring>
#include <exception>
#include <stdexcept>
#include <utility>

#include "dialogs/bank_info.h"
#include "dialogs/messages.h"
#include "host/error.h"
#include "host/excel.h"
#include "host/keys.h"
#include "host/print.h"
#include "host/pub_info.h"
#include "host/safe_com.h"
#include "host/translate.h"
#include "shell/menu.h"
#include "toolkit/application.h"

namespace norvik {
namespace {

// True from the end of StartModule to StopModule.
bool g_started = false;

// True while a failure is shown. The form that shows it asks the host for texts and fonts as any other does,
// and what made the first failure may fail there again.
bool g_reporting = false;

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
  const bool nested = g_reporting;
  const QScopedValueRollback reporting(g_reporting, true);
  try {
    std::rethrow_exception(std::move(error));
  } catch (const corvane::TException& exception) {
    if (nested) throw std::runtime_error(exception.getMessage("; "));
    ReportKeys(exception);
  } catch (const std::exception& exception) {
    if (nested) throw;
    ShowErrorMsg(exception.what(), nullptr);
  }
}

template <class Service>
void Destroy(Service*& service) {
  delete service;
  service = nullptr;
}

}  // namespace

void StartModule(norvik_handle publicInformation) {
  StopModule();
  CreateApplication();
  Application->OnException = ReportEscaped;

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
  g_started = true;
}

void StopModule() {
  g_started = false;
  for (const MenuItem& item : Menu()) item.destroy();
  Destroy(g_pPubInfo);
  Destroy(g_pTranslate);
  Destroy(g_pError);
  Destroy(g_pPrint);
  Destroy(g_pSafeCom);
  Destroy(g_pBankInfo);
  Destroy(g_pExcel);
  DestroyApplication();
}

void CallItem(const std::string& request) {
  corvane::Row row(request);
  const std::string name = row.getValue("ItemName");
  const auto menu = Menu();
  const auto picked =
      std::find_if(menu.begin(), menu.end(), [&](const MenuItem& item) { return item.item == name; });
  if (picked == menu.end()) return;
  if (!g_started) throw corvane::TException(key::kNotInitialised);
  picked->open(name);
}

void CopyMenu(char** buffer) {
  const std::string text = MenuText();
  if (!*buffer) *buffer = new char[text.size() + 1];
  std::memcpy(*buffer, text.c_str(), text.size() + 1);
}

}  // namespace norvik
