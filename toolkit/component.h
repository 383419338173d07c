// The layer's objects that have an owner, a name and a life. All controls, menus, actions and timers are such
// components. What is seen is a control's matter (control.h); properties by name are in properties.h.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/types.h"

class TLife;

/// Something that a form owns, with a name. An owner deletes its components, the last created first.
class TComponent : public QObject {
  Q_OBJECT

 public:
  /// owner null: the creator deletes the component.
  explicit TComponent(TComponent* owner);
  ~TComponent() override;

  /// Name of the component; also its object name, and that of its widget.
  std::string Name() const;
  /// Names the component; the empty text removes the name.
  virtual void SetName(const std::string& name);
  /// A number that the layer does not use, 0 at the start.
  std::intptr_t Tag() const { return tag_; }
  void SetTag(std::intptr_t tag) { tag_ = tag; }

  /// The component that deletes this one, null: its creator does.
  TComponent* Owner() const { return owner_; }
  /// The life that the component belongs to: its owner's, or that which was served when it was made; null
  /// when there was none.
  TLife* Life() const { return life_; }
  /// Number of the owned components, also of those that aren't controls.
  int ComponentCount() const { return static_cast<int>(components_.size()); }
  /// An owned component by its place in the order of creation, from 0; std::out_of_range when there is none.
  TComponent* Components(int index) const { return components_.at(static_cast<std::size_t>(index)); }
  /// The owned component of a name, null when there is none.
  TComponent* FindComponent(const std::string& name) const;
  /// Name of the object's class; a form's is a key of stored data.
  std::string ClassName() const;

  /// Runs before the object is deleted, while it is still whole.
  virtual void BeforeDestruction() {}

 protected:
  /// owner null: `life` is the life that the component belongs to. For the life itself.
  TComponent(TComponent* owner, TLife* life);
  /// Deletes the owned components; for descendants whose components use what they tear down.
  void DestroyComponents();

 private:
  TComponent* owner_;
  TLife* life_;
  std::vector<TComponent*> components_;
  std::intptr_t tag_ = 0;
};

/// Class name of an object, empty for null.
std::string ClassName(const TObject* object);
/// The life that an object of the layer belongs to; that which is served for any other object.
TLife* LifeOf(const TObject* object);

/// Creates a component with a name; the owner deletes it. Further arguments go to the constructor.
template <class T, class... Arguments>
T* NewComponent(TComponent* owner, const char* name, Arguments&&... arguments) {
  T* component = new T(owner, std::forward<Arguments>(arguments)...);
  component->SetName(name);
  return component;
}
