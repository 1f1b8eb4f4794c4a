#pragma once

// Where the toolkit's events become messages. Private to the platform layer.

#include "platform/qt/peer.h"

/// Lets the events of the widget become messages to its window, for as long as the window lives.
void InstallEventFilter(Peer& peer);

/// Tells a dialog its client size (WM_SIZE).
void SendSizeMessage(const Peer& peer);

/// The top-level dialog that was the active window last, while it is shown; null when there is
/// none.
HWND LastActiveDialog();
