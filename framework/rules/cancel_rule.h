// Which records their operator may still cancel.
#pragma once

#include <array>
#include <string>

#include "data/corvane.h"

namespace norvik {

struct CancelRule {
  std::string operatorNo;                 // of the user
  std::array<std::string, 2> openStates;  // texts of the states in which any record may be cancelled
  std::string acceptedState;              // text of the state in which only a booked record may
  std::string bookedText;                 // text of PREFLG that means booked
  std::string bankDate;                   // "yyyymmdd"

  // The user's own record that is still open, or is booked for a day after the bank's. A PREDATE that is no
  // date counts as not later than the bank's day.
  bool Allows(const corvane::Row& record) const;

  bool operator==(const CancelRule&) const = default;
};

}  // namespace norvik
