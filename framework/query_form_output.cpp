// What TQueryForm gives out: files, and itself as a shortcut on the desktop.
#include "dialogs/messages.h"
#include "framework/query_form.h"
#include "host/pub_info.h"
#include "toolkit/labels.h"

void TQueryForm::m_actOutputExecute(TObject*) {
  const bool allColumns = !m_bAskColumns || ShowConfirmMsg(TranslateKey("UI60007"), nullptr);
  const std::string fileName = AskOutputFile();
  if (!fileName.empty()) OutputRecords(fileName, allColumns);
}

void TQueryForm::OutputRecords(const AnsiString& fileName, bool allColumns) {
  WriteRecords(fileName, allColumns);
}

void TQueryForm::m_actSendToDesktopExecute(TObject*) {
  const std::string iconFile =
      g_pPubInfo->GetField("ENVIRONMENT", "ENV.IMAGES").getValue() + ClassName() + ".ico";
  m_imgTitle->SaveIconToFile(iconFile);
  g_pPubInfo->SetField("ENVIRONMENT", corvane::Field("CURSHORTCUT.ITEMIMAGE", iconFile));
  SendToDesktop(m_strItemName);
}
