#include "platform/wnd.h"

#include <QAbstractButton>
#include <QApplication>

#include "platform/controls.h"
#include "platform/qt/accessible_names.h"
#include "platform/qt/event_filter.h"
#include "platform/qt/message_delivery.h"
#include "platform/qt/tab_order.h"
#include "platform/qt/window_placement.h"

namespace {

Peer* FindControl(HWND dialog, int id) {
  const Peer* peer = FindPeer(dialog);
  if (peer == nullptr) return nullptr;
  for (const ChildWindow& child : peer->children)
    if (child.id == id) return FindPeer(child.window);
  return nullptr;
}

HWND HandleOf(const Peer* peer) { return peer != nullptr ? peer->handle : nullptr; }

CWnd* ObjectOf(Peer* peer) { return peer != nullptr ? WindowAttachment::Object(*peer) : nullptr; }

/// The peer of a window whose widget still lives.
Peer* LivingPeer(HWND window) {
  Peer* peer = FindPeer(window);
  return peer != nullptr && peer->widget != nullptr ? peer : nullptr;
}

/// The widget with the focus; before the active window has it, the one that will get it there.
QWidget* FocusWidget() {
  if (QWidget* focus = QApplication::focusWidget()) return focus;
  const Peer* active = LivingPeer(GetActiveWindow());
  return active != nullptr ? active->widget->focusWidget() : nullptr;
}

}  // namespace

CWnd::~CWnd() {
  CWnd::DestroyWindow();
  if (delivery_ != nullptr) delivery_->ObjectDies();
}

CWnd* CWnd::FromHandle(HWND window) { return ObjectOf(FindPeer(window)); }

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent) {
  Peer* peer = FindControl(parent != nullptr ? parent->m_hWnd : nullptr, static_cast<int>(id));
  if (peer == nullptr || m_hWnd != nullptr || peer->attached != nullptr) return FALSE;
  WindowAttachment::Attach(*peer, *this);
  PreSubclassWindow();
  return TRUE;
}

HWND CWnd::UnsubclassWindow() {
  const HWND window = m_hWnd;
  Peer* peer = FindPeer(window);
  if (peer != nullptr && peer->attached == this) WindowAttachment::Detach(*peer);
  return window;
}

BOOL CWnd::DestroyWindow() {
  if (!IsWindow(m_hWnd)) return FALSE;
  DestroyPeer(m_hWnd);
  return TRUE;
}

CWnd* CWnd::GetDlgItem(int id) const { return ObjectOf(FindControl(m_hWnd, id)); }

CWnd* CWnd::GetParent() const {
  const Peer* peer = FindPeer(m_hWnd);
  if (peer == nullptr) return nullptr;
  return FromHandle(peer->parent != nullptr ? peer->parent : peer->owner);
}

int CWnd::GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }

void CWnd::GetWindowText(CString& text) const { text = ::GetWindowText(m_hWnd); }
void CWnd::SetWindowText(const CString& text) { ::SetWindowText(m_hWnd, text.Str()); }

void CWnd::SetDlgItemText(int id, const CString& text) {
  ::SetWindowText(HandleOf(FindControl(m_hWnd, id)), text.Str());
}

void CWnd::GetDlgItemText(int id, CString& text) const {
  text = ::GetWindowText(HandleOf(FindControl(m_hWnd, id)));
}

CWnd* CWnd::SetFocus() {
  CWnd* previous = GetFocus();
  const Peer* peer = LivingPeer(m_hWnd);
  if (peer == nullptr) return previous;
  QWidget* widget = peer->widget;
  // A dialog hands the focus on to its first control.
  if (peer->kind == ControlKind::Dialog)
    if (QWidget* first = FirstTabStop(*peer)) widget = first;
  widget->setFocus(Qt::OtherFocusReason);
  return previous;
}

CWnd* CWnd::GetFocus() { return ObjectOf(FindPeerAround(FocusWidget())); }

void CWnd::Invalidate() {
  if (const Peer* peer = LivingPeer(m_hWnd)) peer->widget->update();
}

void CWnd::UpdateWindow() {
  const Peer* peer = LivingPeer(m_hWnd);
  // Paints what is waiting to be painted and nothing else.
  if (peer != nullptr && peer->widget->isVisible())
    QCoreApplication::sendPostedEvents(peer->widget->window(), QEvent::UpdateRequest);
}

