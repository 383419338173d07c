// The part of CMInterface that builds a list's columns and applies a batch answer to its items.
#include <vector>

#include "dialogs/messages.h"
#include "framework/batch_rows.h"
#include "framework/column_order.h"
#include "framework/m_interface.h"
#include "host/pub_info.h"
#include "host/translate.h"
#include "toolkit/conversion.h"
#include "toolkit/list_view.h"

namespace {

constexpr const char* kRefusedColor = "255";

TAlignment AlignmentOf(const std::string& align) {
  if (align == "C") return taCenter;
  if (align == "R") return taRightJustify;
  return taLeftJustify;
}

// Whether a column without a caption had one when the layout was saved: without it the next layout would
// leave the column out.
bool LostItsText(const corvane::Row& fieldDef, corvane::List& savedLayout) {
  return fieldDef.getValue("DISPLAY") != norvik::kDataColumnKey &&
         savedLayout.find("ColumnID", fieldDef.getValue("COLID"), 0) >= 0;
}

}  // namespace

void CMInterface::InitListColumns(TKVXListView* listView, const std::string& className) {
  try {
    listView->Clear();
    listView->SetColumnsWhole(false);
    listView->Columns().Clear();
    listView->ColumnIds().clear();
    corvane::List fieldDefs = g_pPubInfo->GetIniplusList("FIELDDEF", className);
    bool whole = true;
    if (fieldDefs.size() == 0) {
      listView->SetColumnsWhole(true);
      return;
    }
    corvane::List savedLayout = g_pPubInfo->GetIniplusList("COLUMN_INFO", className);
    corvane::Ini workingTable;
    for (const unsigned index : norvik::ColumnOrder(fieldDefs, savedLayout)) {
      corvane::Row columnRow;
      std::string caption;
      AddListColumn(listView, fieldDefs[index], columnRow, caption);
      if (!caption.empty()) {
        workingTable.addSection(caption, columnRow);
      } else if (LostItsText(fieldDefs[index], savedLayout)) {
        whole = false;
      }
    }
    listView->SetColumnsWhole(whole);
    g_pPubInfo->SetIni(className, workingTable);
  } catch (const corvane::TException& failure) {
    ReportException(failure);
  } catch (const EConvertError& failure) {
    ReportException(corvane::TException(std::string(failure.what())));
  }
}

void CMInterface::AddListColumn(TKVXListView* listView, corvane::Row& fieldDef, corvane::Row& columnRow,
                                std::string& caption) {
  TListColumn* column = listView->Columns().Add();
  listView->ColumnIds().push_back(fieldDef.getValue("COLID"));
  caption.clear();
  if (fieldDef.getValue("DISPLAY") == norvik::kDataColumnKey) {
    column->SetMaxWidth(1);
  } else {
    columnRow["COLID"] = fieldDef.getValue("COLID");
    caption = g_pTranslate->Translate(fieldDef.getValue("DISPLAY"));
    column->SetCaption(caption);
  }
  column->SetWidth(StrToInt(fieldDef.getValue("WIDTH")));
  if (column->Width() == 0 && !caption.empty()) {
    column->SetMaxWidth(1);
    fieldDef["COLFMT"] = "X";
  }
  column->SetAlignment(AlignmentOf(fieldDef.getValue("ALIGN")));
  column->SetTag(norvik::ColumnTag(fieldDef["COLFMT"]));
}

void CMInterface::ApplyResultList(const corvane::CorvaneStream& answer, const std::string& listName,
                                  TKVXListView* listView) {
  m_resultFlags.clear();
  for (const corvane::Row& row : answer.getList(listName)) {
    const TListItem* item = norvik::ItemNamed(listView, row.getValue("ID"));
    if (item == nullptr) continue;
    const std::string flag = row.getValue("FLAG");
    m_resultFlags[item->Index()] = flag;
    corvane::Property& record = *listView->PropertyOf(item);
    record["Reason"] = flag;
    record["Color"] = kRefusedColor;
    listView->RefreshItem(item);
  }
  listView->SetItemIndex(-1);
}

void CMInterface::RemoveCompletedItems(TKVXListView* listView) {
  std::vector<int> completed;
  for (int i = 0; i < listView->Items().Count(); ++i) {
    if (listView->Items()[i]->Checked() && !m_resultFlags.contains(i)) completed.push_back(i);
  }
  listView->DelItems(completed);
}
