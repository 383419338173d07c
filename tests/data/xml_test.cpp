// The reader's and the writer's own rules.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "data/corvane.h"
#include "data/xml_handlers.h"
#include "data/xml_reader.h"
#include "data/xml_writer.h"
#include "platform/code_page.h"
#include "tests/data/keys.h"

namespace {

using namespace corvane;

TEST(XmlReader, SaysKeyPlaceAndReason) {
  struct Case {
    std::string text;
    std::string key;
    unsigned long line;
    unsigned long column;
    std::string reason;
  };
  const std::vector<Case> cases = {
      {"", "ET10078", 0, 0, "the text is empty"},
      {"  ", "ET10079", 1, 3, "no element found"},
      {"<list>\n<row></list>", "ET10079", 2, 8, "mismatched tag"},
      {"<list><row><A><B/></A></row></list>", "ET10079", 1, 15, "element not expected here"},
      {"<list><row><A/></row><row><B/></row></list>", "ET10101", 1, 31, "the document refuses what was read"},
      {"<list/>", "", 0, 0, ""},
  };
  for (const Case& one : cases) {
    List list;
    ListSAXHandler handler(&list);
    const ParseResult result = parseXml(one.text, handler);
    EXPECT_EQ(result.key, one.key) << one.text;
    EXPECT_EQ(result.line, one.line) << one.text;
    EXPECT_EQ(result.column, one.column) << one.text;
    EXPECT_EQ(result.reason, one.reason) << one.text;
    std::string error;
    EXPECT_EQ(parseXml(one.text, &handler, error), one.key.empty());
    EXPECT_EQ(error, one.key);
  }
}

TEST(XmlReader, RefusesWhereThereIsNothingToFill) {
  std::string error;
  EXPECT_FALSE(parseXml("<a/>", nullptr, error));
  EXPECT_EQ(error, "ET10077");
  RowSAXHandler handler(nullptr);
  EXPECT_FALSE(parseXml("<a/>", &handler, error));
  EXPECT_EQ(error, "ET10079");
}

TEST(XmlReader, LetsOtherExceptionsThrough) {
  class Failing : public SAXContentHandlerImpl {
    bool characters(std::string_view) override { throw std::runtime_error("no room"); }
  };
  Failing handler;
  EXPECT_THROW(parseXml("<a>x</a>", handler), std::runtime_error);
}

TEST(XmlReader, ScansTheEncoding) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"<?xml version=\"1.0\" encoding=\"GBK\"?><a/>", "GBK"},
      {"<?xml version=\"1.0\" encoding=\"GBK\" standalone=\"yes\"?><a/>", "GBK"},
      {"<?xml version=\"1.0\" encoding='GBK'?><a/>", "'GBK'"},
      {"<?xml version=\"1.0\"?><a/>", ""},
      {"<?xml encoding=\"GBK\"?>", ""},
      {"<a/>", ""},
      {"", ""},
      {"?>", ""},
      {"?> encoding=x", ""},
      {"<a b=\"1\">encoding=x y</a>", "x"},
      {"<?xml version=\"1.0\" encoding=", ""},
      {"<?xml version=\"1.0\" encoding=\"?>", ""},
      {"<?xml version=\"1.0\" encoding=GBK  ?>", "GBK"},
      {"<?xml version=\"1.0\" encoding= GBK?>", " GBK"},
      {"<?xml version=\"1.0\" encoding=GBK\"?>", "GBK"},
  };
  for (const auto& [text, label] : cases) EXPECT_EQ(xmlEncoding(text), label) << text;
}

TEST(XmlWriter, BringsEveryValueBack) {
  const std::vector<std::string> values = {
      "<>&\"'",           "]]>",      "  x  ", "a\r\nb\rc\n\td", "\r",   "\n",
      "\xC4\xE3\xBA\xC3", "\x81\x5C", "\x80",  "&amp;",          "\x7F",
  };
  for (const std::string& value : values) {
    Row row;
    row["A"] = value;
    row.setAttribute("a", value);
    row.setEncoding("GBK");
    Row back(row.toString());
    EXPECT_EQ(back["A"], value);
    EXPECT_EQ(back.getAttribute("a"), value);
    EXPECT_EQ(back.toString(), row.toString());
  }
}

