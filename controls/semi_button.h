#pragma once

// A flat button that shows an image, placed beside an edit.

#include "platform/bcg.h"

class CSemiButton : public CBCGPButton {
 public:
  CSemiButton() { m_nFlatStyle = BUTTONSTYLE_FLAT; }

 protected:
  /// A checked button is drawn pushed.
  UINT OnAdjustDrawState(UINT state) override;
  int ImageMargin() const override { return 0; }
};
