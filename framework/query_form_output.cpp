// What TQueryForm gives out: files, print, and itself as a shortcut on the desktop.
#include <QFileInfo>

#include "dialogs/messages.h"
#include "framework/output_columns.h"
#include "framework/query_form.h"
#include "host/pub_info.h"
#include "toolkit/action.h"
#include "toolkit/dialogs.h"
#include "toolkit/labels.h"
#include "toolkit/list_view.h"
#include "toolkit/text.h"

namespace {

// The choices of the save dialog's filter, in its order.
struct OutputKind {
  const char* extension;
  std::uint8_t type;
};
constexpr OutputKind kOutputKinds[] = {{".xls", 1}, {".txt", 3}, {".xml", 2}};

std::string FontSetting(const char* item) {
  return g_pPubInfo->GetIniValue("SYSCONFIG_DATA", "APPLICATION.FONT", item);
}

// A column that the user hid has width 0; one that was never shown has a greatest width of 1.
std::vector<norvik::ShownColumn> ShownColumnsOf(TKVXListView* listView) {
  std::vector<norvik::ShownColumn> shown;
  for (int i = 0; i < listView->Columns().Count(); ++i) {
    const TListColumn* column = listView->Columns()[i];
    if (column->Width() == 0 || column->MaxWidth() == 1) continue;
    shown.push_back({listView->ColumnIds()[static_cast<std::size_t>(i)], column->Caption()});
  }
  return shown;
}

}  // namespace

void TQueryForm::m_sdOutputTypeChange(TObject*) {
  const int index = m_sdOutput->FilterIndex() - 1;
  if (index < 0 || index >= static_cast<int>(std::size(kOutputKinds))) return;
  m_sdOutput->SetDefaultExt(kOutputKinds[index].extension);
  m_nOutputType = kOutputKinds[index].type;
}

void TQueryForm::m_actOutputExecute(TObject*) {
  const bool allColumns = !m_bAskColumns || ShowConfirmMsg(TranslateKey("UI60007"), nullptr);
  if (!m_sdOutput->Execute(this)) return;
  const std::string fileName = m_sdOutput->FileName();
  if (QFileInfo::exists(ToQt(fileName)) && !ShowConfirmMsg(TranslateKey("UI12572"), this)) return;
  OutputRecords(fileName, allColumns);
}

void TQueryForm::OutputRecords(const AnsiString& fileName, bool allColumns) {
  corvane::List records = CheckedRecords();
  corvane::Row head;
  corvane::List columns;
  try {
    head["TYPENAME"] = TranslateKey("UI20000");
    head["TYPEVAL"] = m_strExportType;
    head["TITLENAME"] = TranslateKey("UI20001");
    head["TITLEVAL"] = Caption();
    head["FONTNAME"] = FontSetting("Name");
    head["FONTSIZE"] = FontSetting("Size");
    corvane::List fieldDefs = g_pPubInfo->GetIniplusList("FIELDDEF", ClassName());
    columns = allColumns ? norvik::TableColumns(fieldDefs, &TBaseForm::TranslateKey)
                         : norvik::ShownColumns(fieldDefs, ShownColumnsOf(m_lvMain));
  } catch (const corvane::TException& failure) {
    ReportException(failure);
    return;
  }
  m_pIntf->ExportRecords(fileName, head, columns, records, m_nOutputType);
}

void TQueryForm::m_actPrintExecute(TObject*) {
  PrintChecked(*m_pIntf);
}

void TQueryForm::PrintChecked(CMInterface& business) {
  corvane::Row head;
  try {
    head = g_pPubInfo->GetIniplusRow("FIELDDEF", ClassName(), 0);
  } catch (const corvane::TException& failure) {
    ReportException(failure);
    return;
  }
  corvane::List records = CheckedRecords();
  business.PrintRecords(ClassName(), {}, head, records);
}

void TQueryForm::m_actPrintSetExecute(TObject*) {
  m_pIntf->PrintSetup(ClassName());
}

void TQueryForm::m_actSendToDesktopExecute(TObject*) {
  const std::string iconFile =
      g_pPubInfo->GetField("ENVIRONMENT", "ENV.IMAGES").getValue() + ClassName() + ".ico";
  m_imgTitle->SaveIconToFile(iconFile);
  g_pPubInfo->SetField("ENVIRONMENT", corvane::Field("CURSHORTCUT.ITEMIMAGE", iconFile));
  SendToDesktop(m_strItemName);
}
