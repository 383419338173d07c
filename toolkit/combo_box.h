// Drop-down lists: texts, and texts with keys and names as the host's dictionaries give them. Conditions and
// dialogs let the user choose from them. Typing a text of one's own into the box is not there.
#pragma once

#include <string>

#include "toolkit/string_list.h"
#include "toolkit/win_control.h"

class QComboBox;
class TStringsModel;

namespace corvane {
class Row;
}

/// A drop-down list. OnChange runs when the user picks an entry, also the one that was chosen already, not
/// for SetItemIndex. An entry that is too long for the box is cut with "..." and shown complete in a tool
/// tip.
class TCustomComboBox : public TbsSkinControl {
  Q_OBJECT
  Q_PROPERTY(QString Text READ PublishedText WRITE SetPublishedText)
  Q_PROPERTY(int ImeMode READ ImeMode WRITE SetImeMode)
  Q_PROPERTY(QString ImeName READ PublishedImeName WRITE SetPublishedImeName)

 public:
  /// The visible entries. The choice stays with its entry when others come and go or texts change; removing
  /// the chosen entry leaves none.
  TStrings& Items() { return items_; }
  const TStrings& Items() const { return items_; }
  /// Index of the chosen entry, -1: none.
  int ItemIndex() const;
  /// Chooses an entry without running OnChange; an index out of range chooses none.
  void SetItemIndex(int index);
  /// Text of the chosen entry, empty when there is none.
  std::string Text() const;
  /// Chooses the first entry of that text, unless the chosen one bears it; any other text changes nothing.
  void SetText(const std::string& text);
  /// Removes all entries.
  virtual void Clear();

  /// Runs after the user picked an entry.
  TNotifyEvent OnChange;

  /// Published properties (see properties.h).
  QString PublishedText() const;
  void SetPublishedText(const QString& text);

 protected:
  explicit TCustomComboBox(TComponent* owner);
  bool ClicksByMouse() const override { return false; }
  QComboBox* Combo() const;

 private:
  class Box;
  void ItemsChanged();
  void Picked();

  TStrings items_;
  TStringsModel* model_ = nullptr;
  bool setting_ = false;
  bool reported_ = false;
};

/// A drop-down list whose entries have a key and a name: three lists side by side, each with its own
/// operations.
class TKVXCustomComboBox : public TCustomComboBox {
  Q_OBJECT

 public:
  /// The keys, by the index of their entries.
  TStrings& Keys() { return keys_; }
  const TStrings& Keys() const { return keys_; }
  /// The names, by the index of their entries.
  TStrings& Names() { return names_; }
  const TStrings& Names() const { return names_; }
  /// Text that joins key and name in an entry; "-" at the start.
  std::string LinkSymbol() const { return linkSymbol_; }
  void SetLinkSymbol(const std::string& symbol) { linkSymbol_ = symbol; }

  /// Replaces all three lists by the fields of a row in the row's order: name as key, value as name and
  /// entry. No entry is chosen.
  void Init(const corvane::Row& row);
  /// Index of a key, -1 when absent.
  int FindKeyIndex(const std::string& key) const;
  /// Key of the chosen entry, empty when none is chosen or it has no key.
  std::string GetKey() const;
  /// Empties all three lists.
  void Clear() override;

 protected:
  explicit TKVXCustomComboBox(TComponent* owner) : TCustomComboBox(owner) {}

 private:
  TStrings keys_;
  TStrings names_;
  std::string linkSymbol_ = "-";
};

/// The drop-down list that a form holds.
class TKVXComboBox : public TKVXCustomComboBox {
  Q_OBJECT

 public:
  explicit TKVXComboBox(TComponent* owner) : TKVXCustomComboBox(owner) {}
};
