// What leaves the built record library.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "data/corvane.h"
#include "tests/support/exported_names.h"

namespace {

// What the headers offer out of line: the classes and functions that bear the export macro.
const std::set<std::string> kOffered = {
    "CorvaneStream",
    "CorvaneStreamSAXHandler",
    "DocumentSAXHandler",
    "Element",
    "Field",
    "FieldIterator",
    "FieldSAXHandler",
    "Ini",
    "IniSAXHandler",
    "IniSection",
    "Iniplus",
    "IniplusSAXHandler",
    "IniplusSection",
    "List",
    "ListSAXHandler",
    "ParseResult",
    "Property",
    "PropertyVector",
    "Row",
    "RowSAXHandler",
    "RowsSAXHandler",
    "SAXContentHandlerImpl",
    "StringBuffer",
    "StringVector",
    "TException",
    "TIOException",
    "TSysDateTime",
    "WideString",
    "XmlWriter",
    "cutText",
    "doubleToString",
    "findText",
    "parseXml",
    "replaceAll",
    "trim",
    "trimLeft",
    "trimRight",
    "writeXml",
    "xmlEncoding",
};

TEST(Exports, AreWhatTheHeadersOffer) {
  std::set<std::string> expected;
  for (const std::string& name : kOffered) expected.insert("corvane::" + name);
  EXPECT_EQ(ExportedNames(&corvane::trim), expected);
}

}  // namespace