TEST(XmlWriter, BringsEveryCharacterOf936Back) {
  std::string all = "\x80\xFF";
  for (int first = 0x81; first <= 0xFE; ++first)
    for (int second = 0x40; second <= 0xFE; ++second) {
      const std::string pair{static_cast<char>(first), static_cast<char>(second)};
      if (second != 0x7F) all += pair;
    }
  Row row;
  row["A"] = all;
  row.setAttribute("a", all);
  const std::string text = row.toString();
  EXPECT_EQ(text.find('?', 40), std::string::npos);
  Row back(text);
  EXPECT_TRUE(back["A"] == all);
  EXPECT_TRUE(back.getAttribute("a") == all);
}

TEST(XmlWriter, EscapesAndReplaces) {
  Row row;
  row["A"] =
      "a\x81\x7F"
      "b\x81";
  row.setAttribute("a", "\"<>&\t\xFE");
  EXPECT_EQ(row.toString(),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?><row a=\"&quot;&lt;>&amp;&#9;?\"><A>a?\x7F"
            "b?</A></row>");
}

const char* const kXmlSpace = "http://www.w3.org/XML/1998/namespace";

TEST(XmlWriter, RefusesWhatNoReaderTakes) {
  struct Case {
    std::string tag;
    std::string attribute;
    std::string attributeValue;
    std::string column;
    std::string value;
    std::string key;  // of the writer; toString has that of the class
  };
  const std::vector<Case> cases = {
      {"row", "a", "1", "A", "1", "none"},
      {"\xD0\xD0", "\xCA\xF4", "1", "\xD5\xCB\xBA\xC5", "1", "none"},
      {"", "a", "1", "A", "1", "ET10062"},
      {"a b", "a", "1", "A", "1", "ET10062"},
      {"row", "a b", "1", "A", "1", "ET10072"},
      {"row", "a b", "", "A", "1", "none"},
      {"row", "a", "\x02", "A", "1", "ET10073"},
      {"row", "a", "1", "1A", "1", "ET10062"},
      {"row", "a", "1", "\xA3\xAC", "1", "ET10062"},
      {"row", "a", "1", "A", std::string(1, '\0'), "ET10071"},
      {"row", "a", "1", "A", "\x1F", "ET10071"},
      {"row", "x:a", "1", "A", "1", "ET10072"},
      {"row", "xml:lang", "zh", "A", "1", "none"},
      {"row", "xmlns:x", "u", "x:A", "1", "none"},
      {"row", "xmlns:x", "", "x:A", "1", "ET10062"},
      {"x:row", "xmlns:x", "u", "A", "1", "none"},
      {"x:row", "a", "1", "A", "1", "ET10062"},
      {"row", "xmlns", "u", "A", "1", "none"},
      {"row", "a", "1", "xmlns:A", "1", "ET10062"},
      {"xmlns:row", "a", "1", "A", "1", "ET10062"},
      {"row", "xmlns:xml", kXmlSpace, "xml:A", "1", "none"},
      {"row", "xmlns:xml", "u", "A", "1", "ET10073"},
      {"row", "xmlns:xmlns", "u", "A", "1", "ET10072"},
      {"row", "xmlns:x", kXmlSpace, "A", "1", "ET10073"},
      {"row", "xmlns", kXmlSpace, "A", "1", "ET10073"},
      {"row", "xmlns", "http://www.w3.org/2000/xmlns/", "A", "1", "ET10073"},
      {"row", "xmlns:xml", "", "A", "1", "none"},
  };
  for (const Case& one : cases) {
    Row row;
    row.setName(one.tag);
    row.setAttribute(one.attribute, one.attributeValue);
    row[one.column] = one.value;
    std::string text;
    const bool good = one.key == "none";
    EXPECT_EQ(KeyOf([&] { XmlWriter("GBK").row(row); }), one.key) << one.tag << one.attribute << one.column;
    EXPECT_EQ(KeyOf([&] { text = row.toString(); }), good ? "none" : "ET10058") << one.tag << one.attribute;
    EXPECT_TRUE(!good || KeyOf([&] { Row back(text); }) == "none") << text;
    std::string kept = "kept";
    EXPECT_EQ(writeXml(row, kept), good);
    EXPECT_EQ(kept == "kept", !good);
  }
}

