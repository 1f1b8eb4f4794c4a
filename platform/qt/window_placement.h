#pragma once

// Where windows are and how large. Private to the platform layer.

#include "platform/qt/peer.h"

/// Moves and resizes as SetWindowPos does: a top-level dialog in screen coordinates, any other
/// window in the client coordinates of its parent.
void PlaceWindow(Peer& peer, int x, int y, int cx, int cy, UINT flags);

/// The part of a window inside its frame and scroll bars.
QSize ClientSize(const Peer& peer);
/// In screen coordinates.
QRect WindowRect(const Peer& peer);

/// Lets the user resize a top-level dialog with a sizing border, down to the size that the dialog
/// names (WM_GETMINMAXINFO), and no other one.
void UpdateTrackSize(const Peer& peer);

/// Shows a top-level dialog, centred on its owner unless it was moved, wholly on the screen where
/// it fits.
void OpenOnScreen(const Peer& peer);
