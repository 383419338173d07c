#include "framework/base/base_form.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "host/pub_info.h"
#include "platform/host_api.h"
#include "tests/support/form_host.h"
#include "toolkit/action.h"
#include "toolkit/application.h"
#include "toolkit/buttons.h"
#include "toolkit/combo_box.h"
#include "toolkit/edits.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/labels.h"
#include "toolkit/menu.h"
#include "toolkit/panels.h"
#include "toolkit/tabs.h"
#include "toolkit/text.h"
#include "toolkit/tree_view.h"

using fakehost::Library;

class TTestForm : public TBaseForm {
  Q_OBJECT

 public:
  explicit TTestForm(TComponent* owner) : TBaseForm(owner) {}

  void BuildControls() override {
    TBaseForm::BuildControls();
    panel = NewComponent<TbsSkinPanel>(this, "panel");
    panel->SetParent(this);
    label = Put<TLabel>("label");
    marked = Put<TLabel>("marked");
    marked->SetTag(kLabelMark);
    first = Put<TEdit>("first");
    combo = Put<TKVXComboBox>("combo");
    last = Put<TEdit>("last");
    button = Put<TbsSkinButton>("button");
    list = Put<TListView>("list");
    tabs = Put<TPageControl>("tabs");
    page = NewComponent<TTabSheet>(this, "page");
    tabs->AddPage(page);
    tree = Put<TKVXTreeView>("tree");
    actions = NewComponent<TActionList>(this, "actions");
    action = actions->NewAction("action", "UI00001");
    line = actions->NewAction("line", "-");
    menu = NewComponent<TPopupMenu>(this, "menu");
  }
  void SetCaptions() override { SetCaption("UI00001"); }
  void PreInitHook1() override { steps += "1"; }
  void PreInitHook2() override { steps += "2"; }
  void AfterTranslate() override { steps += "t:" + Caption() + Caption()[0]; }
  void ResetForm() override {
    TBaseForm::ResetForm();
    steps += "r";
  }
  using TBaseForm::m_bImeOff;
  using TBaseForm::m_nFontCharset;

  std::string steps;
  TbsSkinPanel* panel = nullptr;
  TLabel* label = nullptr;
  TLabel* marked = nullptr;
  TEdit* first = nullptr;
  TKVXComboBox* combo = nullptr;
  TEdit* last = nullptr;
  TbsSkinButton* button = nullptr;
  TListView* list = nullptr;
  TPageControl* tabs = nullptr;
  TTabSheet* page = nullptr;
  TKVXTreeView* tree = nullptr;
  TActionList* actions = nullptr;
  TAction* action = nullptr;
  TAction* line = nullptr;
  TPopupMenu* menu = nullptr;

 private:
  template <class T>
  T* Put(const char* name) {
    T* control = NewComponent<T>(this, name);
    control->SetParent(panel);
    return control;
  }
};

namespace {

struct BaseForm : testing::Test {
  BaseForm() {
    host.SetText("UI00001", "查询");
    host.SetText("UI00002", "Close");
    form = CreateForm<TTestForm>(Application);
  }

  std::uint32_t Entry() { return g_pPubInfo->GetHandle("TTestForm"); }
  std::uintptr_t Address() const { return reinterpret_cast<std::uintptr_t>(static_cast<TForm*>(form)); }
  const std::string query = Ansi("查询");

