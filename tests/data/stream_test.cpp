// Streams and the documents of sections.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "data/corvane.h"
#include "tests/data/keys.h"

namespace {

using namespace corvane;

// What a stream holds, in a line: A=1 for a field, (A=1) for a row, L[(A=1)] for a list.
std::string Shown(const Row& row) {
  std::string text = "(";
  for (const auto& [key, field] : row) text += key + "=" + field.getValue() + ";";
  return text + ")";
}

std::string Shown(CorvaneStream& stream) {
  std::string text;
  for (const auto& [key, field] : stream.getFields()) text += key + "=" + field.getValue() + ";";
  for (int row = 0; row < stream.getRowCount(); ++row) text += Shown(stream.getRow(row));
  for (auto list = stream.listsBegin(); list != stream.listsEnd(); ++list) {
    text += list->first + "[";
    for (const Row& row : list->second) text += Shown(row);
    text += "]";
  }
  return text;
}

struct Read {
  std::string text;
  std::string key;
  std::string shown;
};

TEST(CorvaneStream, Reads) {
  const std::vector<Read> cases = {
      {"<stream/>", "none", ""},
      {"<answer><A>1</A></answer>", "none", "A=1;"},
      {"<s><A>1</A><A>2</A></s>", "none", "A=2;"},
      {"<s><row><A>1</A></row><row><B>2</B></row></s>", "none", "(A=1;)(B=2;)"},
      {"<s><row><B>1</B><A>2</A><B>3</B></row></s>", "none", "(A=2;B=3;)"},
      {"<s><list name='L'><row><A>1</A></row></list></s>", "none", "L[(A=1;)]"},
      {"<s><list name='L'/><A>1</A><row/><list name='K'/></s>", "none", "A=1;()K[]L[]"},
      {"<s><list name='L'><row><A>1</A></row></list><list name='L'/></s>", "none", "L[]"},
      {"<s><list name='L'><row><A>1</A></row><row><B>1</B></row></list></s>", "ET10016", ""},
      {"<s><A>1</A><list><row/></list></s>", "ET10016", "A=1;"},
      {"<s><list name='L'><row><A><B/></A></row></list></s>", "ET10016", ""},
      {"<s><A>x<B/>y</A></s>", "none", "B=y;"},
      {"<x:s xmlns:x='u'><x:row><x:A>1</x:A></x:row></x:s>", "none", "(A=1;)"},
      {"<s> <row> <A>1</A> </row> </s>", "none", "(A=1;)"},
      {"<s><row><A>1</A></row><row><A/><B/></row><row><A>2</A></row></s>", "none", "(A=1;)(A=;B=;)(A=2;)"},
      {"<s><row><A>1</A><row><B>2</B></row></row></s>", "none", "(B=2;)"},
      {"<s><row><A>1</A></row><row><A>2<A/>3</A></row></s>", "none", "(A=1;)(A=3;)"},
      {"<s><row><A>1</A></row><F><row><A>2</A></row>x</F></s>", "none", "A=x;(A=1;)"},
      {"<s><row><A>1</A><B/></row><row><A x='1'>2</A><B>3</B></row></s>", "none", "(A=1;B=;)(A=2;B=3;)"},
      {"<s><row><LONGNAME1>1</LONGNAME1></row><row><LONGNAME2>2</LONGNAME2></row></s>", "none",
       "(LONGNAME1=1;)(LONGNAME2=2;)"},
      {"<s><list name='L'><row><A/></row></list><row><row><B/></row></row></s>", "ET10016", "L[(A=;)]"},
      {"<s><list name='L'><x><A>1</A></x></list></s>", "none", "L[]"},
      {"<s><A>1</A><B>", "ET10016", "A=1;"},
      {"", "ET10016", "OLD=;"},
      {"   ", "ET10016", ""},
      {"\xC4\xE3", "ET10016", ""},
  };
  for (const Read& one : cases) {
    CorvaneStream stream;
    stream.addField(Field("OLD", ""));
    EXPECT_EQ(KeyOf([&] { stream.fromString(one.text); }), one.key) << one.text;
    EXPECT_EQ(Shown(stream), one.shown) << one.text;
  }
  EXPECT_EQ(KeyOf([] { CorvaneStream stream(""); }), "ET10016");
}

TEST(CorvaneStream, TakesRootAndEncoding) {
  CorvaneStream stream("<?xml version=\"1.0\" encoding=\"GBK\" standalone=\"yes\"?><answer a='1'/>");
  EXPECT_EQ(stream.getName() + stream.getEncoding() + stream.getAttribute("a"), "answerGBK1");
  stream.fromString("<x/>");
  EXPECT_EQ(stream.getName() + stream.getEncoding(), "x");
  EXPECT_EQ(stream.toString(), "<?xml version=\"1.0\" encoding=\"\"?><x a=\"1\"/>");
  stream.fromString(stream.toString());
}

TEST(CorvaneStream, LooksWithoutAdding) {
  CorvaneStream stream;
  EXPECT_EQ(stream.getValue("A"), "");
  EXPECT_EQ(stream.getList("none").size() + std::as_const(stream).getList("none").size(), 0U);
  EXPECT_EQ(stream.toString(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?><stream/>");
  EXPECT_EQ(stream.getField("A").getName(), "");
  EXPECT_EQ(stream.getFields().size(), 1U);
  EXPECT_EQ(KeyOf([&] { (void)stream.toString(); }), "ET10017");
  EXPECT_EQ(KeyOf([&] { (void)stream.getRow(0); }), "ET10040");
  EXPECT_EQ(KeyOf([&] { (void)stream.getRow(-1); }), "ET10040");
}

TEST(CorvaneStream, MarksWhatIsAdded) {
  CorvaneStream stream;
  Row row("<line><A>1</A></line>");
  stream.addRow(row);
  EXPECT_EQ(row.getName(), "row");
  List list;
  Row inner("<line name='n' b='2'><A>1</A></line>");
  list.addRow(inner);
  list.setName("table");
  EXPECT_EQ(KeyOf([&] { stream.addList(list); }), "ET10043");
  EXPECT_EQ(list.getName() + list[0].getName(), "listline");
  list.setAttribute("name", "L");
  stream.addList(list);
  EXPECT_EQ(list[0].getName() + list[0].getAttribute("name") + list[0].getAttribute("b"), "row2");
  EXPECT_EQ(stream.toString(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?><stream><row><A>1</A></row>"
            "<list name=\"L\"><row b=\"2\"><A>1</A></row></list></stream>");
  list.clear();
  EXPECT_EQ(&std::as_const(stream).getList("L"), &stream.getList("L"));
  EXPECT_EQ(stream.getList("L").size(), 1U);
  list.setAttribute("name", "M");
  list.addRow(Row());
  stream.addList(list);
  EXPECT_EQ(list[0].getAttributes(), (AttributeMap{{"name", ""}}));
}

TEST(CorvaneStream, GathersFields) {
  CorvaneStream stream;
  Row row;
  row["B"] = "2";
  row["A"] = "1";
  stream.addFields(row);
  EXPECT_EQ(Shown(stream), "A=1;B=2;");
  EXPECT_EQ(Shown(stream.getFieldsRow()), "(A=1;B=2;)");
  EXPECT_EQ(stream.getFieldsRow().getName(), "row");
}

TEST(CorvaneStream, AssignsAndClears) {
  CorvaneStream source("<answer a='1'><A>1</A><row/><list name='L'/></answer>");
  CorvaneStream target;
  target.setEncoding("GBK");
  target = source;
  EXPECT_EQ(target.getName() + target.getEncoding() + Shown(target) + target.getAttribute("a"),
            "streamGBKA=1;()L[]1");
  target.clear();
  EXPECT_EQ(target.toString(), "<?xml version=\"1.0\" encoding=\"GBK\"?><stream a=\"1\"/>");
  EXPECT_EQ(Shown(source), "A=1;()L[]");
}

TEST(Ini, ReadsAndWrites) {
  const std::vector<Read> cases = {
      {"<ini/>", "none", "<ini/>"},
      {"<ini b='1'><section name='B'><X>1</X></section><section name='A'/></ini>", "none",
       "<ini b=\"1\"><section name=\"A\"/><section name=\"B\"><X>1</X></section></ini>"},
      {"<ini><section><X/></section></ini>", "none", "<ini><section><X/></section></ini>"},
      {"<ini><section name='A'><X>1</X></section><section name='A'><Y/></section></ini>", "none",
       "<ini><section name=\"A\"><Y/></section></ini>"},
      {"<ini><section name='A'/><sec name='x'/></ini>", "ET10046", "<ini><section name=\"A\"/></ini>"},
      {"<iniplus/>", "ET10046", "<ini/>"},
      {"<ini><section><X><Y/></X></section></ini>", "ET10046", "<ini/>"},
      {"", "ET10046", "<ini/>"},
  };
  for (const Read& one : cases) {
    Ini ini;
    EXPECT_EQ(KeyOf([&] { ini.fromString(one.text); }), one.key) << one.text;
    ini.setName("x");
    ini.setEncoding("");
    EXPECT_EQ(ini.toString(), "<?xml version=\"1.0\" encoding=\"\"?>" + one.shown) << one.text;
  }
}

TEST(Ini, KeepsSectionsByName) {
  Ini ini;
  Row row("<line a='1'><X>1</X></line>");
  ini.addSection("S", row);
  IniSection nameless;
  ini.addSection(nameless);
  EXPECT_EQ(nameless.getAttributes(), (AttributeMap{{"name", ""}}));
  EXPECT_EQ(ini.getSection("S").toString(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?><row a=\"1\" name=\"S\"><X>1</X></row>");
  EXPECT_EQ(ini.getSection("none").size(), 0U);
  EXPECT_TRUE(ini.find("") != ini.end() && ini.find("none") == ini.end());
  Ini copy;
  ini.setAttribute("a", "1");
  copy.setAttribute("b", "2");
  copy.addSection("OLD", row);
  copy = ini;
  EXPECT_EQ(copy.getAttributes(), (AttributeMap{{"b", "2"}}));
  EXPECT_TRUE(copy.find("OLD") == copy.end());
  EXPECT_EQ(copy.getSection("S")["X"], "1");
  copy.begin()->second.setName("other");
  EXPECT_EQ(KeyOf([&] { Ini(copy.toString()); }), "none");
}

TEST(Iniplus, ReadsAndWrites) {
  const std::vector<Read> cases = {
      {"<iniplus/>", "none", "<iniplus/>"},
      {"<iniplus><section name='B'><row><X>1</X></row></section><section name='A'/></iniplus>", "none",
       "<iniplus><section name=\"A\"/><section name=\"B\"><row><X>1</X></row></section></iniplus>"},
      {"<iniplus><section name='A'><row><X/></row><row><Y/></row></section></iniplus>", "ET10049",
       "<iniplus/>"},
      {"<iniplus><section name='A'><line/></section></iniplus>", "ET10049", "<iniplus/>"},
      {"<ini/>", "ET10049", "<iniplus/>"},
      {"<iniplus><section><row><X><Y/></X></row></section></iniplus>", "ET10049", "<iniplus/>"},
  };
  for (const Read& one : cases) {
    Iniplus iniplus;
    EXPECT_EQ(KeyOf([&] { iniplus.fromString(one.text); }), one.key) << one.text;
    iniplus.setName("x");
    iniplus.setEncoding("");
    EXPECT_EQ(iniplus.toString(), "<?xml version=\"1.0\" encoding=\"\"?>" + one.shown) << one.text;
  }
}

// Reads a text with a label, and another that is refused; then empties the document.
template <class Document>
void TakesEncodingAndClears(const std::string& tag) {
  Document document("<?xml version=\"1.0\" encoding=\"GBK\"?><" + tag + " a=\"1\"/>");
  EXPECT_EQ(document.getEncoding(), "GBK");
  EXPECT_NE(KeyOf([&] { document.fromString("<?xml version=\"1.0\" encoding=\"X\"?><other/>"); }), "none");
  EXPECT_EQ(document.getEncoding(), "GBK");
  document.fromString("<" + tag + " a=\"1\"/>");
  EXPECT_EQ(document.getEncoding() + document.getAttribute("a"), "1");
  document.clear();
  EXPECT_EQ(document.getName(), tag);
  EXPECT_EQ(document.getAttributes(), AttributeMap());
}

TEST(Documents, TakeTheEncodingOfWhatWasReadAndKeepTheirTag) {
  TakesEncodingAndClears<Ini>("ini");
  TakesEncodingAndClears<Iniplus>("iniplus");
  TakesEncodingAndClears<List>("list");
}

TEST(Iniplus, KeepsSectionsByName) {
  Iniplus iniplus;
  List list("<list a='1'><row><X>1</X></row></list>");
  iniplus.addSection("S", list);
  iniplus.setSection("S", list);
  EXPECT_EQ(iniplus.getSection("S").getName() + iniplus.getSection("S").getAttribute("a"), "list1");
  EXPECT_EQ(iniplus.getPropertyVector("S").size(), 1U);
  EXPECT_EQ(iniplus.getPropertyVector("none").size(), 0U);
  list[0]["Y"];
  list.setAttribute("name", "X");
  Iniplus copy;
  iniplus.setAttribute("a", "1");
  copy = iniplus;
  EXPECT_EQ(copy.getAttributes(), (AttributeMap{{"a", "1"}}));
  EXPECT_EQ(copy.getSection("S")[0].size(), 1U);
  List uneven("<list><row><X/></row><row><X/></row></list>");
  uneven[1]["Y"];
  EXPECT_EQ(KeyOf([&] { iniplus.addSection("U", uneven); }), "ET10101");
}

}  // namespace
