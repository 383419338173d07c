#include "demohost/bank/seed_tools.h"

#include <cstdio>

#include "demohost/bank/names.h"

namespace demohost {

std::string Digits(const char* format, std::int64_t number) {
  char text[32];
  std::snprintf(text, sizeof text, format, static_cast<long long>(number));
  return text;
}

std::string Join(std::initializer_list<std::string_view> parts) {
  std::string whole;
  for (const std::string_view part : parts) whole += part;
  return whole;
}

std::string SeedCode(const BankPlan& plan, const std::string& dictionary, std::int64_t record,
                     Random& random) {
  const auto found = plan.codes.find(dictionary);
  std::vector<std::string> codes;
  if (found != plan.codes.end()) codes = found->second;
  std::erase_if(codes, [](const std::string& code) { return code == "-9999" || code == "AC00"; });
  if (codes.empty()) return {};
  const auto turn = static_cast<std::size_t>(record);
  return turn < codes.size() ? codes[turn] : random.Pick(codes);
}

std::string SeedPerson(Random& random) {
  return Join({random.Pick(names::Surnames()), random.Pick(names::GivenNames())});
}

}  // namespace demohost
