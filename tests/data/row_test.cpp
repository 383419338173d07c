// Fields, elements and rows.
#include "data/row.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "data/corvane.h"
#include "tests/data/keys.h"

namespace {

using namespace corvane;

std::string Keys(const Row& row) {
  std::string keys;
  for (const auto& [key, field] : row) keys += key + "=" + field.getValue() + ";";
  return keys;
}

TEST(Element, MakesAttributesThatAreRead) {
  Row row;
  EXPECT_EQ(row.getAttribute("b"), "");
  EXPECT_EQ(row.getAttributes(), (AttributeMap{{"b", ""}}));
  row.setAttribute("a", "1");
  row.setAttributes({{"c", "3"}, {"a", "2"}});
  EXPECT_EQ(row.getAttributes(), (AttributeMap{{"a", "2"}, {"b", ""}, {"c", "3"}}));
  const Row copy = row;
  row.setAttribute("a", "9");
  EXPECT_EQ(copy.attributes().at("a"), "2");
}

TEST(Field, IsEqualByName) {
  EXPECT_TRUE(Field("A", "1") == Field("A", "2"));
  EXPECT_TRUE(Field("A", "1") != Field("a", "1"));
}

TEST(Field, KeepsAttributesAndNeverWritesThem) {
  Field field("<A b=\"1\">  x  </A>");
  EXPECT_EQ(field.getValue(), "  x  ");
  EXPECT_EQ(field.getAttribute("b"), "1");
  EXPECT_EQ(field.toString(), "<?xml version=\"1.0\" encoding=\"\"?><A>  x  </A>");
  EXPECT_EQ(Field(field.toString()).getValue(), "  x  ");
  field.clear();
  EXPECT_EQ(field.getName() + field.getValue(), "");
  EXPECT_EQ(Field("CODE", "A&B").toString(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?><CODE>A&amp;B</CODE>");
}

TEST(Field, ReportsItsFailures) {
  for (const char* text : {"", "<A><B/></A>", "<A>", "x"})
    EXPECT_EQ(KeyOf([&] { Field one(text); }), "ET10044") << text;
  for (const char* name : {"", "1A", "A B", "A<", "x:A"})
    EXPECT_EQ(KeyOf([&] { (void)Field(name, "v").toString(); }), "ET10045") << name;
  EXPECT_EQ(KeyOf([] { (void)Field("A", "\x01").toString(); }), "ET10045");
}

TEST(Row, AddsWhatIsReadByKeyAlone) {
  Row row;
  EXPECT_EQ(row.getField("B").getName(), "");
  EXPECT_EQ(row.getValue("B"), "");
  EXPECT_FALSE(row.hasField("B"));
  EXPECT_EQ(row["A"], "");
  EXPECT_EQ(row.countField("A"), 1);
  EXPECT_EQ(row.toString(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?><row><A/></row>");
  EXPECT_EQ(KeyOf([&] { row[""]; }), "ET10080");
  EXPECT_EQ(row.size(), 1U);
}

TEST(Row, OrdersKeysByByte) {
  Row row;
  for (const char* key : {"b", "AB", "\xC4\xE3", "a", "Z", "A", "ABC"}) row[key] = key;
  EXPECT_EQ(Keys(row), "A=A;AB=AB;ABC=ABC;Z=Z;a=a;b=b;\xC4\xE3=\xC4\xE3;");
  auto it = row.begin();
  EXPECT_EQ(it->first, "A");
  EXPECT_EQ((++it)->second.getValue(), "AB");
}

TEST(Row, KeepsWholeFields) {
  Row row;
  Field field("A", "1");
  field.setAttribute("x", "y");
  field.setEncoding("GBK");
  row.addField(field);
  const Row copy = row;
  EXPECT_EQ(copy.getField("A").getAttribute("x"), "y");
  EXPECT_EQ(copy.getField("A").getEncoding(), "GBK");
  row.addField(Field("A", "2"));
  EXPECT_EQ(row.getField("A").getAttributes(), AttributeMap());
  EXPECT_EQ(row.getField("A").getEncoding(), "UTF-8");
  EXPECT_TRUE(row.containsField(Field("A", "2")));
  EXPECT_FALSE(row.containsField(Field("A", "1")) || row.containsField(Field("B", "")));
  row.addField(row.getField("A"));
  EXPECT_EQ(Keys(row), "A=2;");
  row.addField(field);
  row.removeField("A");
  row["B"];
  EXPECT_EQ(row.getField("B").getAttributes(), AttributeMap());
}

TEST(Row, RemovesColumns) {
  Row row("<row><A>1</A><B>2</B><C>3</C></row>");
  std::string& last = row["C"];
  row.removeField("A");
  row.removeField("none");
  EXPECT_EQ(row["D"], "");  // not what the removed column left
  last = "4";
  EXPECT_EQ(Keys(row), "B=2;C=4;D=;");
  for (int times = 0; times < 1000; ++times) {
    row["X"] = "1";
    row.removeField("X");
  }
  EXPECT_EQ(Keys(row), "B=2;C=4;D=;");
  row.clear();
  EXPECT_EQ(row.size(), 0U);
  EXPECT_EQ(row["A"], "");
}

TEST(Row, GivesReferencesThatStay) {
  Row row("<row><A>1</A><B>2</B></row>");
  std::vector<std::string*> values;
  for (int column = 0; column < 100; ++column) {
    const std::string key = "K" + std::to_string(column * 37 % 100);
    row[key] = key;
    values.push_back(&row[key]);
  }
  std::string& first = row["A"];
  const Row copy = row;
  Row moved = std::move(row);
  first = "changed";
  for (std::string* value : values) *value += "!";
  EXPECT_EQ(moved["A"], "changed");
  EXPECT_EQ(moved["K7"], "K7!");
  EXPECT_EQ(moved.getValue("B"), "2");
  EXPECT_EQ(copy.getValue("A"), "1");
  EXPECT_EQ(copy.getValue("K7"), "K7");
  EXPECT_EQ(&moved["A"], &first);
}

TEST(Row, HoldsManyColumns) {
  constexpr int kColumns = 3000;
  const auto key = [](int column) { return "K" + std::to_string(column * 7 % kColumns); };
  Row row;
  Row backwards;
  for (int column = 0; column < kColumns; ++column) {
    row[key(column)] = key(column);
    backwards[key(kColumns - 1 - column)];
  }
  EXPECT_TRUE(row.sameColumns(backwards));
  const Row copy = row;
  std::string& kept = row["K1"];
  for (int column = 0; column < kColumns; ++column)
    if (key(column) != "K1") row.removeField(key(column));
  EXPECT_EQ(Keys(row), "K1=K1;");
  EXPECT_EQ(&row["K1"], &kept);
  EXPECT_FALSE(row.sameColumns(copy));
  row.removeField("K1");
  row["B"];
  row["A"] = "1";
  EXPECT_EQ(Keys(row), "A=1;B=;");
  std::string last;
  std::size_t columns = 0;
  for (const auto& [name, field] : copy) {
    EXPECT_LT(last, name);
    EXPECT_EQ(field.getValue(), name);
    last = name;
    ++columns;
  }
  EXPECT_EQ(columns, copy.size());
  EXPECT_EQ(columns, 3000U);
}

// The first names that a text brings are the last in order, and differ in the middle alone.
TEST(Row, TakesAnyNumberOfColumns) {
  constexpr int kColumns = 100000;
  std::string text = "<row>";
  for (int column = 2 * kColumns; column > kColumns; --column)
    text += "<CURRENCY" + std::to_string(column) + "OFACCOUNT/>";
  const Row row(text + "</row>");
  EXPECT_EQ(row.size(), static_cast<std::size_t>(kColumns));
  EXPECT_EQ((*row.begin()).first, "CURRENCY100001OFACCOUNT");
}

TEST(Row, CopiesDoNotSeeEachOther) {
  Row first("<row><A>1</A></row>");
  Row second = first;
  second["B"] = "2";
  second["A"] = "x";
  EXPECT_EQ(Keys(first), "A=1;");
  EXPECT_EQ(Keys(second), "A=x;B=2;");
  first.removeField("A");
  EXPECT_EQ(Keys(second), "A=x;B=2;");
}

TEST(Row, AssignmentKeepsTagAndEncoding) {
  Row target;
  target.setName("section");
  target.setEncoding("GBK");
  target["OLD"];
  Row source("<line a=\"1\"><A>1</A></line>");
  EXPECT_EQ(source.getName(), "line");
  target = source;
  EXPECT_EQ(target.getName() + target.getEncoding(), "sectionGBK");
  EXPECT_EQ(Keys(target) + target.getAttribute("a"), "A=1;1");
  const Row& same = target;
  target = same;
  EXPECT_EQ(Keys(target), "A=1;");
}

TEST(Row, ComparesColumnsAlone) {
  Row first;
  first["A"] = "1";
  first["B"] = "2";
  Row second;
  second["B"];
  second["A"];
  EXPECT_TRUE(first.sameColumns(second));
  second["C"];
  EXPECT_FALSE(first.sameColumns(second) || second.sameColumns(first));
  second.removeField("A");
  EXPECT_FALSE(first.sameColumns(second));
  EXPECT_TRUE(Row().sameColumns(Row()));
  EXPECT_FALSE(Row().sameColumns(first) || first.sameColumns(Row()));
  Row emptied = first;
  emptied.removeField("A");
  emptied.removeField("B");
  EXPECT_TRUE(emptied.sameColumns(Row()));
}

TEST(Property, NamesItsCopiesRow) {
  Row row("<?xml version=\"1.0\" encoding=\"GBK\"?><line a=\"1\"><A>1</A></line>");
  const Property property(row);
  EXPECT_EQ(property.getName() + property.getEncoding() + Keys(property), "propertyUTF-8A=1;");
  const Property copy(property);
  EXPECT_EQ(copy.getName() + copy.getEncoding() + Keys(copy), "rowUTF-8A=1;");
  Property target;
  target = property;
  EXPECT_EQ(target.getName() + Keys(target), "propertyA=1;");
}

}  // namespace
