#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "demohost/bank/random.h"
#include "demohost/bank/seed.h"

namespace demohost {

// The number in a printf format of one long long.
std::string Digits(const char* format, std::int64_t number);

std::string Join(std::initializer_list<std::string_view> parts);

// A code of the plan's table that stands for something; "" where the table has none. The first records take
// the codes in turn, so that each is borne by one.
std::string SeedCode(const BankPlan& plan, const std::string& dictionary, std::int64_t record,
                     Random& random);

// An invented person's name.
std::string SeedPerson(Random& random);

}  // namespace demohost
