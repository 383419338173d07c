#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "toolkit/types.h"

class TApplication;

/// Something that a form owns, with a name. An owner deletes its components, the last created first.
class TComponent : public QObject {
  Q_OBJECT

 public:
  /// owner null: the creator deletes the component.
  explicit TComponent(TComponent* owner);
  ~TComponent() override;

  /// Name of the component; also its object name, and that of its widget.
  std::string Name() const;
  virtual void SetName(const std::string& name);
  /// A number at the user's disposal, 0 at the start.
  std::intptr_t Tag() const { return tag_; }
  void SetTag(std::intptr_t tag) { tag_ = tag; }

  TComponent* Owner() const { return owner_; }
  /// The life that the component belongs to: its owner's, or that which was served when it was made.
  TApplication* Life() const { return life_; }
  /// The owned components in the order of their creation, also those that aren't controls.
  int ComponentCount() const { return static_cast<int>(components_.size()); }
  TComponent* Components(int index) const { return components_.at(static_cast<std::size_t>(index)); }
  /// The owned component of a name, null when there is none.
  TComponent* FindComponent(const std::string& name) const;
  /// Name of the object's class; a form's is a key of stored data.
  std::string ClassName() const;

  /// Runs before the object is deleted, while it is still whole.
  virtual void BeforeDestruction() {}

 protected:
  /// Deletes the owned components; for descendants whose components use what they tear down.
  void DestroyComponents();

 private:
  friend class TApplication;
  TComponent* owner_;
  TApplication* life_;
  std::vector<TComponent*> components_;
  std::intptr_t tag_ = 0;
};

/// Class name of any object of the layer.
std::string ClassName(const TObject* object);

/// Creates a component with a name; the owner deletes it. Further arguments go to the constructor.
template <class T, class... Arguments>
T* NewComponent(TComponent* owner, const char* name, Arguments&&... arguments) {
  T* component = new T(owner, std::forward<Arguments>(arguments)...);
  component->SetName(name);
  return component;
}
