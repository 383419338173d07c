#include "framework/business/m_interface.h"

#include <vector>

#include "dialogs/busy.h"
#include "dialogs/messages.h"
#include "framework/business/batch_rows.h"
#include "framework/columns/column_order.h"
#include "framework/columns/export_rules.h"
#include "framework/rules/amount_text.h"
#include "host/excel.h"
#include "host/print.h"
#include "host/pub_info.h"
#include "host/safe_com.h"
#include "host/translate.h"
#include "toolkit/application.h"
#include "toolkit/combo_box.h"
#include "toolkit/conversion.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/labels.h"

namespace {

enum OutputType : std::uint8_t { kWorkbook = 1, kText = 3 };

constexpr const char* kTextSeparator = "|";
constexpr int kTextOption = 2;

std::string Value(const corvane::Row& row, const char* key) {
  return row.getValue(key);
}

std::string UserField(const char* key) {
  corvane::List users = g_pPubInfo->GetList("CMLGUSERINFO");
  return users.size() == 0 ? std::string() : Value(users[0], key);
}

// Takes the busy form of an exchange away, whatever happens in it; also where it could not be shown.
class BusyEnd {
 public:
  explicit BusyEnd(TForm* owner) : owner_(owner) {}
  ~BusyEnd() {
    try {
      HideBar(owner_);
    } catch (const norvik::LifeEnded&) {
      // The form has gone with its life; what follows meets the end at its own next check.
    }
  }
  BusyEnd(const BusyEnd&) = delete;
  BusyEnd& operator=(const BusyEnd&) = delete;

 private:
  TForm* owner_;
};

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

void CMInterface::ShowResultTotals(const corvane::CorvaneStream& answer) {
  constexpr const char* kLines[][2] = {{"UI51028", "SUCTOTALNUM"},
                                       {"UI51029", "SUCTOTALMONEY"},
                                       {"UI51030", "ERRTOTALNUM"},
                                       {"UI51031", "ERRTOTALMONEY"}};
  std::string text;
  for (const auto& [label, field] : kLines) {
    if (!text.empty()) text += "\r\n";
    text += g_pTranslate->Translate(label) + "\t" + answer.getValue(field);
  }
  ShowWarnMsg(text, nullptr);
}

bool CMInterface::SendRequest(const std::string& code, corvane::CorvaneStream& request,
                              corvane::CorvaneStream& answer, TForm* owner) {
  const bool done = Exchange(code, request, answer, owner);
  // The bar pumps messages once more when it goes.
  CheckLife();
  return done;
}

bool CMInterface::Exchange(const std::string& code, corvane::CorvaneStream& request,
                           corvane::CorvaneStream& answer, TForm* owner) {
  const BusyEnd end(owner);
  try {
    // What the user picks in the host meanwhile waits for the end of the exchange.
    const THold hold;
    ShowBar(owner);
    answer.clear();
    answer = g_pSafeCom->SendStream(code, request);
    return true;
  } catch (const corvane::TException& failure) {
    ReportException(failure);
  } catch (const norvik::LifeEnded&) {
    throw;
  } catch (...) {
    // Nothing is known about a failure of another class that could be told to the user.
  }
  answer.clear();
  return false;
}

std::string CMInterface::GetOperatorNo() {
  try {
    return UserField("OPRNO");
  } catch (const corvane::TException& failure) {
    ReportException(failure);
    return {};
  }
}

std::string CMInterface::GetServerDate() {
  return g_pSafeCom->GetServerTime().getDateTime().substr(0, 8);
}

bool CMInterface::NormalizeAmount(const char* text, std::string& out) {
  return norvik::NormalizeAmountText(text == nullptr ? "" : text, out);
}

bool CMInterface::LoadBusinessFlows(const char* bsnCode) {
  m_flows.clear();
  m_flowsPrimary.clear();
  m_flowsOther.clear();
  m_bsnCode = bsnCode;
  try {
    corvane::Row criteria;
    criteria["BSNCODE"] = m_bsnCode;
    corvane::List businesses = g_pPubInfo->GetList("CMLGBSN").filter(criteria, true);
    corvane::List operations = g_pPubInfo->GetList("CMLGBSNOPR");
    for (unsigned i = 0; i < businesses.size(); ++i) {
      corvane::Row flow;
      flow["FLOWID"] = Value(businesses[i], "FLOWID");
      for (unsigned j = 0; j < operations.size(); ++j) {
        if (Value(operations[j], "FLOWID") != flow.getValue("FLOWID")) continue;
        m_flows.addRow(flow);
        (Value(operations[j], "PSTCLASS") == "01" ? m_flowsPrimary : m_flowsOther).addRow(flow);
      }
    }
    return true;
  } catch (const corvane::TException& failure) {
    ReportException(failure);
    return false;
  }
}

int CMInterface::FindColumnByCaption(TKVXListView* listView, const std::string& caption) {
  for (int i = 0; i < listView->Columns().Count(); ++i) {
    if (listView->Columns()[i]->Caption() == caption) return i + 1;
  }
  return -1;
}

void CMInterface::PrintRecords(const std::string& className, const std::string& text, corvane::Row& head,
                               corvane::List& rows) {
  try {
    g_pPrint->PrintList(className, text, head, rows);
  } catch (const corvane::TException& failure) {
    ReportException(failure);
  }
}

void CMInterface::PrintSetup(const std::string& className) {
  try {
    g_pPrint->PrintSetup(className);
  } catch (const corvane::TException& failure) {
    ReportException(failure);
  }
}

void CMInterface::ExportRecords(const std::string& fileName, corvane::Row& head, corvane::List& columns,
                                corvane::List& rows, std::uint8_t fileType) {
  try {
    norvik::CompleteExportHead(head, UserField("OPRNM"));
    if (norvik::IsTextFileName(fileName)) fileType = kText;
    if (fileType == kWorkbook) g_pExcel->ExportExcel(fileName, head, columns, rows);
    if (fileType == kText) {
      g_pExcel->ExportText(fileName, head, columns, rows, kTextSeparator, kTextOption);
    }
  } catch (const corvane::TException& failure) {
    ReportException(failure);
  }
}

void CMInterface::SetControlHint(TControl* control) {
  std::string text;
  if (const auto* combo = dynamic_cast<TKVXComboBox*>(control)) {
    text = combo->Text();
  } else if (const auto* label = dynamic_cast<TLabel*>(control)) {
    text = label->Caption();
  } else {
    return;
  }
  control->SetShowHint(true);
  control->SetHint(text);
}

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
