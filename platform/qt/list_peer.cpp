#include "platform/qt/list_peer.h"

#include <QScopedValueRollback>
#include <QScrollBar>

#include "platform/qt/control_parts.h"

namespace {

constexpr UINT kUnchecked = INDEXTOSTATEIMAGEMASK(1);
constexpr UINT kChecked = INDEXTOSTATEIMAGEMASK(2);

Qt::Alignment ToAlignment(int format) {
  const Qt::Alignment across = format == LVCFMT_RIGHT    ? Qt::AlignRight
                               : format == LVCFMT_CENTER ? Qt::AlignHCenter
                                                         : Qt::AlignLeft;
  return across | Qt::AlignVCenter;
}

UINT ImageOf(bool checked) { return checked ? kChecked : kUnchecked; }

}  // namespace

ListPeer::ListPeer(DWORD initialStyle, const std::wstring& initialText, QWidget* host) {
  kind = ControlKind::List;
  text = initialText;
  widget = new ListView(host);
  View().ShowStyle(initialStyle);
  Watch();
}

void ListPeer::Watch() {
  ListView* view = &View();
  const auto* selection = view->selectionModel();
  QObject::connect(selection, &QItemSelectionModel::selectionChanged, view,
                   [view](const QItemSelection& selected, const QItemSelection& deselected) {
                     if (auto* peer = PeerOf<ListPeer>(view))
                       peer->OnSelectionChanged(selected, deselected);
                   });
  QObject::connect(selection, &QItemSelectionModel::currentChanged, view,
                   [view](const QModelIndex& now, const QModelIndex& before) {
                     const HWND window = PeerOf<ListPeer>(view) != nullptr
                                             ? PeerOf<ListPeer>(view)->handle
                                             : nullptr;
                     const int left = before.row(), reached = now.row();
                     if (auto* peer = FindPeerAs<ListPeer>(window))
                       peer->NotifyChange(left, 0, LVIS_FOCUSED);
                     if (auto* peer = FindPeerAs<ListPeer>(window))
                       peer->NotifyChange(reached, LVIS_FOCUSED, 0);
                   });
  QObject::connect(&view->Rows(), &QAbstractItemModel::dataChanged, view,
                   [view](const QModelIndex& row, const QModelIndex&, const QList<int>& roles) {
                     auto* peer = PeerOf<ListPeer>(view);
                     if (peer == nullptr || !roles.contains(Qt::CheckStateRole)) return;
                     const bool checked = view->Rows().Checked(row.row());
                     peer->NotifyChange(row.row(), ImageOf(checked), ImageOf(!checked));
                   });
}

LRESULT ListPeer::DefaultProcedure(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case LVM_GETEXTENDEDLISTVIEWSTYLE:
      return extendedStyle_;
    case LVM_SCROLL:
      Scroll(static_cast<int>(wParam), static_cast<int>(lParam));
      return TRUE;
    default:
      return Peer::DefaultProcedure(message, wParam, lParam);
  }
}

void ListPeer::OnStyleChanged(DWORD changed) {
  constexpr DWORD kShown = LVS_TYPEMASK | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOCOLUMNHEADER;
  if ((changed & kShown) != 0) View().ShowStyle(style);
}

DWORD ListPeer::SetExtendedStyle(DWORD extended) {
  const DWORD before = std::exchange(extendedStyle_, extended);
  Rows().ShowCheckBoxes((extended & LVS_EX_CHECKBOXES) != 0);
  View().SetFullRowSelect((extended & LVS_EX_FULLROWSELECT) != 0);
  return before;
}

int ListPeer::InsertColumn(int column, const QString& heading, int format, int width) {
  const int made = Rows().InsertColumn(column, heading, ToAlignment(format));
  if (made < 0) return made;
  SetColumnWidth(made, width >= 0 ? width : View().Headings().sectionSizeHint(made));
  return made;
}

bool ListPeer::SetColumnWidth(int column, int width) {
  if (column < 0 || column >= Rows().Headings() || width < 0) return false;
  View().Headings().resizeSection(column, width);
  return true;
}

int ListPeer::ColumnWidth(int column) const {
  const bool known = column >= 0 && column < Rows().Headings();
  return known ? View().Headings().sectionSize(column) : 0;
}

bool ListPeer::Remove(int row) {
  const QScopedValueRollback<bool> removing(removing_, true);
  return Rows().Remove(row);
}

