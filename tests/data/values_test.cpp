// Documents as values: what is copied, moved and swapped, in all classes alike.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "data/corvane.h"
#include "tests/data/keys.h"

namespace {

using namespace corvane;

template <class Document>
void Fill(Document& document, const std::string& text) {
  Row row;
  if constexpr (std::is_base_of_v<Field, Document>) document.setValue(text);
  if constexpr (std::is_base_of_v<Row, Document>) document["A"] = text;
  if constexpr (std::is_base_of_v<List, Document>) row["A"] = text, document.addRow(row);
  if constexpr (std::is_base_of_v<CorvaneStream, Document>) document.addField(Field("A", text));
  if constexpr (std::is_base_of_v<Ini, Document>) document.addSection(text, row);
  if constexpr (std::is_base_of_v<Iniplus, Document>) document.addSection(text, List());
}

template <class Document>
Document Of(int number) {
  const std::string text = std::to_string(100 + number);
  Document document;
  document.setName("t" + text);
  document.setEncoding("e" + text);
  document.setAttribute("id", text);
  Fill(document, text);
  return document;
}

// All that a document holds: tag, attribute, and the text form with the encoding and the content.
template <class Document>
std::string All(const Document& document) {
  return document.getName() + document.attributes().at("id") + document.toString();
}

template <class Document>
class Values : public testing::Test {};

using Classes = testing::Types<Field, Row, Property, List, PropertyVector, CorvaneStream, Ini, IniSection,
                               Iniplus, IniplusSection>;
TYPED_TEST_SUITE(Values, Classes);

// More than the sixteen that a standard sort inserts one by one.
TYPED_TEST(Values, StayWholeInStandardAlgorithms) {
  using Vector = std::vector<TypeParam>;
  const auto less = [](const TypeParam& left, const TypeParam& right) { return All(left) < All(right); };
  const std::vector<std::pair<std::string, std::function<void(Vector&)>>> steps = {
      {"reverse", [](Vector& all) { std::reverse(all.begin(), all.end()); }},
      {"rotate", [](Vector& all) { std::rotate(all.begin(), all.begin() + 7, all.end()); }},
      {"swap", [](Vector& all) { std::swap(all[3], all[9]); }},
      {"insert",
       [](Vector& all) {
         all.reserve(all.size() + 1);
         TypeParam last = std::move(all.back());
         all.pop_back();
         all.insert(all.begin() + 5, std::move(last));
       }},
      {"grow", [](Vector& all) { all.shrink_to_fit(), all.reserve(2 * all.size()); }},
      {"stable_sort", [&](Vector& all) { std::stable_sort(all.begin(), all.end(), less); }},
  };
  Vector all;
  std::vector<std::string> expected;
  for (int at = 0; at < 40; ++at) {
    all.push_back(Of<TypeParam>(at));
    expected.push_back(All(all.back()));
  }
  for (const auto& [name, step] : steps) {
    step(all);
    std::sort(all.begin(), all.end(), less);
    for (std::size_t at = 0; at < all.size(); ++at) ASSERT_EQ(All(all[at]), expected[at]) << name;
  }
}

TYPED_TEST(Values, ServeAgainWhenMovedFrom) {
  TypeParam first = Of<TypeParam>(1);
  const std::string before = All(first);
  TypeParam moved = std::move(first);
  EXPECT_EQ(All(moved), before);
  EXPECT_EQ(first.getName() + first.getEncoding(), "t101e101");  // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(KeyOf([&] { (void)first.toString(); }), "none");
  first.setAttribute("id", "101");
  Fill(first, "101");
  EXPECT_EQ(All(first), before);
  TypeParam& same = first;
  first = std::move(same);
  EXPECT_EQ(All(first), before);
  if (std::is_same_v<TypeParam, Field>) return;  // whose assignment takes the name
  const std::vector<std::function<void(TypeParam&)>> uses = {
      [](TypeParam& one) { one = TypeParam(std::move(one)); },
      [](TypeParam& one) { TypeParam(std::move(one)), one.clear(); },
      [](TypeParam& one) { TypeParam(std::move(one)), one.setName("t101"); },
      [](TypeParam& one) { TypeParam(std::move(one)), one.setEncoding("e101"); },
  };
  for (std::size_t at = 0; at < uses.size(); ++at) {
    TypeParam target = Of<TypeParam>(1);
    uses[at](target);
    target = Of<TypeParam>(2);
    EXPECT_EQ(target.getName() + target.getEncoding(), "t101e101") << at;
    EXPECT_NE(target.toString().find("102"), std::string::npos) << at;
  }
}

TEST(Value, OneRowServesManyTimes) {
  List list;
  Row row("<line/>");
  for (const char* value : {"1", "2", "3"}) {
    row.clear();
    row["A"] = value;
    list.addRow(std::move(row));
  }
  list.removeRow(0);
  EXPECT_EQ(
      list.toString(),
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?><list><line><A>2</A></line><line><A>3</A></line></list>");
}

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
