#pragma once

// The way of the keyboard through a dialog. Private to the platform layer.

#include "platform/qt/peer.h"

/// Chains the controls of the top-level dialog that holds the window in template order. The
/// controls of its pages come before its first push button, as a person reads them.
void ArrangeTabOrder(HWND window);

/// Lets Tab stop at the control exactly when its style says so.
void ApplyTabStop(const Peer& control);

/// Makes each run of radio buttons from one WS_GROUP to the next a group of its own.
void GroupRadioButtons(const Peer& dialog);

/// The first control that Tab stops at; null when there is none.
QWidget* FirstTabStop(const Peer& dialog);
