#include "foundation/constraint.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using namespace Geometry;

struct ParseCase {
  std::wstring text;
  bool parsed = true;
  CConstraint expected;
};

CConstraint Flags(unsigned flags) { return {.flags = static_cast<std::uint16_t>(flags)}; }

std::vector<ParseCase> ParseCases() {
  return {
      {L"", true, {}},
      {L"CX", true, Flags(kGrowWidth)},
      {L"CY", true, Flags(kGrowHeight)},
      {L"X", true, Flags(kMoveX)},
      {L"Y", true, Flags(kMoveY)},
      {L"Y+CX", true, Flags(kMoveY | kGrowWidth)},
      {L"++X++Y+", true, Flags(kMoveX | kMoveY)},
      {L"Xanything", true, Flags(kMoveX)},
      {L"R", true, {.restoreText = true}},
      {L"X[0.5]", true, {.flags = kMoveX, .factorX = 0.5F}},
      {L"Y[.25", true, {.flags = kMoveY, .factorY = 0.25F}},
      {L"CX[-2]+CY[1e1]",
       true,
       {.flags = kGrowWidth | kGrowHeight, .factorCX = -2.0F, .factorCY = 10.0F}},
      {L"X[0.5]+X", true, Flags(kMoveX)},
      {L"X[1e+2]", true, {.flags = kMoveX, .factorX = 1.0F}},
      {L"X[]+Y[z]+CX[nan]+CY[inf]", true, Flags(kMoveX | kMoveY | kGrowWidth | kGrowHeight)},
      {L"X[1e99]", true, Flags(kMoveX)},
      {L"x", true, Flags(kCentreX)},
      {L"x+CX", true, Flags(kCentreX)},
      {L"CY+Y+y+X", true, Flags(kCentreY | kMoveX)},
      {L"Z", true, {}},
      {L" X", true, {}},
      {L"CZ", false, {}},
      {L"C", false, {}},
      {L"x+CX+CZ+Y", false, Flags(kCentreX | kGrowWidth)},
      {L"MX", true, Flags(kScaleX)},
      {L"MY+MCX+MCY", true, Flags(kScaleY | kScaleWidth | kScaleHeight)},
      {L"CY+MX", true, Flags(kGrowHeight | kScaleX)},
      {L"X+MX", true, Flags(kMoveX | kScaleX)},
      {L"MX+x+y", true, Flags(kScaleX | kCentreY)},
      {L"M", true, {}},
      {L"MCZ", false, {}},
      {L"MR", true, {.restoreText = true}},
      // Nothing behind the 255th character counts, and a token that lies across it is cut.
      {std::wstring(254, L'+') + L"X", true, Flags(kMoveX)},
      {std::wstring(255, L'+') + L"X", true, {}},
      {std::wstring(254, L'+') + L"CX", false, {}},
  };
}

TEST(Constraint, Parses) {
  for (const ParseCase& row : ParseCases()) {
    CConstraint constraint;
    SCOPED_TRACE(testing::PrintToString(row.text));
    EXPECT_EQ(ParseConstraint(row.text, constraint), row.parsed);
    EXPECT_EQ(constraint.flags, row.expected.flags);
    EXPECT_EQ(constraint.factorX, row.expected.factorX);
    EXPECT_EQ(constraint.factorY, row.expected.factorY);
    EXPECT_EQ(constraint.factorCX, row.expected.factorCX);
    EXPECT_EQ(constraint.factorCY, row.expected.factorCY);
    EXPECT_EQ(constraint.restoreText, row.expected.restoreText);
  }
}

struct LayOutCase {
  const wchar_t* text;
  CSize size;
  CRect expected;  ///< Of a control at (10, 20) to (110, 50) in a dialog of 200 by 100.
};

const LayOutCase kLayOutCases[] = {
    {L"", {300, 140}, {10, 20, 110, 50}},
    {L"X+Y", {300, 140}, {110, 60, 210, 90}},
    {L"CX", {300, 140}, {10, 20, 210, 50}},
    {L"CX+CY", {300, 140}, {10, 20, 210, 90}},
    {L"X[0.5]", {301, 140}, {60, 20, 160, 50}},
    {L"X[0.5]+CX[0.5]", {301, 140}, {60, 20, 210, 50}},
    {L"x+y", {301, 141}, {60, 40, 160, 70}},
    {L"MX", {300, 140}, {15, 20, 115, 50}},
    {L"MCX+MCY", {301, 133}, {10, 20, 160, 59}},
    {L"MX+X", {300, 140}, {115, 20, 215, 50}},
    {L"MY", {300, 190}, {10, 38, 110, 68}},
    // Shrinking below the initial size, or a negative factor, leaves the first rectangle.
    {L"X+Y+CX+CY", {100, 50}, {10, 20, 110, 50}},
    {L"MX+MCX+x+y", {100, 50}, {10, 20, 110, 50}},
    {L"X[-1]+CX[-1]", {300, 140}, {10, 20, 110, 50}},
};

TEST(Constraint, LaysOutAnAxisAtATime) {
  for (const LayOutCase& row : kLayOutCases) {
    CConstraint constraint;
    ParseConstraint(row.text, constraint);
    const CRect rect = LayOut(constraint, CRect(10, 20, 110, 50), row.size, {200, 100});
    EXPECT_EQ(rect, row.expected) << testing::PrintToString(std::wstring(row.text)) << " gave "
                                  << rect.left << ' ' << rect.top << ' ' << rect.right << ' '
                                  << rect.bottom;
  }
}

TEST(Constraint, ProportionNeedsAnInitialSize) {
  CConstraint constraint;
  ParseConstraint(L"MX+MY+MCX+CY", constraint);
  EXPECT_EQ(LayOut(constraint, CRect(10, 20, 110, 50), {300, 140}, {0, 0}),
            CRect(10, 20, 110, 190));
}

TEST(Constraint, HugeFactorsStayInRange) {
  CConstraint constraint;
  ParseConstraint(L"X[3e38]+CX[3e38]", constraint);
  const CRect rect = LayOut(constraint, CRect(10, 20, 110, 50), {30000, 100}, {200, 100});
  EXPECT_GT(rect.left, 1'000'000);
  EXPECT_GT(rect.right, rect.left);
}

}  // namespace
