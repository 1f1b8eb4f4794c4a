#pragma once

// The scalar types, status codes and small helpers of the Win32 vocabulary. Widths are those that
// Win32 documents, whatever the width of `long` is here: a LONG has 32 bits, a WPARAM is as wide
// as a pointer. Only wchar_t differs: it has four bytes and carries whole code points.

#include <cstddef>
#include <cstdint>

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = std::uint32_t;
using LONG = std::int32_t;
using HRESULT = std::int32_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using LPCWSTR = const wchar_t*;

/// A place in a list that is walked through; 0 is behind the last.
using POSITION = std::uintptr_t;

/// Red in the low byte, then green, then blue.
using COLORREF = std::uint32_t;

#define TRUE 1
#define FALSE 0

// Handles are opaque and guarded: one that outlives its object is recognised as stale by every
// function that takes it.
using HWND = struct WindowHandle*;
using HMENU = struct MenuHandle*;
using HTREEITEM = struct TreeItemHandle*;
using HINSTANCE = const class CModule*;

constexpr HRESULT S_OK = 0;
constexpr HRESULT S_FALSE = 1;
constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001U);
constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005U);
constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000EU);
constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057U);

constexpr bool SUCCEEDED(HRESULT status) { return status >= 0; }
constexpr bool FAILED(HRESULT status) { return status < 0; }

constexpr COLORREF RGB(unsigned red, unsigned green, unsigned blue) {
  return (red & 0xFFU) | (green & 0xFFU) << 8 | (blue & 0xFFU) << 16;
}
constexpr BYTE GetRValue(COLORREF colour) { return static_cast<BYTE>(colour); }
constexpr BYTE GetGValue(COLORREF colour) { return static_cast<BYTE>(colour >> 8); }
constexpr BYTE GetBValue(COLORREF colour) { return static_cast<BYTE>(colour >> 16); }

constexpr WORD LOWORD(DWORD_PTR value) { return static_cast<WORD>(value & 0xFFFFU); }
constexpr WORD HIWORD(DWORD_PTR value) { return static_cast<WORD>(value >> 16 & 0xFFFFU); }
constexpr LPARAM MAKELPARAM(int low, int high) {
  return static_cast<LPARAM>(static_cast<DWORD>(low & 0xFFFF) | static_cast<DWORD>(high) << 16);
}

/// number * numerator / denominator with a 64-bit product, rounded half away from zero; -1 when
/// the denominator is 0 or the result does not fit.
int MulDiv(int number, int numerator, int denominator);

/// The calling thread's last system error: an errno value, 0 when none was recorded.
DWORD GetLastError();
void SetLastError(DWORD error);
