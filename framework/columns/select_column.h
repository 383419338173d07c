// TfrmSelectColumn: which columns of a list are shown, in which order and how wide. A dialog, and the owner
// of the list's layout: it restores the saved widths when it is made, builds the list form's column menu, and
// saves the layout. A list form owns one for each list.
//
// A hidden column has a maximum width of 1. The first column of the column table can't be hidden.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "data/corvane.h"
#include "framework/base/base_form.h"

class TbsSkinButton;
class TKVXListView;
class TLabel;
class TListColumn;
class TListItem;
class TListView;
class TMenuItem;
class TPopupMenu;

/// The dialog of the columns of one list, and the owner of the list's layout.
class TfrmSelectColumn : public TBaseForm {
  Q_OBJECT

 public:
  /// `listView` is the list of the form `owner`, whose class name is the name of its layout; both outlive
  /// this object.
  TfrmSelectColumn(TComponent* owner, const AnsiString& className, TKVXListView* listView);

  void BuildControls() override;
  void SetCaptions() override;
  /// Restores the saved widths. A layout document that can't be read propagates as the host's exception.
  void Construct() override;
  void PreInitHook1() override {}
  void PreInitHook2() override {}
  void ResetForm() override;
  void m_lvMainClick(TObject* sender) override;

  /// Writes the layout of this list into the host's document, which is read anew first, so that another
  /// list's newer layout is not lost; nothing for a list whose columns could not all be built. The host
  /// reports no failure of storing.
  void SaveColumnInfo();

  /// Builds the column menu: an entry for each column that may be shown, and with m_bDialogOffered one for
  /// the dialog.
  void PrepareColumnMenu(TPopupMenu* menu);
  /// An entry of the menu was clicked: shows or hides its column.
  void ItemClick(TObject* sender);
  /// The entry of the dialog was clicked.
  void DialogClick(TObject* sender);

  void m_btnUpClick(TObject* sender);
  void m_btnDownClick(TObject* sender);
  void m_btnShowClick(TObject* sender);
  void m_btnHideClick(TObject* sender);
  /// Rebuilds the list's columns in the dialog's order. The list is emptied: its records have to be queried
  /// again.
  void m_btnConfirmClick(TObject* sender);
  void m_btnCloseClick(TObject* sender);
  void m_lvMainMouseUp(TObject* sender, TMouseButton button, TShiftState shift, int x, int y);

  TLabel* m_lbTitle = nullptr;
  TLabel* m_lbColumns = nullptr;
  TListView* m_lvMain = nullptr;
  TbsSkinButton* m_btnUp = nullptr;
  TbsSkinButton* m_btnDown = nullptr;
  TbsSkinButton* m_btnShow = nullptr;
  TbsSkinButton* m_btnHide = nullptr;
  TbsSkinButton* m_btnConfirm = nullptr;
  TbsSkinButton* m_btnClose = nullptr;

  bool m_bDialogOffered = false;  ///< the column menu ends with the dialog

 private:
  struct SavedColumn;

  const std::string& ColumnId(int index) const;
  void RememberWidths();
  void RestoreWidths();
  void FillList();
  void MoveFocused(int by);
  void CheckFocused(bool checked);
  void KeepFirstColumn(TListItem* item);
  void RebuildColumns();
  void AddColumn(const SavedColumn& saved, bool shown);

  corvane::Iniplus m_columnInfo;
  std::string m_strClassName;
  TKVXListView* m_pListView;
  std::map<std::string, std::int32_t> m_widths;  ///< last width other than 0, by column id
  std::int32_t m_nColumnCount = 0;
  TPopupMenu* m_pMenu = nullptr;
  std::string m_strFirstColId;  ///< first row of the column table
};
