#include "toolkit/properties.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QWidget>

#include "tests/toolkit/test_form.h"
#include "toolkit/action.h"
#include "toolkit/application.h"
#include "toolkit/edits.h"
#include "toolkit/menu.h"
#include "toolkit/skin.h"

TEST(Properties, EachClassPublishesItsOwn) {
  auto* form = CreateForm<TTestForm>(Application);
  struct Case {
    const TObject* object;
    const char* published;
    const char* others;
  };
  const Case cases[] = {
      {form, "Caption Hint Font", "SkinData UseSkinFont Text Items ImeMode"},
      {NewComponent<TLabel>(form, "l"), "Caption Hint Font", "Text SkinData UseSkinFont"},
      {NewComponent<TbsSkinButton>(form, "b"),
       "Caption Hint Font SkinData UseSkinFont UseSkinFontColor UseSkinSize", "Text ImeName DefCaptionFont"},
      {NewComponent<TKVXEdit>(form, "e"), "Text Hint Font SkinData ImeMode ImeName", "Caption"},
      {NewComponent<TMemo>(form, "m"), "Hint Font ImeMode ImeName", "Text Caption SkinData"},
      {NewComponent<TbsSkinExPanel>(form, "p"), "Caption SkinData", "Text"},
      {NewComponent<TPopupMenu>(form, "u"), "Items", "Caption Font Hint"},
      {NewComponent<TAction>(form, "a"), "Caption Hint", "Font"},
      {new TbsBusinessSkinForm(form), "DefCaptionFont DefInActiveCaptionFont DefMenuItemFont",
       "Caption Font"},
      {nullptr, "", "Caption"},
  };
  for (const Case& row : cases) {
    SCOPED_TRACE(ClassName(row.object));
    for (const QString& name : QString::fromLatin1(row.published).split(' ', Qt::SkipEmptyParts)) {
      EXPECT_TRUE(IsPublishedProp(row.object, qPrintable(name))) << qPrintable(name);
    }
    for (const QString& name : QString::fromLatin1(row.others).split(' ')) {
      EXPECT_FALSE(IsPublishedProp(row.object, qPrintable(name))) << qPrintable(name);
    }
    EXPECT_FALSE(IsPublishedProp(row.object, "objectName"));
  }
  EXPECT_FALSE(IsPublishedProp(form->Widget(), "windowTitle") && IsPublishedProp(form->Widget(), "Caption"));
}

TEST(Properties, AreReadAndWrittenByName) {
  auto* form = CreateForm<TTestForm>(Application);
  SetStrProp(form->m_btnFirst, "Caption", "\xB2\xE9\xD1\xAF");
  EXPECT_EQ(form->m_btnFirst->Caption(), "\xB2\xE9\xD1\xAF");
  EXPECT_EQ(GetStrProp(form->m_btnFirst, "Caption"), "\xB2\xE9\xD1\xAF");
  SetPropValue(form->m_btnFirst, "UseSkinFont", false);
  EXPECT_FALSE(form->m_btnFirst->UseSkinFont());
  EXPECT_EQ(GetOrdProp(form->m_btnFirst, "UseSkinFont"), 0);
  auto* skin = NewComponent<TbsSkinData>(form, "m_SkinData");
  SetObjectProp(form->m_btnFirst, "SkinData", skin);
  EXPECT_EQ(GetObjectProp(form->m_btnFirst, "SkinData"), skin);
  auto* edit = NewComponent<TEdit>(form, "e");
  SetOrdProp(edit, "ImeMode", imDisable);
  EXPECT_EQ(edit->ImeMode(), imDisable);
  EXPECT_FALSE(edit->Widget()->testAttribute(Qt::WA_InputMethodEnabled));
  SetOrdProp(edit, "ImeMode", imOpen);
  EXPECT_TRUE(edit->Widget()->testAttribute(Qt::WA_InputMethodEnabled));
}

TEST(Properties, TheFontIsAnObjectWhoseChangesShow) {
  auto* form = CreateForm<TTestForm>(Application);
  form->Show();
  auto* font = qobject_cast<TFont*>(GetObjectProp(form->m_lbText, "Font"));
  ASSERT_NE(font, nullptr);
  font->SetSize(17);
  font->SetName("Noto Sans");
  font->SetStyle(fsBold);
  font->SetCharset(134);
  const QFont shown = form->m_lbText->Widget()->font();
  EXPECT_EQ(shown.pointSize(), 17);
  EXPECT_EQ(shown.family(), "Noto Sans");
  EXPECT_TRUE(shown.bold());
  EXPECT_EQ(font->Charset(), 134);
  font->SetColor(clRed);
  EXPECT_EQ(form->m_lbText->Widget()->palette().color(QPalette::WindowText).name(), "#ff0000");
}

TEST(Properties, OnesThatAreNotThereAreRefused) {
  auto* form = CreateForm<TTestForm>(Application);
  EXPECT_THROW(GetStrProp(form, "Text"), std::invalid_argument);
  EXPECT_THROW(SetStrProp(form, "objectName", "x"), std::invalid_argument);
  EXPECT_THROW(SetOrdProp(form->m_lbText, "UseSkinFont", 1), std::invalid_argument);
  EXPECT_THROW(GetObjectProp(nullptr, "Font"), std::invalid_argument);
  auto* menu = NewComponent<TPopupMenu>(form, "m");
  EXPECT_THROW(SetObjectProp(menu, "Items", nullptr), std::invalid_argument);
}
