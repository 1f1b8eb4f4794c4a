#include "platform/list_ctrl.h"

#include <QScrollBar>

#include "platform/qt/list_peer.h"

DWORD CListCtrl::SetExtendedStyle(DWORD style) {
  auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr ? peer->SetExtendedStyle(style) : 0;
}

DWORD CListCtrl::GetExtendedStyle() const {
  const auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr ? peer->ExtendedStyle() : 0;
}

int CListCtrl::InsertColumn(int column, const CString& heading, int format, int width) {
  auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr ? peer->InsertColumn(column, ToQt(heading.Str()), format, width) : -1;
}

BOOL CListCtrl::DeleteColumn(int column) {
  auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr && peer->Rows().RemoveColumn(column);
}

BOOL CListCtrl::SetColumnWidth(int column, int width) {
  auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr && peer->SetColumnWidth(column, width);
}

int CListCtrl::GetColumnWidth(int column) const {
  const auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr ? peer->ColumnWidth(column) : 0;
}

int CListCtrl::InsertItem(int row, const CString& label) {
  auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr ? peer->Rows().Insert(row, ToQt(label.Str())) : -1;
}

BOOL CListCtrl::DeleteItem(int row) {
  auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr && peer->Remove(row);
}

BOOL CListCtrl::DeleteAllItems() {
  auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  if (peer != nullptr) peer->Clear();
  return peer != nullptr;
}

int CListCtrl::GetItemCount() const {
  const auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr ? peer->Rows().Count() : 0;
}

BOOL CListCtrl::SetItemText(int row, int column, const CString& text) {
  auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr && peer->Rows().SetText(row, column, ToQt(text.Str()));
}

CString CListCtrl::GetItemText(int row, int column) const {
  const auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr ? CString(FromQt(peer->Rows().Text(row, column))) : CString();
}

BOOL CListCtrl::SetItemData(int row, DWORD_PTR data) {
  auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr && peer->Rows().SetKept(row, data);
}

DWORD_PTR CListCtrl::GetItemData(int row) const {
  const auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr ? peer->Rows().Kept(row) : 0;
}

BOOL CListCtrl::SetCheck(int row, BOOL check) {
  auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr && peer->Rows().SetChecked(row, check != FALSE);
}

BOOL CListCtrl::GetCheck(int row) const {
  const auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr && peer->Rows().Checked(row);
}

BOOL CListCtrl::SetItemState(int row, UINT state, UINT mask) {
  auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr && peer->SetState(row, state, mask);
}

UINT CListCtrl::GetItemState(int row, UINT mask) const {
  const auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr ? peer->State(row) & mask : 0;
}

POSITION CListCtrl::GetFirstSelectedItemPosition() const {
  const auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr ? static_cast<POSITION>(peer->NextSelected(0) + 1) : 0;
}

int CListCtrl::GetNextSelectedItem(POSITION& position) const {
  const int row = static_cast<int>(position) - 1;
  const auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  position = peer != nullptr ? static_cast<POSITION>(peer->NextSelected(row + 1) + 1) : 0;
  return row;
}

int CListCtrl::HitTest(CPoint point, UINT* flags) const {
  const auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  const QPoint place(point.x, point.y);
  const int row = peer != nullptr ? peer->View().RowAt(place) : -1;
  if (flags != nullptr) {
    const bool box = row >= 0 && peer->View().CheckBoxRect(row).contains(place);
    *flags = row < 0 ? LVHT_NOWHERE : box ? LVHT_ONITEMSTATEICON : LVHT_ONITEMLABEL;
  }
  return row;
}

BOOL CListCtrl::EnsureVisible(int row) {
  const auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  if (peer == nullptr || !peer->Rows().Has(row)) return FALSE;
  peer->View().scrollTo(peer->Rows().index(row, 0));
  return TRUE;
}

BOOL CListCtrl::GetItemRect(int row, CRect& rect) const {
  const auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  if (peer == nullptr || !peer->Rows().Has(row)) return FALSE;
  const QRect place = peer->View().visualRect(peer->Rows().index(row, 0));
  rect = CRect(place.x(), place.y(), place.x() + place.width(), place.y() + place.height());
  return TRUE;
}

int CListCtrl::GetScrollPos(int bar) const {
  const auto* peer = FindPeerAs<ListPeer>(m_hWnd);
  return peer != nullptr ? peer->ScrollBar(bar).value() : 0;
}

LRESULT CBCGPListCtrl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  const UINT action = LOWORD(wParam);
  const bool drags = action == SB_THUMBPOSITION || action == SB_THUMBTRACK;
  if (drags && (message == WM_HSCROLL || message == WM_VSCROLL)) {
    ScrollTo(message == WM_HSCROLL ? SB_HORZ : SB_VERT, HIWORD(wParam));
    return 0;
  }
  const HWND window = m_hWnd;
  const LRESULT result = CListCtrl::WindowProc(message, wParam, lParam);
  // A handler may have destroyed the window, and this object with it.
  auto* peer = message != WM_PAINT ? FindPeerAs<ListPeer>(window) : nullptr;
  if (peer != nullptr && RedrawsScrollBars(message)) {
    for (const int bar : {SB_HORZ, SB_VERT}) peer->ScrollBar(bar).update();
  }
  return result;
}

bool CBCGPListCtrl::RedrawsScrollBars(UINT message) const {
  return message == WM_PAINT || message == WM_MOUSEWHEEL;
}

void CBCGPListCtrl::ScrollTo(int bar, int position) {
  if (auto* peer = FindPeerAs<ListPeer>(m_hWnd)) peer->ScrollBar(bar).setValue(position);
}
