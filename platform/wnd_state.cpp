// What a window is, shows and allows.

#include "platform/qt/accessible_names.h"
#include "platform/qt/tab_order.h"
#include "platform/qt/window_placement.h"
#include "platform/wnd.h"

namespace {

constexpr DWORD kLiveStyles = WS_VISIBLE | WS_DISABLED;

bool IsEnabled(const Peer& peer) { return peer.widget->isEnabledTo(peer.widget->parentWidget()); }

/// The widget knows whether it is shown and enabled; the other styles stand in the peer.
DWORD StyleOf(const Peer& peer) {
  DWORD style = peer.style & ~kLiveStyles;
  if (peer.widget == nullptr) return style;
  if (!peer.widget->isHidden()) style |= WS_VISIBLE;
  if (!IsEnabled(peer)) style |= WS_DISABLED;
  return style;
}

void Show(Peer& peer, bool show) {
  QWidget& widget = *peer.widget;
  if (widget.isHidden() != show) return;
  if (show && widget.isWindow()) {
    OpenOnScreen(peer);
  } else {
    widget.setVisible(show);
  }
}

/// The window may be gone afterwards: showing and hiding send messages.
void ApplyStyle(Peer& peer, DWORD style) {
  const HWND window = peer.handle;
  const DWORD changed = StyleOf(peer) ^ style;
  peer.style = style;
  peer.OnStyleChanged(changed);
  if ((changed & WS_TABSTOP) != 0) ApplyTabStop(peer);
  if ((changed & WS_THICKFRAME) != 0) UpdateTrackSize(peer);
  if (FindPeer(window) == nullptr) return;
  if ((changed & WS_DISABLED) != 0) peer.widget->setEnabled((style & WS_DISABLED) == 0);
  if (FindPeer(window) == nullptr) return;
  if ((changed & WS_VISIBLE) != 0) Show(peer, (style & WS_VISIBLE) != 0);
}

}  // namespace

DWORD CWnd::GetStyle() const { return GetWindowLong(m_hWnd, GWL_STYLE); }
DWORD CWnd::GetExStyle() const { return GetWindowLong(m_hWnd, GWL_EXSTYLE); }

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add) {
  Peer* peer = FindPeer(m_hWnd);
  if (peer == nullptr || peer->widget == nullptr) return FALSE;
  const DWORD before = StyleOf(*peer);
  const DWORD after = (before & ~remove) | add;
  if (after == before) return FALSE;
  ApplyStyle(*peer, after);
  return TRUE;
}

BOOL CWnd::ModifyStyleEx(DWORD remove, DWORD add) {
  Peer* peer = FindPeer(m_hWnd);
  if (peer == nullptr) return FALSE;
  const DWORD before = peer->exStyle;
  peer->exStyle = (before & ~remove) | add;
  return peer->exStyle != before;
}

BOOL CWnd::EnableWindow(BOOL enable) {
  Peer* peer = FindPeer(m_hWnd);
  if (peer == nullptr || peer->widget == nullptr) return FALSE;
  const BOOL wasDisabled = !IsEnabled(*peer);
  peer->widget->setEnabled(enable != FALSE);
  return wasDisabled;
}

BOOL CWnd::IsWindowEnabled() const {
  const Peer* peer = FindPeer(m_hWnd);
  return peer != nullptr && peer->widget != nullptr && IsEnabled(*peer);
}

BOOL CWnd::IsWindowVisible() const {
  const Peer* peer = FindPeer(m_hWnd);
  return peer != nullptr && peer->widget != nullptr && peer->widget->isVisible();
}

BOOL CWnd::ShowWindow(int command) {
  Peer* peer = FindPeer(m_hWnd);
  if (peer == nullptr || peer->widget == nullptr) return FALSE;
  const BOOL wasShown = !peer->widget->isHidden();
  Show(*peer, command != SW_HIDE);
  return wasShown;
}

std::vector<HWND> GetChildWindows(HWND parent) {
  std::vector<HWND> windows;
  const Peer* peer = FindPeer(parent);
  if (peer == nullptr) return windows;
  windows.reserve(peer->children.size());
  for (const ChildWindow& child : peer->children) windows.push_back(child.window);
  return windows;
}

const wchar_t* GetClassName(HWND window) {
  const Peer* peer = FindPeer(window);
  return peer != nullptr ? peer->className : L"";
}

int GetDlgCtrlID(HWND window) {
  const Peer* peer = FindPeer(window);
  return peer != nullptr ? peer->id : 0;
}

DWORD GetWindowLong(HWND window, int index) {
  const Peer* peer = FindPeer(window);
  if (peer == nullptr) return 0;
  return index == GWL_STYLE ? StyleOf(*peer) : index == GWL_EXSTYLE ? peer->exStyle : 0;
}

std::wstring GetWindowText(HWND window) {
  const Peer* peer = FindPeer(window);
  return peer != nullptr && peer->widget != nullptr ? peer->Text() : std::wstring();
}

BOOL SetWindowText(HWND window, const std::wstring& text) {
  Peer* peer = FindPeer(window);
  if (peer == nullptr || peer->widget == nullptr) return FALSE;
  peer->SetText(text);
  // Edits tell their dialog, which may have destroyed them.
  if (const Peer* after = FindPeer(window)) UpdateNamesAfter(*after);
  return TRUE;
}
