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

}  // namespace