TEST(XmlWriter, RefusesALabelThatWouldEndTheProlog) {
  for (const char* label : {"\"", "GBK?>", "G\nBK", "?><x/>"}) {
    Row row;
    row.setEncoding(label);
    EXPECT_EQ(KeyOf([&] { (void)row.toString(); }), "ET10058") << label;
    EXPECT_EQ(KeyOf([&] { XmlWriter writer(label); }), "ET10071") << label;
  }
}

TEST(XmlWriter, WritesThePlainLabelOfWhatWasRead) {
  const std::vector<std::string> texts = {
      "<?xml version=\"1.0\" encoding=\"GBK\"\tstandalone=\"yes\"?><row/>",
      "<?xml version=\"1.0\" encoding=\"GBK\"\n?><row/>",
      "<?xml version=\"1.0\" encoding='GBK'\r\nstandalone='yes'?><row/>",
      "<?xml version=\"1.0\" encoding=\t\"GBK\" ?><row/>",
      "<row>\nencoding=GBK\n</row>",
  };
  for (const std::string& text : texts)
    EXPECT_EQ(Row(text).toString(), "<?xml version=\"1.0\" encoding=\"GBK\"?><row/>") << text;
}

TEST(XmlWriter, RefusesAnAttributeUnderTwoPrefixesOfOneNamespace) {
  CorvaneStream stream;
  stream.setAttribute("xmlns:a", "u");
  List list;
  for (const char* name : {"name", "xmlns:b", "a:x", "b:x"}) list.setAttribute(name, "u");
  stream.addList(list);
  EXPECT_EQ(KeyOf([&] { (void)stream.toString(); }), "ET10017");
  stream.getList("u").setAttribute("xmlns:b", "v");
  EXPECT_EQ(KeyOf([&] { CorvaneStream(stream.toString()); }), "none");
}

TEST(XmlWriter, ForgetsAPrefixAfterItsElement) {
  List list;
  Row row;
  row.setAttribute("xmlns:x", "u");
  row["x:A"];
  list.addRow(row);
  EXPECT_EQ(KeyOf([&] { (void)list.toString(); }), "none");
  row.clear();
  row["x:A"];
  list.addRow(row);
  EXPECT_EQ(KeyOf([&] { (void)list.toString(); }), "ET10053");
}

TEST(XmlWriter, KeepsToTheCodePage) {
  norvik::SetAnsiCodePage(65001);
  Row row;
  row["A"] = "你\xFF";
  EXPECT_EQ(row.toString(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?><row><A>你?</A></row>");
  row["A"] = "\xEF\xBF\xBE";
  EXPECT_EQ(KeyOf([&] { (void)row.toString(); }), "ET10058");
  EXPECT_EQ(Row("<row><A>你😀</A></row>")["A"], "你😀");
  norvik::SetAnsiCodePage(949);
  row["A"] = "\xC9|\xB0\xA1\xB0";
  EXPECT_EQ(row.toString(), "<?xml version=\"1.0\" encoding=\"UTF-8\"?><row><A>?\xB0\xA1?</A></row>");
  EXPECT_EQ(Row("<row><A>\xC9|\xB0\xA1</A></row>")["A"], "?\xB0\xA1");
  norvik::SetAnsiCodePage(936);
  EXPECT_EQ(Row("<row><A>&#x1F600;&#xE9;</A></row>")["A"], "?\xA8\xA6");
}

}  // namespace
