#include "foundation/constraint.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace Geometry {

namespace {

constexpr std::uint16_t kAdditive = kGrowWidth | kGrowHeight | kMoveX | kMoveY;
constexpr int kProportionalShift = 8;

/// What one token adds.
struct Token {
  std::uint16_t flag = 0;
  float CConstraint::*factor = nullptr;
  std::wstring_view rest;  ///< What stands behind the letters.
};

/// Whether the number that starts the text is one; it ends where no part of a number follows.
bool ReadFactor(std::wstring_view text, float& factor) {
  char digits[kMaxConstraintText];
  std::size_t length = 0;
  for (const wchar_t character : text.substr(0, sizeof digits)) {
    const bool partOfNumber = (character >= L'0' && character <= L'9') || character == L'.' ||
                              character == L'-' || character == L'e' || character == L'E';
    if (!partOfNumber) break;
    digits[length++] = static_cast<char>(character);
  }
  float number = 0;
  if (std::from_chars(digits, digits + length, number).ec != std::errc()) return false;
  factor = number;
  return true;
}

Token TokenOf(std::wstring_view text) {
  const auto is = [&](std::size_t place, wchar_t character) {
    return place < text.size() && text[place] == character;
  };
  if (is(0, L'C') && is(1, L'X')) return {kGrowWidth, &CConstraint::factorCX, text.substr(2)};
  if (is(0, L'C') && is(1, L'Y')) return {kGrowHeight, &CConstraint::factorCY, text.substr(2)};
  if (is(0, L'X')) return {kMoveX, &CConstraint::factorX, text.substr(1)};
  if (is(0, L'Y')) return {kMoveY, &CConstraint::factorY, text.substr(1)};
  if (is(0, L'x')) return {kCentreX, nullptr, {}};
  if (is(0, L'y')) return {kCentreY, nullptr, {}};
  return {};
}

/// False for a token that ends the parse.
bool ParseToken(std::wstring_view text, CConstraint& constraint) {
  const bool proportional = text.starts_with(L'M');
  if (proportional) text.remove_prefix(1);
  const Token token = TokenOf(text);
  if (token.flag == 0) {
    if (text.starts_with(L'R')) constraint.restoreText = true;
    return !text.starts_with(L'C');
  }
  if (proportional && (token.flag & kAdditive) != 0) {
    constraint.flags |= static_cast<std::uint16_t>(token.flag << kProportionalShift);
    return true;
  }
  constraint.flags |= token.flag;
  if (token.factor == nullptr) return true;
  float factor = 1.0F;
  if (token.rest.starts_with(L'[')) ReadFactor(token.rest.substr(1), factor);
  constraint.*token.factor = factor;
  return true;
}

/// Proportional placement wins over centring, centring over the additive flags of its axis.
void Normalise(std::uint16_t& flags) {
  const auto clear = [&](unsigned bits) { flags &= static_cast<std::uint16_t>(~bits); };
  if ((flags & (kScaleWidth | kScaleX)) != 0) clear(kCentreX);
  if ((flags & (kScaleHeight | kScaleY)) != 0) clear(kCentreY);
  if ((flags & kCentreX) != 0) clear(kGrowWidth | kMoveX);
  if ((flags & kCentreY) != 0) clear(kGrowHeight | kMoveY);
}

/// Far beyond every screen, and small enough that a left edge and a width add up.
constexpr std::int64_t kFarthest = std::numeric_limits<LONG>::max() / 2;

/// `change` times the factor in single precision, truncated toward zero.
std::int64_t Share(int change, float factor) {
  constexpr auto kLimit = static_cast<float>(kFarthest);
  return static_cast<std::int64_t>(
      std::clamp(static_cast<float>(change) * factor, -kLimit, kLimit));
}

/// What the constraint says of one axis.
struct Axis {
  bool scalePosition, scaleExtent, centre, move, grow;
  float moveFactor, growFactor;
};

struct Span {
  LONG start, end;
};

Span LayOutAxis(const Axis& axis, LONG start, LONG end, int size, int initialSize) {
  const std::int64_t extent = static_cast<std::int64_t>(end) - start;
  const int change = size - initialSize;
  std::int64_t newStart = start;
  std::int64_t newExtent = extent;
  if (initialSize != 0) {
    if (axis.scalePosition) newStart = newStart * size / initialSize;
    if (axis.scaleExtent) newExtent = newExtent * size / initialSize;
  }
  if (axis.centre) newStart += change / 2;
  if (axis.grow) newExtent += Share(change, axis.growFactor);
  if (axis.move) newStart += Share(change, axis.moveFactor);
  newStart = std::min(std::max<std::int64_t>(newStart, start), kFarthest);
  newExtent = std::min(std::max(newExtent, extent), kFarthest);
  return {static_cast<LONG>(newStart), static_cast<LONG>(newStart + newExtent)};
}

}  // namespace

bool ParseConstraint(std::wstring_view text, CConstraint& constraint) {
  text = text.substr(0, kMaxConstraintText);
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(L'+'), text.size());
    if (!ParseToken(text.substr(0, end), constraint)) return false;
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  Normalise(constraint.flags);
  return true;
}

CRect LayOut(const CConstraint& constraint, const CRect& initial, CSize size, CSize initialSize) {
  const auto has = [&](ConstraintFlags flag) { return (constraint.flags & flag) != 0; };
  const Axis across{has(kScaleX),    has(kScaleWidth),   has(kCentreX),      has(kMoveX),
                    has(kGrowWidth), constraint.factorX, constraint.factorCX};
  const Axis down{has(kScaleY),     has(kScaleHeight),  has(kCentreY),      has(kMoveY),
                  has(kGrowHeight), constraint.factorY, constraint.factorCY};
  const Span x = LayOutAxis(across, initial.left, initial.right, size.cx, initialSize.cx);
  const Span y = LayOutAxis(down, initial.top, initial.bottom, size.cy, initialSize.cy);
  return {x.start, y.start, x.end, y.end};
}

}  // namespace Geometry