void ListPeer::Clear() {
  const QScopedValueRollback<bool> removing(removing_, true);
  Rows().Clear();
}

bool ListPeer::SetState(int row, UINT state, UINT mask) {
  const bool all = row == -1;
  const bool select = (state & LVIS_SELECTED) != 0;
  if (all && Rows().Count() == 0) return true;
  if (!all && !Rows().Has(row)) return false;
  if ((mask & LVIS_SELECTED) != 0) {
    if (all && select && View().selectionMode() == QAbstractItemView::SingleSelection) return false;
    const QItemSelection rows(Rows().index(all ? 0 : row, 0),
                              Rows().index(all ? Rows().Count() - 1 : row, 0));
    View().selectionModel()->select(rows, SelectionCommand(select));
  }
  if ((mask & LVIS_FOCUSED) != 0 && !all && FindPeer(handle) == this) {
    MoveFocus(row, (state & LVIS_FOCUSED) != 0);
  }
  return true;
}

QItemSelectionModel::SelectionFlags ListPeer::SelectionCommand(bool select) const {
  if (!select) return QItemSelectionModel::Deselect;
  const bool single = View().selectionMode() == QAbstractItemView::SingleSelection;
  return single ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::Select;
}

void ListPeer::MoveFocus(int row, bool here) {
  const bool isHere = View().currentIndex().row() == row;
  if (isHere == here) return;
  View().selectionModel()->setCurrentIndex(here ? Rows().index(row, 0) : QModelIndex(),
                                           QItemSelectionModel::NoUpdate);
}

UINT ListPeer::State(int row) const {
  if (!Rows().Has(row)) return 0;
  const QModelIndex index = Rows().index(row, 0);
  UINT state = View().selectionModel()->isSelected(index) ? LVIS_SELECTED : 0;
  if (View().currentIndex().row() == row) state |= LVIS_FOCUSED;
  if (Rows().HasCheckBoxes()) state |= ImageOf(Rows().Checked(row));
  return state;
}

int ListPeer::NextSelected(int row) const {
  int next = -1;
  for (const QItemSelectionRange& range : View().selectionModel()->selection()) {
    if (range.bottom() < row) continue;
    const int first = qMax(range.top(), row);
    if (next < 0 || first < next) next = first;
  }
  return next;
}

QScrollBar& ListPeer::ScrollBar(int bar) const {
  return bar == SB_VERT ? *View().verticalScrollBar() : *View().horizontalScrollBar();
}

void ListPeer::Scroll(int dx, int dy) {
  const QSize row = Rows().Count() > 0 ? View().RowRect(0).size() : QSize(1, 1);
  const bool report = View().InReport();
  ScrollBar(SB_HORZ).setValue(ScrollBar(SB_HORZ).value() + (report ? dx : dx / row.width()));
  ScrollBar(SB_VERT).setValue(ScrollBar(SB_VERT).value() + (report ? dy / row.height() : dy));
}

void ListPeer::NotifyClick(UINT code, int row, const QPoint& place) {
  NMITEMACTIVATE note;
  note.iItem = row;
  note.ptAction = CPoint(place.x(), place.y());
  note.lParam = static_cast<LPARAM>(Rows().Kept(row));
  NotifyParent(*this, note.hdr, code);
}

void ListPeer::OnSelectionChanged(const QItemSelection& selected,
                                  const QItemSelection& deselected) {
  const HWND window = handle;
  NotifyChanges(deselected, 0, LVIS_SELECTED);
  if (auto* peer = FindPeerAs<ListPeer>(window)) peer->NotifyChanges(selected, LVIS_SELECTED, 0);
}

void ListPeer::NotifyChanges(const QItemSelection& rows, UINT newState, UINT oldState) {
  const HWND window = handle;
  for (const QItemSelectionRange& range : rows) {
    for (int row = range.top(); row <= range.bottom(); ++row) {
      if (auto* peer = FindPeerAs<ListPeer>(window)) peer->NotifyChange(row, newState, oldState);
    }
  }
}

void ListPeer::NotifyChange(int row, UINT newState, UINT oldState) {
  if (removing_ || !Rows().Has(row)) return;
  NMLISTVIEW note;
  note.iItem = row;
  note.uNewState = newState;
  note.uOldState = oldState;
  note.uChanged = LVIF_STATE;
  note.lParam = static_cast<LPARAM>(Rows().Kept(row));
  NotifyParent(*this, note.hdr, LVN_ITEMCHANGED);
}
