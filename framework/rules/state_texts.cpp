#include "framework/rules/state_texts.h"

#include <array>

#include "toolkit/conversion.h"

namespace norvik {
namespace {

constexpr int kStateOfCaller = 7;
constexpr std::array kStateKeys = {kAwaitingApprovalKey,
                                   "UI52141",
                                   kReturnedKey,
                                   "UI52143",
                                   kApprovedKey,
                                   "UI52145",
                                   "UI52146",
                                   "",
                                   kFailedKey,
                                   "UI52149",
                                   kUnknownStateKey,
                                   "UI52151",
                                   "UI52152",
                                   "UI52359",
                                   "UI52360",
                                   "UI52372"};

constexpr std::array kApprovalKeys = {"UI52424", "UI52425", "UI52426", "UI52427",
                                      "UI52428", "UI52429", "UI52430", "UI52431"};

}  // namespace

std::string StateTextKey(const std::string& code, const std::string& key7) {
  if (code.empty()) return kUnknownStateKey;
  const int state = StrToInt(code);
  if (state == kStateOfCaller) return key7;
  if (state < 0 || state >= static_cast<int>(kStateKeys.size())) return {};
  return kStateKeys[static_cast<std::size_t>(state)];
}

std::string ApprovalTextKey(const std::string& code) {
  if (code.size() != 1 || code[0] < '0') return {};
  const auto index = static_cast<std::size_t>(code[0] - '0');
  return index < kApprovalKeys.size() ? kApprovalKeys[index] : "";
}

}  // namespace norvik
