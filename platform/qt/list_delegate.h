#pragma once

// How the rows of a list view are drawn and answer the mouse. Private to the platform layer.

#include <QStyledItemDelegate>

class ListView;

class ListDelegate final : public QStyledItemDelegate {
 public:
  explicit ListDelegate(ListView& view);

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

  /// The place of the check box in a row whose rectangle the option holds.
  QRect CheckBoxRect(const QStyleOptionViewItem& option, const QModelIndex& index) const;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  QStyleOptionViewItem CellOption(const QStyleOptionViewItem& row, int column) const;

  ListView& view_;
};
