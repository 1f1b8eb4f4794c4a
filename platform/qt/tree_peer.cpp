#include "platform/qt/tree_peer.h"

#include "platform/controls.h"
#include "platform/qt/gdi_types.h"
#include "platform/qt/tree_widget.h"

namespace {

quintptr Number(HTREEITEM handle) { return reinterpret_cast<quintptr>(handle); }

NMTREEVIEW SelectionNote(HTREEITEM from, DWORD_PTR fromData, HTREEITEM to, DWORD_PTR toData) {
  NMTREEVIEW note;
  note.itemOld = {from, static_cast<LPARAM>(fromData)};
  note.itemNew = {to, static_cast<LPARAM>(toData)};
  return note;
}

}  // namespace

TreePeer::TreePeer(DWORD, const std::wstring&, QWidget* host) {
  kind = ControlKind::Tree;
  widget = new TreeWidget(host);
}

TreeWidget& TreePeer::Tree() const { return static_cast<TreeWidget&>(*widget); }

LRESULT TreePeer::DefaultProcedure(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message != TVM_EXPAND) return Peer::DefaultProcedure(message, wParam, lParam);
  return Expand(reinterpret_cast<HTREEITEM>(lParam), static_cast<UINT>(wParam));
}

HTREEITEM TreePeer::Insert(const QString& rowText, int image, int selectedImage,
                           HTREEITEM parentRow, HTREEITEM after) {
  QTreeWidgetItem* above = parentRow == TVI_ROOT ? Tree().invisibleRootItem() : Find(parentRow);
  if (above == nullptr) return nullptr;
  QTreeWidgetItem* sibling = Find(after);
  const int place = sibling != nullptr ? above->indexOfChild(sibling) : -1;

  auto* item = new QTreeWidgetItem({rowText});
  rows_.insert(++lastHandle_, item);
  item->setData(0, TreeHandleRole, QVariant::fromValue(lastHandle_));
  item->setData(0, TreeImageRole, image);
  item->setData(0, TreeSelectedImageRole, selectedImage);
  above->insertChild(place < 0 ? above->childCount() : place + 1, item);
  return HandleOf(item);
}

void TreePeer::Clear() {
  Tree().MoveSelection(nullptr);
  rows_.clear();
  Tree().clear();
}

QTreeWidgetItem* TreePeer::Find(HTREEITEM row) const { return rows_.value(Number(row)); }

HTREEITEM TreePeer::HandleOf(const QTreeWidgetItem* item) {
  if (item == nullptr) return nullptr;
  return reinterpret_cast<HTREEITEM>(item->data(0, TreeHandleRole).value<quintptr>());
}

DWORD_PTR TreePeer::Data(HTREEITEM row) const {
  const QTreeWidgetItem* item = Find(row);
  return item != nullptr ? item->data(0, TreeDataRole).value<quintptr>() : 0;
}

HTREEITEM TreePeer::Selected() const { return HandleOf(Tree().currentItem()); }

bool TreePeer::Select(HTREEITEM to) {
  const HTREEITEM from = Selected();
  if (asking_ || (to != nullptr && Find(to) == nullptr)) return false;
  if (from == to) return true;
  const HWND self = handle;
  const DWORD_PTR fromData = Data(from);
  if (!AskSelection(from, to)) return false;
  // The parent may have changed the tree before it answered.
  QTreeWidgetItem* item = Find(to);
  if (to != nullptr && item == nullptr) return false;
  const DWORD_PTR toData = Data(to);
  Tree().MoveSelection(item);
  NMTREEVIEW note = SelectionNote(from, fromData, to, toData);
  if (const auto* peer = FindPeer(self)) NotifyParent(*peer, note.hdr, TVN_SELCHANGEDW);
  return true;
}

/// False also when the parent ended the tree.
bool TreePeer::AskSelection(HTREEITEM from, HTREEITEM to) {
  const HWND self = handle;
  NMTREEVIEW note = SelectionNote(from, Data(from), to, Data(to));
  struct Asking {
    HWND tree;
    void Set(bool asking) const {
      if (auto* peer = FindPeerAs<TreePeer>(tree)) peer->asking_ = asking;
    }
    explicit Asking(HWND window) : tree(window) { Set(true); }
    ~Asking() { Set(false); }
  } asking(self);
  const bool allowed = NotifyParent(*this, note.hdr, TVN_SELCHANGINGW) == 0;
  return allowed && FindPeer(self) != nullptr;
}

