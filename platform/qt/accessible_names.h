#pragma once

// What a person hears of a control, and the keys that lead to it. Private to the platform layer.

#include "platform/qt/peer.h"

/// Names every control of the dialog and gives each label its control.
void NameControls(const Peer& dialog);

/// Names one control by its own text, or else by that of the label, check box or radio button
/// before it in template order.
void UpdateAccessibleName(const Peer& control);

/// Names the controls that a text may belong to again, after it was set.
void UpdateNamesAfter(const Peer& changed);
