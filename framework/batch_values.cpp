#include "framework/batch_values.h"

#include "framework/base_form.h"
#include "host/error.h"

namespace norvik {

std::string FailureText(const std::string& code, const std::string& information) {
  constexpr std::uint8_t kReasonFlag = 1;
  if (!code.empty() && !information.empty()) return "[" + code + "]" + information;
  if (!code.empty()) return g_pError->GetReasonText(code, kReasonFlag);
  return information.empty() ? TBaseForm::TranslateKey("UI52438") : information;
}

std::string CancelAmount(const corvane::Row& record) {
  const std::string amount = record.getValue(record.hasField("BUSSUM") ? "BUSSUM" : "PAYAMT");
  return amount.empty() ? "0" : amount;
}

}  // namespace norvik
