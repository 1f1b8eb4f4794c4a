#include "platform/list_box.h"

#include "platform/qt/list_box_peer.h"

int CListBox::AddString(const CString& text) {
  auto* peer = FindPeerAs<ListBoxPeer>(m_hWnd);
  return peer != nullptr ? peer->Add(ToQt(text.Str())) : LB_ERR;
}

int CListBox::InsertString(int row, const CString& text) {
  auto* peer = FindPeerAs<ListBoxPeer>(m_hWnd);
  return peer != nullptr ? peer->Insert(row, ToQt(text.Str())) : LB_ERR;
}

int CListBox::DeleteString(UINT row) {
  auto* peer = FindPeerAs<ListBoxPeer>(m_hWnd);
  return peer != nullptr ? peer->Remove(static_cast<int>(row)) : LB_ERR;
}

int CListBox::GetCount() const {
  const auto* peer = FindPeerAs<ListBoxPeer>(m_hWnd);
  return peer != nullptr ? peer->Count() : LB_ERR;
}

int CListBox::GetCurSel() const {
  const auto* peer = FindPeerAs<ListBoxPeer>(m_hWnd);
  return peer != nullptr ? peer->Selection() : LB_ERR;
}

int CListBox::SetCurSel(int row) {
  auto* peer = FindPeerAs<ListBoxPeer>(m_hWnd);
  return peer != nullptr ? peer->Select(row) : LB_ERR;
}

DWORD_PTR CListBox::GetItemData(int row) const {
  const auto* peer = FindPeerAs<ListBoxPeer>(m_hWnd);
  return peer != nullptr ? peer->Row(row, ListBoxPeer::DataRole).value<quintptr>() : 0;
}

int CListBox::SetItemData(int row, DWORD_PTR data) {
  auto* peer = FindPeerAs<ListBoxPeer>(m_hWnd);
  const QVariant value = QVariant::fromValue(quintptr{data});
  return peer != nullptr && peer->SetRow(row, ListBoxPeer::DataRole, value) ? 0 : LB_ERR;
}

int CBCGPListBox::AddSeparator() {
  auto* peer = FindPeerAs<ListBoxPeer>(m_hWnd);
  if (peer == nullptr) return LB_ERR;
  const int row = peer->Add(QString());
  peer->SetRow(row, ListBoxPeer::SeparatorRole, true);
  return row;
}

BOOL CBCGPListBox::IsSeparatorItem(int row) const {
  const auto* peer = FindPeerAs<ListBoxPeer>(m_hWnd);
  return peer != nullptr && peer->Row(row, ListBoxPeer::SeparatorRole).toBool();
}
