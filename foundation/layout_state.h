#pragma once

// What a dialog with laid-out controls remembers, and what it does with its window messages.

#include "foundation/resize_list.h"

namespace Geometry {

class CLayoutState {
 public:
  /// At the end of the dialog's set-up: records the initial rectangles, binds marked controls, and
  /// makes the controls' present rectangles their first ones.
  void EndSetup(const CWnd& dialog);
  /// The dialog does not become smaller than it was at the end of its set-up.
  void OnMinMaxInfo(const CWnd& dialog, MINMAXINFO& info) const;
  void OnSize(CWnd& dialog, UINT type, CSize size);
  void ApplyLayout(CWnd& dialog);

  CResizeCtlList& List() { return list_; }
  void SetMaximum(int cx, int cy) { maximum_ = {cx, cy}; }
  void Enable(bool enable) { enabled_ = enable; }

 private:
  CRect initialClient_;
  CResizeCtlList list_;
  CSize maximum_;  ///< A component of 0 is no limit.
  bool enabled_ = true;
  bool ready_ = false;  ///< The initial rectangles are recorded.
  CSize lastSize_;
  UINT lastType_ = 0;
};

}  // namespace Geometry
