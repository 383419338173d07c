// What a call throws, for the tests of documents and others that look at keys.
//
// It looks at the keys alone; places and reasons stand in what().
#pragma once

#include <string>

#include "data/exception.h"

/// The keys of the TException that `call` throws, joined with "|"; "none" if it throws none.
template <class Call>
std::string KeyOf(Call call) {
  try {
    call();
    return "none";
  } catch (const corvane::TException& failure) {
    return failure.getMessage("|");
  }
}
