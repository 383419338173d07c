// The text forms of all documents, written and read back.
#include <gtest/gtest.h>

#include <string>

#include "data/corvane.h"
#include "tests/data/keys.h"

namespace {

using namespace corvane;

const std::string kProlog = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";

TEST(Documents, WriteAndReadARow) {
  Row row;
  row["INMEMO"];
  row["ACCNO"] = "x&y<>\"";
  row.setAttribute("id", "7");
  row.setAttribute("none", "");
  const std::string text = kProlog + "<row id=\"7\"><ACCNO>x&amp;y&lt;&gt;\"</ACCNO><INMEMO/></row>";
  EXPECT_EQ(row.toString(), text);
  EXPECT_EQ(Row(text).toString(), text);
  EXPECT_EQ(Row(text)["ACCNO"], "x&y<>\"");
  EXPECT_EQ(Row().toString(), kProlog + "<row/>");
  EXPECT_EQ(KeyOf([] { Row("<row>"); }), "ET10057");
}

TEST(Documents, WriteAndReadAStream) {
  CorvaneStream stream;
  stream.setEncoding("GBK");
  stream.addField(Field("INMEMO", ""));
  stream.addField(Field("ACCNO", "7211"));
  List list;
  list.setAttribute("name", "userDataList");
  Row row;
  row["CUSTACC"] = "7211";
  list.addRow(row);
  stream.addList(list);
  const std::string text =
      "<?xml version=\"1.0\" encoding=\"GBK\"?><stream><ACCNO>7211</ACCNO><INMEMO/><list "
      "name=\"userDataList\"><row>"
      "<CUSTACC>7211</CUSTACC></row></list></stream>";
  EXPECT_EQ(stream.toString(), text);
  CorvaneStream read(text);
  EXPECT_EQ(read.toString(), text);
  EXPECT_EQ(read.getEncoding(), "GBK");
  EXPECT_EQ(read.getList("userDataList")[0]["CUSTACC"], "7211");
  EXPECT_EQ(read.getList("other").size(), 0U);
}

TEST(Documents, WriteAndReadSections) {
  const std::string ini =
      kProlog +
      "<ini><section name=\"APPLICATION.LANG\"><Language>Traditional Chinese</Language></section></ini>";
  EXPECT_EQ(Ini(ini).toString(), ini);
  EXPECT_EQ(Ini(ini).getSection("APPLICATION.LANG")["Language"], "Traditional Chinese");
  const std::string iniplus =
      kProlog +
      "<iniplus><section name=\"MENU\"><row><ItemName>ITEM6066</ItemName></row><row><ItemName>"
      "ITEM6067</ItemName></row></section></iniplus>";
  EXPECT_EQ(Iniplus(iniplus).toString(), iniplus);
  EXPECT_EQ(Iniplus(iniplus).getSection("MENU").size(), 2U);
  EXPECT_EQ(KeyOf([] { Ini("<ini><sec name=\"x\"/></ini>"); }), "ET10046");
}

TEST(Documents, ReferenceToAValueStaysValid) {
  List list;
  Row first;
  first["A"] = "1";
  list.addRow(first);
  std::string& value = list[0]["A"];
  for (int column = 0; column < 40; ++column) list[0]["C" + std::to_string(column)] = "x";
  for (int more = 0; more < 100; ++more) list.addRow(Row(list[0]));
  const List copy = list;
  value = "changed";
  EXPECT_EQ(list[0]["A"], "changed");
  EXPECT_EQ(copy[0].getValue("A"), "1");
}

}  // namespace
