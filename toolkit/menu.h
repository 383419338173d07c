#pragma once

#include <QPointer>
#include <string>
#include <vector>

#include "toolkit/action_client.h"
#include "toolkit/component.h"

class QMenu;
class TAction;
class TImageList;
class TMenu;

/// An entry of a menu, or with entries of its own a submenu. The caption "-" makes a separator.
class TMenuItem : public TComponent, public TActionClient {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ PublishedCaption WRITE SetPublishedCaption)
  Q_PROPERTY(QString Hint READ PublishedHint WRITE SetPublishedHint)

 public:
  explicit TMenuItem(TComponent* owner);
  ~TMenuItem() override;

  /// Text of the entry, empty at the start.
  std::string Caption() const final { return caption_; }
  void SetCaption(const std::string& caption) final { caption_ = caption; }
  /// Kept for the forms; menus show no hints.
  std::string Hint() const final { return hint_; }
  void SetHint(const std::string& hint) final { hint_ = hint; }
  /// Whether the entry is a separator.
  bool IsLine() const { return caption_ == "-"; }
  /// Whether the entry can be clicked; true at the start.
  bool Enabled() const final { return enabled_; }
  void SetEnabled(bool enabled) final { enabled_ = enabled; }
  /// Whether the entry shows in the menu; true at the start.
  bool Visible() const final { return visible_; }
  void SetVisible(bool visible) final { visible_ = visible; }
  /// Whether the entry bears a tick; false at the start.
  bool Checked() const { return checked_; }
  void SetChecked(bool checked) { checked_ = checked; }
  /// Whether a click turns Checked round before OnClick runs.
  bool AutoCheck() const { return auto_check_; }
  void SetAutoCheck(bool on) { auto_check_ = on; }
  /// Index of the picture in the images of the action's list, or else of the menu; -1: none.
  int ImageIndex() const final { return image_index_; }
  void SetImageIndex(int index) { image_index_ = index; }
  /// The action that names, enables, shows and executes the entry; null takes it off.
  TAction* Action() const { return action_; }
  void SetAction(TAction* action) final;

  /// The entries of the submenu, counted from 0.
  int Count() const { return static_cast<int>(items_.size()); }
  TMenuItem* Items(int index) const { return items_.at(static_cast<std::size_t>(index)); }
  TMenuItem* Parent() const { return parent_; }
  /// Puts an entry at the end, or before an index; the entry keeps its owner.
  void Add(TMenuItem* item);
  void Insert(int index, TMenuItem* item);
  /// Takes an entry out without deleting it.
  void Delete(int index);
  /// Takes all entries out and deletes them.
  void Clear();
  /// Makes an entry at the end: for an action, or a separator.
  TMenuItem* AddAction(TAction* action);
  TMenuItem* AddLine();

  /// What a click does: turns an AutoCheck, then OnClick or the action. Nothing while disabled.
  void Click();

  TNotifyEvent OnClick;

  QString PublishedCaption() const;
  void SetPublishedCaption(const QString& caption);
  QString PublishedHint() const;
  void SetPublishedHint(const QString& hint);

 private:
  void TakeChecked(bool checked) final { checked_ = checked; }
  void TakeImage(const TAction& action) final;

  std::string caption_;
  std::string hint_;
  bool enabled_ = true;
  bool visible_ = true;
  bool checked_ = false;
  bool auto_check_ = false;
  int image_index_ = -1;
  TAction* action_ = nullptr;
  TMenuItem* parent_ = nullptr;
  std::vector<TMenuItem*> items_;
};

/// A tree of entries below one root.
class TMenu : public TComponent {
  Q_OBJECT
  Q_PROPERTY(QObject* Items READ PublishedItems)

 public:
  ~TMenu() override;
  /// The root entry, never null; the menu owns it.
  TMenuItem* Items() const { return items_; }
  TImageList* Images() const { return images_; }
  void SetImages(TImageList* images) { images_ = images; }
  QObject* PublishedItems() const;

 protected:
  explicit TMenu(TComponent* owner);
  /// Fills a menu of Qt's with the entries of an item.
  void Fill(QMenu* menu, const TMenuItem* item);

 private:
  TMenuItem* items_;
  TImageList* images_ = nullptr;
};

class TPopupMenu : public TMenu {
  Q_OBJECT

 public:
  explicit TPopupMenu(TComponent* owner) : TMenu(owner) {}
  ~TPopupMenu() override;

  /// Runs OnPopup, shows the visible entries as they are now at a point of the screen, and returns at once. A
  /// menu without entries doesn't open.
  void Popup(int x, int y);
  void Close();
  /// The open or last opened menu, which bears the name of this one; null before.
  QMenu* Widget() const;
  /// The control that the menu was opened on by the mouse, null: by code.
  TComponent* PopupComponent() const { return popup_component_; }
  void SetPopupComponent(TComponent* component) { popup_component_ = component; }

  TNotifyEvent OnPopup;

 private:
  QPointer<QMenu> menu_;
  QPointer<TComponent> popup_component_;
};
