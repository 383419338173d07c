// The form that shows as a tree who may approve a business at each level. The approval view opens it with the
// bank's answer in hand; it asks the bank for nothing.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "data/corvane.h"
#include "framework/base/base_form.h"
#include "toolkit/buttons.h"
#include "toolkit/panels.h"
#include "toolkit/tree_view.h"

/// The levels of an approval flow, each with its operators.
class TfrmViewBsnFlow : public TBaseForm {
  Q_OBJECT

 public:
  /// `answer`: BSNNM, the name of the business; AUDITTOTAL, its number of levels; the lists PSTLEVEL0 (batch
  /// step) and PSTLEVEL1 and so on, of rows with OPRNO, OPRNM and CSTNMCN, whose attribute PSTNM is the name
  /// of the step and "name" its key.
  TfrmViewBsnFlow(TComponent* owner, corvane::CorvaneStream answer);

  void BuildControls() override;
  void SetCaptions() override;
  void Construct() override;
  void PreInitHook1() override {}
  void PreInitHook2() override {}
  /// Builds the tree. An AUDITTOTAL that is no number raises the toolkit's EConvertError, and the tree stays
  /// empty. A level without a list is a node without a name; there are at most as many levels as the answer
  /// has lists or kEmptyLevels, whichever is more.
  void ResetForm() override;

  /// Levels that are shown though the answer has no list for them; bounds what an answer can ask for.
  static constexpr int kEmptyLevels = 100;

  TKVXTreeView* m_tvBsnFlowID = nullptr;
  TbsSkinPanel* bsSkinPanel1 = nullptr;
  TbsSkinButton* m_btnClose = nullptr;

 private:
  void ReadAnswer();
  void BuildTree();
  void AddStep(TKVXTreeNode* root, const std::string& name, const std::string& key,
               const corvane::List& operators);

  corvane::CorvaneStream m_answer;
  std::string m_bsnName;
  std::int32_t m_levelCount = 0;  // levels that are shown
  corvane::List m_batchList;
  std::map<std::string, corvane::List> m_levelLists;  // by the level's number
};
