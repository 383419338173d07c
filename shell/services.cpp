#include "shell/services.h"

#include <utility>

#include "toolkit/application.h"

PubInfoIntf* g_pPubInfo = nullptr;
TranslateIntf* g_pTranslate = nullptr;
ErrorIntf* g_pError = nullptr;
PrintIntf* g_pPrint = nullptr;
SafeComIntf* g_pSafeCom = nullptr;
ExcelIntf* g_pExcel = nullptr;
TBankInfo* g_pBankInfo = nullptr;

namespace norvik {
namespace {

template <class Service>
void Destroy(Service*& service) {
  delete std::exchange(service, nullptr);
}

template <class... Service>
void CloseEach(Service*... services) {
  ((services != nullptr ? services->Close() : void()), ...);
}

}  // namespace

Services::Services(TApplication* life) : TComponent(life) {
  life->OnLeave = [this] { setAside_ = Exchange({}); };
  life->OnEnter = [this] { Exchange(setAside_); };
}

Services::~Services() {
  Destroy(g_pPubInfo);
  Destroy(g_pTranslate);
  Destroy(g_pError);
  Destroy(g_pPrint);
  Destroy(g_pSafeCom);
  Destroy(g_pBankInfo);
  Destroy(g_pExcel);
}

void Services::Close() {
  started = false;
  CloseEach(g_pPubInfo, g_pTranslate, g_pError, g_pPrint, g_pSafeCom, g_pBankInfo, g_pExcel);
}

Services::Pointers Services::Exchange(const Pointers& pointers) {
  return {.pubInfo = std::exchange(g_pPubInfo, pointers.pubInfo),
          .translate = std::exchange(g_pTranslate, pointers.translate),
          .error = std::exchange(g_pError, pointers.error),
          .print = std::exchange(g_pPrint, pointers.print),
          .safeCom = std::exchange(g_pSafeCom, pointers.safeCom),
          .bankInfo = std::exchange(g_pBankInfo, pointers.bankInfo),
          .excel = std::exchange(g_pExcel, pointers.excel)};
}

Services* ServicesOf(const TApplication* life) {
  for (int i = 0; life != nullptr && i < life->ComponentCount(); ++i) {
    if (auto* services = qobject_cast<Services*>(life->Components(i))) return services;
  }
  return nullptr;
}

}  // namespace norvik
