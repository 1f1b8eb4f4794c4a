#include "platform/qt/event_filter.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

#include "platform/qt/gdi_types.h"
#include "platform/qt/window_destruction.h"
#include "platform/qt/window_placement.h"

namespace {

HWND lastActive = nullptr;

bool IsDialog(const Peer& peer) { return peer.kind == ControlKind::Dialog; }

/// Sends a message that the widget's own behaviour follows unless a handler took it. True when the
/// widget shall not see the event any more.
bool SendInsteadOfEvent(Peer& peer, UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND window = peer.handle;
  peer.defaultReached = false;
  SendFromToolkit(window, message, wParam, lParam);
  const Peer* after = FindPeer(window);
  return after == nullptr || !after->defaultReached;
}

/// Sends a message beside the event. True when the widget is gone.
bool SendBesideEvent(const Peer& peer, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
  const HWND window = peer.handle;
  SendFromToolkit(window, message, wParam, lParam);
  return FindPeer(window) == nullptr;
}

bool OnResize(Peer& peer) {
  if (peer.attached == nullptr) return false;
  const HWND window = peer.handle;
  SendSizeMessage(peer);
  const Peer* after = FindPeer(window);
  if (after != nullptr && IsDialog(*after)) UpdateTrackSize(*after);
  return after == nullptr;
}

bool OnStateChange(Peer& peer) {
  if (!IsDialog(peer) || !peer.widget->isMinimized()) return false;
  return SendBesideEvent(peer, WM_SIZE, SIZE_MINIMIZED, 0);
}

bool OnActivate(const Peer& peer) {
  if (IsDialog(peer) && peer.parent == nullptr) lastActive = peer.handle;
  return false;
}

/// The modal window above is going. It hands its activity on to the window below, also where no
/// window manager sees to that. Not before it has gone: its end takes the activity from all
/// windows.
bool OnUnblocked(const Peer& peer) {
  const bool active = QGuiApplication::applicationState() == Qt::ApplicationActive;
  if (!IsDialog(peer) || !active) return false;
  QWidget* window = peer.widget->window();
  const auto activate = [window] {
    if (QApplication::activeWindow() == nullptr) window->activateWindow();
  };
  QMetaObject::invokeMethod(window, activate, Qt::QueuedConnection);
  return false;
}

bool OnClose(Peer& peer, QEvent& event) {
  // The dialog ends by its own decision; the toolkit must not hide it.
  event.ignore();
  if (IsDialog(peer)) SendBesideEvent(peer, WM_CLOSE);
  return true;
}

bool OnFocusOut(Peer& peer, const QFocusEvent& event) {
  // A dropped list or a menu borrows the keyboard; the control keeps the focus in between.
  if (event.reason() == Qt::PopupFocusReason || peer.HoldsFocus()) return false;
  return SendBesideEvent(peer, WM_KILLFOCUS);
}

/// A key that a control leaves alone comes to its dialog as well; it was offered already then.
bool WasOffered(const Peer& peer) {
  const QWidget* focus = QApplication::focusWidget();
  return IsDialog(peer) && focus != nullptr && focus != peer.widget;
}

bool OnKeyPress(Peer& peer, const QKeyEvent& event) {
  const UINT key = VirtualKey(event.key());
  if (key == 0 || WasOffered(peer)) return false;
  const HWND window = peer.handle;
  return PreTranslateKey(window, key) || FindPeer(window) == nullptr;
}

bool OnPaint(Peer& peer) {
  if (peer.attached == nullptr) return false;
  const HWND window = peer.handle;
  if (IsDialog(peer)) {
    QPainter painter(peer.widget);
    QtPainterDC surface(painter);
    SendFromToolkit(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(static_cast<CDC*>(&surface)),
                    0);
    return FindPeer(window) == nullptr;
  }
  return SendInsteadOfEvent(peer, WM_PAINT, 0, 0);
}

bool OnToolTip(const Peer& peer, const QHelpEvent& event) {
  const HWND window = peer.handle;
  std::wstring text;
  GuardToolkitCall([&] { text = GetToolTipText(window); });
  const Peer* after = FindPeer(window);
  if (after == nullptr) return true;
  if (text.empty()) return false;
  // Rich text is never meant: the text is shown as it stands.
  const QString shown = Qt::convertFromPlainText(ToQt(text), Qt::WhiteSpaceNormal);
  QToolTip::showText(event.globalPos(), shown, after->widget);
  return true;
}

bool OnContextMenu(Peer& peer, QContextMenuEvent& event) {
  const bool byKey = event.reason() == QContextMenuEvent::Keyboard;
  const QPoint at = event.globalPos();
  const LPARAM position = byKey ? -1 : MAKELPARAM(at.x(), at.y());
  const bool handled =
      SendInsteadOfEvent(peer, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(peer.handle), position);
  if (handled) event.accept();
  return handled;
}

/// The events of one window. Every geometry change of every control passes here, so that what
/// concerns nobody is sorted out before anything is looked up.
class EventFilter : public QObject {
 public:
  explicit EventFilter(Peer& peer) : peer_(peer) {}

