#pragma once

// Messages that wait in the toolkit's event queue.

#include "platform/qt/peer.h"

/// Delivers the message when the event loop comes to it, unless the window is gone by then.
void QueueMessage(HWND window, const MessageArguments& arguments);
