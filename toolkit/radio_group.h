// Alternatives in a frame, of which the user chooses one: periods, ways of sorting, times of booking. Single
// radio buttons are in buttons.h.
#pragma once

#include <string>
#include <vector>

#include "toolkit/string_list.h"
#include "toolkit/win_control.h"

class QButtonGroup;
class QGridLayout;
class QRadioButton;

/// A framed group of alternatives, of which one or none is chosen. The radio button of item i bears the
/// group's name, "_" and i as object name. OnClick runs when the user chooses an item, also the chosen one
/// again.
class TbsSkinRadioGroup : public TbsSkinControl {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ PublishedCaption WRITE SetPublishedCaption)

 public:
  explicit TbsSkinRadioGroup(TComponent* owner);

  /// Names the group and its radio buttons.
  void SetName(const std::string& name) override;
  /// The texts, in order. The choice stays with its index while there is such an item.
  TStrings& Items() { return items_; }
  const TStrings& Items() const { return items_; }
  /// Number of columns of items, at least 1; filled row by row.
  int Columns() const { return columns_; }
  void SetColumns(int columns);
  /// The chosen item, -1: none.
  int ItemIndex() const { return itemIndex_; }
  /// Chooses an item and runs OnClick when the index is that of an item, also when it was chosen already; an
  /// index out of range chooses none and runs nothing.
  void SetItemIndex(int index);

 protected:
  void CaptionChanged() override;
  void FontChanged() override;
  QWidget* FocusWidget() const override;
  bool HoldsFocusOn(const QWidget* widget) const override;
  bool ClicksByMouse() const override { return false; }

 private:
  void ItemsChanged();
  void PlaceButtons();
  void ShowChoice();
  void NameButtons();

  TStrings items_;
  std::vector<QRadioButton*> buttons_;
  QButtonGroup* group_;
  QGridLayout* grid_;
  int columns_ = 1;
  int itemIndex_ = -1;
  bool setting_ = false;
  bool pressedShown_ = false;  // the button under the mouse or the key is the chosen one
};
