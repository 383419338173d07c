#pragma once

#include <memory>
#include <string>
#include <vector>

#include "toolkit/control.h"

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
  ~TTreeNode() override;
  std::string Text() const;
  void SetText(const std::string& text);
  int Count() const { return static_cast<int>(children_.size()); }
  TTreeNode* Items(int index) const { return children_.at(static_cast<std::size_t>(index)); }
  TTreeNode* Parent() const { return parent_; }
  bool Expanded() const;
  void Expand(bool recurse);

 protected:
  friend class TCustomTreeView;
  friend class TKVXTreeView;
  TTreeNode(TCustomTreeView* tree, TTreeNode* parent);

 private:
  TCustomTreeView* tree_;
  TTreeNode* parent_;
  QTreeWidgetItem* item_;
  std::vector<TTreeNode*> children_;
};

/// A tree of texts.
class TCustomTreeView : public TbsSkinControl {
  Q_OBJECT

 public:
  ~TCustomTreeView() override;
  /// The roots, in order.
  int RootCount() const { return static_cast<int>(roots_.size()); }
  TTreeNode* Roots(int index) const { return roots_.at(static_cast<std::size_t>(index)); }
  /// Appends a root (parent null) or a child.
  TTreeNode* Add(TTreeNode* parent, const std::string& text);
  TTreeNode* Selected() const;
  void Clear();
  void ExpandAll();

 protected:
  explicit TCustomTreeView(TComponent* owner);
  void FontChanged() override;
  QTreeWidget* Tree() const;

 private:
  friend class TTreeNode;
  std::vector<TTreeNode*> roots_;
};

/// A node with a record: its field Name is the text, Key the identity.
class TKVXTreeNode : public TTreeNode {
  Q_OBJECT

 public:
  ~TKVXTreeNode() override;
  const corvane::Property& Data() const { return *data_; }

 private:
  friend class TKVXTreeView;
  TKVXTreeNode(TCustomTreeView* tree, TTreeNode* parent, const corvane::Property& data);
  std::unique_ptr<corvane::Property> data_;
};

/// A tree of records.
class TKVXTreeView : public TCustomTreeView {
  Q_OBJECT

 public:
  explicit TKVXTreeView(TComponent* owner);
  /// Empties the tree and makes its root from a record; options are kept by nobody and may be empty.
  TKVXTreeNode* CreateRoot(const corvane::Property& data, const corvane::Property& options);
  /// The record node that stands behind a node of this tree.
  TKVXTreeNode* AllocateDataNode(TTreeNode* node) const;
  /// Appends a child made from a record; a null parent appends it to the root, or makes the root.
  TKVXTreeNode* AddChildNode(TKVXTreeNode* parent, const corvane::Property& data,
                             const corvane::Property& options);
};
