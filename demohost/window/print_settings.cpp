#include "demohost/window/print_settings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>

#include "demohost/host_words.h"

namespace demohost {
namespace {

QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

bool AskPrintSettings(InfoStore& store, const std::string& language, QWidget* parent) {
  QDialog dialog(parent);
  dialog.setObjectName(QStringLiteral("demohost_print_settings"));
  dialog.setWindowTitle(ToQt(Word(HostWord::kPrintSettings, language)));
  auto* form = new QFormLayout(&dialog);
  auto* paper = new QComboBox;
  paper->setObjectName(QStringLiteral("m_cbxPaper"));
  paper->addItems({QStringLiteral("A4"), QStringLiteral("A3")});
  paper->setCurrentText(ToQt(store.GetIniValue("SYSCONFIG_DATA", "CLIENT.PRINT", "Paper")));
  form->addRow(ToQt(Word(HostWord::kPaper, language)), paper);
  auto* landscape = new QCheckBox(ToQt(Word(HostWord::kLandscape, language)));
  landscape->setObjectName(QStringLiteral("m_chkLandscape"));
  landscape->setChecked(store.GetIniValue("SYSCONFIG_DATA", "CLIENT.PRINT", "Portrait") != "1");
  form->addRow(landscape);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  form->addRow(buttons);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  if (dialog.exec() != QDialog::Accepted) return false;
  store.SetIniValue("SYSCONFIG_DATA", "CLIENT.PRINT", "Paper", paper->currentText().toStdString());
  store.SetIniValue("SYSCONFIG_DATA", "CLIENT.PRINT", "Portrait", landscape->isChecked() ? "0" : "1");
  return true;
}

}  // namespace demohost
