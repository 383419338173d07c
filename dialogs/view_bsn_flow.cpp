#include "dialogs/view_bsn_flow.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "toolkit/conversion.h"
#include "toolkit/layout.h"

namespace {

constexpr int kMargin = 12;
constexpr int kGap = 8;

corvane::Property NodeOf(const std::string& name, const std::string& key) {
  corvane::Property node;
  node["Name"] = name;
  node["Key"] = key;
  return node;
}

}  // namespace

TfrmViewBsnFlow::TfrmViewBsnFlow(TComponent* owner, corvane::CorvaneStream answer)
    : TBaseForm(owner), m_answer(std::move(answer)) {}

void TfrmViewBsnFlow::BuildControls() {
  TBaseForm::BuildControls();
  m_tvBsnFlowID = NewComponent<TKVXTreeView>(this, "m_tvBsnFlowID");
  bsSkinPanel1 = NewComponent<TbsSkinPanel>(this, "bsSkinPanel1");
  m_btnClose = NewComponent<TbsSkinButton>(this, "m_btnClose");
  m_btnClose->OnClick = [this](TObject*) { Close(); };
  TColumnLayout column(this);
  column.SetMargins(kMargin, kMargin, kMargin, kMargin);
  column.SetSpacing(kGap);
  column.Add(m_tvBsnFlowID, 1);
  column.Add(bsSkinPanel1);
  TRowLayout buttons(bsSkinPanel1);
  buttons.AddStretch();
  buttons.Add(m_btnClose);
  SetBorderStyle(bsSizeable);
  SetPosition(poMainFormCenter);
  SetWidth(420);
  SetHeight(460);
}

void TfrmViewBsnFlow::SetCaptions() {
  SetCaption("UI52434");
  m_btnClose->SetCaption("UI12517");
}

void TfrmViewBsnFlow::Construct() {
  TBaseForm::Construct();
  SetTag(kAnnouncedMark);
}

void TfrmViewBsnFlow::ResetForm() {
  TBaseForm::ResetForm();
  ReadAnswer();
  BuildTree();
  SetCancelButton(m_btnClose);
  SetActiveControl(m_tvBsnFlowID);
}

void TfrmViewBsnFlow::ReadAnswer() {
  m_bsnName = m_answer.getValue("BSNNM");
  const auto lists = std::distance(m_answer.listsBegin(), m_answer.listsEnd());
  const int maximum = std::max(kEmptyLevels, static_cast<int>(lists));
  m_levelCount = std::min(StrToInt(m_answer.getValue("AUDITTOTAL")), maximum);
  m_batchList = m_answer.getList("PSTLEVEL0");
  m_levelLists.clear();
  for (int level = 1; level <= m_levelCount; ++level) {
    const std::string number = IntToStr(level);
    m_levelLists[number] = m_answer.getList("PSTLEVEL" + number);
  }
}

void TfrmViewBsnFlow::BuildTree() {
  TKVXTreeNode* root = m_tvBsnFlowID->CreateRoot(NodeOf(m_bsnName, "BSNNM"), {});
  if (m_batchList.size() > 0) AddStep(root, m_batchList.getAttribute("PSTNM"), "BATCH", m_batchList);
  for (int level = 1; level <= m_levelCount; ++level) {
    corvane::List& operators = m_levelLists[IntToStr(level)];
    AddStep(root, operators.getAttribute("PSTNM"), operators.getAttribute("name"), operators);
  }
  m_tvBsnFlowID->ExpandAll();
}

void TfrmViewBsnFlow::AddStep(TKVXTreeNode* root, const std::string& name, const std::string& key,
                              const corvane::List& operators) {
  TKVXTreeNode* step = m_tvBsnFlowID->AddChildNode(root, NodeOf(name, key), {});
  for (const corvane::Row& row : operators) {
    const std::string number = row.getValue("OPRNO");
    const std::string text = number + "-" + row.getValue("OPRNM") + "(" + row.getValue("CSTNMCN") + ")";
    m_tvBsnFlowID->AddChildNode(step, NodeOf(text, number), {});
  }
}
