#include "toolkit/tree_view.h"

#include <QHeaderView>
#include <QTreeWidget>

#include "data/row.h"
#include "toolkit/text.h"

void TTreeNode::SetText(const std::string& text) {
  text_ = text;
  if (item_ == nullptr) return;
  item_->setText(0, ToQt(text));
  item_->setToolTip(0, ToToolTip(text));
}

bool TTreeNode::Expanded() const {
  return item_ != nullptr && item_->isExpanded();
}

void TTreeNode::Expand(bool recurse) {
  if (item_ == nullptr) return;
  item_->setExpanded(true);
  if (!recurse) return;
  for (const auto& child : children_) child->Expand(true);
}

TCustomTreeView::TCustomTreeView(TComponent* owner) : TbsSkinControl(owner) {
  auto* tree = new QTreeWidget;
  SetWidget(tree);
  SetTabStop(true);
  tree->header()->hide();
  tree->setUniformRowHeights(true);
  tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
  // Long texts are reached by the horizontal scroll bar instead of being cut.
  tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  tree->header()->setStretchLastSection(false);
}

TCustomTreeView::~TCustomTreeView() {
  delete Widget();
}

QTreeWidget* TCustomTreeView::Tree() const {
  return static_cast<QTreeWidget*>(Widget());
}

TTreeNode* TCustomTreeView::Adopt(std::unique_ptr<TTreeNode> node, const std::string& text) {
  TTreeNode* parent = node->parent_;
  TTreeNode* adopted = node.get();
  if (Tree() != nullptr) {
    adopted->item_ = new QTreeWidgetItem;
    adopted->item_->setData(0, Qt::UserRole, QVariant::fromValue<void*>(adopted));
    if (parent == nullptr) {
      Tree()->addTopLevelItem(adopted->item_);
    } else {
      parent->item_->addChild(adopted->item_);
    }
  }
  adopted->SetText(text);
  (parent == nullptr ? roots_ : parent->children_).push_back(std::move(node));
  return adopted;
}

TTreeNode* TCustomTreeView::Add(TTreeNode* parent, const std::string& text) {
  return Adopt(std::unique_ptr<TTreeNode>(new TTreeNode(parent)), text);
}

TTreeNode* TCustomTreeView::Selected() const {
  const QTreeWidgetItem* item = Tree() == nullptr ? nullptr : Tree()->currentItem();
  if (item == nullptr || !item->isSelected()) return nullptr;
  return static_cast<TTreeNode*>(item->data(0, Qt::UserRole).value<void*>());
}

void TCustomTreeView::Clear() {
  if (Tree() != nullptr) Tree()->clear();
  roots_.clear();
}

void TCustomTreeView::ExpandAll() {
  if (Tree() != nullptr) Tree()->expandAll();
}

TKVXTreeNode::TKVXTreeNode(TTreeNode* parent, const corvane::Property& data)
    : TTreeNode(parent), data_(std::make_unique<corvane::Property>(data)) {}

TKVXTreeNode::~TKVXTreeNode() = default;

TKVXTreeNode* TKVXTreeView::CreateRoot(const corvane::Property& data, const corvane::Property& options) {
  Clear();
  return AddChildNode(nullptr, data, options);
}

TKVXTreeNode* TKVXTreeView::AllocateDataNode(TTreeNode* node) const {
  return qobject_cast<TKVXTreeNode*>(node);
}

TKVXTreeNode* TKVXTreeView::AddChildNode(TKVXTreeNode* parent, const corvane::Property& data,
                                         const corvane::Property&) {
  TTreeNode* above = parent == nullptr && RootCount() > 0 ? Roots(0) : parent;
  auto node = std::unique_ptr<TTreeNode>(new TKVXTreeNode(above, data));
  return static_cast<TKVXTreeNode*>(Adopt(std::move(node), data.getValue("Name")));
}
