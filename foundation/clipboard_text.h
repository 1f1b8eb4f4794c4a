#pragma once

// Text to the clipboard.

#include <cstddef>

#include "platform/text.h"

/// Puts `count` bytes of wide text, without terminator, on the clipboard in the name of `owner`.
/// E_FAIL when the count is 0, and the clipboard keeps what it had. Raises CCP_Exception naming the
/// step when the system refuses one.
HRESULT CopyToClipboard(const void* bytes, std::size_t count, HWND owner);

/// The same for a whole text.
HRESULT CopyTextToClipboard(const CString& text, HWND owner);