  bool eventFilter(QObject*, QEvent* event) override {
    if (!IsInteresting(event->type())) return false;
    if (event->type() == QEvent::Resize && peer_.attached == nullptr) return false;
    const bool alive = FindPeer(peer_.handle) == &peer_ && peer_.widget != nullptr;
    return alive && Handle(peer_, *event);
  }

 private:
  static bool IsInteresting(QEvent::Type type) {
    switch (type) {
      case QEvent::Resize:
      case QEvent::WindowStateChange:
      case QEvent::WindowActivate:
      case QEvent::WindowUnblocked:
      case QEvent::Close:
      case QEvent::FocusIn:
      case QEvent::FocusOut:
      case QEvent::KeyPress:
      case QEvent::Paint:
      case QEvent::ToolTip:
      case QEvent::ContextMenu:
        return true;
      default:
        return false;
    }
  }

  static bool Handle(Peer& peer, QEvent& event) {
    switch (event.type()) {
      case QEvent::Resize:
        return OnResize(peer);
      case QEvent::WindowStateChange:
        return OnStateChange(peer);
      case QEvent::WindowActivate:
        return OnActivate(peer);
      case QEvent::WindowUnblocked:
        return OnUnblocked(peer);
      case QEvent::Close:
        return OnClose(peer, event);
      case QEvent::FocusIn:
        return SendBesideEvent(peer, WM_SETFOCUS);
      case QEvent::FocusOut:
        return OnFocusOut(peer, static_cast<QFocusEvent&>(event));
      case QEvent::KeyPress:
        return OnKeyPress(peer, static_cast<QKeyEvent&>(event));
      case QEvent::Paint:
        return OnPaint(peer);
      case QEvent::ToolTip:
        return OnToolTip(peer, static_cast<QHelpEvent&>(event));
      case QEvent::ContextMenu:
        return OnContextMenu(peer, static_cast<QContextMenuEvent&>(event));
      default:
        return false;
    }
  }

  Peer& peer_;
};

}  // namespace

void InstallEventFilter(Peer& peer) {
  // The next application object ends its windows anew.
  static QPointer<QObject> application;
  if (application != QCoreApplication::instance()) {
    application = QCoreApplication::instance();
    qAddPostRoutine(DestroyAllWindows);
  }
  peer.events = std::make_unique<EventFilter>(peer);
  peer.widget->installEventFilter(peer.events.get());
}

void SendSizeMessage(const Peer& peer) {
  const QWidget& widget = *peer.widget;
  const UINT type = widget.isMaximized() ? SIZE_MAXIMIZED : SIZE_RESTORED;
  SendFromToolkit(peer.handle, WM_SIZE, type, MAKELPARAM(widget.width(), widget.height()));
}

HWND LastActiveDialog() {
  const Peer* peer = FindPeer(lastActive);
  return peer != nullptr && peer->widget->isVisible() ? lastActive : nullptr;
}
