#include "dialogs/busy.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <set>

#include "dialogs/busy_form.h"
#include "dialogs/busy_frames.h"
#include "tests/support/form_host.h"
#include "toolkit/application.h"
#include "toolkit/screen.h"

using fakehost::Library;

namespace {

// Two frames of 2 by 2 pixels, black and white, 50 milliseconds each.
constexpr unsigned char kTwoFrames[] = {'G',  'I',  'F', '8', '9', 'a', 2,   0, 2,    0,    0x80, 0,
                                        0,    0,    0,   0,   255, 255, 255,  // two colours
                                        0x21, 0xf9, 4,   0,   5,   0,   0,   0, 0x2c, 0,    0,    0,
                                        0,    2,    0,   2,   0,   0,   2,   2, 0x84, 0x51, 0,  // all black
                                        0x21, 0xf9, 4,   0,   5,   0,   0,   0, 0x2c, 0,    0,    0,
                                        0,    2,    0,   2,   0,   0,   2,   2, 0x8c, 0x53, 0,  // all white
                                        0x3b};

struct Busy : testing::Test {
  Busy() { host.SetField("ENVIRONMENT", "ENV.IMAGES", directory.path().toStdString() + "/"); }

  std::string Write(const char* name, const QByteArray& content) {
    QFile file(directory.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName().toStdString();
  }
  static TBusyForm* Shown() { return static_cast<TBusyForm*>(ShownForm(TBusyForm::staticMetaObject)); }
  static int Forms() { return Screen->FormCount(); }

  QTemporaryDir directory;
  FormHost host;
};

class TOtherForm : public TForm {
  Q_OBJECT

