#include "demohost/window/main_window.h"

#include <QAction>
#include <QActionGroup>
#include <QFontDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QVBoxLayout>

#include "demohost/host_words.h"
#include "demohost/skins.h"
#include "demohost/texts.h"
#include "demohost/words.h"

namespace demohost {
MainWindow::MainWindow(OpenForms& forms, MainWindowActions actions)
    : forms_(forms), actions_(std::move(actions)), openForms_(new QLabel), bankDay_(new QLabel) {
  setObjectName(QStringLiteral("demohost_main"));
  resize(1180, 760);
  statusBar()->addPermanentWidget(openForms_);
  statusBar()->addPermanentWidget(bankDay_);
  handle_ = norvik_window_register(&Procedure, this, static_cast<QWidget*>(this));
}

MainWindow::~MainWindow() {
  norvik_window_unregister(handle_);
}

void MainWindow::Show(const ClientSettings& settings, const std::vector<BusinessItem>& items,
                      const QString& bankDay) {
  settings_ = settings;
  setFont(QFont(settings.fontName, settings.fontSize));
  setWindowTitle(ToQt(Word(HostWord::kTitle, settings.language)));
  BuildMenus(items);
  BuildWelcome(items);
  bankDay_->setText(ToQt(Word(HostWord::kBankDay, settings.language)) + QLatin1Char(' ') + bankDay);
  ShowOpenForms();
}

void MainWindow::Tell(const QString& text) {
  statusBar()->showMessage(text, 15000);
}

intptr_t MainWindow::Procedure(void* context, uint32_t message, uintptr_t wparam, intptr_t) {
  auto* window = static_cast<MainWindow*>(context);
  switch (message) {
    case form_message::kShortcut:
      window->actions_.makeShortcut();
      return 1;
    case form_message::kShown:
      window->forms_.Shown(wparam);
      break;
    case form_message::kClosed:
      window->forms_.Closed(wparam);
      break;
    case form_message::kActivated:
      window->forms_.Activated(wparam);
      break;
    default:
      return 0;
  }
  window->ShowOpenForms();
  return 1;
}

void MainWindow::BuildMenus(const std::vector<BusinessItem>& items) {
  const auto word = [this](HostWord which) { return ToQt(Word(which, settings_.language)); };
  menuBar()->clear();
  QMenu* business = menuBar()->addMenu(word(HostWord::kBusiness));
  for (const BusinessItem& item : items) {
    QAction* entry =
        business->addAction(item.caption, this, [this, name = item.name] { actions_.pick(name); });
    entry->setObjectName(QString::fromStdString(item.name));
  }
  business->addSeparator();
  business->addAction(word(HostWord::kExit), this, &QWidget::close);
  BuildSettings(menuBar()->addMenu(word(HostWord::kSettings)));
  QMenu* windows = menuBar()->addMenu(word(HostWord::kWindows));
  connect(windows, &QMenu::aboutToShow, this, [this, windows] { FillWindowMenu(windows); });
  QMenu* help = menuBar()->addMenu(word(HostWord::kHelp));
  help->addAction(word(HostWord::kAbout), this, [this, word] {
    QMessageBox::about(this, word(HostWord::kTitle), word(HostWord::kAboutText));
  });
}

void MainWindow::BuildSettings(QMenu* menu) {
  // The choice runs once the menu is gone, since it may build the menus anew.
  const auto add = [this](QMenu* target, const QString& caption, bool chosen, std::function<void()> choose) {
    QAction* entry = target->addAction(caption);
    entry->setCheckable(true);
    entry->setChecked(chosen);
    connect(
        entry, &QAction::triggered, this, [choose = std::move(choose)] { choose(); }, Qt::QueuedConnection);
  };
  QMenu* languages = menu->addMenu(ToQt(Word(HostWord::kLanguage, settings_.language)));
  for (const Language& language : kLanguages) {
    add(languages, ToQt(language.name), language.name == settings_.language,
        [this, name = std::string(language.name)] { actions_.chooseLanguage(name); });
  }
  QMenu* styles = menu->addMenu(ToQt(Word(HostWord::kStyle, settings_.language)));
  for (const SkinStyle& style : SkinStyles()) {
    add(styles, QString::fromLatin1(style.number), style.number == settings_.style,
        [this, number = std::string(style.number)] { actions_.chooseStyle(number); });
  }
  menu->addAction(ToQt(Word(HostWord::kFont, settings_.language)), this, &MainWindow::ChooseFont);
}

void MainWindow::BuildWelcome(const std::vector<BusinessItem>& items) {
  auto* welcome = new QWidget;
  auto* layout = new QVBoxLayout(welcome);
  auto* mark = new QLabel(ToQt(Word(HostWord::kDemonstration, settings_.language)));
  mark->setAlignment(Qt::AlignCenter);
  mark->setStyleSheet(QStringLiteral("background: #c62828; color: white; padding: 6px; font-size: 13pt;"));
  layout->addWidget(mark);
  layout->addStretch(1);
  auto* hint = new QLabel(ToQt(Word(HostWord::kPickItem, settings_.language)));
  hint->setAlignment(Qt::AlignCenter);
  layout->addWidget(hint);
  for (const BusinessItem& item : items) {
    auto* button = new QPushButton(item.caption);
    button->setObjectName(QString::fromStdString(item.name));
    button->setMinimumSize(320, 40);
    connect(button, &QPushButton::clicked, this, [this, name = item.name] { actions_.pick(name); });
    layout->addWidget(button, 0, Qt::AlignHCenter);
  }
  layout->addStretch(2);
  setCentralWidget(welcome);
}

void MainWindow::ShowOpenForms() {
  QStringList titles;
  for (const OpenForms::Form& form : forms_.Announced()) {
    const QWidget* window = OpenForms::WindowOf(form);
    titles << (window == nullptr ? QString::fromStdString(form.className)
                                 : window->windowTitle().section(QStringLiteral(" ["), 0, 0));
  }
  openForms_->setText(titles.isEmpty() ? ToQt(Word(HostWord::kNoForms, settings_.language))
                                       : ToQt(Word(HostWord::kOpenForms, settings_.language)) +
                                             QStringLiteral(": ") + titles.join(QStringLiteral(", ")));
}

void MainWindow::FillWindowMenu(QMenu* menu) {
  menu->clear();
  for (const OpenForms::Form& form : forms_.Announced()) {
    const QWidget* window = OpenForms::WindowOf(form);
    if (window == nullptr) continue;
    menu->addAction(window->windowTitle(), this, [handle = form.handle] {
      norvik_window_send(handle, form_message::kSystemCommand, form_message::kRestore, 0);
    });
  }
  if (menu->isEmpty()) menu->addAction(ToQt(Word(HostWord::kNoForms, settings_.language)))->setEnabled(false);
}

void MainWindow::ChooseFont() {
  bool chosen = false;
  const QFont font = QFontDialog::getFont(&chosen, QFont(settings_.fontName, settings_.fontSize), this);
  if (chosen) actions_.chooseFont(font.family(), font.pointSize());
}

}  // namespace demohost
