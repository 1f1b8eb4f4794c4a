#pragma once

// The way of the keyboard through a dialog. Private to the platform layer.

#include "platform/qt/peer.h"

/// Gives the window, a control or a dialog with its controls, its place among the controls of the
/// top-level dialog that holds it: template order, with the controls of the pages before the first
/// push button, as a person reads them. The order of all other controls stays.
void ArrangeTabOrder(HWND window);

/// Lets Tab stop at the control exactly when its style says so.
void ApplyTabStop(const Peer& control);

/// Makes each run of radio buttons from one WS_GROUP to the next a group of its own.
void GroupRadioButtons(const Peer& dialog);

/// The first control that Tab stops at; null when there is none.
QWidget* FirstTabStop(const Peer& dialog);