  FormHost host;
  TTestForm* form;
};

TEST_F(BaseForm, TranslatesWhateverPublishesATextOnce) {
  form->label->SetCaption("UI00002");
  form->label->SetHint("UI00001");
  form->marked->SetCaption("UI00001");
  form->first->SetText("UI00002");
  form->first->SetHint("typed by nobody");
  form->button->SetCaption("UI09999");
  form->combo->Items().Assign({"UI00001", "plain", ""});
  TListColumn* column = form->list->Columns().Add();
  column->SetCaption("UI00002");
  form->page->SetCaption("UI00001");
  form->page->SetHint("UI00002");
  TTreeNode* root = form->tree->Add(nullptr, "UI00001");
  TTreeNode* leaf = form->tree->Add(form->tree->Add(root, "UI00002"), "UI00001");
  form->action->SetHint("UI00002");
  form->line->SetHint("UI00002");
  TMenuItem* separator = form->menu->Items()->AddLine();
  TMenuItem* below = NewComponent<TMenuItem>(form, "below");
  below->SetCaption("UI00002");
  separator->Add(below);
  for (int show = 1; show <= 2; ++show) {
    form->Show();
    EXPECT_EQ(form->Caption(), query);
    EXPECT_EQ(form->label->Caption(), "Close");
    EXPECT_EQ(form->label->Hint(), query);
    EXPECT_EQ(form->marked->Caption(), query + ":");
    EXPECT_EQ(form->first->Text(), "Close");
    EXPECT_EQ(form->first->Hint(), "typed by nobody");
    EXPECT_EQ(form->button->Caption(), "UI09999");
    EXPECT_EQ(form->combo->Items().Text(), query + "\r\nplain\r\n\r\n");
    EXPECT_EQ(column->Caption(), "Close");
    EXPECT_EQ(form->page->Caption(), query);
    EXPECT_EQ(form->page->Hint(), "Close");
    EXPECT_EQ(root->Text(), query);
    EXPECT_EQ(leaf->Text(), query);
    EXPECT_EQ(form->action->Caption(), query);
    EXPECT_EQ(form->action->Hint(), "Close");
    EXPECT_EQ(form->line->Caption(), "-");
    EXPECT_EQ(form->line->Hint(), "UI00002");
    EXPECT_EQ(separator->Caption(), "-");
    EXPECT_EQ(below->Caption(), "Close");
    form->Close();
  }
  EXPECT_TRUE(host.failures.empty());
}

TEST_F(BaseForm, ABoxKeepsItsChoiceAmongEntriesOfOneText) {
  const std::vector<std::string> before[] = {{"same", "same"}, {query, "UI00001"}};
  for (const auto& items : before) {
    form->combo->Items().Assign(items);
    form->combo->SetItemIndex(1);
    form->Show();
    EXPECT_EQ(form->combo->ItemIndex(), 1) << items[1];
    form->Close();
  }
}

TEST_F(BaseForm, LabelMarkWithoutATextShowsTheKeyWithAColon) {
  form->marked->SetCaption("UI09999");
  form->Show();
  EXPECT_EQ(form->marked->Caption(), "UI09999:");
  EXPECT_FALSE(form->button->UseSkinFont());
  EXPECT_FALSE(form->button->UseSkinSize());
  EXPECT_TRUE(form->button->UseSkinFontColor());
  EXPECT_EQ(form->button->SkinData(), form->m_SkinData);
}

TEST_F(BaseForm, ShowRunsItsStepsInOrderAndTellsTheHostOfAFormWithATag) {
  form->SetTag(7);
  std::uint32_t entryWhenTold = 0;
  host.onMessage = [&](const FormHost::Message& message) {
    if (message.number == kMessageFormShown) entryWhenTold = Entry();
  };
  form->Show();
  EXPECT_EQ(form->steps, "12t:" + query + query[0] + "r");
  ASSERT_FALSE(host.messages.empty());
  EXPECT_EQ(host.messages.front(), (FormHost::Message{0x824, Address(), 7}));
  EXPECT_EQ(entryWhenTold, form->Handle());
  EXPECT_NE(entryWhenTold, 0U);
  host.messages.clear();
  form->Close();
  EXPECT_EQ(Entry(), 0U);
  ASSERT_FALSE(host.messages.empty());
  EXPECT_EQ(host.messages.front(), (FormHost::Message{0x825, Address(), 7}));
}

TEST_F(BaseForm, AFormWithoutATagEntersItsHandleAndSaysNothing) {
  form->Show();
  EXPECT_EQ(Entry(), form->Handle());
  form->Dispatch(WM_ACTIVATE, WA_ACTIVE, 0);
  form->Close();
  EXPECT_TRUE(host.messages.empty());
}

TEST_F(BaseForm, OnlyActivationIsPassedOn) {
  form->SetTag(1);
  const struct {
    std::uint32_t message;
    std::uintptr_t wparam;
    std::size_t told;
  } cases[] = {{WM_ACTIVATE, 0, 0}, {WM_ACTIVATE, 1, 1}, {WM_ACTIVATE, 2, 1}, {WM_ACTIVATE, 3, 0}, {7, 1, 0}};
  for (const auto& row : cases) {
    host.messages.clear();
    form->Dispatch(row.message, row.wparam, 0);
    ASSERT_EQ(host.messages.size(), row.told) << row.message << " with " << row.wparam;
    if (row.told == 1) {
      EXPECT_EQ(host.messages[0], (FormHost::Message{0x826, Address(), 1}));
    }
  }
}

TEST_F(BaseForm, FontComesFromTheHostAtEachShow) {
  host.Configure("APPLICATION.FONT", "Name", "宋体");
  const struct {
    const char* language;
    const char* size;
    int charset;
  } cases[] = {{"Simplified Chinese", "9", 134},
               {"Traditional Chinese", "12", 136},
               {"English", "10", 0},
               {"Esperanto", "11", 1},
               {"", "13", 1}};
  for (const auto& row : cases) {
    SCOPED_TRACE(row.language);
    host.Configure("APPLICATION.LANG", "Language", row.language);
    host.Configure("APPLICATION.FONT", "Size", row.size);
    form->Show();
    EXPECT_EQ(form->m_nFontCharset, row.charset);
    for (const TFont* font : {form->label->Font(), form->first->Font(), form->Font(), form->panel->Font(),
                              form->m_BusinessSkinForm->DefMenuItemFont()}) {
      EXPECT_EQ(std::to_string(font->Size()), row.size);
      EXPECT_EQ(font->Name(), Ansi("宋体"));
      EXPECT_EQ(font->Charset(), row.charset);
    }
    form->Close();
  }
}

TEST_F(BaseForm, AFailingReadLeavesTheShowUnfinished) {
  host.Configure("APPLICATION.FONT", "Size", "large");
  form->Show();
  EXPECT_EQ(host.failures.size(), 1U);
  EXPECT_EQ(Entry(), 0U);
  EXPECT_EQ(form->steps.back(), query[0]);  // translated, not reset
  form->Close();
  host.Configure("APPLICATION.FONT", "Size", "9");
  host.libraries.SetAnswer(Library::kTranslate, 4, fakehost::Refusal("no texts today"));
  form->Show();
  EXPECT_EQ(host.failures.back(), "no texts today");
  EXPECT_EQ(Entry(), 0U);
}

TEST_F(BaseForm, ANewLookReloadsSkinAndFontsAsTheyWereRead) {
  QTemporaryDir directory;
  QFile skin(directory.filePath("blue.skn"));
  ASSERT_TRUE(skin.open(QIODevice::WriteOnly));
  skin.write(qCompress("QPushButton { color: blue; }"));
  skin.close();
  host.SetField("ENVIRONMENT", "ENV.SKIN", directory.path().toStdString() + "/");
  host.Configure("PATTERN.STYLES", "SK00_FileName", "missing.skn", "PATTERN_DATA");
  host.Configure("PATTERN.STYLES", "SK02_FileName", "blue.skn", "PATTERN_DATA");
  form->Show();
  EXPECT_TRUE(form->m_SkinData->StyleSheet().isEmpty());
  host.Configure("APPLICATION.STYLE", "Style", "SK02");
  host.Configure("APPLICATION.FONT", "Size", "30");
  form->label->Font()->SetSize(20);
  norvik_window_send(Entry(), kMessageLookChanged, 0, 0);
  EXPECT_TRUE(form->m_SkinData->StyleSheet().contains("blue"));
  EXPECT_EQ(form->label->Font()->Size(), 9);
  host.Configure("APPLICATION.STYLE", "Style", "");
  norvik_window_send(Entry(), kMessageLookChanged, 0, 0);
  EXPECT_TRUE(form->m_SkinData->StyleSheet().contains("blue"));
  EXPECT_TRUE(host.failures.empty());
}

TEST_F(BaseForm, InputMethodGoesToInputControlsOnlyWhenSwitchedOn) {
  const struct {
    const char* with;
    const char* name;
    int mode;
    std::string expected;
  } cases[] = {{"", "wubi", imDontCare, ""},
               {"0", "wubi", imDontCare, ""},
               {"yes", "wubi", imDontCare, ""},
               {"1", "wubi", imOpen, "wubi"},
               {"1", "", imOpen, Ansi("中文 (简体) - 全拼")}};
  for (const auto& row : cases) {
    host.Configure("APPLICATION.OPERATOR", "ControlWithImeName", row.with);
    host.Configure("APPLICATION.OPERATOR", "ImeName", row.name);
    form->Show();
    EXPECT_EQ(form->m_bImeOff, row.mode != imOpen) << row.with;
    EXPECT_EQ(form->first->ImeMode(), row.mode) << row.with;
    EXPECT_EQ(form->first->ImeName(), row.expected) << row.with;
    form->Close();
  }
}

TEST_F(BaseForm, KeysMoveTheFocusAsConfigured) {
  const struct {
    const char* simulate;
    const char* upDown;  // switch of the active control's class
    const char* onReturn;
    std::uint16_t key;
    bool shift;
    const char* focus;  // null: the key is left alone
  } cases[] = {
      {"1", "", "", VK_DOWN, false, "last"},   {"1", "", "", VK_DOWN, true, "last"},
      {"1", "", "", VK_RETURN, false, "last"}, {"1", "", "", VK_UP, false, "first"},
      {"x", "0", "0", VK_UP, false, "first"},  {"", "", "", VK_DOWN, false, nullptr},
      {"0", "", "", VK_RETURN, true, nullptr}, {"1", "1", "", VK_DOWN, false, nullptr},
      {"1", "1", "", VK_DOWN, true, "last"},   {"1", "", "1", VK_RETURN, false, nullptr},
      {"1", "", "1", VK_RETURN, true, "last"}, {"1", "", "on", VK_UP, false, nullptr},
      {"1", "", "", VK_LEFT, false, nullptr},  {"1", "", "", VK_TAB, false, nullptr},
  };
  form->Show();
  for (const auto& row : cases) {
    host.Configure("APPLICATION.OPERATOR", "SimulateTab", row.simulate);
    host.Configure("CONTROL.UPDOWN", "TKVXComboBox", row.upDown);
    host.Configure("CONTROL.RETURN", "TKVXComboBox", row.onReturn);
    form->SetActiveControl(form->combo);
    std::uint16_t key = row.key;
    TShiftState shift;
    if (row.shift) shift = shift.With(ssShift);
    form->FormKeyDown(form, key, shift);
    const std::string name = std::string(row.simulate) + " key " + std::to_string(row.key);
    EXPECT_EQ(key, row.focus != nullptr ? 0 : row.key) << name;
    EXPECT_EQ(form->ActiveControl()->Name(), row.focus != nullptr ? row.focus : "combo") << name;
  }
}

TEST_F(BaseForm, ResetTakesTheKeysBack) {
  form->OnKeyDown = nullptr;
  form->SetKeyPreview(false);
  form->Show();
  EXPECT_TRUE(form->KeyPreview());
  ASSERT_TRUE(form->OnKeyDown);
  EXPECT_FALSE(form->m_BusinessSkinForm->UseSkinFontInMenu());
}

TEST_F(BaseForm, SendToDesktopLeavesCaptionAndItemWithTheHost) {
  form->Show();
  form->SendToDesktop("ITEM6066");
  const auto calls = host.libraries.CallsOf(Library::kPublicInformation, 23);
  ASSERT_EQ(calls.size(), 2U);
  EXPECT_EQ(corvane::Field(calls[0].arguments[1]).getValue(), query);
  EXPECT_EQ(corvane::Field(calls[0].arguments[1]).name(), "CURSHORTCUT.ITEMCAPTION");
  EXPECT_EQ(corvane::Field(calls[1].arguments[1]).getValue(), "ITEM6066");
  EXPECT_EQ(corvane::Field(calls[1].arguments[1]).name(), "CURSHORTCUT.ITEMNAME");
  ASSERT_EQ(host.messages.size(), 1U);
  EXPECT_EQ(host.messages[0], (FormHost::Message{0x7FC, 0, 0}));
  host.libraries.SetAnswer(Library::kPublicInformation, 23, fakehost::Refusal("full"));
  EXPECT_THROW(form->SendToDesktop("ITEM6066"), corvane::TIOException);
  EXPECT_EQ(host.messages.size(), 1U);
}

}  // namespace

#include "base_form_test.moc"
