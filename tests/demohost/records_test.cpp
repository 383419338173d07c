#include <gtest/gtest.h>

#include <set>

#include "repository/record_rows.h"
#include "tests/demohost/share_files.h"

namespace {

const struct {
  const char* form;
  std::vector<norvik::RecordPanel> (*panels)();
} kViews[] = {
    {"TfrmNorvikQry", &norvik::BillRecord},
    {"TfrmNorvikELoanQry", &norvik::ApplicationRecord},
    {"TfrmNorvikDTLQry", &norvik::EventRecord},
};

// What the enquiries and the totals read of a row beside what its record view shows.
const std::vector<std::string> kReadToo = {"QURYNUM", "CRYTYPE"};

}  // namespace

// A list keeps only the fields that have a column.
TEST(Records, EveryFieldOfARecordViewHasAColumn) {
  const Table table = ReadTable("fielddef.txt");
  std::vector<std::string> missing;
  for (const auto& view : kViews) {
    std::set<std::string> columns;
    for (const auto& row : table.at(view.form)) columns.insert(row[0]);
    std::vector<std::string> fields = kReadToo;
    for (const auto& panel : view.panels()) {
      for (const auto& row : panel.rows) {
        fields.push_back(row.field);
        if (row.firstType && *row.firstType->field) fields.push_back(row.firstType->field);
      }
    }
    EXPECT_GT(fields.size(), 30U) << view.form;
    for (const std::string& field : fields) {
      if (!columns.count(field)) missing.push_back(std::string(view.form) + " " + field);
    }
  }
  EXPECT_EQ(Lines(missing), "");
}

// A caption without a key is its own key, so that it too is shown in the user's language.
TEST(Records, EveryDesignCaptionWithoutAKeyHasAText) {
  std::vector<std::string> missing;
  for (const std::string& language : kLanguages) {
    const auto texts = TextsByKey(language);
    for (const auto& view : kViews) {
      for (const auto& panel : view.panels()) {
        if (!texts.count(panel.designCaption)) missing.push_back(language + " " + panel.designCaption);
        for (const auto& row : panel.rows) {
          if (!*row.captionKey && !texts.count(row.designCaption)) {
            missing.push_back(language + " " + row.designCaption);
          }
        }
      }
    }
  }
  EXPECT_EQ(Lines(missing), "");
}
