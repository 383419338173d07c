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
/// Items. A click, or the space key, turns the selection of one entry round. Typing a text moves the current
/// entry only, and a drag of the mouse, whose release is no click, selects nothing. OnClick runs when the
/// user changes the selection, not for SetSelected.
class TKVXCustomListBox : public TbsSkinControl {
  Q_OBJECT

 public:
  /// The visible entries. An entry stays selected when others come and go and when its text changes.
  TStrings& Items() { return items_; }
  const TStrings& Items() const { return items_; }
  TStrings& Keys() { return keys_; }
  const TStrings& Keys() const { return keys_; }
  TStrings& Names() { return names_; }
  const TStrings& Names() const { return names_; }
  /// Empties all three lists.
  void Clear();

  /// Whether the entry at an index is selected; false when there is none.
  bool Selected(int index) const;
  void SetSelected(int index, bool selected);
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

class TKVXListBox : public TKVXCustomListBox {
  Q_OBJECT

 public:
  explicit TKVXListBox(TComponent* owner) : TKVXCustomListBox(owner) {}
};