bool TreePeer::AskExpansion(HTREEITEM row, UINT action) {
  const HWND self = handle;
  NMTREEVIEW note = SelectionNote(nullptr, 0, row, Data(row));
  note.action = action;
  const bool allowed = NotifyParent(*this, note.hdr, TVN_ITEMEXPANDINGW) == 0;
  return allowed && FindPeer(self) != nullptr && Find(row) != nullptr;
}

bool TreePeer::Expand(HTREEITEM row, UINT code) {
  const QTreeWidgetItem* item = Find(row);
  if (item == nullptr || item->childCount() == 0) return false;
  if ((code & TVE_COLLAPSE) != 0) return Collapse(row, (code & TVE_COLLAPSERESET) != 0);
  return (code & TVE_EXPAND) != 0 && ExpandOnce(row);
}

bool TreePeer::ExpandOnce(HTREEITEM row) {
  const bool known = Find(row)->data(0, TreeExpandedOnceRole).toBool();
  if (!known && !AskExpansion(row, TVE_EXPAND)) return false;
  QTreeWidgetItem& item = *Find(row);
  item.setData(0, TreeExpandedOnceRole, true);
  item.setExpanded(true);
  return true;
}

bool TreePeer::Collapse(HTREEITEM row, bool removeChildren) {
  if (!removeChildren) {
    const HWND self = handle;
    if (IsSelectionBelow(*Find(row)) && !Select(row)) return false;
    const auto* peer = FindPeerAs<TreePeer>(self);
    if (peer == nullptr || peer->Find(row) == nullptr) return false;
    peer->Find(row)->setExpanded(false);
    return true;
  }
  QTreeWidgetItem& item = *Find(row);
  const bool selectionLost = IsSelectionBelow(item);
  NMTREEVIEW note = SelectionNote(Selected(), Data(Selected()), row, Data(row));
  // A row that goes away is left without asking.
  if (selectionLost) Tree().MoveSelection(&item);
  item.setExpanded(false);
  item.setData(0, TreeExpandedOnceRole, false);
  RemoveChildren(item);
  if (selectionLost) NotifyParent(*this, note.hdr, TVN_SELCHANGEDW);
  return true;
}

void TreePeer::Toggle(HTREEITEM row, bool expand) {
  const QTreeWidgetItem* item = Find(row);
  if (item == nullptr || item->childCount() == 0 || item->isExpanded() == expand) return;
  const HWND self = handle;
  if (!AskExpansion(row, expand ? TVE_EXPAND : TVE_COLLAPSE)) return;
  if (!expand) {
    Collapse(row, false);
  } else if (auto* peer = FindPeerAs<TreePeer>(self)) {
    peer->Find(row)->setData(0, TreeExpandedOnceRole, true);
    peer->Find(row)->setExpanded(true);
  }
}

bool TreePeer::IsSelectionBelow(const QTreeWidgetItem& item) const {
  const QTreeWidgetItem* above = Tree().currentItem();
  while (above != nullptr) {
    above = above->parent();
    if (above == &item) return true;
  }
  return false;
}

void TreePeer::RemoveChildren(QTreeWidgetItem& item) {
  for (int child = 0; child < item.childCount(); ++child) Forget(*item.child(child));
  qDeleteAll(item.takeChildren());
}

void TreePeer::Forget(const QTreeWidgetItem& item) {
  for (int child = 0; child < item.childCount(); ++child) Forget(*item.child(child));
  rows_.remove(Number(HandleOf(&item)));
}

void TreePeer::SetImages(const CImageList* images) {
  images_ = images;
  if (images != nullptr) Tree().setIconSize(images->Get()->size);
  Tree().doItemsLayout();
}

void TreePeer::SetRowHeight(int height) {
  rowHeight_ = height;
  Tree().doItemsLayout();
}

int TreePeer::RowHeight() const {
  if (rowHeight_ > 0) return rowHeight_;
  return Tree().topLevelItemCount() > 0 ? Tree().sizeHintForRow(0) : Tree().fontMetrics().height();
}
