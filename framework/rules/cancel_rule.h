// Which records their operator may still cancel. The tick rules apply it to each ticked record; it knows no
// window and reads nothing from the host.
#pragma once

#include <array>
#include <string>

#include "data/corvane.h"

namespace norvik {

/// The rule with the texts and the day that it compares by.
struct CancelRule {
  std::string operatorNo;                 ///< of the user
  std::array<std::string, 2> openStates;  ///< texts of the states in which any record may be cancelled
  std::string acceptedState;              ///< text of the state in which only a booked record may
  std::string bookedText;                 ///< text of PREFLG that means booked
  std::string bankDate;                   ///< "yyyymmdd"

  /// Whether `record` is the user's own and either still open, or booked for a day after the bank's. A
  /// PREDATE that is no date counts as not later than the bank's day.
  bool Allows(const corvane::Row& record) const;

  bool operator==(const CancelRule&) const = default;
};

}  // namespace norvik
