#include <chrono>
#include <thread>
#include <utility>

#include "demohost/libraries/libraries.h"
#include "demohost/refusals.h"

namespace demohost {
namespace {

void Release(char* buffer) {
  ReleaseBuffer(buffer);
}

constexpr std::string_view kQuery = "EBBADQDB";

// An answer whose first row is marked as a batch marks a row that the bank refused.
std::string WithRefusedRow(const std::string& answer) {
  corvane::CorvaneStream stream;
  stream.fromString(answer);
  corvane::List& rows = stream.getList("resultList");
  for (unsigned i = 0; i < rows.size(); ++i) {
    rows[i]["Color"] = i == 0 ? "255" : "";
    rows[i]["Reason"] = i == 0 ? std::string(refusal::kBankFailure) : std::string();
  }
  stream.setEncoding("GBK");
  return stream.toString();
}

std::uint8_t Exchange(const char* code, const char* request, std::int32_t, char** answer,
                      std::int32_t* length, char* error) {
  return Answered(answer, length, error, kLongError, [&] {
    Services& services = CurrentServices();
    // The line to the bank is slow; the caller waits, as it would for a real one.
    std::this_thread::sleep_for(std::chrono::milliseconds(services.delayMilliseconds));
    const std::string refused = std::exchange(services.faults.exchange, {});
    if (!refused.empty()) throw Refused(refused);
    const std::string answered = services.bank->Exchange(Text(code), Text(request));
    return Text(code) == kQuery && std::exchange(services.faults.row, false) ? WithRefusedRow(answered)
                                                                             : answered;
  });
}

void ServerTime(std::int64_t* milliseconds) {
  *milliseconds = CurrentServices().clock->Milliseconds();
}

}  // namespace

std::vector<norvik_ordinal> SecureCommunicationTable() {
  std::vector<norvik_ordinal> table = {Entry<&Release>(4), Entry<&Exchange>(5), Entry<&ServerTime>(8)};
  AddIdle(table, 1, 12);
  return table;
}

}  // namespace demohost
