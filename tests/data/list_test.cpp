#include "data/list.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "data/corvane.h"
#include "tests/data/keys.h"

namespace {

using namespace corvane;

Row Of(const std::vector<std::pair<std::string, std::string>>& columns) {
  Row row;
  for (const auto& [key, value] : columns) row[key] = value;
  return row;
}

// "1,2" for rows whose column A holds 1 and 2.
std::string Column(const List& list, const std::string& key = "A") {
  StringVector values;
  for (const Row& row : list) values.push_back(row.hasField(key) ? row.getValue(key) : "-");
  return values.toString(",", false);
}

List Three() {
  List list;
  for (const char* value : {"1", "2", "2"}) list.addRow(Of({{"A", value}, {"B", "x"}}));
  return list;
}

TEST(List, TakesRowsOfTheFirstRowsColumns) {
  List list = Three();
  list.addRow(Of({{"B", ""}, {"A", "3"}}));
  EXPECT_EQ(KeyOf([&] { list.addRow(Of({{"A", ""}})); }), "ET10101");
  EXPECT_EQ(KeyOf([&] { list.addProperty(Property(Of({{"A", ""}}))); }), "ET10102");
  EXPECT_EQ(Column(list), "1,2,2,3");
  list[0]["NEW"];
  EXPECT_FALSE(list.isCompatible(Of({{"A", ""}, {"B", ""}})));
  EXPECT_EQ(KeyOf([&] { list.addRow(Of({{"A", ""}, {"B", ""}})); }), "ET10101");
  list.addRow(Of({{"A", "4"}, {"B", ""}, {"NEW", ""}}));
  EXPECT_EQ(Column(list), "1,2,2,3,4");
}

TEST(List, KeepsTags) {
  List list;
  Row row = Of({{"A", "1"}});
  row.setName("line");
  list.addRow(row);
  Property property(Of({{"A", "2"}}));
  property.setAttribute("a", "b");
  list.addProperty(property);
  list.addRow(property);
  EXPECT_EQ(list[0].getName() + list[1].getName() + list[2].getName(), "linerowproperty");
  EXPECT_EQ(list[1].getAttribute("a"), "b");
  list.removeRow(0);
  EXPECT_EQ(list[0].getName() + list[1].getName(), "rowproperty");
}

TEST(List, ChecksIndexes) {
  List list;
  EXPECT_EQ(KeyOf([&] { list[0]; }), "ET10104");
  EXPECT_EQ(KeyOf([&] { (void)list.getRow(0); }), "ET10111");
  list.removeRow(0);
  list.addRow(Of({{"A", "1"}}));
  EXPECT_EQ(KeyOf([&] { (void)std::as_const(list)[1]; }), "ET10104");
  list.removeRow(0);
  list.addRow(Of({{"OTHER", ""}}));
  EXPECT_EQ(list.size(), 1U);
  list[0].removeField("OTHER");
  list.addRow(Row());
  EXPECT_EQ(list.size(), 2U);
}

TEST(List, RemovesRowsAndKeepsReferences) {
  List list = Three();
  std::string& last = list[2]["A"];
  list.removeRow(0);
  list.removeRow(7);
  last = "9";
  EXPECT_EQ(Column(list), "2,9");
}

TEST(List, FindsFromAnIndexAndWidensWhatItVisits) {
  List list = Three();
  EXPECT_EQ(list.find("A", "2", 0), 1);
  EXPECT_EQ(list.find("A", "1", 1), -1);
  EXPECT_EQ(list.find("A", "1", 9), -1);
  EXPECT_EQ(list.find("C", "", 1), 1);
  EXPECT_FALSE(list[0].hasField("C"));
  EXPECT_TRUE(list[1].hasField("C"));
  EXPECT_EQ(KeyOf([&] { list.find("", "", 0); }), "ET10080");
  EXPECT_EQ(List().find("", "", 0), -1);
}

TEST(List, Selects) {
  List list = Three();
  list.setAttribute("name", "x");
  EXPECT_EQ(Column(list.select("A", {"2", "3"})), "2,2");
  EXPECT_EQ(list.select("A", {"2"}).getAttributes(), AttributeMap());
  EXPECT_EQ(list.select("A", {}).size(), 0U);
  EXPECT_EQ(list.select("N", {""}).size(), 3U);
  EXPECT_TRUE(list[0].hasField("N"));
}

TEST(List, Filters) {
  List list = Three();
  list[1]["C"] = "c";
  struct Case {
    std::vector<std::pair<std::string, std::string>> criteria;
    std::string all;
    std::string any;
  };
  const std::vector<Case> cases = {
      {{}, "1,2,2", ""},
      {{{"A", "2"}}, "2,2", "2,2"},
      {{{"A", "1"}, {"C", "c"}}, "", "1,2"},
      {{{"C", ""}}, "1,2", ""},
      {{{"B", "x"}, {"A", "7"}}, "", "1,2,2"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(Column(list.filter(Of(one.criteria), true)), one.all);
    EXPECT_EQ(Column(list.filter(Of(one.criteria), false)), one.any);
  }
  EXPECT_FALSE(list[0].hasField("C"));
  Row nameless;
  nameless.addField(Field());
  EXPECT_EQ(KeyOf([&] { (void)list.filter(nameless, true); }), "ET10080");
  EXPECT_EQ(list.filter(nameless, false).size(), 0U);
}

TEST(List, AssignmentKeepsTagAndEncoding) {
  List target;
  target.setName("section");
  List source = Three();
  source.setAttribute("name", "n");
  source[1].setName("line");
  target = source;
  EXPECT_EQ(target.getName() + target.getAttribute("name") + Column(target) + target[1].getName(),
            "sectionn1,2,2line");
  target = List();
  EXPECT_EQ(target.getName() + Column(target) + target.getAttribute("name"), "section");
}

TEST(List, SharesNamesOfRowsBuiltOneByOne) {
  List list;
  for (int at = 0; at < 3; ++at) list.addRow(Of({{"A", std::to_string(at)}, {"B", ""}}));
  EXPECT_EQ(&list[0].begin()->second.name(), &list[2].begin()->second.name());
  list[0]["C"];
  EXPECT_FALSE(list[2].hasField("C"));
}

TEST(List, ReadsAndReportsItsFailures) {
  struct Case {
    std::string text;
    std::string key;
    std::string kept;
  };
  const std::vector<Case> cases = {
      {"<list><row><A>1</A></row><x><A>2</A></x></list>", "none", "1,2"},
      {"<list/>", "none", ""},
      {"<other><row><A>1</A></row></other>", "ET10100", "1"},
      {"<list><row><A>1</A></row><row><B/></row></list>", "ET10052", "1"},
      {"<list><row><A>1</A></row><row>", "ET10052", "1"},
      {"<list><row><A><B/></A></row></list>", "ET10052", ""},
      {"", "ET10052", "old"},
      {" ", "ET10052", ""},
  };
  for (const Case& one : cases) {
    List list;
    list.addRow(Of({{"A", "old"}}));
    EXPECT_EQ(KeyOf([&] { list.fromString(one.text); }), one.key) << one.text;
    EXPECT_EQ(Column(list), one.kept) << one.text;
  }
  EXPECT_EQ(KeyOf([] { List list("<rows/>"); }), "ET10100");
}

TEST(List, WritesAndReportsItsFailures) {
  List list = Three();
  list.setAttribute("name", "resultList");
  list.removeRow(2);
  EXPECT_EQ(list.toString(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?><list name=\"resultList\">"
            "<row><A>1</A><B>x</B></row><row><A>2</A><B>x</B></row></list>");
  list.setAttribute("name", "");
  list.clear();
  list.setAttribute("name", "");
  EXPECT_EQ(list.toString(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?><list/>");
  list.addRow(Of({{"A B", "1"}}));
  EXPECT_EQ(KeyOf([&] { (void)list.toString(); }), "ET10053");
}

TEST(PropertyVector, IsAListOfItsOwn) {
  List list = Three();
  list.setName("x");
  list.setEncoding("GBK");
  const PropertyVector properties(list);
  EXPECT_EQ(properties.getName() + properties.getEncoding() + Column(properties), "listUTF-81,2,2");
}

}  // namespace
