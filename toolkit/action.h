// Commands and the lists that hold them. A form makes its commands here and binds them to buttons and menu
// entries, which the actions know as TActionClient only. Short cuts and help contexts of the original's
// actions are not there, nor updating while idle: whoever changes what an action may do sets it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/component.h"

class TActionClient;
class TCustomActionList;

/// A command. Its caption, hint, picture, enabled, visible and checked state show on all controls and menu
/// items bound to it. A value that changes is passed on alone, and only to those that still bear the former
/// one: a control that was given its own caption, hint or picture keeps it.
class TAction : public TComponent {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ PublishedCaption WRITE SetPublishedCaption)
  Q_PROPERTY(QString Hint READ PublishedHint WRITE SetPublishedHint)

 public:
  explicit TAction(TComponent* owner);
  ~TAction() override;

  /// Text of the clients, empty at the start.
  std::string Caption() const { return caption_; }
  void SetCaption(const std::string& caption);
  /// Tool tip of the clients, empty at the start.
  std::string Hint() const { return hint_; }
  void SetHint(const std::string& hint);
  /// Whether the clients can be clicked; true at the start.
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  /// Whether the clients show; true at the start.
  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  /// Whether the clients that have a check show it; false at the start.
  bool Checked() const { return checked_; }
  void SetChecked(bool checked);
  /// Index of the picture in the action list's images, -1: none.
  int ImageIndex() const { return imageIndex_; }
  void SetImageIndex(int index);

  /// The list that the action belongs to; null takes it out.
  TCustomActionList* ActionList() const { return list_; }
  void SetActionList(TCustomActionList* list);

  /// Runs OnExecute when the action is enabled; false when it is disabled or has no OnExecute.
  bool Execute();

  /// The command itself.
  TNotifyEvent OnExecute;

  /// Adds a client to those that the values are passed on to; the client's SetAction calls it.
  void Bind(TActionClient* client);
  /// Removes a client; the client's SetAction calls it.
  void Unbind(TActionClient* client);

  /// Published properties (see properties.h).
  QString PublishedCaption() const;
  void SetPublishedCaption(const QString& caption);
  QString PublishedHint() const;
  void SetPublishedHint(const QString& hint);

 private:
  /// Sets a value and passes it on, by write, to what is bound and bears the former one by read.
  template <class T, class Read, class Write>
  void Change(T& value, const T& now, Read read, Write write);

  std::string caption_;
  std::string hint_;
  bool enabled_ = true;
  bool visible_ = true;
  bool checked_ = false;
  int imageIndex_ = -1;
  TCustomActionList* list_ = nullptr;
  std::vector<TActionClient*> clients_;
};

class TImageList;

/// The actions of a form, in the order in which they came.
class TCustomActionList : public TComponent {
  Q_OBJECT

 public:
  ~TCustomActionList() override;
  /// Number of the actions in the list.
  int ActionCount() const { return static_cast<int>(actions_.size()); }
  /// An action by its place, from 0; std::out_of_range when there is none.
  TAction* Actions(int index) const { return actions_.at(static_cast<std::size_t>(index)); }
  /// The pictures of the actions; not owned, null: none.
  TImageList* Images() const { return images_; }
  void SetImages(TImageList* images) { images_ = images; }
  /// Makes an action of the list, owned by the list's owner.
  TAction* NewAction(const char* name, const std::string& caption = {}, int imageIndex = -1);
  /// Appends an action; TAction::SetActionList calls it.
  void Add(TAction* action) { actions_.push_back(action); }
  /// Takes an action out; TAction::SetActionList calls it.
  void Remove(TAction* action) { std::erase(actions_, action); }

 protected:
  explicit TCustomActionList(TComponent* owner) : TComponent(owner) {}

 private:
  std::vector<TAction*> actions_;
  TImageList* images_ = nullptr;
};

/// The action list that a form holds.
class TActionList : public TCustomActionList {
  Q_OBJECT

 public:
  explicit TActionList(TComponent* owner) : TCustomActionList(owner) {}
};
