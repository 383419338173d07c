#include "toolkit/save_dialog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>

#include "tests/toolkit/test_form.h"
#include "toolkit/animate.h"
#include "toolkit/application.h"
#include "toolkit/text.h"

namespace {

constexpr const char* kFilter = "Excel文件(*.xls)|*.xls|文本文件(*.txt)|*.txt|XML文件(*.xml)|*.xml";

// Plays the user: picks a filter by its place from 1 (0: none), types a name, and accepts or leaves.
bool Play(TSaveDialog* dialog, int filter, const QString& name, bool accept) {
  QTimer::singleShot(0, dialog, [=] {
    auto* shown = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->objectName(), "m_sdOutput");
    auto* types = shown->findChild<QComboBox*>("fileTypeCombo");
    if (filter > 0) {
      types->setCurrentIndex(filter - 1);
      types->textActivated(types->itemText(filter - 1));
    }
    shown->findChild<QLineEdit*>("fileNameEdit")->setText(name);
    accept ? static_cast<QDialog*>(shown)->accept() : shown->reject();
  });
  return dialog->Execute();
}

}  // namespace

TEST(SaveDialog, GivesTheNameWithTheExtensionOfTheChosenType) {
  const QTemporaryDir folder;
  struct Case {
    const char* what;
    int filter;
    const char* name;
    const char* expected;
    const char* types;
  };
  const Case cases[] = {
      {"default type", 0, "bills", "bills.xls", ""},
      {"text", 2, "bills", "bills.txt", "2"},
      {"an extension of its own", 0, "bills.TXT", "bills.TXT", ""},
      {"xml", 3, "a.b", "a.b", "3"},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(row.what);
    auto* form = CreateForm<TTestForm>(Application);
    auto* dialog = NewComponent<TSaveDialog>(form, "m_sdOutput");
    dialog->SetFilter(Ansi(kFilter));
    dialog->SetDefaultExt(".xls");
    std::string types;
    dialog->OnTypeChange = [&](TObject*) {
      types += std::to_string(dialog->FilterIndex());
      dialog->SetDefaultExt(dialog->FilterIndex() == 2 ? ".txt" : ".xml");
    };
    EXPECT_TRUE(Play(dialog, row.filter, folder.filePath(row.name), true));
    EXPECT_EQ(ToQt(dialog->FileName()), folder.filePath(row.expected));
    EXPECT_EQ(types, row.types);
    DestroyForm(form);
  }
}

TEST(SaveDialog, AsksNothingAboutAnExistingFileAndLeavesItAlone) {
  const QTemporaryDir folder;
  QFile file(folder.filePath("bills.xls"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("kept");
  file.close();
  auto* dialog = NewComponent<TSaveDialog>(Application, "m_sdOutput");
  dialog->SetFilter(Ansi(kFilter));
  EXPECT_TRUE(Play(dialog, 0, file.fileName(), true));
  EXPECT_EQ(file.size(), 4);
}

TEST(SaveDialog, ListsAFolderWithoutReadingItsFiles) {
  const QString waits = "/proc/kmsg";  // a privileged reader waits in it for the next message
  if (!QFileInfo::exists(waits)) GTEST_SKIP();
  auto* dialog = NewComponent<TSaveDialog>(Application, "m_sdOutput");
  dialog->SetFileName("/proc/bills.xls");
  QString type;
  QTimer look;
  look.callOnTimeout([&] {
    auto* shown = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(shown, nullptr);
    const auto* files = shown->findChild<QFileSystemModel*>();
    type = files->index(waits, 2).data().toString();
    if (!type.isEmpty()) shown->reject();
  });
  look.start(5);
  EXPECT_FALSE(dialog->Execute());
  EXPECT_FALSE(type.isEmpty());
}

TEST(SaveDialog, ACancelKeepsTheNameOfBefore) {
  auto* dialog = NewComponent<TSaveDialog>(Application, "m_sdOutput");
  dialog->SetFileName("before.xls");
  EXPECT_FALSE(Play(dialog, 0, "other", false));
  EXPECT_EQ(dialog->FileName(), "before.xls");
}

TEST(Image, WritesItsPictureAsAnIconAndSaysWhenItCant) {
  const QTemporaryDir folder;
  auto* form = CreateForm<TTestForm>(Application);
  auto* image = NewComponent<TImage>(form, "m_imgTitle");
  image->SetStock(siBill, 32);
  const std::string path = FromQt(folder.filePath("TfrmNorvikQry.ico"));
  image->SaveIconToFile(path);
  auto* copy = NewComponent<TImage>(form, "m_copy");
  copy->LoadFromFile(path);
  EXPECT_EQ(copy->Widget()->sizeHint(), QSize(32, 32));
  EXPECT_THROW(image->SaveIconToFile(FromQt(folder.filePath("none/x.ico"))), std::runtime_error);
  EXPECT_THROW(copy->LoadFromFile(FromQt(folder.filePath("missing.ico"))), std::runtime_error);
}

TEST(Image, EveryStockPictureHasInkButTheEmptyOne) {
  for (int image = siNone; image <= siDown; ++image) {
    const QImage drawn = StockPixmap(static_cast<TStockImage>(image), 16).toImage();
    bool ink = false;
    for (int i = 0; i < 256; ++i) ink = ink || qAlpha(drawn.pixel(i % 16, i / 16)) != 0;
    EXPECT_EQ(ink, image != siNone) << image;
  }
}

TEST(Animate, PlaysAFileAndFallsBackToTheBuiltInOne) {
  const QTemporaryDir folder;
  auto* form = CreateForm<TTestForm>(Application);
  auto* animate = NewComponent<TAnimate>(form, "m_amtmain");
  animate->SetCommonAVI(aviCopyFiles);
  animate->SetFileName(FromQt(folder.filePath("PROCESS.AVI")));
  const std::vector<QImage> builtIn = animate->Frames({120, 40});
  ASSERT_GT(builtIn.size(), 8U);
  EXPECT_NE(builtIn[0], builtIn[builtIn.size() / 2]);
  QImage frame(30, 20, QImage::Format_RGB32);
  frame.fill(Qt::red);
  ASSERT_TRUE(frame.save(folder.filePath("PROCESS.AVI"), "PNG"));
  animate->SetFileName(FromQt(folder.filePath("PROCESS.AVI")));
  const std::vector<QImage> read = animate->Frames({120, 40});
  ASSERT_EQ(read.size(), 1U);
  EXPECT_EQ(read[0].pixelColor(60, 20), QColor(Qt::red));
  EXPECT_EQ(read[0].pixelColor(2, 2).alpha(), 0);
}
