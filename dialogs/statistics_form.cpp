#include "dialogs/statistics_form.h"

#include <algorithm>
#include <stdexcept>

#include "dialogs/message_keys.h"
#include "dialogs/messages.h"
#include "dialogs/statistics.h"
#include "dialogs/validators.h"
#include "framework/business/batch_rows.h"
#include "framework/columns/column_table.h"
#include "host/pub_info.h"
#include "host/translate.h"
#include "toolkit/conversion.h"
#include "toolkit/layout.h"

namespace {

constexpr int kFirstColumnsWidth = 120;
constexpr int kUnknownWidth = 200;

void AddColumn(TListView* table, const std::string& caption, TAlignment alignment, int width) {
  TListColumn* column = table->Columns().Add();
  column->SetCaption(caption);
  column->SetAlignment(alignment);
  column->SetWidth(width);
}

}  // namespace

TfrmStatistics::TfrmStatistics(TComponent* owner) : TBaseForm(owner), m_ownerClass(owner->ClassName()) {}

void TfrmStatistics::BuildControls() {
  TBaseForm::BuildControls();
  m_lbAll = NewComponent<TLabel>(this, "m_lbAll");
  m_lbSelected = NewComponent<TLabel>(this, "m_lbSelected");
  m_pnlAll = NewComponent<TbsSkinPanel>(this, "m_pnlAll");
  m_pnlSelected = NewComponent<TbsSkinPanel>(this, "m_pnlSelected");
  m_SkinScrollBarAllH = NewComponent<TbsSkinScrollBar>(this, "m_SkinScrollBarAllH", sbHorizontal);
  m_SkinScrollBarAllV = NewComponent<TbsSkinScrollBar>(this, "m_SkinScrollBarAllV", sbVertical);
  m_SkinScrollBarSelectedH = NewComponent<TbsSkinScrollBar>(this, "m_SkinScrollBarSelectedH", sbHorizontal);
  m_SkinScrollBarSelectedV = NewComponent<TbsSkinScrollBar>(this, "m_SkinScrollBarSelectedV", sbVertical);
  m_ltvInfo = BuildTable(m_pnlAll, "m_ltvInfo", m_SkinScrollBarAllH, m_SkinScrollBarAllV);
  m_ltvSelected =
      BuildTable(m_pnlSelected, "m_ltvSelected", m_SkinScrollBarSelectedH, m_SkinScrollBarSelectedV);
  m_btnOk = NewComponent<TbsSkinButton>(this, "m_btnOk");
  m_btnOk->OnClick = [this](TObject*) { Close(); };
  TColumnLayout column(this);
  column.SetMargins(12, 12, 12, 12);
  column.SetSpacing(6);
  column.Add(m_lbAll);
  column.Add(m_pnlAll, 1);
  column.AddSpace(4);
  column.Add(m_lbSelected);
  column.Add(m_pnlSelected, 1);
  column.AddSpace(4);
  TRowLayout buttons = column.AddRow();
  buttons.AddStretch();
  buttons.Add(m_btnOk);
  SetBorderStyle(bsSizeable);
  SetPosition(poOwnerFormCenter);
  SetWidth(660);
  SetHeight(430);
}

TListView* TfrmStatistics::BuildTable(TbsSkinPanel* panel, const char* name, TbsSkinScrollBar* horizontal,
                                      TbsSkinScrollBar* vertical) {
  auto* table = NewComponent<TListView>(this, name);
  table->SetViewStyle(vsReport);
  table->SetGridLines(true);
  table->SetReadOnly(true);
  table->SetRowSelect(true);
  TColumnLayout(panel).Add(table, 1);
  horizontal->AttachTo(table);
  vertical->AttachTo(table);
  return table;
}

void TfrmStatistics::SetCaptions() {
  m_btnOk->SetCaption("UI12007");
  m_lbAll->SetCaption("UI12578");
  m_lbSelected->SetCaption("UI12579");
}

