#include "framework/rules/tick_rules.h"

namespace norvik {

std::uint8_t TickRules::KindsOf(const corvane::Row& record) const {
  const std::string state = record.getValue("STT");
  unsigned kinds = 0;
  if (state == unsettledState) kinds |= 1U << kUnsettled;
  if (state == explainedState) kinds |= 1U << kExplained;
  if (cancel.Allows(record)) kinds |= 1U << kCancellable;
  return static_cast<std::uint8_t>(kinds);
}

}  // namespace norvik
