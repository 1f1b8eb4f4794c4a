#include "platform/qt/list_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

#include "platform/qt/control_parts.h"
#include "platform/qt/list_delegate.h"
#include "platform/qt/list_peer.h"

namespace {

constexpr int kLeastColumnWidth = 8;

bool IsMove(int key) {
  constexpr int kMoves[] = {Qt::Key_Up,   Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown,
                            Qt::Key_Home, Qt::Key_End,  Qt::Key_Left,   Qt::Key_Right};
  return std::ranges::find(kMoves, key) != std::end(kMoves);
}

}  // namespace

ListView::ListView(QWidget* parent)
    : QListView(parent),
      rows_(new ListModel(this)),
      header_(new QHeaderView(Qt::Horizontal, this)),
      delegate_(new ListDelegate(*this)) {
  setModel(rows_);
  setItemDelegate(delegate_);
  setUniformItemSizes(true);
  setResizeMode(QListView::Adjust);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setFocusPolicy(Qt::StrongFocus);
  header_->setModel(rows_);
  header_->setStretchLastSection(false);
  header_->setMinimumSectionSize(kLeastColumnWidth);
  header_->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  header_->hide();
  connect(header_, &QHeaderView::sectionResized, this, [this] { scheduleDelayedItemsLayout(); });
  connect(horizontalScrollBar(), &QScrollBar::valueChanged, header_, [this](int value) {
    if (report_) header_->setOffset(value);
  });
}

void ListView::ShowStyle(unsigned style) {
  report_ = (style & LVS_TYPEMASK) == LVS_REPORT;
  headingsShown_ = (style & LVS_NOCOLUMNHEADER) == 0;
  showsAlways_ = (style & LVS_SHOWSELALWAYS) != 0;
  setSelectionMode((style & LVS_SINGLESEL) != 0 ? SingleSelection : ExtendedSelection);
  setWrapping(!report_);
  setHorizontalScrollMode(report_ ? ScrollPerPixel : ScrollPerItem);
  header_->setOffset(0);
  ForgetWidths();
  doItemsLayout();
}

void ListView::SetFullRowSelect(bool full) {
  fullRow_ = full;
  viewport()->update();
}

QRect ListView::CellRect(const QRect& row, int column) const {
  if (!report_) return row;
  return {header_->sectionViewportPosition(column), row.y(), header_->sectionSize(column),
          row.height()};
}

QRect ListView::CheckBoxRect(int row) const {
  if (!rows_->HasCheckBoxes() || !rows_->Has(row)) return {};
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  option.rect = RowRect(row);
  return delegate_->CheckBoxRect(option, rows_->index(row, 0));
}

QRect ListView::visualRect(const QModelIndex& index) const {
  if (index.column() <= 0) return QListView::visualRect(index);
  return report_ ? CellRect(QListView::visualRect(index.siblingAtColumn(0)), index.column())
                 : QRect();
}

int ListView::WidestRow() const {
  for (; measured_ < rows_->Count(); ++measured_) {
    const int pixels = fontMetrics().horizontalAdvance(rows_->Text(measured_, 0));
    if (pixels <= widestPixels_) continue;
    widestPixels_ = pixels;
    widest_ = measured_;
  }
  return widest_;
}

void ListView::ForgetWidths() {
  measured_ = 0;
  widest_ = widestPixels_ = -1;
}

void ListView::reset() {
  ForgetWidths();
  QListView::reset();
}

void ListView::dataChanged(const QModelIndex& from, const QModelIndex& to,
                           const QList<int>& roles) {
  if (from.row() < measured_ && from.column() == 0 && !roles.contains(Qt::CheckStateRole)) {
    ForgetWidths();
  }
  // In these cases no size has changed, and the list need not be laid out anew.
  const bool sameSizes = report_ || roles == QList<int>{Qt::CheckStateRole};
  // NOLINTNEXTLINE(bugprone-parent-virtual-call): the list's own would lay it out.
  if (sameSizes) return QAbstractItemView::dataChanged(from, to, roles);
  QListView::dataChanged(from, to, roles);
}

void ListView::rowsInserted(const QModelIndex& parent, int first, int last) {
  if (first < measured_) ForgetWidths();
  QListView::rowsInserted(parent, first, last);
}

void ListView::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) {
  ForgetWidths();
  // The keyboard goes on from the next row, but no row is selected in place of a removed one.
  const int row = currentIndex().row();
  if (row >= first && row <= last) {
    const int next = last + 1 < rows_->Count() ? last + 1 : first - 1;
    selectionModel()->setCurrentIndex(rows_->index(next, 0), QItemSelectionModel::NoUpdate);
  }
  QListView::rowsAboutToBeRemoved(parent, first, last);
}

void ListView::updateGeometries() {
  if (placing_) return;
  PlaceHeadings();
  QListView::updateGeometries();
}

void ListView::PlaceHeadings() {
  const QScopedValueRollback<bool> placing(placing_, true);
  const bool shown = report_ && headingsShown_;
  const int height = shown ? header_->sizeHint().height() : 0;
  if (viewportMargins().top() != height) setViewportMargins(0, height, 0, 0);
  header_->setVisible(shown);
  const QRect below = viewport()->geometry();
  header_->setGeometry(below.left(), below.top() - height, below.width(), height);
}

void ListView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) ForgetWidths();
  QListView::changeEvent(event);
}

void ListView::resizeEvent(QResizeEvent* event) {
  QListView::resizeEvent(event);
  // The toolkit would first show the rows where they were for a tenth of a second.
  if (!report_ && !placing_) doItemsLayout();
}

void ListView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space && rows_->HasCheckBoxes() && currentIndex().isValid()) {
    return ToggleAtFocus();
  }
  const QPointer<ListView> alive = this;
  const bool moves = event->modifiers() == Qt::NoModifier && IsMove(event->key());
  QListView::keyPressEvent(event);
  // A key that leads no further selects where it stands, so that the only row can be selected.
  if (alive == nullptr || !moves || selectionModel()->hasSelection()) return;
  selectionModel()->select(currentIndex(), QItemSelectionModel::Select);
}

void ListView::ToggleAtFocus() {
  const int row = currentIndex().row();
  const bool check = !rows_->Checked(row);
  QList<QPersistentModelIndex> changed = {currentIndex()};
  if (selectionModel()->isSelected(currentIndex())) {
    for (const QModelIndex& index : selectionModel()->selectedIndexes()) changed << index;
  }
  for (const QPersistentModelIndex& index : changed) rows_->SetChecked(index.row(), check);
}

void ListView::mousePressEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  doubleClick_ = false;
  QListView::mousePressEvent(event);
  if (RowAt(place) < 0 && event->modifiers() == Qt::NoModifier) clearSelection();
  // Before the menu, which opens at the press.
  if (event->button() == Qt::RightButton) NotifyClick(NM_RCLICK, place);
}

void ListView::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  QListView::mouseReleaseEvent(event);
  const bool click = event->button() == Qt::LeftButton && !doubleClick_;
  if (click) NotifyClick(NM_CLICK, place);
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  doubleClick_ = true;
  QListView::mouseDoubleClickEvent(event);
  const bool onBox = CheckBoxRect(RowAt(place)).contains(place);
  if (event->button() == Qt::LeftButton && !onBox) NotifyClick(NM_DBLCLK, place);
}

void ListView::NotifyClick(unsigned code, const QPoint& place) {
  if (auto* peer = PeerOf<ListPeer>(this)) peer->NotifyClick(code, RowAt(place), place);
}
