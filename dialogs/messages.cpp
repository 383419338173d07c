#include "dialogs/messages.h"

#include <QtGlobal>

#include "dialogs/com_msg.h"
#include "dialogs/error_msg.h"
#include "dialogs/form_owner.h"
#include "host/error.h"

namespace {

constexpr const char* kLineEnd = "\r\n";

bool ShowMessage(const std::string& text, TMessageMode mode, TForm* owner) {
  const TFormPointer<TFrmComMsg> form(CreateForm<TFrmComMsg>(OwnerOf(owner), text, mode));
  form->ShowModal();
  return form->Tag() == TFrmComMsg::kConfirmed;
}

}  // namespace

void ShowInfoMsg(const std::string& text, TForm* owner) {
  ShowMessage(text, TMessageMode::kInformation, owner);
}

void ShowWarnMsg(const std::string& text, TForm* owner) {
  ShowMessage(text, TMessageMode::kWarning, owner);
}

bool ShowConfirmMsg(const std::string& text, TForm* owner) {
  return ShowMessage(text, TMessageMode::kQuestion, owner);
}

void ShowErrorMsg(const std::string& text, TForm* owner) {
  const corvane::StringVector lines(text, kLineEnd, true);
  const std::string summary = lines.empty() ? std::string() : lines.back();
  const TFormPointer<TFrmErrorMsg> form(
      CreateForm<TFrmErrorMsg>(OwnerOf(owner), summary, lines.toString(kLineEnd, false)));
  form->ShowModal();
}

void ReportException(const corvane::TException& failure, TForm* owner) {
  // The message is made of the keys; where and why a text was refused is for whoever reads the host's log.
  if (!failure.getReason().empty()) qWarning("%s", failure.what());
  ShowErrorMsg(g_pError->GetErrorText(failure.getMessage(kLineEnd, false), 1), owner);
}