 public:
  using TForm::TForm;
};

TEST_F(Busy, BarLivesFromShowToHideOneForAClass) {
  TForm* owner = CreateForm<TForm>(Application);
  TForm* sister = CreateForm<TForm>(Application);
  TForm* other = CreateForm<TOtherForm>(Application);
  const int before = Forms();
  ShowBar(owner);
  ASSERT_NE(Shown(), nullptr);
  EXPECT_EQ(Shown()->ClassName(), "TBarForm");
  EXPECT_EQ(Shown()->Owner(), owner);
  EXPECT_EQ(Shown()->Width(), 350);
  EXPECT_EQ(Shown()->Height(), 60);
  EXPECT_EQ(Shown()->m_amtmain->Widget()->size(), QSize(350, 60));
  EXPECT_EQ(Shown()->Position(), poScreenCenter);
  EXPECT_EQ(Shown()->FormStyle(), fsStayOnTop);
  EXPECT_EQ(Shown()->BorderStyle(), bsNone);
  EXPECT_TRUE(Shown()->m_amtmain->Active());
  ShowBar(other);
  EXPECT_EQ(Forms(), before + 2);
  ShowBar(sister);  // takes the place of its class
  EXPECT_EQ(Forms(), before + 2);
  HideBar(owner);
  EXPECT_EQ(Forms(), before + 1);
  HideBar(owner);
  EXPECT_EQ(Forms(), before + 1);
  HideBar(other);
  EXPECT_EQ(Forms(), before);
  EXPECT_EQ(Shown(), nullptr);
}

TEST_F(Busy, BarGoesWithItsOwner) {
  TForm* owner = CreateForm<TForm>(Application);
  ShowBar(owner);
  DestroyForm(owner);
  EXPECT_EQ(Shown(), nullptr);
  TForm* next = CreateForm<TForm>(Application);
  HideBar(next);
  ShowBar(next);
  EXPECT_NE(Shown(), nullptr);
  HideBar(next);
}

TEST_F(Busy, WaitFormIsOneAndNeedsNoOwner) {
  HideWait();
  ShowWait(nullptr);
  ASSERT_NE(Shown(), nullptr);
  EXPECT_EQ(Shown()->ClassName(), "TWaitForm");
  EXPECT_EQ(Shown()->Width(), 178);
  EXPECT_EQ(Shown()->Height(), 45);
  EXPECT_EQ(Shown()->Position(), poOwnerFormCenter);
  const int one = Forms();
  ShowWait(nullptr);
  EXPECT_EQ(Forms(), one);
  HideWait();
  EXPECT_EQ(Forms(), one - 1);
}

TEST_F(Busy, AnimationFileIsTakenFromTheImageDirectory) {
  Write("PROCESS.AVI", QByteArray(reinterpret_cast<const char*>(kTwoFrames), sizeof kTwoFrames));
  TForm* owner = CreateForm<TForm>(Application);
  ShowBar(owner);
  EXPECT_EQ(Shown()->m_amtmain->FileName(), directory.filePath("PROCESS.AVI").toStdString());
  HideBar(owner);
  ShowWait(owner);  // LOCALPROCESS.AVI is not there
  EXPECT_EQ(Shown()->m_amtmain->FileName(), "");
  HideWait();
  host.libraries.SetAnswer(Library::kPublicInformation, 24, {"ENVIRONMENT", "ENV.IMAGES"},
                           fakehost::Refusal("no images"));
  EXPECT_THROW(ShowBar(owner), corvane::TIOException);
  HideBar(owner);
  EXPECT_EQ(Shown(), nullptr);
}

TEST_F(Busy, AFileIsPlayedToItsEndWhereverTheBuiltInAnimationStops) {
  TForm* form = CreateForm<TForm>(Application);
  TAnimate animation(form);
  animation.SetParent(form);
  animation.SetStopFrame(1);
  animation.SetFileName(
      Write("two.gif", QByteArray(reinterpret_cast<const char*>(kTwoFrames), sizeof kTwoFrames)));
  animation.SetActive(true);
  std::set<QRgb> colours;
  for (int looks = 0; looks < 40 && colours.size() < 2; ++looks) {
    QEventLoop wait;
    QTimer::singleShot(TAnimate::kFrameTime / 4, &wait, &QEventLoop::quit);
    wait.exec();
    const QImage picture = animation.Widget()->grab().toImage();
    colours.insert(picture.pixel(picture.width() / 2, picture.height() / 2));
  }
  EXPECT_EQ(colours, (std::set<QRgb>{qRgb(0, 0, 0), qRgb(255, 255, 255)}));
}

TEST_F(Busy, TimersWaitWhileTheBarPumps) {
  TForm* owner = CreateForm<TForm>(Application);
  int runs = 0;
  Application->QueueCall(owner, [&] { ++runs; });
  ShowBar(owner);
  EXPECT_EQ(runs, 0);
  HideBar(owner);
  EXPECT_EQ(runs, 0);
  QCoreApplication::processEvents();
  EXPECT_EQ(runs, 1);
}

TEST_F(Busy, FramesKeepTheFormAndMoveInTheArea) {
  QImage window(60, 40, QImage::Format_RGB32);
  window.fill(Qt::gray);
  window.setPixelColor(50, 35, Qt::red);
  const QRect area(10, 10, 30, 20);
  const QByteArray gif(reinterpret_cast<const char*>(kTwoFrames), sizeof kTwoFrames);
  const struct {
    std::string file;
    std::size_t frames;
  } cases[] = {{"", 32},
               {Write("good.gif", gif), 2},
               {directory.filePath("missing.gif").toStdString(), 32},
               {Write("broken.gif", gif.left(15)), 32},
               {Write("text.avi", "no pictures here"), 32}};
  TForm* form = CreateForm<TForm>(Application);
  for (const auto& row : cases) {
    SCOPED_TRACE(row.file);
    TAnimate animation(form);
    animation.SetCommonAVI(aviFindFolder);
    animation.SetFileName(row.file);
    const auto frames = norvik::ComposeFrames(window, area, animation.Frames(area.size()));
    EXPECT_EQ(frames.size(), row.frames);
    std::set<QByteArray> pictures;
    for (const QImage& frame : frames) {
      EXPECT_EQ(frame.pixelColor(50, 35), QColor(Qt::red));
      EXPECT_EQ(frame.pixelColor(0, 0), QColor(Qt::gray));
      pictures.insert(QByteArray(reinterpret_cast<const char*>(frame.constBits()), frame.sizeInBytes()));
    }
    EXPECT_GT(pictures.size(), 1U);
  }
  EXPECT_TRUE(norvik::ComposeFrames(QImage(), area, {window}).empty());
}

}  // namespace

#include "busy_test.moc"
