#include "toolkit/skin.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "tests/toolkit/test_form.h"
#include "toolkit/application.h"
#include "toolkit/text.h"

namespace {

std::string WriteFile(const QTemporaryDir& folder, const char* name, const QByteArray& content) {
  QFile file(folder.filePath(name));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(content);
  return FromQt(file.fileName());
}

}  // namespace

TEST(Skin, ALoadedSkinShowsOnTheFormNowAndLater) {
  const QTemporaryDir folder;
  const std::string blue = WriteFile(folder, "SK00.skn", qCompress("QLabel { color: #0000ff }"));
  const std::string green = WriteFile(folder, "SK01.skn", qCompress("QLabel { color: #00ff00 }"));
  auto* form = CreateForm<TTestForm>(Application);
  auto* frame = new TbsBusinessSkinForm(form);
  auto* data = NewComponent<TbsSkinData>(form, "m_SkinData");
  frame->SetSkinData(data);
  form->Show();
  const auto colour = [&] { return form->m_lbText->Widget()->palette().color(QPalette::WindowText).name(); };
  EXPECT_TRUE(data->LoadFromCompressedFile(blue));
  EXPECT_EQ(colour(), "#0000ff");
  EXPECT_TRUE(data->LoadFromCompressedFile(green));
  EXPECT_EQ(colour(), "#00ff00");
  form->m_lbText->Font()->SetColor(clRed);
  EXPECT_EQ(colour(), "#ff0000") << "the font's own colour takes precedence over the skin";
}

TEST(Skin, AFileThatIsNoSkinChangesNothing) {
  const QTemporaryDir folder;
  QByteArray bomb = qCompress("QLabel { color: red }");
  bomb[0] = 0x7F;
  struct Case {
    const char* what;
    std::string path;
  };
  const Case cases[] = {
      {"missing", FromQt(folder.filePath("none.skn"))},
      {"a folder", FromQt(folder.path())},
      {"empty", WriteFile(folder, "empty.skn", "")},
      {"too short", WriteFile(folder, "short.skn", "abc")},
      {"plain text", WriteFile(folder, "text.skn", QByteArray("\0\0\0\x20QLabel { color: red }", 26))},
      {"cut off", WriteFile(folder, "cut.skn", qCompress(QByteArray(2000, 'x')).left(12))},
      {"announces two gigabytes", WriteFile(folder, "bomb.skn", bomb)},
      {"unpacks to more than it may", WriteFile(folder, "large.skn", qCompress(QByteArray(5 << 20, ' ')))},
  };
  auto* form = CreateForm<TTestForm>(Application);
  auto* data = NewComponent<TbsSkinData>(form, "m_SkinData");
  ASSERT_TRUE(
      data->LoadFromCompressedFile(WriteFile(folder, "good.skn", qCompress("QLabel { color: blue }"))));
  for (const Case& row : cases) {
    EXPECT_FALSE(data->LoadFromCompressedFile(row.path)) << row.what;
    EXPECT_EQ(data->StyleSheet(), "QLabel { color: blue }") << row.what;
  }
}

TEST(Skin, AFrameOutlivesItsSkinData) {
  auto* form = CreateForm<TTestForm>(Application);
  auto* frame = new TbsBusinessSkinForm(form);
  auto* data = new TbsSkinData(form);
  frame->SetSkinData(data);
  EXPECT_EQ(TbsBusinessSkinForm::Of(form), frame);
  delete data;
  EXPECT_EQ(frame->SkinData(), nullptr);
  delete frame;
  EXPECT_EQ(TbsBusinessSkinForm::Of(form), nullptr);
}
