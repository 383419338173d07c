#include "toolkit/life.h"

#include <algorithm>
#include <vector>

namespace {

// All lives, the newest last: those that have ended wait for their scopes to close.
std::vector<TLife*> g_lives;
TLife* g_served = nullptr;
int g_scopes = 0;

bool Known(const TLife* life) {
  return std::find(g_lives.begin(), g_lives.end(), life) != g_lives.end();
}

}  // namespace

TLife::TLife() {
  g_lives.push_back(this);
}

TLife::~TLife() {
  std::erase(g_lives, this);
}

void Serve(TLife* life) {
  if (life == g_served) return;
  if (g_served != nullptr) g_served->Leave();
  g_served = life;
  if (life != nullptr) life->Enter();
}

TLife* ServedLife() {
  return g_served;
}

TLife* NewestLife() {
  return g_lives.empty() || g_lives.back()->Ended() ? nullptr : g_lives.back();
}

bool HasEnded(const TLife* life) {
  return life != nullptr && (!Known(life) || life->Ended());
}

void CheckLife() {
  if (HasEnded(g_served)) throw norvik::LifeEnded();
}

void DeleteEndedLives() {
  if (g_scopes > 0) return;
  const std::vector<TLife*> lives = g_lives;
  for (TLife* life : lives) {
    if (life->Ended()) delete life;
  }
}

TLifeScope::TLifeScope(TLife* life, Returns returns) : life_(life), previous_(g_served), returns_(returns) {
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
    life_->DeleteSoon();
  }
}

void TLifeScope::Check() const {
  if (HasEnded(life_)) throw norvik::LifeEnded();
}
