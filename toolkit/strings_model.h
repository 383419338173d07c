// The bridge from a string list to Qt's views of lists. Combo boxes and list boxes show their entries through
// it; it changes no string.
#pragma once

#include <QAbstractListModel>
#include <string>
#include <vector>

class TStrings;

/// Shows a string list to a view of Qt's. The view keeps current and selected entries over changes: they stay
/// with entries whose text changes, and go with entries that are removed.
class TStringsModel : public QAbstractListModel {
  Q_OBJECT

 public:
  /// The strings must outlive the model.
  TStringsModel(const TStrings& strings, QObject* parent) : QAbstractListModel(parent), strings_(strings) {}

  /// Reports to the views what has changed since the last call.
  void Update();

  /// Number of the strings as of the last Update.
  int rowCount(const QModelIndex& parent = {}) const override;
  /// The text, and the same as tool tip.
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const TStrings& strings_;
  std::vector<std::string> shown_;
};
