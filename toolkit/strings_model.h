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
  TStringsModel(const TStrings& strings, QObject* parent) : QAbstractListModel(parent), strings_(strings) {}

  /// Tells the views what has changed since the last call.
  void Update();

  int rowCount(const QModelIndex& parent = {}) const override;
  /// The text, and the same as tool tip.
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const TStrings& strings_;
  std::vector<std::string> shown_;
};
