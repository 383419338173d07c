#pragma once

#include <memory>
#include <string>
#include <vector>

#include "toolkit/win_control.h"

class QTreeWidget;
class QTreeWidgetItem;
class TCustomTreeView;

namespace corvane {
class Property;
}

/// A node of a tree; the tree owns it.
class TTreeNode : public TObject {
  Q_OBJECT

 public:
  std::string Text() const { return text_; }
  void SetText(const std::string& text);
  /// The nodes right below, in order.
  int Count() const { return static_cast<int>(children_.size()); }
  /// std::out_of_range when there is none.
  TTreeNode* Items(int index) const { return children_.at(static_cast<std::size_t>(index)).get(); }
  TTreeNode* Parent() const { return parent_; }
  bool Expanded() const;
  /// Shows the nodes below, with recurse down to the last.
  void Expand(bool recurse);

 protected:
  friend class TCustomTreeView;
  explicit TTreeNode(TTreeNode* parent) : parent_(parent) {}

 private:
  TTreeNode* parent_;
  QTreeWidgetItem* item_ = nullptr;
  std::string text_;
  std::vector<std::unique_ptr<TTreeNode>> children_;
};

/// A tree of texts; they can be read, not edited in place.
class TCustomTreeView : public TbsSkinControl {
  Q_OBJECT

 public:
  ~TCustomTreeView() override;
  /// The roots, in order.
  int RootCount() const { return static_cast<int>(roots_.size()); }
  /// std::out_of_range when there is none.
  TTreeNode* Roots(int index) const { return roots_.at(static_cast<std::size_t>(index)).get(); }
  /// Appends a root (parent null) or a child.
  TTreeNode* Add(TTreeNode* parent, const std::string& text);
  /// The selected node, null: none.
  TTreeNode* Selected() const;
  void Clear();
  void ExpandAll();

 protected:
  explicit TCustomTreeView(TComponent* owner);
  QTreeWidget* Tree() const;
  /// Takes a new node as the last one below its parent, or as the last root.
  TTreeNode* Adopt(std::unique_ptr<TTreeNode> node, const std::string& text);

 private:
  std::vector<std::unique_ptr<TTreeNode>> roots_;
};

/// A node with a record: its field Name is the text, Key the identity.
class TKVXTreeNode : public TTreeNode {
  Q_OBJECT

 public:
  ~TKVXTreeNode() override;
  const corvane::Property& Data() const { return *data_; }

 private:
  friend class TKVXTreeView;
  TKVXTreeNode(TTreeNode* parent, const corvane::Property& data);
  std::unique_ptr<corvane::Property> data_;
};

/// A tree of records.
class TKVXTreeView : public TCustomTreeView {
  Q_OBJECT

 public:
  explicit TKVXTreeView(TComponent* owner) : TCustomTreeView(owner) {}
  /// Empties the tree and makes its root from a record; options are kept by nobody and may be empty.
  TKVXTreeNode* CreateRoot(const corvane::Property& data, const corvane::Property& options);
  /// The record node that stands behind a node of this tree, null when it has no record.
  TKVXTreeNode* AllocateDataNode(TTreeNode* node) const;
  /// Appends a child made from a record; a null parent appends it to the root, or makes the root.
  TKVXTreeNode* AddChildNode(TKVXTreeNode* parent, const corvane::Property& data,
                             const corvane::Property& options);
};
