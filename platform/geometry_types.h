#pragma once

// Points, sizes and rectangles in pixels. A rectangle's right and bottom edges lie outside it.

#include "platform/types.h"

struct POINT {
  LONG x = 0;
  LONG y = 0;
};

struct SIZE {
  LONG cx = 0;
  LONG cy = 0;
};

struct RECT {
  LONG left = 0;
  LONG top = 0;
  LONG right = 0;
  LONG bottom = 0;
};

struct CPoint : POINT {
  CPoint() = default;
  CPoint(int px, int py) : POINT{px, py} {}
  bool operator==(const CPoint& other) const { return x == other.x && y == other.y; }
};

struct CSize : SIZE {
  CSize() = default;
  CSize(int width, int height) : SIZE{width, height} {}
  /// The packed pair of a size message: width in the low 16 bits, height in the next, signed.
  explicit CSize(DWORD packed)
      : SIZE{static_cast<std::int16_t>(packed & 0xFFFFU), static_cast<std::int16_t>(packed >> 16)} {
  }
  bool operator==(const CSize& other) const { return cx == other.cx && cy == other.cy; }
};

struct CRect : RECT {
  CRect() = default;
  CRect(int l, int t, int r, int b) : RECT{l, t, r, b} {}
  CRect(const RECT& rect) : RECT(rect) {}
  int Width() const { return right - left; }
  int Height() const { return bottom - top; }
  CSize Size() const { return {Width(), Height()}; }
  CPoint TopLeft() const { return {left, top}; }
  bool IsRectEmpty() const { return Width() <= 0 || Height() <= 0; }
  void SetRect(int l, int t, int r, int b) { *this = CRect(l, t, r, b); }
  void OffsetRect(int dx, int dy) { left += dx, right += dx, top += dy, bottom += dy; }
  void DeflateRect(int dx, int dy) { left += dx, top += dy, right -= dx, bottom -= dy; }
  /// Whether `inner` lies wholly inside this rectangle, edges included.
  bool Contains(const CRect& inner) const {
    return inner.left >= left && inner.top >= top && inner.right <= right && inner.bottom <= bottom;
  }
  bool operator==(const CRect& other) const {
    return left == other.left && top == other.top && right == other.right && bottom == other.bottom;
  }
};
