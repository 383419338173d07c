// Menus: trees of entries that forms build and open at a point, shown as menus of Qt's. Entries show actions
// as controls do (action.h). Main menus, short cuts, merging and drawing entries oneself are not there.
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
  /// Stored only: menus show no hints.
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
  /// Whether a click inverts Checked before OnClick runs; false at the start.
  bool AutoCheck() const { return autoCheck_; }
  void SetAutoCheck(bool on) { autoCheck_ = on; }
  /// Index of the picture in the images of the action's list, or else of the menu; -1: none.
  int ImageIndex() const final { return imageIndex_; }
  void SetImageIndex(int index) { imageIndex_ = index; }
  /// The action that names, enables, shows and executes the entry; null takes it off.
  TAction* Action() const { return action_; }
  void SetAction(TAction* action) final;

  /// Number of the entries of the submenu.
  int Count() const { return static_cast<int>(items_.size()); }
  /// An entry of the submenu by its place, from 0; std::out_of_range when there is none.
  TMenuItem* Items(int index) const { return items_.at(static_cast<std::size_t>(index)); }
  /// The entry that this one is in, null: none.
  TMenuItem* Parent() const { return parent_; }
  /// Puts an entry at the end; the entry keeps its owner.
  void Add(TMenuItem* item);
  /// Puts an entry before an index, which is brought within 0 and Count.
  void Insert(int index, TMenuItem* item);
  /// Takes an entry out without deleting it; std::out_of_range when there is none.
  void Delete(int index);
  /// Takes all entries out and deletes them.
  void Clear();
  /// Makes an entry for an action at the end; the owner of this entry owns it.
  TMenuItem* AddAction(TAction* action);
  /// Makes a separator at the end, owned likewise.
  TMenuItem* AddLine();

  /// What a click does: inverts Checked where AutoCheck is on, then OnClick or the action. Nothing while
  /// disabled.
  void Click();

  /// Runs for a click in place of the action.
  TNotifyEvent OnClick;

  /// Published properties (see properties.h).
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
  bool autoCheck_ = false;
  int imageIndex_ = -1;
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
  /// Pictures of the entries without an action list; not owned, null: none.
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

/// A menu that opens at a point of the screen.
class TPopupMenu : public TMenu {
  Q_OBJECT

 public:
  explicit TPopupMenu(TComponent* owner) : TMenu(owner) {}
  ~TPopupMenu() override;

  /// Runs OnPopup, shows the visible entries as they are now at a point of the screen, and returns at once. A
  /// menu without entries doesn't open.
  void Popup(int x, int y);
  /// Closes the menu as if the user had left it.
  void Close();
  /// The open or last opened menu, which bears the name of this one; null before.
  QMenu* Widget() const;
  /// The control that the menu was opened on by the mouse, null: by code.
  TComponent* PopupComponent() const { return popupComponent_; }
  void SetPopupComponent(TComponent* component) { popupComponent_ = component; }

  /// Runs before the menu opens; it may build the entries.
  TNotifyEvent OnPopup;

 private:
  QPointer<QMenu> menu_;
  QPointer<TComponent> popupComponent_;
};