void CWnd::SetRedraw(BOOL redraw) { SendMessage(WM_SETREDRAW, redraw != FALSE ? 1 : 0); }

void CWnd::GetWindowRect(CRect& rect) const {
  const Peer* peer = LivingPeer(m_hWnd);
  if (peer == nullptr) return;
  const QRect place = WindowRect(*peer);
  rect = CRect(place.x(), place.y(), place.x() + place.width(), place.y() + place.height());
}

void CWnd::GetClientRect(CRect& rect) const {
  const Peer* peer = LivingPeer(m_hWnd);
  if (peer == nullptr) return;
  const QSize size = ClientSize(*peer);
  rect = CRect(0, 0, size.width(), size.height());
}

void CWnd::ScreenToClient(CRect& rect) const {
  const Peer* peer = LivingPeer(m_hWnd);
  if (peer == nullptr) return;
  const QPoint origin = peer->widget->mapToGlobal(QPoint(0, 0));
  rect.OffsetRect(-origin.x(), -origin.y());
}

void CWnd::SetFont(const CFont& font) {
  SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(&font), TRUE);
}

CFont CWnd::GetFont() const {
  const Peer* peer = LivingPeer(m_hWnd);
  return peer != nullptr ? FromQtFont(peer->widget->font()) : CFont();
}

BOOL CWnd::EnableToolTips(BOOL enable) {
  Peer* peer = FindPeer(m_hWnd);
  if (peer == nullptr) return FALSE;
  peer->toolTips = enable != FALSE;
  return TRUE;
}

void CWnd::CheckDlgButton(int id, UINT check) {
  ControlView<CButton>(HandleOf(FindControl(m_hWnd, id)))->SetCheck(static_cast<int>(check));
}

UINT CWnd::IsDlgButtonChecked(int id) const {
  const HWND button = HandleOf(FindControl(m_hWnd, id));
  return static_cast<UINT>(ControlView<CButton>(button)->GetCheck());
}

HWND GetActiveWindow() {
  for (QWidget* widget : {QApplication::activeModalWidget(), QApplication::activeWindow()}) {
    // A message box stands for the window below it.
    for (; widget != nullptr; widget = widget->parentWidget())
      if (const Peer* peer = FindPeer(widget->window())) return peer->handle;
  }
  // Between the end of a box and the activation of the window below, nothing is active.
  return LastActiveDialog();
}

std::wstring GetToolTipText(HWND control) {
  const Peer* peer = FindPeer(control);
  const Peer* dialog = peer != nullptr ? FindPeer(peer->parent) : nullptr;
  while (dialog != nullptr && !dialog->toolTips) dialog = FindPeer(dialog->parent);
  if (dialog == nullptr) return {};
  TOOLTIPTEXTW asked;
  asked.hdr = {nullptr, reinterpret_cast<UINT_PTR>(control), TTN_NEEDTEXTW};
  asked.uFlags = TTF_IDISHWND;
  ::SendMessage(dialog->handle, WM_NOTIFY, asked.hdr.idFrom, reinterpret_cast<LPARAM>(&asked));
  return asked.lpszText != nullptr ? asked.lpszText : std::wstring();
}

HWND CreateWindowChild(LPCWSTR className, const CString& text, DWORD style, const CRect& rect,
                       CWnd* parent, int id) {
  Peer* container = LivingPeer(parent != nullptr ? parent->m_hWnd : nullptr);
  if (container == nullptr) return nullptr;
  std::unique_ptr<Peer> made = MakeControlPeer(className, style, text.Str(), container->widget);
  if (made == nullptr) return nullptr;
  Peer& control = *made;
  control.parent = container->handle;
  control.id = id;
  control.templateId = container->templateId;
  control.order = static_cast<int>(container->children.size());
  control.style = style;
  control.widget->setGeometry(rect.left, rect.top, rect.Width(), rect.Height());
  control.widget->setEnabled((style & WS_DISABLED) == 0);
  control.widget->setVisible((style & WS_VISIBLE) != 0);
  const HWND window = RegisterPeer(std::move(made));
  ApplyTabStop(control);
  UpdateAccessibleName(control);
  ArrangeTabOrder(window);
  return window;
}

CWaitCursor::CWaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
CWaitCursor::~CWaitCursor() { QGuiApplication::restoreOverrideCursor(); }
