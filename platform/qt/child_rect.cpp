#include "platform/qt/peer.h"

CRect GetChildRect(HWND child) {
  const Peer* peer = FindPeer(child);
  if (peer == nullptr || peer->widget == nullptr) return {};
  // Controls are placed inside their dialog's own widget, so no way through the screen is needed.
  const QRect& place = peer->widget->geometry();
  return {place.x(), place.y(), place.x() + place.width(), place.y() + place.height()};
}
