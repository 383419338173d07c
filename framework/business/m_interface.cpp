#include "framework/business/m_interface.h"

#include <vector>

#include "dialogs/busy.h"
#include "dialogs/message_keys.h"
#include "dialogs/messages.h"
#include "framework/business/batch_rows.h"
#include "framework/columns/column_table.h"
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

std::string UserField(const char* key) {
  corvane::List users = g_pPubInfo->GetList("CMLGUSERINFO");
  return users.size() == 0 ? std::string() : users[0].getValue(key);
}

// Hides the busy form of an exchange, whatever happens in it; also if it could not be shown.
class BusyEnd {
 public:
  explicit BusyEnd(TForm* owner) : owner_(owner) {}
  ~BusyEnd() {
    try {
      HideBar(owner_);
    } catch (const norvik::LifeEnded&) {
      // The form has gone with its life; the code that follows meets the end at its own next check.
    }
  }
  BusyEnd(const BusyEnd&) = delete;
  BusyEnd& operator=(const BusyEnd&) = delete;

 private:
  TForm* owner_;
};

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
  constexpr const char* kLines[][2] = {{norvik::message::kSucceededCount, "SUCTOTALNUM"},
                                       {norvik::message::kSucceededAmount, "SUCTOTALMONEY"},
                                       {norvik::message::kFailedCount, "ERRTOTALNUM"},
                                       {norvik::message::kFailedAmount, "ERRTOTALMONEY"}};
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
  // The busy form processes messages once more when it closes.
  CheckLife();
  return done;
}

bool CMInterface::Exchange(const std::string& code, corvane::CorvaneStream& request,
                           corvane::CorvaneStream& answer, TForm* owner) {
  const BusyEnd end(owner);
  try {
    // What the user picks in the host meanwhile waits until the exchange has ended.
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
    // A failure of another class has no key and so no text for the user; the caller sees an exchange that
    // failed.
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
      flow["FLOWID"] = businesses[i].getValue("FLOWID");
      for (unsigned j = 0; j < operations.size(); ++j) {
        if (operations[j].getValue("FLOWID") != flow.getValue("FLOWID")) continue;
        m_flows.addRow(flow);
        (operations[j].getValue("PSTCLASS") == "01" ? m_flowsPrimary : m_flowsOther).addRow(flow);
      }
    }
    return true;
  } catch (const corvane::TException& failure) {
    ReportException(failure);
    return false;
  }
}

int CMInterface::FindColumnByCaption(TKVXListView* listView, const std::string& caption) {
  const TListColumn* column = norvik::FindColumn(listView, caption);
  return column == nullptr ? -1 : column->Index() + 1;
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
    corvane::List fieldDefs = g_pPubInfo->GetIniplusList(norvik::kColumnTable, className);
    bool whole = true;
    if (fieldDefs.size() == 0) {
      listView->SetColumnsWhole(true);
      return;
    }
    corvane::List savedLayout = g_pPubInfo->GetIniplusList(norvik::kLayoutDocument, className);
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
    column->SetMaxWidth(norvik::kHiddenMaxWidth);
  } else {
    columnRow["COLID"] = fieldDef.getValue("COLID");
    caption = g_pTranslate->Translate(fieldDef.getValue("DISPLAY"));
    column->SetCaption(caption);
  }
  column->SetWidth(StrToInt(fieldDef.getValue("WIDTH")));
  if (column->Width() == 0 && !caption.empty()) {
    column->SetMaxWidth(norvik::kHiddenMaxWidth);
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
    record["Color"] = norvik::kRefusedColor;
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
