// Trees of texts and of records, for forms that show what depends on what. The user opens and closes nodes
// and selects one; editing in place, pictures, check boxes and dragging of the original's trees are not
// there.
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
  /// Text of the node.
  std::string Text() const { return text_; }
  void SetText(const std::string& text);
  /// Number of the nodes right below.
  int Count() const { return static_cast<int>(children_.size()); }
  /// A node right below by its place, from 0; std::out_of_range when there is none.
  TTreeNode* Items(int index) const { return children_.at(static_cast<std::size_t>(index)).get(); }
  /// The node above, null for a root.
  TTreeNode* Parent() const { return parent_; }
  /// Whether the nodes below show.
  bool Expanded() const;
  /// Shows the nodes right below, with recurse all nodes below.
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
  /// Number of the roots.
  int RootCount() const { return static_cast<int>(roots_.size()); }
  /// A root by its place, from 0; std::out_of_range when there is none.
  TTreeNode* Roots(int index) const { return roots_.at(static_cast<std::size_t>(index)).get(); }
  /// Appends a root (parent null) or a child and returns it; the tree owns it.
  TTreeNode* Add(TTreeNode* parent, const std::string& text);
  /// The selected node, null: none.
  TTreeNode* Selected() const;
  /// Deletes all nodes.
  void Clear();
  /// Shows all nodes.
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
  /// The node's copy of its record.
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
  /// Empties the tree and makes its root from a record; options are not used and may be empty.
  TKVXTreeNode* CreateRoot(const corvane::Property& data, const corvane::Property& options);
  /// The same node as a record node, null when it has no record.
  TKVXTreeNode* AllocateDataNode(TTreeNode* node) const;
  /// Appends a child made from a record; a null parent appends it to the root, or makes the root.
  TKVXTreeNode* AddChildNode(TKVXTreeNode* parent, const corvane::Property& data,
                             const corvane::Property& options);
};
