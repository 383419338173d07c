#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "platform/code_page.h"
#include "tests/demohost/share_files.h"

namespace {

// The mark of a column that is never shown; it has no text.
const std::string kHidden = "UI99999";

bool FitsCodePage(const std::string& utf8) {
  return norvik::Utf8FromAnsi(norvik::AnsiFromUtf8(utf8)) == utf8;
}

// What is wrong with a text of a file, escapes unresolved; empty when nothing is.
std::string Fault(const std::string& text) {
  if (text.empty()) return "empty text";
  if (text.front() == ' ' || text.back() == ' ' || text.back() == '\r') return "blank at an end";
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (static_cast<unsigned char>(text[at]) < 0x20) return "control character";
    if (text[at] != '\\') continue;
    ++at;
    if (at == text.size() || std::string("nt\\").find(text[at]) == std::string::npos) return "unknown escape";
  }
  return FitsCodePage(text) ? "" : "character outside the code page";
}

// The rows of a table whose key in the given place has no text in some language.
std::vector<std::string> RowsWithoutText(const std::string& name, std::size_t place) {
  std::vector<std::string> missing;
  for (const std::string& language : kLanguages) {
    const auto texts = TextsByKey(language);
    for (const auto& [section, rows] : ReadTable(name)) {
      for (const auto& row : rows) {
        if (row.size() > place && row[place] != kHidden && !texts.count(row[place])) {
          missing.push_back(language + " " + section + " " + row[0] + " " + row[place]);
        }
      }
    }
  }
  return missing;
}

// Texts that two rows of one section share, in any language.
std::vector<std::string> SharedTexts(const std::string& name, std::size_t place) {
  std::vector<std::string> shared;
  for (const std::string& language : kLanguages) {
    const auto texts = TextsByKey(language);
    for (const auto& [section, rows] : ReadTable(name)) {
      std::set<std::string> seen;
      for (const auto& row : rows) {
        const auto text = texts.find(row.at(place));
        if (text != texts.end() && !seen.insert(text->second).second) {
          shared.push_back(language + " " + section + " " + row[0] + " " + text->second);
        }
      }
    }
  }
  return shared;
}

}  // namespace

TEST(Texts, EachLineIsAKeyOnceAndASoundText) {
  for (const std::string& language : kLanguages) {
    std::vector<std::string> faults;
    std::set<std::string> keys;
    for (const TextLine& line : ReadTexts(language)) {
      const std::string where = language + ".txt:" + std::to_string(line.number) + " " + line.key + ": ";
      if (line.key.empty()) faults.push_back(where + "no key");
      if (!keys.insert(line.key).second) faults.push_back(where + "second text for the key");
      if (!FitsCodePage(line.key)) faults.push_back(where + "key outside the code page");
      if (const std::string fault = Fault(line.text); !fault.empty()) faults.push_back(where + fault);
    }
    EXPECT_GT(keys.size(), 400U) << language;
    EXPECT_EQ(Lines(faults), "");
  }
}

TEST(Texts, EveryLanguageHasTheSameKeys) {
  const auto first = TextsByKey(kLanguages.front());
  for (const std::string& language : kLanguages) {
    std::vector<std::string> odd;
    const auto texts = TextsByKey(language);
    for (const auto& [key, text] : first) {
      if (!texts.count(key)) odd.push_back(key + " is missing from " + language);
    }
    for (const auto& [key, text] : texts) {
      if (!first.count(key)) odd.push_back(key + " is only in " + language);
    }
    EXPECT_EQ(Lines(odd), "");
  }
}

TEST(Texts, EveryKeyInTheSourcesHasAText) {
  const auto used = KeysInSources();
  EXPECT_GT(used.size(), 20U);
  std::vector<std::string> missing;
  for (const std::string& language : kLanguages) {
    const auto texts = TextsByKey(language);
    for (const auto& [key, places] : used) {
      if (key != kHidden && !texts.count(key)) missing.push_back(language + " " + key + " " + places);
    }
  }
  EXPECT_EQ(Lines(missing), "");
}

TEST(ColumnTable, RowsAreWellFormed) {
  static const std::regex kWidth("[0-9]{1,3}");
  for (const auto& [section, rows] : ReadTable("fielddef.txt")) {
    EXPECT_FALSE(rows.empty()) << section;
    std::set<std::string> columns;
    for (const auto& row : rows) {
      ASSERT_EQ(row.size(), 5U) << section << " " << row.at(0);
      EXPECT_TRUE(columns.insert(row[0]).second) << section << " has " << row[0] << " twice";
      EXPECT_TRUE(std::regex_match(row[2], kWidth)) << section << " " << row[0] << " " << row[2];
      EXPECT_NE(std::string("LCR").find(row[3]), std::string::npos)
          << section << " " << row[0] << " " << row[3];
      EXPECT_NE(std::string("CMRNX").find(row[4]), std::string::npos)
          << section << " " << row[0] << " " << row[4];
    }
    EXPECT_NE(rows.front()[1], kHidden) << section << " opens with a hidden column";
  }
}

TEST(ColumnTable, EveryCaptionHasATextOfItsOwn) {
  EXPECT_EQ(Lines(RowsWithoutText("fielddef.txt", 1)), "");
  EXPECT_EQ(Lines(SharedTexts("fielddef.txt", 1)), "");
}

TEST(Dictionaries, EveryCodeHasATextOfItsOwn) {
  EXPECT_EQ(Lines(RowsWithoutText("businessdict.txt", 1)), "");
  EXPECT_EQ(Lines(SharedTexts("businessdict.txt", 1)), "");
}

TEST(Dictionaries, CodesAreDistinctAndInTheOrderOfTheBoxes) {
  for (const auto& [section, rows] : ReadTable("businessdict.txt")) {
    std::string before;
    for (const auto& row : rows) {
      ASSERT_EQ(row.size(), 2U) << section << " " << row.at(0);
      EXPECT_LT(before, row[0]) << section;
      before = row[0];
    }
  }
}
