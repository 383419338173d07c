#include "framework/business/batch_rows.h"

#include <utility>

#include "framework/base/base_form.h"
#include "host/error.h"
#include "toolkit/conversion.h"
#include "toolkit/kvx_list_view.h"

namespace norvik {
namespace {

constexpr const char* kNoReasonGiven = "UI52438";

}  // namespace

corvane::List TickedRecords(TKVXListView* listView) {
  corvane::List records;
  listView->GetDataVector(records, dvChecked);
  return records;
}

corvane::List TickedRows(TKVXListView* listView, const char* indexField, const RowFiller& fill) {
  corvane::List rows;
  const TListItems& items = listView->Items();
  for (int i = 0; i < items.Count(); ++i) {
    const TListItem* item = items[i];
    if (!item->Checked()) continue;
    corvane::Row row;
    row[indexField] = IntToStr(i);
    if (fill(*item->Data(), row)) rows.addRow(std::move(row));
  }
  return rows;
}

void AddUserData(corvane::CorvaneStream& request, corvane::List rows) {
  rows.setAttribute("name", "userDataList");
  request.addList(std::move(rows));
}

TListItem* ItemNamed(TKVXListView* listView, const std::string& index) {
  const int at = StrToIntDef(index, -1);
  return at < 0 || at >= listView->Items().Count() ? nullptr : listView->Items()[at];
}

std::string ReasonOf(const std::string& code) {
  constexpr std::uint8_t kReasonFlag = 1;
  return g_pError->GetReasonText(code, kReasonFlag);
}

std::string FailureText(const std::string& code, const std::string& information) {
  if (!code.empty() && !information.empty()) return "[" + code + "]" + information;
  if (!code.empty()) return ReasonOf(code);
  return information.empty() ? TBaseForm::TranslateKey(kNoReasonGiven) : information;
}

std::string CancelAmount(const corvane::Row& record) {
  const std::string amount = record.getValue(record.hasField("BUSSUM") ? "BUSSUM" : "PAYAMT");
  return amount.empty() ? "0" : amount;
}

}  // namespace norvik
