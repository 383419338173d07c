// The form of ShowStatistics: two tables, of all records and of the ticked ones. Callers use
// dialogs/statistics.h; tests build the form itself.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "data/corvane.h"
#include "framework/base/base_form.h"
#include "toolkit/buttons.h"
#include "toolkit/decimal.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/labels.h"
#include "toolkit/panels.h"

/// The sums; Prepare computes them before the form is shown.
class TfrmStatistics : public TBaseForm {
  Q_OBJECT

 public:
  explicit TfrmStatistics(TComponent* owner);

  void BuildControls() override;
  void SetCaptions() override;
  /// Reads the column table of the owner's class; a failure is reported in the standard way, and the sums
  /// then have no captions.
  void Construct() override;
  void PreInitHook1() override {}
  void PreInitHook2() override {}
  void ResetForm() override;

  /// Fills both tables; true when they are ready. Any failure, such as a record that the bank refused or an
  /// amount that is no number, shows one message and returns false.
  bool Prepare(TForm* owner, TKVXListView* listView, const corvane::StringVector& columns,
               const std::string& caption);

  TbsSkinButton* m_btnOk = nullptr;
  TLabel* m_lbAll = nullptr;
  TLabel* m_lbSelected = nullptr;
  TbsSkinPanel* m_pnlSelected = nullptr;
  TbsSkinPanel* m_pnlAll = nullptr;
  TListView* m_ltvInfo = nullptr;
  TbsSkinScrollBar* m_SkinScrollBarAllH = nullptr;
  TbsSkinScrollBar* m_SkinScrollBarAllV = nullptr;
  TListView* m_ltvSelected = nullptr;
  TbsSkinScrollBar* m_SkinScrollBarSelectedV = nullptr;
  TbsSkinScrollBar* m_SkinScrollBarSelectedH = nullptr;

 private:
  struct TTotals {
    int records = 0;
    std::map<std::string, TDecimal> sums;  ///< by column id
  };

  TListView* BuildTable(TbsSkinPanel* panel, const char* name, TbsSkinScrollBar* horizontal,
                        TbsSkinScrollBar* vertical);
  void Compute();
  void AddRecords(bool checkedOnly);
  void AddRecord(const TListItem* item);
  std::string CurrencyOf(const corvane::Property& record);
  void BuildColumns(TListView* table);
  void Fill(TListView* table) const;

  TKVXListView* m_listView = nullptr;  ///< not owned
  corvane::StringVector m_sumColumns;
  std::map<std::string, TTotals> m_sums;      ///< by currency text
  std::optional<std::string> usualCurrency_;  ///< of a record that names none, once asked for
  std::string m_ownerClass;
  corvane::List m_fieldDefs;
};
