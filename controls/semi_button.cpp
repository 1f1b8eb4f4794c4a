#include "controls/semi_button.h"

UINT CSemiButton::OnAdjustDrawState(UINT state) {
  if ((state & ODS_CHECKED) != 0) state = (state & ~ODS_CHECKED) | ODS_SELECTED;
  return CBCGPButton::OnAdjustDrawState(state);
}
