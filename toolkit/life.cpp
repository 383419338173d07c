#include "toolkit/life.h"

#include <algorithm>
#include <vector>

#include "toolkit/application.h"

TApplication* Application = nullptr;
TScreen* Screen = nullptr;

namespace {

// All lives, the newest last: those that have ended wait for their scopes to close.
std::vector<TApplication*> g_lives;
int g_scopes = 0;

bool Known(const TApplication* life) {
  return std::find(g_lives.begin(), g_lives.end(), life) != g_lives.end();
}

}  // namespace

void Serve(TApplication* life) {
  if (life == Application) return;
  if (Application != nullptr && Application->OnLeave) Application->OnLeave();
  Application = life;
  Screen = life == nullptr ? nullptr : life->screen_.get();
  if (life != nullptr && life->OnEnter) life->OnEnter();
}

TApplication* NewestLife() {
  return g_lives.empty() || g_lives.back()->Ended() ? nullptr : g_lives.back();
}

TApplication* LifeOf(const TObject* object) {
  const auto* component = qobject_cast<const TComponent*>(object);
  return component == nullptr || component->Life() == nullptr ? Application : component->Life();
}

bool HasEnded(const TApplication* life) {
  return life != nullptr && (!Known(life) || life->Ended());
}

void CheckLife() {
  if (HasEnded(Application)) throw norvik::LifeEnded();
}

void DeleteEndedLives() {
  if (g_scopes > 0) return;
  const std::vector<TApplication*> lives = g_lives;
  for (TApplication* life : lives) {
    if (life->Ended()) delete life;
  }
}

void ForgetLife(TApplication* life) {
  std::erase(g_lives, life);
}

void ReportInFlight(TObject* sender) noexcept {
  if (Application != nullptr) Application->HandleException(sender);
}

TLifeScope::TLifeScope(TApplication* life, Returns returns)
    : life_(life), previous_(Application), returns_(returns) {
  ++g_scopes;
  if (life_ != nullptr) ++life_->scopes_;
  Serve(life_);
}

TLifeScope::~TLifeScope() {
  --g_scopes;
  if (life_ != nullptr) --life_->scopes_;
  Serve(g_scopes == 0 || !Known(previous_) ? NewestLife() : previous_);
  if (life_ == nullptr || life_->scopes_ > 0 || !life_->Ended()) return;
  if (returns_ == Returns::kToHost) {
    delete life_;
  } else {
    life_->deleteLater();
  }
}

void TLifeScope::Check() const {
  if (HasEnded(life_)) throw norvik::LifeEnded();
}

void CreateApplication() {
  if (NewestLife() != nullptr) return;
  DeleteEndedLives();
  g_lives.push_back(new TApplication);
  Serve(g_lives.back());
}

void DestroyApplication() {
  TApplication* const life = NewestLife();
  if (life == nullptr) return;
  const TLifeScope scope(life, TLifeScope::Returns::kToHost);
  life->CloseAll({});
  life->End();
}
