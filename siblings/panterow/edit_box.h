#pragma once

// A text of many lines inside a dialog.

#include "platform/wnd.h"

namespace PANTEROW {

/// Makes an edit box of several lines, without text, as control `id` of `parent`. `rect` is in
/// pixels of the parent's client area. Lines are not wrapped, so that each stays one line to the
/// eye; Enter begins a new line and Tab leaves the box. It belongs to `parent`, as its last control
/// in the order of the Tab key. Null when there is no such parent.
HWND CreateEditBox(CWnd* parent, const CRect& rect, int id);

}  // namespace PANTEROW
