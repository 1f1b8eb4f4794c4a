#include "controls/separator.h"

namespace {

constexpr int kGap = 6;  // Between text and rule, for 96 logical pixels per inch.

/// The interface font in bold, with that cell height. Kept, because all headings share one height
/// and a font is looked for afresh whenever one is made.
const CFont& HeadingFont(int height) {
  static CFont font;
  static int madeFor = 0;
  if (height != madeFor) {
    font.CreateFontIndirect(
        {.lfHeight = height, .lfWeight = FW_BOLD, .lfQuality = 0, .lfFaceName = {}});
    madeFor = height;
  }
  return font;
}

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

void CSeparator::OnPaint() {
  CPaintDC surface(this);
  CRect area;
  GetClientRect(area);
  CString text;
  GetWindowText(text);

  surface.SelectFont(HeadingFont(GetFont().GetHeight()));
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
