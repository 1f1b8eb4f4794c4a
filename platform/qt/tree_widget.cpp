#include "platform/qt/tree_widget.h"

#include <QHash>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

#include "platform/qt/control_parts.h"
#include "platform/qt/gdi_types.h"
#include "platform/qt/tree_peer.h"

namespace {

QIcon IconOf(const CImageList::Implementation& list, int index) {
  QIcon icon;
  if (index < 0 || index >= static_cast<int>(list.images.size())) return icon;
  const QPixmap& image = list.images[static_cast<std::size_t>(index)];
  icon.addPixmap(image);
  icon.addPixmap(image, QIcon::Selected);  // Otherwise the style tints it.
  return icon;
}

/// Gives every row the tree's height and its image.
class TreeDelegate final : public QStyledItemDelegate {
 public:
  explicit TreeDelegate(TreeWidget& tree) : QStyledItemDelegate(&tree), tree_(tree) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QSize size = TextSize(option, index);
    const auto* peer = PeerOf<TreePeer>(&tree_);
    if (peer != nullptr && peer->ChosenRowHeight() > 0) size.setHeight(peer->ChosenRowHeight());
    return size;
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const auto* peer = PeerOf<TreePeer>(&tree_);
    if (peer == nullptr || peer->Images() == nullptr) return;
    const auto& images = *peer->Images()->Get();
    const bool selected = index == tree_.currentIndex();
    const int role = selected ? TreeSelectedImageRole : TreeImageRole;
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = images.size;
    option->icon = IconOf(images, index.data(role).toInt());
  }

 private:
  /// What the size of a row depends on beside its text.
  struct Basis {
    QFont font;
    QSize image;
    const QStyle* style = nullptr;
    bool operator==(const Basis&) const = default;
  };

  /// The toolkit asks for every row each time it lays the tree out.
  QSize TextSize(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const Basis basis{option.font, option.decorationSize, tree_.style()};
    if (basis != basis_) {
      basis_ = basis;
      sizes_.clear();
    }
    const QString text = index.data().toString();
    auto size = sizes_.constFind(text);
    if (size == sizes_.cend()) {
      size = sizes_.insert(text, QStyledItemDelegate::sizeHint(option, index));
    }
    return *size;
  }

  TreeWidget& tree_;
  mutable Basis basis_;
  mutable QHash<QString, QSize> sizes_;
};

}  // namespace

TreeSelectionModel::TreeSelectionModel(QTreeWidget& tree)
    : QItemSelectionModel(tree.model(), &tree), tree_(tree) {}

void TreeSelectionModel::setCurrentIndex(const QModelIndex& index, SelectionFlags command) {
  if (open_) return QItemSelectionModel::setCurrentIndex(index, command);
  if (closed_) return;
  auto* peer = PeerOf<TreePeer>(&tree_);
  if (peer != nullptr && index.isValid()) {
    peer->Select(TreePeer::HandleOf(tree_.itemFromIndex(index)));
  }
}

void TreeSelectionModel::select(const QModelIndex& index, SelectionFlags command) {
  if (open_) QItemSelectionModel::select(index, command);
}

void TreeSelectionModel::select(const QItemSelection& selection, SelectionFlags command) {
  if (open_) QItemSelectionModel::select(selection, command);
}

void TreeSelectionModel::clear() {
  const QScopedValueRollback<bool> open(open_, true);
  QItemSelectionModel::clear();
}

void TreeSelectionModel::Move(const QModelIndex& index) {
  if (!index.isValid()) return clear();
  const QScopedValueRollback<bool> open(open_, true);
  QItemSelectionModel::setCurrentIndex(index, ClearAndSelect);
}

TreeWidget::TreeWidget(QWidget* parent)
    : QTreeWidget(parent), selection_(new TreeSelectionModel(*this)) {
  setSelectionModel(selection_);
  setColumnCount(1);
  setHeaderHidden(true);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  setUniformRowHeights(true);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  // The toolkit would expand rows without asking; the widget does it itself.
  setItemsExpandable(false);
  setExpandsOnDoubleClick(false);
  setItemDelegate(new TreeDelegate(*this));
}

void TreeWidget::MoveSelection(QTreeWidgetItem* item) {
  selection_->Move(item != nullptr ? indexFromItem(item) : QModelIndex());
}

void TreeWidget::focusInEvent(QFocusEvent* event) {
  // The focus alone chooses no row, though the toolkit would make the first one current.
  const QScopedValueRollback<bool> closed(selection_->closed_, true);
  QTreeWidget::focusInEvent(event);
}

void TreeWidget::resizeEvent(QResizeEvent* event) {
  // The mark of the selected row spans the tree also where all titles are shorter.
  if (viewport()->width() != header()->minimumSectionSize()) {
    header()->setMinimumSectionSize(viewport()->width());
    resizeColumnToContents(0);
  }
  QTreeWidget::resizeEvent(event);
}

void TreeWidget::mousePressEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  QTreeWidgetItem* item = itemAt(place);
  if (item != nullptr && event->button() == Qt::LeftButton && IsOnExpander(*item, place)) {
    return Toggle(item, !item->isExpanded());
  }
  QTreeWidget::mousePressEvent(event);
}

void TreeWidget::mouseMoveEvent(QMouseEvent* event) {
  // Rows are chosen by a press, not by dragging over them, which would ask again for each.
  if (event->buttons() == Qt::NoButton) QTreeWidget::mouseMoveEvent(event);
}

void TreeWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  QTreeWidgetItem* item = itemAt(event->position().toPoint());
  if (item != nullptr && event->button() == Qt::LeftButton) Toggle(item, !item->isExpanded());
}

void TreeWidget::keyPressEvent(QKeyEvent* event) {
  if (!OnTreeKey(event->key())) QTreeWidget::keyPressEvent(event);
}

bool TreeWidget::IsOnExpander(const QTreeWidgetItem& item, const QPoint& place) const {
  if (item.childCount() == 0) return false;
  const QRect row = visualRect(indexFromItem(&item));
  if (isRightToLeft()) return place.x() > row.right() && place.x() <= row.right() + indentation();
  return place.x() < row.left() && place.x() >= row.left() - indentation();
}

bool TreeWidget::OnTreeKey(int key) {
  QTreeWidgetItem* item = currentItem();
  if (item == nullptr) return false;
  const bool expandable = item->childCount() > 0;
  const int towardsParent = isRightToLeft() ? Qt::Key_Right : Qt::Key_Left;
  const int towardsChildren = isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
  if (key == Qt::Key_Plus || (key == towardsChildren && expandable && !item->isExpanded())) {
    Toggle(item, true);
  } else if (key == Qt::Key_Minus || (key == towardsParent && expandable && item->isExpanded())) {
    Toggle(item, false);
  } else if (key == towardsChildren) {
    if (expandable) setCurrentItem(item->child(0));
  } else if (key == towardsParent) {
    if (item->parent() != nullptr) setCurrentItem(item->parent());
  } else {
    return false;
  }
  return true;
}

void TreeWidget::Toggle(QTreeWidgetItem* item, bool expand) {
  if (auto* peer = PeerOf<TreePeer>(this)) peer->Toggle(TreePeer::HandleOf(item), expand);
}
