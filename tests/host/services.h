// The proxies over a fake host, bound as InitModule does it, and what an action on them threw.
//
// For the tests of host/; forms are tested over tests/support/form_host.h.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <typeinfo>
#include <vector>

#include "host/error.h"
#include "host/excel.h"
#include "host/print.h"
#include "host/pub_info.h"
#include "host/safe_com.h"
#include "host/translate.h"
#include "tests/support/fake_host.h"

/// The proxies over a fake host, bound as InitModule does it.
struct Services {
  explicit Services(fakehost::FakeHost& host, const std::string& language = "Simplified Chinese") {
    using fakehost::Library;
    host.SetAnswer(Library::kPublicInformation, 68, {"SYSCONFIG_DATA", "APPLICATION.LANG", "Language"},
                   fakehost::Text(language));
    const norvik_handle publicInformation = host.RegisterAll();
    const auto handle = [&](Library library) { return host.handles.at(fakehost::HandleKey(library)); };
    pubInfo.Bind(publicInformation);
    g_pPubInfo = &pubInfo;
    translate = std::make_unique<TranslateIntf>(handle(Library::kTranslate));
    translate->Bind(publicInformation);
    g_pTranslate = translate.get();
    error = std::make_unique<ErrorIntf>(handle(Library::kError));
    error->Bind(publicInformation);
    print = std::make_unique<PrintIntf>(handle(Library::kPrint));
    print->Init(publicInformation);
    safeCom = std::make_unique<SafeComIntf>(handle(Library::kSafeCom));
    excel = std::make_unique<ExcelIntf>(handle(Library::kExcel));
    host.calls.clear();
    host.given = host.released = host.nullReleased = 0;
  }
  Services(const Services&) = delete;
  Services& operator=(const Services&) = delete;
  ~Services() {
    g_pPubInfo = nullptr;
    g_pTranslate = nullptr;
  }

  PubInfoIntf pubInfo;
  std::unique_ptr<TranslateIntf> translate;
  std::unique_ptr<ErrorIntf> error;
  std::unique_ptr<PrintIntf> print;
  std::unique_ptr<SafeComIntf> safeCom;
  std::unique_ptr<ExcelIntf> excel;
};

/// What an action threw: its class and its keys. "nothing" and none if it didn't.
struct Failure {
  std::string thrown = "nothing";
  std::vector<std::string> keys = {};

  bool operator==(const Failure&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Failure& failure) {
  out << failure.thrown;
  for (const auto& key : failure.keys) out << " [" << key << "]";
  return out;
}

inline Failure FailureOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const corvane::TException& exception) {
    const auto errors = exception.getErrors();
    const bool io = typeid(exception) == typeid(corvane::TIOException);
    return {io ? "TIOException" : "TException", {errors.begin(), errors.end()}};
  }
  return {};
}
