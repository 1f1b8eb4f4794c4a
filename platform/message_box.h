#pragma once

// Message boxes and the clipboard.

#include <string>
#include <string_view>

#include "platform/text.h"
#include "platform/types.h"

/// Shows a modal message and returns the number of the pressed button (IDOK ...). Closing the box
/// counts as Cancel, or No where there is no Cancel, or OK where that is the only button, or Abort.
/// A style of an unknown kind shows OK alone.
int MessageBoxW(HWND owner, const std::wstring& text, const std::wstring& caption, UINT style);

struct BCGP_MSGBOXPARAMS {
  HWND hwndOwner = nullptr;
  std::wstring lpszText;
  std::wstring lpszCaption;
  /// A heading above the text; none when empty.
  std::wstring lpszTitle;
  UINT dwStyle = 0;
};

int BCGPMessageBoxIndirect(const BCGP_MSGBOXPARAMS& parameters);

/// The active top-level window with its owner's rights, enabled; null when there is none.
HWND AfxGetSafeOwner();

/// Wide text with a terminating zero, four bytes a character here.
constexpr UINT CF_UNICODETEXT = 13;

using HGLOBAL = struct GlobalMemory*;

/// Makes the clipboard this owner's until CloseClipboard. FALSE while another one holds it.
BOOL OpenClipboard(HWND owner);
BOOL EmptyClipboard();
/// Hands over a memory block with a zero-terminated text; the clipboard owns it from then on.
/// FALSE leaves it to the caller: the clipboard is not open, the handle is stale, or the format is
/// not CF_UNICODETEXT.
BOOL SetClipboardData(UINT format, HGLOBAL memory);
BOOL CloseClipboard();

constexpr UINT GMEM_MOVEABLE = 0x0002;
constexpr UINT GMEM_ZEROINIT = 0x0040;

/// A block of `bytes` bytes, zero-filled when asked for; null when there is no memory.
HGLOBAL GlobalAlloc(UINT flags, std::size_t bytes);
/// The block's bytes; null for a stale handle.
void* GlobalLock(HGLOBAL memory);
/// Whether the block is locked still.
BOOL GlobalUnlock(HGLOBAL memory);
void GlobalFree(HGLOBAL memory);
