#include "demohost/window/print_settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>

#include "demohost/client_data.h"
#include "demohost/host_words.h"
#include "demohost/words.h"

namespace demohost {
bool AskPrintSettings(InfoStore& store, const std::string& language, QWidget* parent) {
  QDialog dialog(parent);
  dialog.setObjectName(QStringLiteral("demohost_print_settings"));
  dialog.setWindowTitle(ToQt(Word(HostWord::kPrintSettings, language)));
  auto* form = new QFormLayout(&dialog);
  auto* paper = new QComboBox;
  paper->setObjectName(QStringLiteral("m_cbxPaper"));
  paper->addItems({QStringLiteral("A4"), QStringLiteral("A3")});
  paper->setCurrentText(ToQt(SettingOf(store, kPaperSetting)));
  form->addRow(ToQt(Word(HostWord::kPaper, language)), paper);
  auto* landscape = new QCheckBox(ToQt(Word(HostWord::kLandscape, language)));
  landscape->setObjectName(QStringLiteral("m_chkLandscape"));
  landscape->setChecked(SettingOf(store, kPortraitSetting) != "1");
  form->addRow(landscape);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  form->addRow(buttons);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  if (dialog.exec() != QDialog::Accepted) return false;
  ChangeSetting(store, kPaperSetting, paper->currentText().toStdString());
  ChangeSetting(store, kPortraitSetting, landscape->isChecked() ? "0" : "1");
  return true;
}

}  // namespace demohost
