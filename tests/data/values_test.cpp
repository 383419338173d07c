// Documents as values: what is copied, moved and swapped, in all classes alike.
#include <gtest/gtest.h>

#include <string>

#include "data/corvane.h"
#include "tests/data/keys.h"

namespace {

using namespace corvane;

template <class Iterator>
concept Changes = requires(Iterator at) {
  at->second.setValue("");
}
|| requires(Iterator at) {
  (*at).second.getValue() = "";
}
|| requires(Iterator at) {
  at->second = Field();
};
static_assert(!Changes<Row::iterator> && !Changes<MapField::iterator>);
static_assert(Changes<decltype(MapField().begin())>);

TEST(Value, AnIteratorsReferencesStayWhileItStandsThere) {
  Row row("<row><A>a value of some length</A><B x=\"y\">2</B></row>");
  MapField::iterator it = row.begin();
  const Field& field = it->second;
  const char* text = field.getValue().c_str();
  EXPECT_EQ(it->first + (*it).second.getName(), "AA");
  EXPECT_EQ(text, field.getValue().c_str());
  row["A"] = "new";
  EXPECT_EQ(it->second.getValue() + field.getValue(), "newnew");
  const Row::iterator first = it++;
  EXPECT_EQ(first->second.getName() + it->second.getName(), "AB");
  Field other("B", "3");
  row.addField(other);
  EXPECT_TRUE(it->second.attributes().empty());
  EXPECT_TRUE(++it == row.end() && --it != row.end());
  CorvaneStream stream;
  stream.addFields(row);
  MapField fields = stream.getFields();
  std::string shown;
  for (MapField::iterator at = fields.begin(); at != fields.end();) {
    shown += at->first + "=" + at->second.getValue() + ";";
    at = fields.erase(at);
  }
  EXPECT_EQ(shown, "A=new;B=3;");
}

}  // namespace
