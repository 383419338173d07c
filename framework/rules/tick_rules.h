// What the actions of a query screen ask of the ticked records.
#pragma once

#include <cstdint>
#include <string>

#include "data/corvane.h"
#include "framework/rules/cancel_rule.h"

namespace norvik {

// The kinds that a screen's list counts its ticked rows by.
enum RecordKind : unsigned { kUnsettled = 0, kExplained = 1, kCancellable = 2 };

struct TickRules {
  std::string unsettledState;  // text of the state that a synchronisation is for
  std::string explainedState;  // text of the state that the question for the reason is for
  CancelRule cancel;

  // The kinds of a record, as bits.
  std::uint8_t KindsOf(const corvane::Row& record) const;
};

}  // namespace norvik
