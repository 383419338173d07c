#include "data/field.h"

namespace corvane {

Field::Field() = default;

Field::Field(std::string_view name, std::string_view value) : Element(Label(name)), value_(value) {}

void Field::clear() {
  Element::clear();
  setName(std::string_view());
  value_.clear();
}

}  // namespace corvane
