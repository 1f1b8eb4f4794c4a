// How a message travels through the objects of windows.

#include "platform/qt/message_delivery.h"
#include "platform/qt/posted_messages.h"
#include "platform/wnd.h"

namespace {

void SendToDescendants(HWND window, const MessageArguments& arguments) {
  for (const HWND child : GetChildWindows(window)) {
    MessageDelivery::Deliver(child, arguments);
    SendToDescendants(child, arguments);
  }
}

}  // namespace

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
END_MESSAGE_MAP()

LRESULT SendMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return MessageDelivery::Deliver(window, {message, wParam, lParam});
}

BOOL PostMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (FindPeer(window) == nullptr) return FALSE;
  QueueMessage(window, {message, wParam, lParam});
  return TRUE;
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  return ::SendMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  return ::PostMessage(m_hWnd, message, wParam, lParam);
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam) {
  SendToDescendants(m_hWnd, {message, wParam, lParam});
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  // A handler may destroy this object; nothing of it is touched after the dispatch.
  const HWND window = m_hWnd;
  const MessageArguments arguments = {message, wParam, lParam};
  LRESULT result = 0;
  bool handled = false;
  if (message == WM_COMMAND) {
    handled = OnCommand(wParam, lParam) != FALSE;
    result = handled ? 1 : 0;
  } else if (message == WM_NOTIFY) {
    handled = OnNotify(wParam, lParam, &result) != FALSE;
  } else {
    handled = DispatchMessageMap(message, 0, 0, arguments, result);
  }
  return handled ? result : MessageDelivery::DeliverToWindow(window, arguments);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
  const Peer* peer = FindPeer(m_hWnd);
  const bool fromControl = lParam != 0;
  if (fromControl && peer != nullptr && peer->exchanging) return TRUE;
  LRESULT result = 0;
  return DispatchMessageMap(WM_COMMAND, HIWORD(wParam), LOWORD(wParam),
                            {WM_COMMAND, wParam, lParam}, result);
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
  const Peer* peer = FindPeer(m_hWnd);
  if (peer != nullptr && peer->exchanging) return TRUE;
  const auto* header = reinterpret_cast<const NMHDR*>(lParam);
  // A tooltip asks on behalf of a control and has no number of its own.
  const Peer* sender = FindPeer(header->hwndFrom);
  const UINT id = sender != nullptr ? LOWORD(static_cast<DWORD_PTR>(sender->id)) : 0;
  return DispatchMessageMap(WM_NOTIFY, header->code, id, {WM_NOTIFY, wParam, lParam}, *result);
}

LRESULT CWnd::Default() {
  if (delivery_ == nullptr) return 0;
  return MessageDelivery::DeliverToWindow(m_hWnd, delivery_->Arguments());
}

BOOL CWnd::PreTranslateMessage(MSG*) { return FALSE; }

void CWnd::OnSize(UINT, int, int) { Default(); }
BOOL CWnd::OnEraseBkgnd(CDC*) { return Default() != 0; }
void CWnd::OnKillFocus(CWnd*) { Default(); }
void CWnd::OnKeyDown(UINT, UINT, UINT) { Default(); }
void CWnd::OnSysKeyDown(UINT, UINT, UINT) { Default(); }
void CWnd::OnChar(UINT, UINT, UINT) { Default(); }
void CWnd::OnDestroy() { Default(); }
