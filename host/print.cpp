#include "host/print.h"

#include <array>
#include <ctime>

#include "host/keys.h"
#include "host/ordinals.h"

using norvik::Outgoing;

namespace {

std::string LocalDateTime() {
  const std::time_t now = std::time(nullptr);
  std::tm local = {};
  localtime_r(&now, &local);
  std::array<char, 32> text = {};
  return std::string(text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &local));
}

}  // namespace

PrintIntf::PrintIntf(norvik_handle module) : m_module(module) {
  if (!functions_.Resolve(m_module, norvik::ordinals::kPrint))
    throw corvane::TException(norvik::key::kPrintIncomplete);
}

void PrintIntf::Init(norvik_handle publicInformation) {
  const auto start = functions_.Function<std::uint8_t(norvik_handle, char*)>(norvik::ordinals::kStart);
  norvik::Order([&](char* error) { return start(publicInformation, error); });
}

void PrintIntf::PrintList(const std::string& templateName, const std::string& condition, corvane::Row& head,
                          const corvane::List& data) const {
  using Print = std::uint8_t(const char*, const char*, const char*, char*);
  head["COUNT"] = std::to_string(data.size());
  head["MAKEDATE"] = LocalDateTime();
  head["SELCONDITION"] = condition;
  const auto print = functions_.Function<Print>(norvik::ordinals::kPrintList);
  const std::string headText = head.toString();
  const std::string dataText = data.toString();
  const char* const name = Outgoing(templateName);
  const char* const headOut = Outgoing(headText);
  const char* const dataOut = Outgoing(dataText);
  norvik::Order([&](char* error) { return print(name, headOut, dataOut, error); });
}

void PrintIntf::PrintSetup(const std::string& templateName) const {
  functions_.Function<void(const char*)>(norvik::ordinals::kPrintSetup)(Outgoing(templateName));
}
