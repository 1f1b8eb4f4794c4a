#pragma once

// The grip in the corner of a window that can be resized. Private to the platform layer.

class QWidget;

/// Gives the window its grip, which stays in the corner, or takes it away.
void SetSizeGrip(QWidget& window, bool shown);
