#include "platform/qt/window_placement.h"

#include <QAbstractScrollArea>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include "platform/qt/event_filter.h"

namespace {

bool IsTopLevelDialog(const Peer& peer) {
  return peer.kind == ControlKind::Dialog && peer.parent == nullptr;
}

bool HasSizingBorder(const Peer& peer) { return (peer.style & WS_THICKFRAME) != 0; }

void PlaceTopLevel(const Peer& peer, QPoint at, QSize size, UINT flags) {
  QWidget& widget = *peer.widget;
  if ((flags & SWP_NOSIZE) == 0) {
    if (HasSizingBorder(peer)) {
      widget.resize(size);
    } else {
      widget.setFixedSize(size);
    }
  }
  if ((flags & SWP_NOMOVE) == 0) widget.setGeometry(QRect(at, widget.size()));
}

void PlaceChild(QWidget& widget, QPoint at, QSize size, UINT flags) {
  if ((flags & SWP_NOMOVE) != 0) at = widget.pos();
  if ((flags & SWP_NOSIZE) != 0) size = widget.size();
  widget.setGeometry(QRect(at, size));
}

QSize ToQtSize(const POINT& point) {
  return QSize(point.x, point.y)
      .expandedTo(QSize(0, 0))
      .boundedTo(QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

int Clamp(int position, int length, int first, int available) {
  return qMax(first, qMin(position, first + available - length));
}

}  // namespace

void PlaceWindow(Peer& peer, int x, int y, int cx, int cy, UINT flags) {
  if (peer.widget == nullptr) return;
  QWidget& widget = *peer.widget;
  const QSize before = widget.size();
  const QSize size = QSize(cx, cy).expandedTo(QSize(0, 0));
  if (IsTopLevelDialog(peer)) {
    PlaceTopLevel(peer, QPoint(x, y), size, flags);
  } else {
    PlaceChild(widget, QPoint(x, y), size, flags);
  }
  // The toolkit tells a hidden window of its size only when it is shown.
  const bool tell = peer.kind == ControlKind::Dialog && !widget.isVisible();
  if (tell && widget.size() != before) SendSizeMessage(peer);
}

QSize ClientSize(const Peer& peer) {
  if (const auto* area = qobject_cast<const QAbstractScrollArea*>(peer.widget.data()))
    return area->viewport()->size();
  return peer.widget->size();
}

QRect WindowRect(const Peer& peer) {
  const QWidget& widget = *peer.widget;
  return QRect(widget.mapToGlobal(QPoint(0, 0)), widget.size());
}

void UpdateTrackSize(const Peer& peer) {
  if (!IsTopLevelDialog(peer) || peer.widget == nullptr) return;
  const HWND window = peer.handle;
  if (!HasSizingBorder(peer)) {
    peer.widget->setFixedSize(peer.widget->size());
    return;
  }
  MINMAXINFO limits;
  SendFromToolkit(window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
  if (FindPeer(window) == nullptr) return;
  QWidget& widget = *peer.widget;
  const QSize largest = ToQtSize(limits.ptMaxTrackSize);
  widget.setMinimumSize(ToQtSize(limits.ptMinTrackSize));
  widget.setMaximumSize(largest.isEmpty() ? QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX) : largest);
}

void OpenOnScreen(const Peer& peer) {
  QWidget& widget = *peer.widget;
  const Peer* owner = FindPeer(peer.owner);
  const QWidget* near = owner != nullptr ? owner->widget.data() : nullptr;
  const QScreen* screen = near != nullptr ? near->screen() : QGuiApplication::primaryScreen();
  const QRect available = screen->availableGeometry();
  widget.winId();
  const QMargins frame = widget.windowHandle()->frameMargins();
  QRect place = widget.geometry().marginsAdded(frame);
  if (!widget.testAttribute(Qt::WA_Moved))
    place.moveCenter(near != nullptr ? near->frameGeometry().center() : available.center());
  widget.move(Clamp(place.x(), place.width(), available.x(), available.width()),
              Clamp(place.y(), place.height(), available.y(), available.height()));
  widget.show();
}
