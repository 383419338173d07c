#include "toolkit/screen.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include "toolkit/form.h"
#include "toolkit/life.h"

TScreen* Screen = nullptr;

TScreen::TScreen() : TComponent(nullptr) {}

namespace {

QSize MainScreenSize() {
  const QWidget* main = ServedLife() == nullptr ? nullptr : ServedLife()->MainWidget();
  const QScreen* screen = main == nullptr ? QGuiApplication::primaryScreen() : main->screen();
  return screen == nullptr ? QSize(0, 0) : screen->geometry().size();
}

}  // namespace

int TScreen::Width() const {
  return MainScreenSize().width();
}

int TScreen::Height() const {
  return MainScreenSize().height();
}

TForm* TScreen::ActiveForm() const {
  for (TForm* form : forms_) {
    if (form->Active()) return form;
  }
  return nullptr;
}
