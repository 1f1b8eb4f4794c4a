#include "controls/config_color_button.h"

#include "foundation/language.h"

namespace {

constexpr UINT kOtherColourText = 758;
constexpr int kFaceMargin = 2;

}  // namespace

void CConfigColorButton::PreSubclassWindow() {
  CBCGPColorButton::PreSubclassWindow();
  EnableOtherButton(LanguageString(kOtherColourText));
}

void CConfigColorButton::OnDrawFace(CDC* dc, const CRect& rect, UINT) {
  CRect face = rect;
  face.DeflateRect(kFaceMargin, kFaceMargin);
  dc->FillSolidRect(face, GetColor());
}
