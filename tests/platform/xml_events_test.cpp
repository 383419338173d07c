#include "platform/xml_events.h"

#include <gtest/gtest.h>

#include <chrono>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

// Writes the events down: <name a='v'>, </name>, and character data as it is.
class Log : public norvik::XmlEvents {
 public:
  bool StartElement(std::string_view name, const norvik::XmlAttributes& attributes) override {
    if (name == "throw") throw std::runtime_error("thrown");
    text_.append("<").append(name);
    std::string space;
    for (std::size_t at = 0; at < attributes.Size(); ++at)
      text_.append(" ")
          .append(attributes.QualifiedName(at, space))
          .append("='")
          .append(attributes.Value(at))
          .append("'");
    text_ += ">";
    return name != "refuse";
  }
  bool EndElement(std::string_view name) override {
    text_.append("</").append(name).append(">");
    return true;
  }
  bool Characters(std::string_view piece) override {
    text_ += piece;
    return true;
  }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

struct Good {
  std::string text;
  std::string events;
};

TEST(XmlEvents, ReadsWhatIsWellFormed) {
  const std::vector<Good> cases = {
      {"<a/>", "<a></a>"},
      {"<?xml version='1.0' encoding='UTF-8'?><a>\xC4\xE3\xBA\xC3</a>", "<a>你好</a>"},
      {"<?xml version=\"1.0\" encoding=\"\"?><a/>", "<a></a>"},
      {"<?xml version=\"1.0\" encoding=\"'GBK'\" ?><a/>", "<a></a>"},
      {"<?xml version='1.0' encoding='no such label'?><a>\xC4\xE3</a>", "<a>你</a>"},
      {"<?xml\tversion='1.0'\r\nencoding = '-' ?><a/>", "<a></a>"},
      {"<x:a xmlns:x='u' xmlns='v' x:b='1' c='2'><d/></x:a>", "<a x:b='1' c='2'><d></d></a>"},
      {"<a xml:lang='zh'/>", "<a xml:lang='zh'></a>"},
      {"<a>1 &lt;&amp;&#x4F60;<![CDATA[<>]]></a>", "<a>1 <&你<></a>"},
      {"<a>x\r\ny\rz&#13;</a>", "<a>x\ny\nz\r</a>"},
      {"<a b='x\ny&#10;z'/>", "<a b='x y\nz'></a>"},
      {"<!DOCTYPE a [<!ENTITY e 'v'>]><a b='&e;'>&e;</a>", "<a b='v'>v</a>"},
      {"<!DOCTYPE a SYSTEM 'none.dtd'><a>x</a>", "<a>x</a>"},
      {"<!DOCTYPE a SYSTEM 'none.dtd' [<!ENTITY e 'v'>]><a b='&e;&amp;&#65;&lt;'/>", "<a b='v&A<'></a>"},
      {"<\xC4\xE3>\x81<b/>\xFF</\xC4\xE3>", "<你>\xEF\xBF\xBD<b></b>\xEF\xA3\xB5</你>"},
      {"<!-- c --><?p i?><a/><!-- d -->", "<a></a>"},
  };
  for (const Good& one : cases) {
    Log log;
    const norvik::XmlResult result = norvik::ReadXml(one.text, log);
    EXPECT_TRUE(result.read) << one.text << ": " << result.reason;
    EXPECT_EQ(log.text(), one.events) << one.text;
  }
}

// Each entity of the next stage stands ten times in the one before.
std::string Amplifying() {
  std::string text = "<!DOCTYPE a [<!ENTITY e0 'xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx'>";
  for (int stage = 1; stage < 10; ++stage) {
    text += "<!ENTITY e" + std::to_string(stage) + " '";
    for (int times = 0; times < 10; ++times) text += "&e" + std::to_string(stage - 1) + ";";
    text += "'>";
  }
  return text + "]><a>&e9;</a>";
}

// A chain of entities, each of which is nothing but the next.
std::string Nested(int entities) {
  std::string text = "<!DOCTYPE a [<!ENTITY e0 'x'>";
  for (int at = 1; at < entities; ++at)
    text += "<!ENTITY e" + std::to_string(at) + " '&e" + std::to_string(at - 1) + ";'>";
  return text + "]><a b='&e" + std::to_string(entities - 1) + ";'>&e" + std::to_string(entities - 1) +
         ";</a>";
}

TEST(XmlEvents, RefusesTheRest) {
  const std::string nul("<a>\0</a>", 8);
  const std::vector<std::string> cases = {
      "",
      " ",
      "<a>",
      "<a></b>",
      "<a/><b/>",
      "x<a/>",
      "<a b='1' b='2'/>",
      "<a b=1/>",
      "<a>&none;</a>",
      "<a>&</a>",
      "<a>]]></a>",
      "<x:a/>",
      "<a x:b='1'/>",
      "<a xmlns:x='u' xmlns:y='u' x:b='1' y:b='2'/>",
      "<a xmlns:x=''/>",
      "<a:b:c xmlns:a='u'/>",
      "<1/>",
      "<a>\x01</a>",
      "<a>\x1F</a>",
      nul,
      "<a>&#0;</a>",
      "<a>&#x1;</a>",
      "<a>&#xFFFE;</a>",
      "<a>&#xD800;</a>",
      "<a b='<'/>",
      "<a\xC4\xE3=/>",
      "<a><![CDATA[</a>",
      "<!DOCTYPE a [<!ENTITY e SYSTEM 'file:///etc/hostname'>]><a>&e;</a>",
      "<!DOCTYPE a SYSTEM 'none.dtd'><a>&e;</a>",
      "<!DOCTYPE a SYSTEM 'none.dtd'><a b='&e;'/>",
      "<!DOCTYPE a [<!ENTITY % p SYSTEM 'none'> %p; <!ENTITY f 'v'>]><a b='&f;'/>",
      "<!DOCTYPE a SYSTEM 'none.dtd' [<!ENTITY % p 'v'>]><a b='&p;'/>",
      "<!DOCTYPE a SYSTEM 'none.dtd' [<!ATTLIST a b CDATA '&e;'>]><a/>",
      "<!DOCTYPE a SYSTEM 'none.dtd' [<!ENTITY e '&f;'>]><a b='&e;'/>",
      "<!DOCTYPE a [<!ENTITY e '&e;'>]><a>&e;</a>",
      Amplifying(),
      Nested(257),
      Nested(100000),
  };
  for (const std::string& text : cases) {
    Log log;
    const norvik::XmlResult result = norvik::ReadXml(text, log);
    EXPECT_FALSE(result.read) << text.substr(0, 80);
    EXPECT_FALSE(result.reason.empty()) << text.substr(0, 80);
    EXPECT_LT(log.text().size(), 100U << 20) << text.substr(0, 80);
  }
  Log log;
  EXPECT_TRUE(norvik::ReadXml(Nested(256), log).read);
}

TEST(XmlEvents, SaysPlaceAndReason) {
  Log log;
  const norvik::XmlResult result = norvik::ReadXml("<a>\n \xC4\xE3<b></a>", log);
  EXPECT_EQ(result.line, 2U);
  EXPECT_EQ(result.column, 8U);
  EXPECT_EQ(result.reason, "mismatched tag");
}

TEST(XmlEvents, StopsWhereAnEventFails) {
  Log log;
  const norvik::XmlResult result = norvik::ReadXml("<a>1<refuse>2</refuse>3</a>", log);
  EXPECT_FALSE(result.read);
  EXPECT_TRUE(result.refused);
  EXPECT_EQ(log.text(), "<a>1<refuse>");
  EXPECT_THROW(norvik::ReadXml("<a><throw/><b/></a>", log), std::runtime_error);
}

TEST(XmlEvents, ReadsCharactersThatAPieceWouldCut) {
  for (std::size_t before = 65520; before < 65540; ++before) {
    const std::string text = "<a>" + std::string(before, 'x') + "\xC4\xE3\x81\x5C|</a>";
    Log log;
    ASSERT_TRUE(norvik::ReadXml(text, log).read);
    ASSERT_EQ(log.text(), "<a>" + std::string(before, 'x') + "你乗|</a>") << before;
  }
}

TEST(XmlEvents, CostOfALongTokenIsInProportion) {
  const auto seconds = [](std::size_t size) {
    const std::string text = "<a b='" + std::string(size, 'x') + "'/>";
    Log log;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(norvik::ReadXml(text, log).read);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  };
  seconds(1 << 20);
  EXPECT_LT(seconds(32 << 20), 5);
}

TEST(XmlEvents, KnowsNames) {
  struct Case {
    std::string name;
    bool good;
  };
  const std::vector<Case> cases = {
      {"A", true},         {"_a-1.b", true},  {"x:a", true},           {"账号", true}, {"账1", true},
      {"", false},         {"1A", false},     {"-a", false},           {"a b", false}, {"a:", false},
      {":a", false},       {"a:b:c", false},  {"a/", false},           {"a>", false},  {"，", false},
      {"账 b='1'", false}, {"账/><b", false}, {"\xEF\xBF\xBD", false},
  };
  for (const Case& one : cases) EXPECT_EQ(norvik::IsXmlName(one.name), one.good) << one.name;
}

}  // namespace
