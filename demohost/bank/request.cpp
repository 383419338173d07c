#include "demohost/bank/request.h"

#include "demohost/bank/refuse.h"
#include "demohost/refusals.h"
#include "platform/code_page.h"

namespace demohost {
namespace {

template <class Pairs>
Fields Utf8Fields(const Pairs& pairs) {
  Fields fields;
  for (const auto& [name, field] : pairs) {
    fields[norvik::Utf8FromAnsi(name)] = norvik::Utf8FromAnsi(field.getValue());
  }
  return fields;
}

}  // namespace

Fields FieldsOf(const corvane::CorvaneStream& request) {
  return Utf8Fields(request.getFields());
}

Fields FieldsOf(const corvane::Row& row) {
  return Utf8Fields(row);
}

const std::string& Required(const Fields& fields, std::string_view name) {
  const auto found = fields.find(std::string(name));
  if (found == fields.end()) throw Refused(refusal::kMissingField, std::string(name));
  return found->second;
}

}  // namespace demohost
