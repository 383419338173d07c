#include "tests/support/form_host.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "host/error.h"
#include "host/pub_info.h"
#include "host/translate.h"
#include "toolkit/application.h"
#include "toolkit/screen.h"
#include "toolkit/text.h"

using fakehost::Library;

namespace {

std::intptr_t Receive(void* context, std::uint32_t number, std::uintptr_t wparam, std::intptr_t lparam) {
  auto* host = static_cast<FormHost*>(context);
  host->messages.push_back({number, wparam, lparam});
  if (host->onMessage) host->onMessage(host->messages.back());
  return 0;
}

std::string TextOf(const std::exception_ptr& error) {
  try {
    std::rethrow_exception(error);
  } catch (const corvane::TException& failure) {
    return failure.getMessage("|");
  } catch (const std::exception& failure) {
    return failure.what();
  }
}

template <class T>
void End(T*& service) {
  delete service;
  service = nullptr;
}

}  // namespace

FormHost::FormHost() {
  const norvik_handle publicInformation = libraries.RegisterAll();
  libraries.SetAnswer(Library::kTranslate, 4, fakehost::Text(""));
  libraries.SetAnswer(Library::kError, 4, fakehost::Text(""));
  libraries.SetAnswer(Library::kError, 5, fakehost::Text(""));
  libraries.SetAnswer(Library::kPublicInformation, 23, fakehost::Text(""));
  libraries.SetAnswer(Library::kPublicInformation, 68, fakehost::Text(""));
  libraries.SetAnswer(Library::kPublicInformation, 24, fakehost::Text(corvane::Field("none", "").toString()));
  Configure("APPLICATION.FONT", "Size", "9");
  window_ = norvik_window_register(&Receive, this, &mainWindow);
  libraries.handles["APPMAINFORMHANDLE"] = window_;
  g_pPubInfo = new PubInfoIntf;
  g_pPubInfo->Bind(publicInformation);
  g_pTranslate = new TranslateIntf(g_pPubInfo->GetHandle("HANDLE_TRANSLATE"));
  g_pTranslate->Bind(publicInformation);
  g_pError = new ErrorIntf(g_pPubInfo->GetHandle("HANDLE_ERROR"));
  g_pError->Bind(publicInformation);
  CreateApplication();
  Application->SetHandle(window_);
  Application->OnException = [this](TObject*, std::exception_ptr error) {
    failures.push_back(TextOf(error));
  };
  patience_.callOnTimeout([this] { CloseForgotten(); });
  patience_.start(4000);
}

FormHost::~FormHost() {
  DestroyApplication();
  End(g_pError);
  End(g_pTranslate);
  End(g_pPubInfo);
  norvik_window_unregister(window_);
}

void FormHost::CloseForgotten() {
  QWidget* modal = QApplication::activeModalWidget();
  if (modal != nullptr && modal == unanswered_) {
    ADD_FAILURE() << modal->objectName().toStdString() << " \"" << modal->windowTitle().toStdString()
                  << "\" was not closed";
    modal->close();
  }
  unanswered_ = modal;
}

void FormHost::SetText(const std::string& key, const char* text) {
  libraries.SetAnswer(Library::kTranslate, 4, {key.substr(0, 4), key}, fakehost::Text(Ansi(text)));
}

void FormHost::SetErrorText(const std::string& keys, const char* text) {
  libraries.SetAnswer(Library::kError, 5, {keys, "1"}, fakehost::Text(Ansi(text)));
}

void FormHost::Configure(const std::string& section, const std::string& item, const char* value,
                         const std::string& document) {
  libraries.SetAnswer(Library::kPublicInformation, 68, {document, section, item},
                      fakehost::Text(Ansi(value)));
}

void FormHost::SetField(const std::string& block, const std::string& name, const std::string& value) {
  libraries.SetAnswer(Library::kPublicInformation, 24, {block, name},
                      fakehost::Text(corvane::Field(name, value).toString()));
}

void FormHost::SetTable(const std::string& document, const std::string& section, const corvane::List& rows) {
  libraries.SetAnswer(Library::kPublicInformation, 90, {document, section}, fakehost::Text(rows.toString()));
}

TForm* ShownForm(const QMetaObject& type) {
  for (int i = Screen == nullptr ? 0 : Screen->FormCount(); i > 0; --i) {
    TForm* form = Screen->Forms(i - 1);
    if (form->Showing() && form->metaObject()->inherits(&type)) return form;
  }
  return nullptr;
}
