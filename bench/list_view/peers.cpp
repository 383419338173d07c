#include "bench/list_view/peers.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QTreeWidget>

#include "data/list.h"
#include "data/string_vector.h"
#include "toolkit/application.h"
#include "toolkit/decimal_text.h"
#include "toolkit/form.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/text.h"

namespace list_bench {

const std::vector<Column>& Columns() {
  static const std::vector<Column> kColumns = {
      {"BILLNUM", 140, 0}, {"BILLTYP", 100, 0}, {"PAYAMT", 120, 2},  {"ISSDATE", 80, 0},
      {"DUEDATE", 80, 0},  {"AGTSTAT", 80, 0},  {"ACCPNAM", 200, 0}, {"PYEENAM", 200, 0},
      {"CUSTACC", 160, 0}, {"AGTBHNM", 120, 0}, {"BATCHNO", 100, 0}, {"QURYNUM", 60, 4},
  };
  return kColumns;
}

namespace {

// What a cell shows. A widget of items has to be given it when it is filled.
QString Shown(const corvane::Row& row, const Column& column) {
  return ToQt(CellText(column.format, row.getValue(column.field)));
}

THundredths Amount(const QString& shown) {
  return ParseAmount(FromQt(shown)).value_or(0);
}

class KvxPeer : public ListPeer {
 public:
  KvxPeer() {
    CreateApplication();
    form_ = CreateForm<TForm>(Application);
    list_ = NewComponent<TKVXListView>(form_, "m_lvMain");
    list_->SetCheckboxes(true);
    list_->SetRowSelect(true);
    list_->SetGridLines(true);
    for (const Column& column : Columns()) {
      TListColumn* made = list_->Columns().Add();
      made->SetCaption(column.field);
      made->SetWidth(column.width);
      made->SetTag(column.format);
      list_->ColumnIds().push_back(column.field);
    }
  }
  ~KvxPeer() override { DestroyApplication(); }

  QWidget* Widget() override { return list_->Widget(); }
  void Fill(const corvane::List& rows) override {
    list_->Add(rows, list_->ColumnIds().toString("; ", false));
  }
  void TickAll() override { list_->CheckAll(); }
  std::string SumOfTicked() override { return list_->GetTotalMoney(kAmountColumn + 1, true); }
  void DeleteOdd() override {
    std::vector<int> odd;
    for (int i = 1; i < Rows(); i += 2) odd.push_back(i);
    list_->DelItems(odd);
  }
  int Rows() override { return list_->Items().Count(); }

 private:
  TForm* form_;
  TKVXListView* list_;
};

class TreePeer : public ListPeer {
 public:
  TreePeer() {
    QStringList captions;
    for (const Column& column : Columns()) captions << QString::fromLatin1(column.field);
    tree_.setHeaderLabels(captions);
    tree_.setRootIsDecorated(false);
    tree_.setUniformRowHeights(true);
    for (int i = 0; i < captions.size(); ++i)
      tree_.setColumnWidth(i, Columns()[static_cast<std::size_t>(i)].width);
  }

  QWidget* Widget() override { return &tree_; }
  void Fill(const corvane::List& rows) override {
    QList<QTreeWidgetItem*> items;
    items.reserve(rows.size());
    records_.reserve(rows.size());
    for (const corvane::Row& row : rows) {
      QStringList texts;
      for (const Column& column : Columns()) texts << Shown(row, column);
      items << new QTreeWidgetItem(texts);
      items.back()->setCheckState(0, Qt::Unchecked);
      items.back()->setTextAlignment(kAmountColumn, Qt::AlignRight);
      records_.emplace_back(row);
    }
    tree_.addTopLevelItems(items);
  }
  void TickAll() override {
    for (int i = 0; i < Rows(); ++i) tree_.topLevelItem(i)->setCheckState(0, Qt::Checked);
  }
  std::string SumOfTicked() override {
    THundredths sum = 0;
    for (int i = 0; i < Rows(); ++i) {
      const QTreeWidgetItem* item = tree_.topLevelItem(i);
      if (item->checkState(0) == Qt::Checked) sum += Amount(item->text(kAmountColumn));
    }
    return AmountText(sum);
  }
  // Taking all out and putting back what stays is its quick way; one by one is quadratic.
  void DeleteOdd() override {
    QList<QTreeWidgetItem*> items = tree_.invisibleRootItem()->takeChildren();
    QList<QTreeWidgetItem*> kept;
    std::vector<corvane::Property> records;
    for (int i = 0; i < items.size(); ++i) {
      if (i % 2 == 1) {
        delete items[i];
      } else {
        kept << items[i];
        records.push_back(std::move(records_[static_cast<std::size_t>(i)]));
      }
    }
    records_ = std::move(records);
    tree_.addTopLevelItems(kept);
  }
  int Rows() override { return tree_.topLevelItemCount(); }

 private:
  QTreeWidget tree_;
  std::vector<corvane::Property> records_;
};

class TablePeer : public ListPeer {
 public:
  TablePeer() {
    QStringList captions;
    for (const Column& column : Columns()) captions << QString::fromLatin1(column.field);
    table_.setColumnCount(static_cast<int>(captions.size()));
    table_.setHorizontalHeaderLabels(captions);
    table_.verticalHeader()->hide();
    for (int i = 0; i < captions.size(); ++i)
      table_.setColumnWidth(i, Columns()[static_cast<std::size_t>(i)].width);
  }

  QWidget* Widget() override { return &table_; }
  void Fill(const corvane::List& rows) override {
    table_.setRowCount(static_cast<int>(rows.size()));
    records_.reserve(rows.size());
    int at = 0;
    for (const corvane::Row& row : rows) {
      int column = 0;
      for (const Column& shown : Columns()) {
        auto* item = new QTableWidgetItem(Shown(row, shown));
        if (column == 0) item->setCheckState(Qt::Unchecked);
        if (column == kAmountColumn) item->setTextAlignment(Qt::AlignRight);
        table_.setItem(at, column++, item);
      }
      records_.emplace_back(row);
      ++at;
    }
  }
  void TickAll() override {
    for (int i = 0; i < Rows(); ++i) table_.item(i, 0)->setCheckState(Qt::Checked);
  }
  std::string SumOfTicked() override {
    THundredths sum = 0;
    for (int i = 0; i < Rows(); ++i) {
      if (table_.item(i, 0)->checkState() == Qt::Checked)
        sum += Amount(table_.item(i, kAmountColumn)->text());
    }
    return AmountText(sum);
  }
  // Moving what stays to the front and cutting the rest off is its quick way; one by one is quadratic.
  void DeleteOdd() override {
    const int kept = (Rows() + 1) / 2;
    for (int to = 1; to < kept; ++to) {
      for (int column = 0; column < table_.columnCount(); ++column) {
        table_.setItem(to, column, table_.takeItem(to * 2, column));
      }
      records_[static_cast<std::size_t>(to)] = std::move(records_[static_cast<std::size_t>(to) * 2]);
    }
    table_.setRowCount(kept);
    records_.resize(static_cast<std::size_t>(kept));
  }
  int Rows() override { return table_.rowCount(); }

 private:
  QTableWidget table_;
  std::vector<corvane::Property> records_;
};

template <class T>
std::unique_ptr<ListPeer> Make() {
  return std::make_unique<T>();
}

}  // namespace

const std::vector<Peer>& AllPeers() {
  static const std::vector<Peer> kPeers = {
      {"TKVXListView", Make<KvxPeer>}, {"QTreeWidget", Make<TreePeer>}, {"QTableWidget", Make<TablePeer>}};
  return kPeers;
}

}  // namespace list_bench
