#include "toolkit/save_dialog.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QPointer>

#include "toolkit/event_guard.h"
#include "toolkit/form.h"
#include "toolkit/text.h"

namespace {

// The texts of a filter as the file dialog takes them: the pattern in brackets after each text that lacks
// it.
QStringList NameFilters(const QString& filter) {
  const QStringList parts = filter.split(QLatin1Char('|'));
  QStringList names;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString text = parts[i].section(QLatin1Char('('), 0, 0).trimmed();
    QString pattern = parts[i + 1];
    names << text + QLatin1String(" (") + pattern.replace(QLatin1Char(';'), QLatin1Char(' ')) +
                 QLatin1Char(')');
  }
  return names;
}

// The type of a file is taken from its name: looking into a file could wait for ever, as in a pipe.
class NamedFiles : public QFileIconProvider {
 public:
  using QFileIconProvider::icon;
  QIcon icon(const QFileInfo& info) const override { return icon(info.isDir() ? Folder : File); }
  QString type(const QFileInfo& info) const override {
    return QMimeDatabase().mimeTypeForFile(info, QMimeDatabase::MatchExtension).comment();
  }
};

}  // namespace

std::string TSaveDialog::WithExtension(const std::string& name) const {
  if (defaultExt_.empty() || !QFileInfo(ToQt(name)).suffix().isEmpty()) return name;
  return name + (defaultExt_[0] == '.' ? "" : ".") + defaultExt_;
}

bool TSaveDialog::Execute(TForm* parent) {
  const TLifeScope scope(LifeOf(this));
  scope.Check();
  const QPointer<TSaveDialog> self(this);
  NamedFiles files;
  const QPointer<QFileDialog> dialog(
      new QFileDialog(parent == nullptr ? QApplication::activeWindow() : parent->Widget()));
  const QStringList names = NameFilters(ToQt(filter_));
  dialog->setIconProvider(&files);
  dialog->setObjectName(objectName());
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setFileMode(QFileDialog::AnyFile);
  // Whether a file may be replaced is the caller's question.
  dialog->setOption(QFileDialog::DontConfirmOverwrite);
  dialog->setOption(QFileDialog::DontUseNativeDialog);
  if (!title_.empty()) dialog->setWindowTitle(ToQt(title_));
  dialog->setNameFilters(names);
  if (filterIndex_ >= 1 && filterIndex_ <= names.size()) dialog->selectNameFilter(names[filterIndex_ - 1]);
  if (!fileName_.empty()) dialog->selectFile(ToQt(fileName_));
  QObject::connect(dialog, &QFileDialog::filterSelected, this, [this, names](const QString& name) {
    filterIndex_ = static_cast<int>(names.indexOf(name)) + 1;
    FireEvent(OnTypeChange, this);
  });
  const bool accepted = dialog->exec() == QDialog::Accepted;
  if (self == nullptr || HasEnded(Life())) delete dialog.data();
  scope.Check();
  if (dialog == nullptr) return false;
  if (accepted) fileName_ = WithExtension(FromQt(dialog->selectedFiles().value(0)));
  delete dialog.data();
  return accepted;
}
