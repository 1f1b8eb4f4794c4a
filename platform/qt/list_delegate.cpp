#include "platform/qt/list_delegate.h"

#include <QStyle>

#include "platform/qt/list_view.h"

ListDelegate::ListDelegate(ListView& view) : QStyledItemDelegate(&view), view_(view) {}

void ListDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (!view_.ShowsSelection()) option->state &= ~QStyle::State_Selected;
  option->showDecorationSelected = view_.FullRowSelect();
}

QStyleOptionViewItem ListDelegate::CellOption(const QStyleOptionViewItem& row, int column) const {
  QStyleOptionViewItem cell = row;
  if (!view_.InReport()) return cell;
  cell.rect = view_.CellRect(row.rect, column);
  if (column > 0) {
    cell.state &= ~QStyle::State_HasFocus;
    if (!view_.FullRowSelect()) cell.state &= ~QStyle::State_Selected;
  }
  return cell;
}

void ListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  const int columns = view_.InReport() ? index.model()->columnCount() : 1;
  for (int column = 0; column < columns; ++column) {
    const QStyleOptionViewItem cell = CellOption(option, column);
    if (cell.rect.width() <= 0 || !cell.rect.intersects(view_.viewport()->rect())) continue;
    QStyledItemDelegate::paint(painter, cell, index.siblingAtColumn(column));
  }
}

QSize ListDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyleOptionViewItem row = option;
  initStyleOption(&row, index);
  // One line, whatever a label holds.
  row.text = view_.InReport() ? QStringLiteral("x") : view_.Rows().Text(view_.WidestRow(), 0);
  row.text.replace(QLatin1Char('\n'), QLatin1Char(' '));
  row.features |= QStyleOptionViewItem::HasDisplay;
  QSize size = view_.style()->sizeFromContents(QStyle::CT_ItemViewItem, &row, QSize(), row.widget);
  size.rheight() += option.fontMetrics.height() / 4;  // Check boxes shall not touch.
  if (view_.InReport()) {
    size.setWidth(view_.Headings().length());
  } else {
    size.rwidth() += 2 * option.fontMetrics.averageCharWidth();  // The gap to the next column.
  }
  return size;
}

bool ListDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                               const QStyleOptionViewItem& option, const QModelIndex& index) {
  return QStyledItemDelegate::editorEvent(event, model, CellOption(option, 0), index);
}

QRect ListDelegate::CheckBoxRect(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
  QStyleOptionViewItem cell = CellOption(option, 0);
  initStyleOption(&cell, index);
  if ((cell.features & QStyleOptionViewItem::HasCheckIndicator) == 0) return {};
  return view_.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &cell, &view_);
}
