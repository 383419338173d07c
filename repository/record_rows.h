// The rows of the record views as tables.
#pragma once

#include <vector>

namespace norvik {

// What a row shows instead for a bill of the first type ("AC01"). Without a field the row is hidden, its
// value empty.
struct FirstTypeRow {
  const char* captionKey = "";
  const char* field = "";
};

struct RecordRow {
  const char* label;          // name of the caption; the value's is the same with "Val" behind it
  const char* captionKey;     // empty: the design caption stays
  const char* designCaption;  // UTF-8
  const char* field;
  const char* whenEmpty = "";               // shown for an empty value
  const FirstTypeRow* firstType = nullptr;  // null: the row is the same for all types
};

struct RecordPanel {
  const char* name;
  const char* designCaption;  // UTF-8
  std::vector<RecordRow> rows;
};

std::vector<RecordPanel> BillRecord();         // of TfrmQryInfo
std::vector<RecordPanel> ApplicationRecord();  // of TfrmAppQryInfo
std::vector<RecordPanel> EventRecord();        // of TfrmDetailQryInfo

}  // namespace norvik
