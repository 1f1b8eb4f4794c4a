#pragma once

// What the widgets of the controls share. Private to the platform layer.

#include "platform/qt/peer.h"

/// The peer of a control's own widget; null before it is registered and once its window is
/// destroyed, so that a dying widget tells nobody anything.
template <class Kind>
Kind* PeerOf(const QWidget* widget) {
  return dynamic_cast<Kind*>(FindPeer(widget));
}
