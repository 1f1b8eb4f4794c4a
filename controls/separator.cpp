#include "controls/separator.h"

namespace {

constexpr int kGap = 6;  // Between text and rule, for 96 logical pixels per inch.

COLORREF Between(COLORREF a, COLORREF b) {
  return RGB((GetRValue(a) + GetRValue(b)) / 2U, (GetGValue(a) + GetGValue(b)) / 2U,
             (GetBValue(a) + GetBValue(b)) / 2U);
}

}  // namespace

BEGIN_MESSAGE_MAP(CSeparator, CBCGPStatic)
ON_WM_PAINT()
END_MESSAGE_MAP()

void CSeparator::PreSubclassWindow() {
  CBCGPStatic::PreSubclassWindow();
  MarkAsSeparator();
}

CFont CSeparator::HeadingFont() const {
  LOGFONTW description;
  description.lfHeight = GetFont().GetHeight();
  description.lfWeight = FW_BOLD;
  CFont font;
  font.CreateFontIndirect(description);
  return font;
}

void CSeparator::OnPaint() {
  CPaintDC surface(this);
  CRect area;
  GetClientRect(area);
  CString text;
  GetWindowText(text);

  surface.SelectFont(HeadingFont());
  surface.SetTextColor(GetSysColor(IsWindowEnabled() ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT));
  surface.DrawText(text, area, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);

  CRect rule = area;
  if (!text.IsEmpty()) {
    rule.left += surface.GetTextExtent(text).cx + globalUtils.ScaleByDPI(kGap);
  }
  rule.top += area.Height() / 2;
  rule.bottom = rule.top + globalUtils.ScaleByDPI(1);
  const COLORREF soft = Between(GetSysColor(COLOR_BTNFACE), GetSysColor(COLOR_BTNSHADOW));
  if (!rule.IsRectEmpty()) surface.FillSolidRect(rule, soft);
}
