#include "toolkit/component.h"

#include <algorithm>

#include "toolkit/life.h"
#include "toolkit/text.h"

TComponent::TComponent(TComponent* owner) : TComponent(owner, ServedLife()) {}

TComponent::TComponent(TComponent* owner, TLife* life)
    : QObject(owner), owner_(owner), life_(owner == nullptr ? life : owner->life_) {
  if (owner_ != nullptr) owner_->components_.push_back(this);
}

TComponent::~TComponent() {
  DestroyComponents();
  if (owner_ != nullptr) std::erase(owner_->components_, this);
}

std::string TComponent::Name() const {
  return FromQt(objectName());
}

void TComponent::SetName(const std::string& name) {
  setObjectName(ToQt(name));
}

TComponent* TComponent::FindComponent(const std::string& name) const {
  const QString wanted = ToQt(name);
  const auto found = std::find_if(components_.begin(), components_.end(), [&](const TComponent* component) {
    return component->objectName() == wanted;
  });
  return found == components_.end() ? nullptr : *found;
}

std::string TComponent::ClassName() const {
  return ::ClassName(this);
}

void TComponent::DestroyComponents() {
  while (!components_.empty()) {
    TComponent* component = components_.back();
    component->BeforeDestruction();
    delete component;
  }
}

std::string ClassName(const TObject* object) {
  return object == nullptr ? std::string() : object->metaObject()->className();
}

TLife* LifeOf(const TObject* object) {
  const auto* component = qobject_cast<const TComponent*>(object);
  return component == nullptr || component->Life() == nullptr ? ServedLife() : component->Life();
}
