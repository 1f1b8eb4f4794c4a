#include "platform/qt/list_model.h"

#include <algorithm>

int ListModel::Insert(int row, const QString& label) {
  if (row < 0) return -1;
  const int place = std::min(row, Count());
  beginInsertRows({}, place, place);
  rows_.insert(rows_.begin() + place, Row{label, {}});
  endInsertRows();
  return place;
}

bool ListModel::Remove(int row) {
  if (!Has(row)) return false;
  beginRemoveRows({}, row, row);
  rows_.erase(rows_.begin() + row);
  endRemoveRows();
  return true;
}

void ListModel::Clear() {
  if (rows_.empty()) return;
  beginResetModel();
  rows_.clear();
  endResetModel();
}

QString ListModel::Text(int row, int column) const {
  if (!Has(row) || column < 0) return {};
  const Row& found = rows_[Place(row)];
  return column == 0 ? found.label : found.others.value(column - 1);
}

bool ListModel::SetText(int row, int column, const QString& text) {
  if (!Has(row) || column < 0 || column >= columnCount()) return false;
  Row& changed = rows_[Place(row)];
  while (changed.others.size() < column) changed.others.append(QString());
  (column == 0 ? changed.label : changed.others[column - 1]) = text;
  const QModelIndex place = index(row, column);
  Q_EMIT dataChanged(place, place, {Qt::DisplayRole});
  return true;
}

bool ListModel::SetKept(int row, quintptr data) {
  if (Has(row)) rows_[Place(row)].data = data;
  return Has(row);
}

bool ListModel::Checked(int row) const {
  return checkBoxes_ && Has(row) && rows_[Place(row)].checked;
}

bool ListModel::SetChecked(int row, bool checked) {
  if (!checkBoxes_ || !Has(row)) return false;
  if (rows_[Place(row)].checked == checked) return true;
  rows_[Place(row)].checked = checked;
  const QModelIndex place = index(row, 0);
  Q_EMIT dataChanged(place, place, {Qt::CheckStateRole});
  return true;
}

void ListModel::ShowCheckBoxes(bool show) {
  if (checkBoxes_ == show) return;
  Q_EMIT layoutAboutToBeChanged();
  checkBoxes_ = show;
  Q_EMIT layoutChanged();
}

int ListModel::InsertColumn(int column, const QString& heading, Qt::Alignment alignment) {
  if (column < 0) return -1;
  const int place = std::min(column, Headings());
  const bool first = columns_.empty();
  if (!first) beginInsertColumns({}, place, place);
  columns_.insert(columns_.begin() + place, {heading, alignment});
  if (first) {
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, 0);
  } else {
    EditTexts([place](QStringList& texts) { texts.insert(place, QString()); });
    endInsertColumns();
  }
  return place;
}

bool ListModel::RemoveColumn(int column) {
  if (column < 0 || column >= Headings()) return false;
  const bool last = Headings() == 1;
  if (!last) beginRemoveColumns({}, column, column);
  columns_.erase(columns_.begin() + column);
  if (last) {
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, 0);
  } else {
    EditTexts([column](QStringList& texts) { texts.removeAt(column); });
    endRemoveColumns();
  }
  return true;
}

/// Columns come and go while the texts of each row stay below their headings.
void ListModel::EditTexts(const std::function<void(QStringList&)>& edit) {
  for (Row& row : rows_) {
    QStringList texts = row.others;
    texts.prepend(row.label);
    while (texts.size() <= Headings()) texts.append(QString());
    edit(texts);
    row.label = texts.takeFirst();
    row.others = texts;
  }
}

int ListModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : Count(); }

int ListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : std::max(Headings(), 1);
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  const int row = index.row(), column = index.column();
  if (!Has(row)) return {};
  switch (role) {
    case Qt::DisplayRole:
      return Text(row, column);
    case Qt::AccessibleTextRole:
      return column == 0 ? SpokenText(row) : Text(row, column);
    case Qt::CheckStateRole:
      if (!checkBoxes_ || column != 0) return {};
      return Checked(row) ? Qt::Checked : Qt::Unchecked;
    case Qt::TextAlignmentRole:
      return column < Headings() ? QVariant(columns_[Place(column)].alignment) : QVariant();
    default:
      return {};
  }
}

/// A row is one thing to a person, and the focus is always on its label.
QString ListModel::SpokenText(int row) const {
  QStringList texts = {Text(row, 0)};
  for (int column = 1; column < columnCount(); ++column) texts << Text(row, column);
  texts.removeAll(QString());
  return texts.join(QStringLiteral(", "));
}

bool ListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  return role == Qt::CheckStateRole && index.column() == 0 &&
         SetChecked(index.row(), value.toInt() == Qt::Checked);
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const bool known = orientation == Qt::Horizontal && section >= 0 && section < Headings();
  if (role == Qt::DisplayRole) return known ? columns_[Place(section)].heading : QString();
  if (role == Qt::TextAlignmentRole && known) return QVariant(columns_[Place(section)].alignment);
  return {};
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const {
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  if (checkBoxes_ && index.column() == 0) flags |= Qt::ItemIsUserCheckable;
  return flags;
}
