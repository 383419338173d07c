// The list in which the user selects any number of entries, such as the states of bills. Selecting ranges,
// dragging entries and drawing them by oneself are not there.
#pragma once

#include <string>

#include "toolkit/string_list.h"
#include "toolkit/win_control.h"

class QListView;
class TStringsModel;

namespace corvane {
class StringVector;
}

/// A list of entries of which any number is selected; each has a key and a name in the two lists beside
/// Items. A click, or the space key, selects an entry or takes its selection off. Typing a text moves the
/// current entry only, and a drag of the mouse, whose release is no click, selects nothing. OnClick runs when
/// the user changes the selection, not for SetSelected.
class TKVXCustomListBox : public TbsSkinControl {
  Q_OBJECT

 public:
  /// The visible entries. An entry stays selected when others come and go and when its text changes.
  TStrings& Items() { return items_; }
  const TStrings& Items() const { return items_; }
  /// The keys, by the index of their entries.
  TStrings& Keys() { return keys_; }
  const TStrings& Keys() const { return keys_; }
  /// The names, by the index of their entries.
  TStrings& Names() { return names_; }
  const TStrings& Names() const { return names_; }
  /// Empties all three lists.
  void Clear();

  /// Whether the entry at an index is selected; false when there is none.
  bool Selected(int index) const;
  /// Selects an entry or takes its selection off; an index out of range changes nothing.
  void SetSelected(int index, bool selected);
  /// Number of the selected entries.
  int SelCount() const;
  /// Keys of the selected entries, in list order.
  corvane::StringVector GetSelectedKeys() const;

 protected:
  explicit TKVXCustomListBox(TComponent* owner);
  bool ClicksByMouse() const override { return false; }

 private:
  class View;
  QListView* List() const;
  void ItemsChanged();

  TStrings items_;
  TStrings keys_;
  TStrings names_;
  TStringsModel* model_ = nullptr;
  bool setting_ = false;
};

/// The list box that a form holds.
class TKVXListBox : public TKVXCustomListBox {
  Q_OBJECT

 public:
  explicit TKVXListBox(TComponent* owner) : TKVXCustomListBox(owner) {}
};
