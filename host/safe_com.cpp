#include "host/safe_com.h"

#include "host/keys.h"
#include "host/ordinals.h"
#include "host/pub_info.h"
#include "host/translate.h"

namespace {

constexpr const char* kConvertedLanguage = "Traditional Chinese";
constexpr int kLastYear = 9999;                           // dates have eight digits
constexpr std::int64_t kEndOfYear9999 = 253402300799999;  // milliseconds since 1970-01-01 00:00:00 UTC

}  // namespace

SafeComIntf::SafeComIntf(norvik_handle module) : m_module(module) {
  if (!functions_.Resolve(m_module, norvik::ordinals::kSafeCom))
    throw corvane::TException(norvik::key::kSafeComIncomplete);
  m_language = g_pPubInfo->GetIniValue("SYSCONFIG_DATA", "APPLICATION.LANG", "Language");
}

corvane::CorvaneStream SafeComIntf::SendStream(const std::string& code, corvane::CorvaneStream& request) {
  std::string answer;
  try {
    request.setEncoding("GBK");
    answer = SendText(code, request.toString(), 1);
  } catch (const corvane::TException& failure) {
    // Callers see one class of failure, whatever it was below.
    throw corvane::TException(failure);
  }
  return corvane::CorvaneStream(answer);
}

std::string SafeComIntf::SendText(const std::string& code, const std::string& text, std::int32_t flag) {
  if (m_language != kConvertedLanguage) return Exchange(code, text, flag);
  const std::string request = g_pTranslate->Convert(text, TranslateIntf::kRequest);
  return g_pTranslate->Convert(Exchange(code, request, flag), TranslateIntf::kAnswer);
}

std::string SafeComIntf::Exchange(const std::string& code, const std::string& text, std::int32_t flag) const {
  using Send = std::uint8_t(const char*, const char*, std::int32_t, char**, std::int32_t*, char*);
  const auto send = functions_.Function<Send>(norvik::ordinals::kSend);
  const char* const name = norvik::Outgoing(code);
  const char* const request = norvik::Outgoing(text);
  norvik::ErrorText error(norvik::kOrderErrorBytes);
  norvik::ResultPair answer(functions_.Function<void(char*)>(norvik::ordinals::kGiveAnswerBack),
                            norvik::ResultPair::OnNull::kSkip);
  if (send(name, request, flag, answer.Buffer(), answer.Length(), error.Buffer()) == 0) error.ThrowLines();
  return answer.Text();
}

corvane::TSysDateTime& SafeComIntf::GetServerTime() {
  std::int64_t milliseconds = 0;
  functions_.Function<void(std::int64_t*)>(norvik::ordinals::kServerTime)(&milliseconds);
  corvane::TSysDateTime time;
  time.setTime(milliseconds);
  // Where local time is ahead, the year 10000 begins earlier.
  if (milliseconds < 0 || milliseconds > kEndOfYear9999 || time.getYear() > kLastYear)
    throw corvane::TException(norvik::key::kAbsurdTime);
  m_serverTime = time;
  return m_serverTime;
}
