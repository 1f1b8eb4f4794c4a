#pragma once

// The rows and columns of a list view. Private to the platform layer.

#include <QAbstractTableModel>
#include <QStringList>
#include <functional>
#include <vector>

/// Rows hold their texts and their state, without an object of their own each. A model without
/// columns still has that of the labels.
class ListModel final : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  int Count() const { return static_cast<int>(rows_.size()); }
  bool Has(int row) const { return row >= 0 && row < Count(); }
  /// A number past the end appends; -1 for a negative one.
  int Insert(int row, const QString& label);
  bool Remove(int row);
  void Clear();

  /// Empty where there is none.
  QString Text(int row, int column) const;
  bool SetText(int row, int column, const QString& text);
  quintptr Kept(int row) const { return Has(row) ? rows_[Place(row)].data : 0; }
  bool SetKept(int row, quintptr data);
  /// False without check boxes.
  bool Checked(int row) const;
  bool SetChecked(int row, bool checked);
  void ShowCheckBoxes(bool show);
  bool HasCheckBoxes() const { return checkBoxes_; }

  /// Number of the columns that have a heading.
  int Headings() const { return static_cast<int>(columns_.size()); }
  /// The column's number; a number past the end appends.
  int InsertColumn(int column, const QString& heading, Qt::Alignment alignment);
  bool RemoveColumn(int column);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  struct Row {
    QString label;
    QStringList others;  ///< The texts of the columns behind the first.
    quintptr data = 0;
    bool checked = false;
  };
  struct Column {
    QString heading;
    Qt::Alignment alignment;
  };

  static std::size_t Place(int number) { return static_cast<std::size_t>(number); }
  QString SpokenText(int row) const;
  void EditTexts(const std::function<void(QStringList&)>& edit);

  std::vector<Row> rows_;
  std::vector<Column> columns_;
  bool checkBoxes_ = false;
};
