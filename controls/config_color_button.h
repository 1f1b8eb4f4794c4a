#pragma once

// The colour button of the settings pages.

#include "platform/bcg.h"

class CConfigColorButton : public CBCGPColorButton {
 public:
  CConfigColorButton() { m_nFlatStyle = BUTTONSTYLE_SEMIFLAT; }

 protected:
  void PreSubclassWindow() override;
  void OnDrawFace(CDC* dc, const CRect& rect, UINT state) override;
};