void TfrmStatistics::Construct() {
  TBaseForm::Construct();
  try {
    m_fieldDefs = g_pPubInfo->GetIniplusList(norvik::kColumnTable, m_ownerClass);
  } catch (const corvane::TException& failure) {
    ReportException(failure);
  }
}

void TfrmStatistics::ResetForm() {
  TBaseForm::ResetForm();
  SetCancelButton(m_btnOk);
  SetActiveControl(m_btnOk);
}

bool TfrmStatistics::Prepare(TForm* owner, TKVXListView* listView, const corvane::StringVector& columns,
                             const std::string& caption) {
  m_listView = listView;
  m_sumColumns = columns;
  m_ownerClass = owner->ClassName();
  SetCaption(caption);
  try {
    Compute();
    return true;
  } catch (const norvik::LifeEnded&) {
    throw;
  } catch (...) {
    ShowInfoMsg(TranslateKey(norvik::message::kNoSums), this);
    return false;
  }
}

void TfrmStatistics::Compute() {
  AddRecords(false);
  BuildColumns(m_ltvInfo);
  Fill(m_ltvInfo);
  m_sums.clear();
  AddRecords(true);
  BuildColumns(m_ltvSelected);
  Fill(m_ltvSelected);
}

void TfrmStatistics::AddRecords(bool checkedOnly) {
  const TListItems& items = m_listView->Items();
  for (int i = 0; i < items.Count(); ++i) {
    const TListItem* item = items.Item(i);
    if (!checkedOnly || item->Checked()) AddRecord(item);
  }
}

std::string TfrmStatistics::CurrencyOf(const corvane::Property& record) {
  if (record.hasField("CRYTYPE")) return record.getValue("CRYTYPE");
  if (!usualCurrency_) usualCurrency_ = g_pTranslate->Translate("UI42325");
  return *usualCurrency_;
}

void TfrmStatistics::AddRecord(const TListItem* item) {
  const corvane::Property& record = *item->Data();
  const std::string currency = CurrencyOf(record);
  if (record.getValue("Color") == norvik::kRefusedColor) throw std::runtime_error("");
  auto& [records, sums] = m_sums[currency];
  for (const std::string& id : m_sumColumns) {
    const std::string amount = record.getValue(id);
    if (!amount.empty()) sums[id] += TDecimal(amount);
  }
  ++records;
}

// A column without a definition has the caption and the width of the sum column before it.
void TfrmStatistics::BuildColumns(TListView* table) {
  table->Columns().Clear();
  AddColumn(table, g_pTranslate->Translate("UI12576"), taLeftJustify, kFirstColumnsWidth);
  AddColumn(table, g_pTranslate->Translate("UI12577"), taCenter, kFirstColumnsWidth);
  std::string caption;
  int width = kUnknownWidth;
  for (const std::string& id : m_sumColumns) {
    const int row = m_fieldDefs.find("COLID", id);
    if (row >= 0) {
      const corvane::Row& definition = m_fieldDefs[static_cast<unsigned>(row)];
      caption = g_pTranslate->Translate(definition.getValue("DISPLAY"));
      width = StrToInt(definition.getValue("WIDTH"));
    }
    AddColumn(table, caption, taRightJustify, width);
  }
}

void TfrmStatistics::Fill(TListView* table) const {
  table->Items().Clear();
  for (const auto& [currency, totals] : m_sums) {
    TListItem* item = table->Items().Add();
    item->SetCaption(currency);
    item->AddSubItem(IntToStr(totals.records));
    for (const std::string& id : m_sumColumns) {
      const auto sum = totals.sums.find(id);
      item->AddSubItem(FormatAmount((sum == totals.sums.end() ? TDecimal() : sum->second).ToFixed(2)));
    }
  }
}

void ShowStatistics(TForm* owner, TKVXListView* listView, const std::string& caption,
                    const corvane::StringVector& columns) {
  const TFormPointer<TfrmStatistics> form(CreateForm<TfrmStatistics>(owner));
  if (form->Prepare(owner, listView, columns, caption)) form->ShowModal();
}
