// What the actions of a query screen ask of the ticked records. The query frame has its list count ticks by
// it; it knows no window.
#pragma once

#include <cstdint>
#include <string>

#include "data/corvane.h"
#include "framework/rules/cancel_rule.h"

namespace norvik {

/// The kinds by which a screen's list counts its ticked rows.
enum RecordKind : unsigned { kUnsettled = 0, kExplained = 1, kCancellable = 2 };

/// The rules with the texts that they compare by.
struct TickRules {
  std::string unsettledState;  ///< text of the state that a synchronisation is for
  std::string explainedState;  ///< text of the state that the question for the reason is for
  CancelRule cancel;

  /// The kinds of a record, as bits.
  std::uint8_t KindsOf(const corvane::Row& record) const;
};

}  // namespace norvik
