#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <ctime>

#include "tests/host/services.h"

namespace {

using fakehost::Call;
using fakehost::FakeHost;
using fakehost::Library;
using namespace std::string_literals;
constexpr auto kPub = Library::kPublicInformation;

TEST(PubInfo, SendsItsKeysInOrderAndReadsTheDocument) {
  FakeHost host;
  Services services(host);
  host.SetAnswer(kPub, 24, {"ENVIRONMENT", "ENV.SKIN"}, fakehost::Text("<ENV.SKIN>/skins/</ENV.SKIN>"));
  host.SetAnswer(kPub, 40, {"CMLGBSN"},
                 fakehost::Text("<list><row><A>1</A></row><row><A>2</A></row></list>"));
  host.SetAnswer(kPub, 87, {"FIELDDEF", "TfrmX", "0"}, fakehost::Text("<row><TITLE>t</TITLE></row>"));
  host.SetAnswer(kPub, 90, {"BUSINESSDICT", "AGENTSTT"}, fakehost::Text("<list><row><B>b</B></row></list>"));
  EXPECT_EQ(services.pubInfo.GetField("ENVIRONMENT", "ENV.SKIN").getValue(), "/skins/");
  EXPECT_EQ(services.pubInfo.GetList("CMLGBSN").size(), 2u);
  corvane::Row row = services.pubInfo.GetIniplusRow("FIELDDEF", "TfrmX", 0);
  EXPECT_EQ(std::string(row["TITLE"]), "t");
  EXPECT_EQ(services.pubInfo.GetIniplusList("BUSINESSDICT", "AGENTSTT").size(), 1u);
  host.SetAnswer(kPub, 60, {"SYSCONFIG_DATA"},
                 fakehost::Text("<ini><section name=\"S\"><A>1</A></section></ini>"));
  EXPECT_EQ(services.pubInfo.GetIni("SYSCONFIG_DATA").getSection("S").getValue("A"), "1");
  host.SetAnswer(kPub, 82, {"COLUMN_INFO"},
                 fakehost::Text("<iniplus><section name=\"S\"><row><A>1</A></row></section></iniplus>"));
  EXPECT_EQ(services.pubInfo.GetIniplus("COLUMN_INFO").getSection("S").size(), 1u);
  const corvane::Field field("CURSHORTCUT.ITEMNAME", "ITEM6066");
  services.pubInfo.SetField("ENVIRONMENT", field);
  EXPECT_EQ(host.CallsOf(kPub, 23), (std::vector<Call>{{kPub, 23, {"ENVIRONMENT", field.toString()}}}));
  services.pubInfo.SetHandle("TfrmX", 0xFFFFFFFF);
  EXPECT_EQ(services.pubInfo.GetHandle("TfrmX"), 0xFFFFFFFFu);
  EXPECT_EQ(host.released, 6);
}

TEST(PubInfo, ReadsAsManyBytesAsTheHostSays) {
  FakeHost host;
  Services services(host);
  host.SetAnswer(kPub, 68, fakehost::Text("a\0b"s));
  EXPECT_EQ(services.pubInfo.GetIniValue("k", "s", "i"), "a\0b"s);
  host.SetAnswer(kPub, 68, {.text = "long", .length = 2});
  EXPECT_EQ(services.pubInfo.GetIniValue("k", "s", "i"), "lo");
  host.SetAnswer(kPub, 68, {.text = "", .noBuffer = true});
  EXPECT_EQ(services.pubInfo.GetIniValue("k", "s", "i"), "");
  EXPECT_EQ(host.released, 2);
  EXPECT_EQ(host.nullReleased, 1);
}

TEST(PubInfo, GivesTheKeyOfTheClassForATextThatIsNoDocument) {
  const struct {
    const char* key;
    std::uint32_t ordinal;
    std::function<void(PubInfoIntf&)> read;
  } rows[] = {{"ET10044", 24, [](auto& pubInfo) { pubInfo.GetField("b", "n"); }},
              {"ET10052", 40, [](auto& pubInfo) { pubInfo.GetList("k"); }},
              {"ET10046", 60, [](auto& pubInfo) { pubInfo.GetIni("k"); }},
              {"ET10049", 82, [](auto& pubInfo) { pubInfo.GetIniplus("k"); }},
              {"ET10057", 87, [](auto& pubInfo) { pubInfo.GetIniplusRow("k", "s", 0); }},
              {"ET10052", 90, [](auto& pubInfo) { pubInfo.GetIniplusList("k", "s"); }}};
  for (const auto& row : rows) {
    FakeHost host;
    Services services(host);
    host.SetAnswer(kPub, row.ordinal, fakehost::Text("<half"));
    EXPECT_EQ(FailureOf([&] { row.read(services.pubInfo); }), (Failure{"TException", {row.key}}));
    EXPECT_EQ(host.released, 1) << row.key;
  }
}

TEST(PubInfo, ReplacesADocumentOnlyWhenTheNewOneIsWritten) {
  FakeHost host;
  Services services(host);
  corvane::Row row;
  row["WIDTH"] = "80"s;
  corvane::Ini ini;
  ini.addSection("COL", row);
  services.pubInfo.SetIni("TfrmX", ini);
  EXPECT_EQ(host.calls, (std::vector<Call>{{kPub, 59, {"TfrmX"}}, {kPub, 58, {"TfrmX", ini.toString()}}}));

  host.calls.clear();
  corvane::List list;
  list.addRow(row);
  corvane::Iniplus iniplus;
  iniplus.addSection("TfrmX", list);
  services.pubInfo.SetIniplus("COLUMN_INFO", iniplus);
  EXPECT_EQ(host.calls, (std::vector<Call>{{kPub, 81, {"COLUMN_INFO"}},
                                           {kPub, 80, {"COLUMN_INFO", iniplus.toString()}}}));

  host.calls.clear();
  corvane::Row bad;
  bad["not a name"] = "x"s;
  ini.addSection("BAD", bad);
  EXPECT_EQ(FailureOf([&] { services.pubInfo.SetIni("TfrmX", ini); }), (Failure{"TException", {"ET10048"}}));
  corvane::List badList;
  badList.addRow(bad);
  iniplus.addSection("BAD", badList);
  EXPECT_EQ(FailureOf([&] { services.pubInfo.SetIniplus("COLUMN_INFO", iniplus); }),
            (Failure{"TException", {"ET10051"}}));
  EXPECT_TRUE(host.calls.empty()) << "the old documents must stay";
}

TEST(Translate, TakesTheSectionFromTheKey) {
  const struct {
    const char* key;
    const char* section;
  } rows[] = {{"UI44001", "UI44"}, {"UI1", "UI1"}, {"", ""}};
  for (const auto& row : rows) {
    FakeHost host;
    Services services(host);
    host.SetAnswer(Library::kTranslate, 4, {row.section, row.key}, fakehost::Text("text of it"));
    EXPECT_EQ(services.translate->Translate(row.key), "text of it") << row.key;
    EXPECT_EQ(host.released, 1);
  }
}

TEST(Error, PassesTheFlagOn) {
  FakeHost host;
  Services services(host);
  services.error->GetErrorText("ET1\r\nET2");
  services.error->GetReasonText("R1", 7);
  EXPECT_EQ(host.CallsOf(Library::kError, 5), (std::vector<Call>{{Library::kError, 5, {"ET1\r\nET2", "1"}}}));
  EXPECT_EQ(host.CallsOf(Library::kError, 4), (std::vector<Call>{{Library::kError, 4, {"R1", "7"}}}));
}

corvane::CorvaneStream Request() {
  corvane::CorvaneStream request;
  request.setEncoding("UTF-8");
  return request;
}

TEST(SafeCom, ConvertsBothTextsInTraditionalChineseAlone) {
  for (const char* language : {"Simplified Chinese", "English", "", "traditional chinese"}) {
    FakeHost host;
    Services services(host, language);
    services.safeCom->SendText("EBBADQDB", "<stream/>", 3);
    EXPECT_TRUE(host.CallsOf(Library::kTranslate, 6).empty()) << language;
    EXPECT_EQ(host.CallsOf(Library::kSafeCom, 5),
              (std::vector<Call>{{Library::kSafeCom, 5, {"EBBADQDB", "<stream/>", "3"}}}));
  }
  FakeHost host;
  Services services(host, "Traditional Chinese");
  host.SetAnswer(Library::kTranslate, 6, {"out", "0"}, fakehost::Text("sent"));
  host.SetAnswer(Library::kSafeCom, 5, {"CODE", "sent", "1"}, fakehost::Text("came"));
  host.SetAnswer(Library::kTranslate, 6, {"came", "1"}, fakehost::Text("in"));
  EXPECT_EQ(services.safeCom->SendText("CODE", "out", 1), "in");
  EXPECT_EQ(host.released, 3);
}

TEST(SafeCom, DoesNotSendWhatCouldNotBeConverted) {
  FakeHost host;
  Services services(host, "Traditional Chinese");
  host.SetAnswer(Library::kTranslate, 6, fakehost::Refusal("no table"));
  auto request = Request();
  EXPECT_EQ(FailureOf([&] { services.safeCom->SendStream("CODE", request); }),
            (Failure{"TException", {"no table"}}));
  EXPECT_TRUE(host.CallsOf(Library::kSafeCom, 5).empty());
}

TEST(SafeCom, ReadsTheLanguageOnce) {
  FakeHost host;
  Services services(host, "English");
  host.SetAnswer(kPub, 68, {"SYSCONFIG_DATA", "APPLICATION.LANG", "Language"},
                 fakehost::Text("Traditional Chinese"));
  services.safeCom->SendText("CODE", "text", 1);
  EXPECT_TRUE(host.CallsOf(kPub, 68).empty());
  EXPECT_TRUE(host.CallsOf(Library::kTranslate, 6).empty());
}

TEST(SafeCom, LabelsTheRequestAndReadsTheAnswer) {
  FakeHost host;
  Services services(host);
  auto request = Request();
  host.SetAnswer(Library::kSafeCom, 5, fakehost::Text("<stream><RESULT>ok</RESULT></stream>"));
  EXPECT_EQ(services.safeCom->SendStream("CODE", request).getValue("RESULT"), "ok");
  EXPECT_EQ(request.getEncoding(), "GBK");
  EXPECT_EQ(host.CallsOf(Library::kSafeCom, 5),
            (std::vector<Call>{{Library::kSafeCom, 5, {"CODE", request.toString(), "1"}}}));
}

TEST(SafeCom, LeavesAnExchangeThatFailedWithOneClassOfFailure) {
  const struct {
    fakehost::Answer answer;
    std::vector<std::string> keys;
  } rows[] = {{fakehost::Refusal("BK1\r\naccount 5"), {"BK1", "account 5"}},
              {{.text = "x", .length = -1}, {"CF30001"}},
              {fakehost::Text(""), {"ET10016"}},
              {fakehost::Text("<stream><A>1</A><list name=\"resultList\"><row>"), {"ET10016"}},
              {fakehost::Text("<stream/>\0"s), {"ET10016"}}};
  for (const auto& row : rows) {
    FakeHost host;
    Services services(host);
    host.SetAnswer(Library::kSafeCom, 5, row.answer);
    auto request = Request();
    EXPECT_EQ(FailureOf([&] { services.safeCom->SendStream("CODE", request); }),
              (Failure{"TException", row.keys}));
    EXPECT_EQ(request.getEncoding(), "GBK");
    EXPECT_EQ(host.released, host.given);
  }
}

TEST(SafeCom, KeepsOneServerTime) {
  FakeHost host;
  Services services(host);
  host.serverTime = 1500000000000;
  corvane::TSysDateTime& first = services.safeCom->GetServerTime();
  EXPECT_NEAR(static_cast<double>(first.getMillis()), 1500000000000., 60000.);
  for (const std::int64_t absurd : {INT64_MIN, INT64_C(-1), INT64_C(253402300800000), INT64_MAX}) {
    host.serverTime = absurd;
    EXPECT_EQ(FailureOf([&] { services.safeCom->GetServerTime(); }), (Failure{"TException", {"CF30006"}}))
        << absurd;
    EXPECT_EQ(first.getDateTime().size(), 14u);
  }
  setenv("TZ", "CST-8", 1);  // where the year 10000 begins eight hours earlier
  tzset();
  host.serverTime = INT64_C(253402300799999);
  EXPECT_EQ(FailureOf([&] { services.safeCom->GetServerTime(); }), (Failure{"TException", {"CF30006"}}));
  setenv("TZ", "UTC", 1);
  tzset();
  host.serverTime = 1600000000000;
  EXPECT_EQ(&services.safeCom->GetServerTime(), &first);
  EXPECT_NEAR(static_cast<double>(first.getMillis()), 1600000000000., 60000.);
}

TEST(Excel, SendsThreeTextsInOrder) {
  FakeHost host;
  Services services(host);
  corvane::Row head, column, record;
  head["TYPEVAL"] = "BillQry"s;
  column["COLID"] = "BILLNUM"s;
  record["BILLNUM"] = "1"s;
  corvane::List columns, data;
  columns.addRow(column);
  data.addRow(record);
  services.excel->ExportExcel("/tmp/a.xlsx", head, columns, data);
  services.excel->ExportText("/tmp/a.txt", head, columns, data, "|", 2);
  const std::string texts[] = {head.toString(), columns.toString(), data.toString()};
  EXPECT_EQ(host.calls, (std::vector<Call>{
                            {Library::kExcel, 2, {"/tmp/a.xlsx", texts[0], texts[1], texts[2]}},
                            {Library::kExcel, 5, {"/tmp/a.txt", texts[0], texts[1], texts[2], "|", "2"}}}));
}

// The local date and time as a report bears it.
std::string LocalNow() {
  const std::time_t now = std::time(nullptr);
  std::array<char, 20> text = {};
  std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", std::localtime(&now));
  return text.data();
}

TEST(Print, CompletesTheHeadAndSendsIt) {
  setenv("TZ", "XYZ-7", 1);  // far from the bank's and from universal time
  tzset();
  FakeHost host;
  Services services(host);
  corvane::Row head;
  head["COUNT"] = "stale"s;
  head["TITLE"] = "t"s;
  const std::string before = LocalNow();
  services.print->PrintList("TfrmX", "all", head, corvane::List());
  EXPECT_EQ(std::string(head["COUNT"]), "0");
  EXPECT_EQ(std::string(head["SELCONDITION"]), "all");
  EXPECT_LE(before, head.getValue("MAKEDATE"));
  EXPECT_LE(head.getValue("MAKEDATE"), LocalNow());
  EXPECT_EQ(head.getValue("TITLE"), "t");
  services.print->PrintSetup("TfrmX");
  EXPECT_EQ(host.calls,
            (std::vector<Call>{{Library::kPrint, 3, {"TfrmX", head.toString(), corvane::List().toString()}},
                               {Library::kPrint, 5, {"TfrmX"}}}));
}

}  // namespace
