// The rows of the record views as tables: captions, fields, and what differs by the bill's type. The views
// are built from them; the tables decide no layout.
#pragma once

#include <vector>

namespace norvik {

/// What a row shows instead for a bill of the first type ("AC01"). Without a field the row is hidden and its
/// value empty.
struct FirstTypeRow {
  const char* captionKey = "";
  const char* field = "";
};

/// A row of a view.
struct RecordRow {
  const char* label;          ///< name of the caption; the value's is the same + "Val"
  const char* captionKey;     ///< empty: the design caption stays
  const char* designCaption;  ///< UTF-8
  const char* field;
  const char* whenEmpty = "";               ///< shown for an empty value
  const FirstTypeRow* firstType = nullptr;  ///< null: the row is the same for all types
};

/// A panel of a view and its rows.
struct RecordPanel {
  const char* name;
  const char* designCaption;  ///< UTF-8
  std::vector<RecordRow> rows;
};

/// The tables of the three views.
std::vector<RecordPanel> BillRecord();         ///< of TfrmQryInfo
std::vector<RecordPanel> ApplicationRecord();  ///< of TfrmAppQryInfo
std::vector<RecordPanel> EventRecord();        ///< of TfrmDetailQryInfo

}  // namespace norvik
