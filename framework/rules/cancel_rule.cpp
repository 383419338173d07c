#include "framework/rules/cancel_rule.h"

#include <algorithm>

#include "toolkit/conversion.h"

namespace norvik {

bool CancelRule::Allows(const corvane::Row& record) const {
  const auto value = [&record](const char* key) { return record.getValue(key); };
  if (value("LASTOPRNO") != operatorNo) return false;
  const std::string state = value("STT");
  if (std::find(openStates.begin(), openStates.end(), state) != openStates.end()) return true;
  if (state != acceptedState || value("PREFLG") != bookedText) return false;
  std::string bookedDate = value("PREDATE");
  std::erase(bookedDate, '-');
  return StrToIntDef(bookedDate, 0) > StrToIntDef(bankDate, 0);
}

}  // namespace norvik
