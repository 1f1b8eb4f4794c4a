#pragma once

// The heading of a section: its text, and a thin rule from there to the right edge.

#include "platform/bcg.h"

class CSeparator : public CBCGPStatic {
 protected:
  void PreSubclassWindow() override;
  void OnPaint();
  DECLARE_MESSAGE_MAP()
};
