#include "framework/m_query_intf.h"

#include "framework/state_texts.h"
#include "host/translate.h"
#include "toolkit/date_edit.h"
#include "toolkit/list_view.h"
#include "toolkit/radio_group.h"

using norvik::DateRange;
using norvik::QuickDate;

void CMQueryIntf::FillListView(TKVXListView* listView, corvane::List& rows) {
  listView->Clear();
  listView->Add(rows, listView->ColumnIds().toString("; ", false));
}

void CMQueryIntf::FormatStatus(corvane::List& rows, const std::string& key7) {
  for (unsigned i = 0; i < rows.size(); ++i) {
    std::string& state = rows[i]["STT"];
    const std::string key = norvik::StateTextKey(state, key7);
    if (key.empty()) continue;
    const std::string text = g_pTranslate->Translate(key);
    m_statusTexts[text] = state;
    state = text;
  }
}

void CMQueryIntf::FormatAgree(corvane::List& rows) {
  for (unsigned i = 0; i < rows.size(); ++i) {
    std::string& approval = rows[i]["AGREE"];
    const std::string key = norvik::ApprovalTextKey(approval);
    if (!key.empty()) approval = g_pTranslate->Translate(key);
  }
}

void CMQueryIntf::ApplyDateRadio(TKVXDateTime* startEdit, TKVXDateTime* endEdit, TbsSkinRadioGroup* radio) {
  const DateRange range = norvik::QuickRange(static_cast<QuickDate>(radio->ItemIndex()), GetServerDate());
  if (range.start.empty()) return;
  startEdit->SetText(range.start);
  endEdit->SetText(range.end);
}

void CMQueryIntf::SyncDateRadio(TKVXDateTime* startEdit, TKVXDateTime* endEdit, TbsSkinRadioGroup* radio) {
  const auto shown = static_cast<QuickDate>(radio->ItemIndex());
  const QuickDate fitting = norvik::QuickDateOf({startEdit->Text(), endEdit->Text()}, shown, GetServerDate());
  if (fitting != shown) radio->SetItemIndex(static_cast<int>(fitting));
}

void CMQueryIntf::LimitStartDate(TKVXDateTime* startEdit, TKVXDateTime* endEdit, TbsSkinRadioGroup* radio) {
  LimitDate(startEdit, startEdit, endEdit, radio);
}

void CMQueryIntf::LimitEndDate(TKVXDateTime* startEdit, TKVXDateTime* endEdit, TbsSkinRadioGroup* radio) {
  LimitDate(endEdit, startEdit, endEdit, radio);
}

void CMQueryIntf::LimitDate(TKVXDateTime* limited, TKVXDateTime* startEdit, TKVXDateTime* endEdit,
                            TbsSkinRadioGroup* radio) {
  const std::string date = limited->Text();
  if (date.empty()) return;
  const std::string allowed = norvik::NotAfter(date, GetServerDate());
  if (allowed != date) limited->SetText(allowed);
  SyncDateRadio(startEdit, endEdit, radio);
}
