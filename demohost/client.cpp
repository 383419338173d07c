#include "demohost/client.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <algorithm>
#include <cstdlib>

#include "demohost/refusals.h"
#include "demohost/shortcut.h"
#include "demohost/skins.h"
#include "demohost/window/print_settings.h"
#include "demohost/words.h"
#include "platform/code_page.h"

namespace demohost {
namespace {

// The key of the question whether a file may be replaced.
constexpr std::string_view kMayReplace = "UI12572";

// The captions of the menu items that this host knows; any other shows by its name.
constexpr std::pair<std::string_view, std::string_view> kItemCaptions[] = {
    {"ITEM6066", "UI25826"},
    {"ITEM6067", "UI25828"},
    {"ITEM6068", "UI25830"},
};

void Provoke(const QString& what, const QString& key) {
  Faults& faults = CurrentServices().faults;
  const std::string name = key.toStdString();
  if (what == QLatin1String("exchange")) {
    faults.exchange = name.empty() ? std::string(refusal::kBankFailure) : name;
  } else if (what == QLatin1String("text")) {
    faults.texts.insert(name);
  } else if (what == QLatin1String("entry")) {
    faults.entries.insert(name);
  } else if (what == QLatin1String("row")) {
    faults.row = true;
  } else if (what == QLatin1String("images")) {
    faults.images = true;
  } else if (what == QLatin1String("none")) {
    faults = Faults();
  } else {
    throw std::invalid_argument("nothing called \"" + what.toStdString() + "\" can fail");
  }
}

std::string ItemCaption(const Texts& texts, const std::string& language, const std::string& item) {
  for (const auto& [name, key] : kItemCaptions) {
    if (name == item) return std::string(texts.Find(language, key));
  }
  return item;
}

}  // namespace

Client::Client(const Options& options)
    : options_(options),
      texts_(options.share / "texts"),
      tables_(ReadTables(options.share)),
      clock_(options.today),
      bank_(OpenBank(BankFile(options), Plan(options)), options.today),
      directory_(BankFile(options), options.directoryDelay),
      store_(options.config),
      mark_(nullptr),
      window_(forms_, {[this](const std::string& item) { Pick(item); },
                       [this](const std::string& language) { ChooseLanguage(language); },
                       [this](const QString& name, int size) { ChooseFont(name, size); },
                       [this](const std::string& style) { ChooseStyle(style); }, [this] { MakeShortcut(); }}),
      module_(options.module) {
  const std::filesystem::path images = options.data / "images";
  std::filesystem::create_directories(images);
  PackSkins(options.share / "skins", options.data / "skins");
  FillStore(store_, tables_, bank_.Accounts(), {images, options.data / "skins"});
  if (!options.language.empty()) {
    ChangeSetting(store_, kLanguageSetting, options.language);
  }
  store_.onHandle = [this](const std::string& key, std::uint32_t value) { forms_.HandleEntered(key, value); };
  store_.SetHandle("APPMAINFORMHANDLE", window_.Handle());
  store_.SetHandle("BANK_PDATA", directory_.Handle());
  output_.printFolder = options.data / "prints";
  output_.made = [this](const std::filesystem::path& file) { Announce(HostWord::kSaved, file.string()); };
  output_.mayReplace = [this](const std::filesystem::path& file) { return MayReplace(file); };
  output_.printSettings = [this](const std::string&) {
    if (AskPrintSettings(store_, ChosenLanguage(), &window_)) Save();
  };
  Services services{&store_, &texts_, &bank_, &clock_, &output_, options.delay, {}};
  services.report = [this](const std::string& text) { window_.Tell(ToQt(text)); };
  libraries_ = std::make_unique<Libraries>(std::move(services));
  try {
    module_.Init(libraries_->PublicInformation());
    items_ = module_.MenuItems();
  } catch (const ModuleError&) {
    module_.Release();
    throw;
  }
  ShowWindow();
}

Client::~Client() {
  try {
    module_.Release();
  } catch (const ModuleError&) {
    // The client ends all the same.
  }
  store_.onHandle = nullptr;
}

std::filesystem::path Client::BankFile(const Options& options) const {
  const std::string suffix = options.bills == Options().bills ? "" : "-" + std::to_string(options.bills);
  return options.data / ("bank" + suffix + ".sqlite");
}

BankPlan Client::Plan(const Options& options) const {
  return {options.bills, kBankDay, CodesOf(tables_)};
}

std::string Client::ChosenLanguage() const {
  return SettingOf(store_, kLanguageSetting);
}

void Client::Show() {
  window_.show();
}

void Client::ShowWindow() {
  const ClientSettings settings{ChosenLanguage(), ToQt(SettingOf(store_, kFontNameSetting)),
                                std::max(1, std::atoi(SettingOf(store_, kFontSizeSetting).c_str())),
                                SettingOf(store_, kStyleSetting)};
  std::vector<BusinessItem> items;
  for (const std::string& item : items_)
    items.push_back({item, ToQt(ItemCaption(texts_, settings.language, item))});
  directory_.SetTraditional(settings.language == "Traditional Chinese");
  mark_.SetText(ToQt(Word(HostWord::kDemonstration, settings.language)));
  window_.Show(settings, items, ToQt(DayText(clock_.Today())));
}

void Client::Pick(const std::string& item) {
  try {
    module_.Call(item);
    const std::vector<OpenForms::Form> forms = forms_.Announced();
    if (!forms.empty()) itemOf_[forms.back().className] = item;
  } catch (const ModuleError& error) {
    ShowFailure(error);
  }
}

void Client::ShowFailure(const std::exception& failure) {
  const std::string language = ChosenLanguage();
  QMessageBox::warning(
      &window_, window_.windowTitle(),
      ToQt(Word(HostWord::kModuleFailed, language)) + QLatin1Char('\n') + ToQt(failure.what()));
}

void Client::ChooseLanguage(const std::string& language) {
  if (!IsLanguage(language)) throw std::invalid_argument("there is no language \"" + language + "\"");
  std::vector<std::string> open;
  for (const OpenForms::Form& form : forms_.Announced()) {
    if (itemOf_.count(form.className) != 0) open.push_back(itemOf_[form.className]);
  }
  ChangeSetting(store_, kLanguageSetting, language);
  Save();
  try {
    module_.Release();
    forms_ = OpenForms();
    module_.Init(libraries_->PublicInformation());
  } catch (const ModuleError& error) {
    ShowFailure(error);
  }
  ShowWindow();
  for (const std::string& item : open) Pick(item);
}

void Client::ChooseFont(const QString& name, int size) {
  ChangeSetting(store_, kFontNameSetting, name.toStdString());
  ChangeSetting(store_, kFontSizeSetting, std::to_string(size));
  LookChanged();
}

void Client::ChooseStyle(const std::string& style) {
  ChangeSetting(store_, kStyleSetting, style);
  LookChanged();
}

void Client::LookChanged() {
  Save();
  ShowWindow();
  for (const OpenForms::Form& form : std::vector<OpenForms::Form>(forms_.All())) {
    norvik_window_send(form.handle, form_message::kLookChanged, 0, 0);
  }
}

void Client::Save() {
  try {
    SaveSettings(store_);
  } catch (const Refused& refused) {
    window_.Tell(ToQt(refused.Detail()));
  }
}

void Client::Announce(HostWord word, const std::string& detail) {
  const std::string_view text = Word(word, ChosenLanguage());
  window_.Tell(ToQt(text) + QStringLiteral(": ") + ToQt(detail));
}

bool Client::MayReplace(const std::filesystem::path& file) {
  const std::string_view question = texts_.Find(ChosenLanguage(), kMayReplace);
  QMessageBox box(QMessageBox::Question, window_.windowTitle(),
                  ToQt(question) + QLatin1Char('\n') + ToQt(file.string()),
                  QMessageBox::Yes | QMessageBox::No, QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.button(QMessageBox::Yes)->setObjectName(QStringLiteral("m_btnOk"));
  box.button(QMessageBox::No)->setObjectName(QStringLiteral("m_btnNo"));
  return box.exec() == QMessageBox::Yes;
}

void Client::MakeShortcut() {
  const auto field = [this](const char* name) {
    return norvik::Utf8FromAnsi(store_.FieldValue("ENVIRONMENT", std::string("CURSHORTCUT.") + name));
  };
  try {
    const Shortcut shortcut{field("ITEMNAME"), field("ITEMCAPTION"), field("ITEMIMAGE")};
    Announce(HostWord::kShortcutMade, WriteShortcut(options_.desktop, options_.program, shortcut).string());
  } catch (const FileError& error) {
    Announce(HostWord::kShortcutFailed, error.what());
  }
}

void Client::EndModule() {
  try {
    module_.Release();
  } catch (const ModuleError& error) {
    ShowFailure(error);
  }
  forms_ = OpenForms();
  ShowWindow();
}

OperatorClient Client::ForOperator() {
  return {[this](const QString& item) { Pick(item.toStdString()); },
          [this](const QString& name) { ChooseLanguage(name.toStdString()); },
          [this](const QString& name, int size) { ChooseFont(name, size); },
          [](const QString& what, const QString& key) { Provoke(what, key); },
          [this] { return forms_.Front(); },
          [this] { EndModule(); }};
}

}  // namespace demohost
