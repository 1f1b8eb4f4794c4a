#include "platform/controls.h"
#include "platform/qt/tree_peer.h"

HTREEITEM CTreeCtrl::InsertItem(const CString& text, int image, int selectedImage, HTREEITEM parent,
                                HTREEITEM after) {
  auto* peer = FindPeerAs<TreePeer>(m_hWnd);
  if (peer == nullptr) return nullptr;
  return peer->Insert(ToQt(text.Str()), image, selectedImage, parent, after);
}

BOOL CTreeCtrl::DeleteAllItems() {
  auto* peer = FindPeerAs<TreePeer>(m_hWnd);
  if (peer != nullptr) peer->Clear();
  return peer != nullptr;
}

BOOL CTreeCtrl::SetItemData(HTREEITEM item, DWORD_PTR data) {
  const auto* peer = FindPeerAs<TreePeer>(m_hWnd);
  QTreeWidgetItem* row = peer != nullptr ? peer->Find(item) : nullptr;
  if (row != nullptr) row->setData(0, TreeDataRole, QVariant::fromValue(quintptr{data}));
  return row != nullptr;
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM item) const {
  const auto* peer = FindPeerAs<TreePeer>(m_hWnd);
  return peer != nullptr ? peer->Data(item) : 0;
}

CString CTreeCtrl::GetItemText(HTREEITEM item) const {
  const auto* peer = FindPeerAs<TreePeer>(m_hWnd);
  const QTreeWidgetItem* row = peer != nullptr ? peer->Find(item) : nullptr;
  return row != nullptr ? CString(FromQt(row->text(0))) : CString();
}

HTREEITEM CTreeCtrl::GetRootItem() const {
  const auto* peer = FindPeerAs<TreePeer>(m_hWnd);
  if (peer == nullptr) return nullptr;
  return TreePeer::HandleOf(static_cast<QTreeWidget&>(*peer->widget).topLevelItem(0));
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM item) const {
  if (item == TVI_ROOT) return GetRootItem();
  const auto* peer = FindPeerAs<TreePeer>(m_hWnd);
  const QTreeWidgetItem* row = peer != nullptr ? peer->Find(item) : nullptr;
  return row != nullptr ? TreePeer::HandleOf(row->child(0)) : nullptr;
}

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM item) const {
  const auto* peer = FindPeerAs<TreePeer>(m_hWnd);
  QTreeWidgetItem* row = peer != nullptr ? peer->Find(item) : nullptr;
  if (row == nullptr) return nullptr;
  const QTreeWidgetItem* above =
      row->parent() != nullptr ? row->parent() : row->treeWidget()->invisibleRootItem();
  return TreePeer::HandleOf(above->child(above->indexOfChild(row) + 1));
}

HTREEITEM CTreeCtrl::GetSelectedItem() const {
  const auto* peer = FindPeerAs<TreePeer>(m_hWnd);
  return peer != nullptr ? peer->Selected() : nullptr;
}

BOOL CTreeCtrl::SelectItem(HTREEITEM item) {
  auto* peer = FindPeerAs<TreePeer>(m_hWnd);
  return peer != nullptr && peer->Select(item);
}

BOOL CTreeCtrl::Expand(HTREEITEM item, UINT code) {
  auto* peer = FindPeerAs<TreePeer>(m_hWnd);
  return peer != nullptr && peer->Expand(item, code);
}

void CTreeCtrl::SetImageList(const CImageList* images) {
  if (auto* peer = FindPeerAs<TreePeer>(m_hWnd)) peer->SetImages(images);
}

void CTreeCtrl::SetItemHeight(int height) {
  if (auto* peer = FindPeerAs<TreePeer>(m_hWnd)) peer->SetRowHeight(height);
}

int CTreeCtrl::GetItemHeight() const {
  const auto* peer = FindPeerAs<TreePeer>(m_hWnd);
  return peer != nullptr ? peer->RowHeight() : 0;
}
