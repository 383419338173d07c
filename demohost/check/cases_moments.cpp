#include <QAbstractButton>
#include <QAbstractItemView>
#include <QPointer>
#include <utility>

#include "demohost/check/cases.h"
#include "demohost/check/moments.h"
#include "demohost/libraries/support.h"

namespace demohost::check {
namespace {

// The buttons of a window that can be pressed now, as children in the order in which they were made.
std::vector<QAbstractButton*> Buttons(const QWidget* window) {
  std::vector<QAbstractButton*> buttons;
  if (window == nullptr) return buttons;
  for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
    if (button->window() == window && button->isVisible() && button->isEnabled()) buttons.push_back(button);
  }
  return buttons;
}

void TickFirstRows(const QWidget* window) {
  for (const auto* list : window->findChildren<QAbstractItemView*>()) {
    QAbstractItemModel* model = list->model();
    if (model != nullptr && model->rowCount() > 0 && list->isVisible()) {
      model->setData(model->index(0, 0), Qt::Checked, Qt::CheckStateRole);
    }
  }
}

// Plays the calls while each button of the item's window works: on the window as it opens, and once more
// after the buttons that ask the bank were pressed and a row was ticked.
class Presses {
 public:
  Presses(CaseRun& run, PlaceKind kind) : run_(run), kind_(kind), moments_(run, subject_, run.Item()) {}

  void Play() {
    PlayButtons();
    if (asking_.empty()) return;
    worked_ = true;
    PlayButtons();
  }

 private:
  void Open() {
    subject_.Start();
    subject_.Pick(run_.Item());
    if (!worked_) return;
    for (const std::size_t at : asking_) Press(at);
    Settle();
    if (const QWidget* window = moments_.Window()) TickFirstRows(window);
    Settle();
  }

  std::string NameOf(std::size_t at) const {
    const auto buttons = Buttons(moments_.Window());
    return at < buttons.size() ? Quoted(buttons[at]->objectName().toStdString()) : std::string();
  }

  void Press(std::size_t at) {
    const auto buttons = Buttons(moments_.Window());
    if (at < buttons.size()) buttons[at]->click();
  }

  void PlayButtons() {
    const std::size_t buffers = OutstandingBuffers();
    Open();
    const std::size_t count = Buttons(moments_.Window()).size();
    std::vector<std::string> names;
    for (std::size_t at = 0; at < count; ++at) names.push_back(NameOf(at));
    subject_.End(buffers);
    for (std::size_t at = 0; at < count; ++at) {
      std::set<std::string> places;
      const Scene scene = {"pressing the button " + names[at], [this] { Open(); },
                           [this, at] { return Caught([&] { Press(at); }); }};
      moments_.Play(scene, kind_, &places);
      if (!worked_ && places.contains(kExchange)) asking_.push_back(at);
    }
  }

  CaseRun& run_;
  const PlaceKind kind_;
  Subject subject_{run_};
  Moments moments_;
  std::vector<std::size_t> asking_;
  bool worked_ = false;
};

}  // namespace

void CallInStart(CaseRun& run) {
  run.Host();
  Subject subject(run);
  const std::vector<std::string> items = subject.Items();
  Moments moments(run, subject, items.empty() ? std::string() : items.front());
  moments.Play({"InitModule", [] {}, [&] { return subject.Init(run.Host().PublicInformation()); }, false},
               PlaceKind::kFunction);
}

void CallInRelease(CaseRun& run) {
  run.Host();
  Subject subject(run);
  const std::vector<std::string> items = subject.Items();
  Moments moments(run, subject, items.empty() ? std::string() : items.front());
  const auto openAll = [&] {
    subject.Start();
    for (const std::string& item : items) subject.Pick(item);
  };
  moments.Play({"Release", openAll, [&] { return subject.Release(); }, false}, PlaceKind::kFunction);
}

void CallInPick(CaseRun& run) {
  run.Host();
  Subject subject(run);
  Moments moments(run, subject, run.Item());
  const Scene scene = {"CallFunc of " + Quoted(run.Item()), [&] { subject.Start(); },
                       [&] { return subject.Call(RequestFor(run.Item())); }};
  moments.Play(scene, PlaceKind::kFunction);
}

void CallInFunction(CaseRun& run) {
  run.Host();
  Presses(run, PlaceKind::kFunction).Play();
}

void CallInDialog(CaseRun& run) {
  run.Host();
  Presses(run, PlaceKind::kDialog).Play();
}

void CallInTimer(CaseRun& run) {
  run.Host();
  Presses(run, PlaceKind::kTimer).Play();
}

}  // namespace demohost::check
