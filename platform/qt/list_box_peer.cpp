#include "platform/qt/list_box_peer.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

#include "platform/qt/control_parts.h"

namespace {

bool IsSeparator(const QModelIndex& index) {
  return index.data(ListBoxPeer::SeparatorRole).toBool();
}

/// Draws separators as a line, on the background that other rows have.
class RowDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyledItemDelegate::paint(painter, option, index);
    if (!IsSeparator(index)) return;
    const int middle = option.rect.center().y();
    const bool selected = (option.state & QStyle::State_Selected) != 0;
    painter->save();
    painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Mid));
    painter->drawLine(option.rect.left(), middle, option.rect.right(), middle);
    painter->restore();
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    if (IsSeparator(index)) size.setHeight(option.fontMetrics.height() * 2 / 3);
    return size;
  }
};

/// A list of which the row that the keyboard is on is always the one that is selected.
class ListBoxWidget final : public QListWidget {
 public:
  explicit ListBoxWidget(QWidget* host) : QListWidget(host) {
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setItemDelegate(new RowDelegate(this));
  }

 protected:
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex&,
                                                       const QEvent*) const override {
    return QItemSelectionModel::ClearAndSelect;
  }
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override {
    return focusing_ ? QModelIndex() : QListWidget::moveCursor(action, modifiers);
  }
  void focusInEvent(QFocusEvent* event) override {
    // The focus alone selects no row, though the toolkit would move to the first one.
    const QScopedValueRollback<bool> focusing(focusing_, true);
    QListWidget::focusInEvent(event);
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    // Rows are chosen by a press, not by dragging over them, which would notify for each.
    if (event->buttons() == Qt::NoButton) QListWidget::mouseMoveEvent(event);
  }

 private:
  bool focusing_ = false;
};

}  // namespace

ListBoxPeer::ListBoxPeer(DWORD, const std::wstring& initialText, QWidget* host) {
  kind = ControlKind::ListBox;
  text = initialText;
  auto* list = new ListBoxWidget(host);
  widget = list;
  QObject::connect(list, &QListWidget::currentRowChanged, list, [list] {
    if (auto* peer = PeerOf<ListBoxPeer>(list)) peer->OnSelected();
  });
}

int ListBoxPeer::Add(const QString& rowText) {
  List().addItem(rowText);
  return List().count() - 1;
}

int ListBoxPeer::Insert(int row, const QString& rowText) {
  if (row < -1 || row > Count()) return -1;
  const int place = row == -1 ? Count() : row;
  const QScopedValueRollback<bool> selecting(selecting_, true);
  List().insertItem(place, rowText);
  return place;
}

int ListBoxPeer::Remove(int row) {
  if (row < 0 || row >= Count()) return -1;
  const QScopedValueRollback<bool> selecting(selecting_, true);
  // The toolkit would select a neighbour.
  if (Selection() == row) List().setCurrentRow(-1);
  delete List().takeItem(row);
  return Count();
}

int ListBoxPeer::Select(int row) {
  const QScopedValueRollback<bool> selecting(selecting_, true);
  List().setCurrentRow(row >= 0 && row < Count() ? row : -1);
  return Selection();
}

bool ListBoxPeer::SetRow(int row, int role, const QVariant& value) {
  QListWidgetItem* item = List().item(row);
  if (item != nullptr) item->setData(role, value);
  return item != nullptr;
}

QVariant ListBoxPeer::Row(int row, int role) const {
  const QListWidgetItem* item = List().item(row);
  return item != nullptr ? item->data(role) : QVariant();
}

void ListBoxPeer::OnSelected() {
  if (!selecting_ && (style & LBS_NOTIFY) != 0) NotifyCommand(*this, LBN_SELCHANGE);
}
