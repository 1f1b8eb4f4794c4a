#pragma once

// How a control follows the size of its dialog: constraint texts and their arithmetic.

#include <cstdint>
#include <string_view>

#include "platform/geometry_types.h"

namespace Geometry {

enum ConstraintFlags : std::uint16_t {
  kGrowWidth = 0x0001,   ///< "CX": the width grows with the dialog's, times the CX factor.
  kGrowHeight = 0x0002,  ///< "CY"
  kMoveX = 0x0004,       ///< "X": the left edge moves with the dialog's right edge, times a factor.
  kMoveY = 0x0008,       ///< "Y"
  kCentreX = 0x0010,     ///< "x": the left edge moves by half the change.
  kCentreY = 0x0020,     ///< "y"
  kScaleWidth = 0x0100,  ///< "MCX": the width keeps its ratio to the dialog's.
  kScaleHeight = 0x0200,
  kScaleX = 0x0400,
  kScaleY = 0x0800,
};

/// A parsed constraint text.
struct CConstraint {
  std::uint16_t flags = 0;
  float factorX = 1.0F;
  float factorY = 1.0F;
  float factorCX = 1.0F;
  float factorCY = 1.0F;
  /// "R": the control's text and the selection of its edit part survive the move.
  bool restoreText = false;
};

/// Greatest length of a constraint text; what lies behind it is cut off.
constexpr std::size_t kMaxConstraintText = 255;

/// Adds what the text says to `constraint`, which the caller starts from scratch. A text is a list
/// of tokens joined by "+": "CX", "CY", "X", "Y", each with a factor if wanted ("X[0.5]"), "x",
/// "y", "R". The prefix "M" makes its own token proportional instead of additive: "MX" keeps the
/// ratio of the left edge to the dialog's width and does not shift it as well. Unknown tokens are
/// ignored; a "C" with anything but "X" or "Y" behind it ends the parse with false, and what was
/// gathered before it stays. A factor that is no number, or none that a float can hold, counts as
/// not given.
bool ParseConstraint(std::wstring_view text, CConstraint& constraint);

/// Where a control belongs: its first rectangle, laid out for a client area that grew from
/// `initialSize` to `size`. Never smaller or further left or up than the first rectangle.
/// Proportional flags do nothing along an axis whose initial size is zero.
CRect LayOut(const CConstraint& constraint, const CRect& initial, CSize size, CSize initialSize);

}  // namespace Geometry
