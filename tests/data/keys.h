// What a call throws.
#pragma once

#include <string>

#include "data/exception.h"

// The keys of the TException that `call` throws, joined with "|"; "none" if it throws none.
template <class Call>
std::string KeyOf(Call call) {
  try {
    call();
    return "none";
  } catch (const corvane::TException& failure) {
    return failure.getMessage("|");
  }
}
