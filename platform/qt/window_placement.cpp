#include "platform/qt/window_placement.h"

#include <QAbstractScrollArea>
#include <QGuiApplication>
#include <QScreen>

#include "platform/qt/event_filter.h"

namespace {

bool IsTopLevelDialog(const Peer& peer) {
  return peer.kind == ControlKind::Dialog && peer.parent == nullptr;
}

bool HasSizingBorder(const Peer& peer) { return (peer.style & WS_THICKFRAME) != 0; }

QSize FrameExtent(const QWidget& widget) { return widget.frameGeometry().size() - widget.size(); }

void PlaceTopLevel(const Peer& peer, QPoint at, QSize size, UINT flags) {
  QWidget& widget = *peer.widget;
  if ((flags & SWP_NOSIZE) == 0) {
    const QSize client = (size - FrameExtent(widget)).expandedTo(QSize(0, 0));
    if (HasSizingBorder(peer)) {
      widget.resize(client);
    } else {
      widget.setFixedSize(client);
    }
  }
  if ((flags & SWP_NOMOVE) == 0) widget.move(at);
}

void PlaceChild(QWidget& widget, QPoint at, QSize size, UINT flags) {
  if ((flags & SWP_NOMOVE) != 0) at = widget.pos();
  if ((flags & SWP_NOSIZE) != 0) size = widget.size();
  widget.setGeometry(QRect(at, size));
}

QSize ToQtSize(const POINT& point) {
  return QSize(point.x, point.y).expandedTo(QSize(0, 0)).boundedTo(
      QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
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
  if (widget.isWindow()) return widget.frameGeometry();
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
  const QSize frame = FrameExtent(widget);
  const QSize largest = ToQtSize(limits.ptMaxTrackSize);
  widget.setMinimumSize((ToQtSize(limits.ptMinTrackSize) - frame).expandedTo(QSize(0, 0)));
  widget.setMaximumSize(largest.isEmpty() ? QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)
                                          : largest - frame);
}

void OpenOnScreen(const Peer& peer) {
  QWidget& widget = *peer.widget;
  const Peer* owner = FindPeer(peer.owner);
  const QWidget* near = owner != nullptr ? owner->widget.data() : nullptr;
  const QScreen* screen = near != nullptr ? near->screen() : QGuiApplication::primaryScreen();
  const QRect available = screen->availableGeometry();
  const QSize size = widget.frameGeometry().size();
  QRect place(widget.pos(), size);
  if (!widget.testAttribute(Qt::WA_Moved))
    place.moveCenter(near != nullptr ? near->frameGeometry().center() : available.center());
  widget.move(Clamp(place.x(), size.width(), available.x(), available.width()),
              Clamp(place.y(), size.height(), available.y(), available.height()));
  widget.show();
}
