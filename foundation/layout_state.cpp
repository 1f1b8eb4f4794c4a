#include "foundation/layout_state.h"

#include "foundation/marker_scan.h"

namespace Geometry {

void CLayoutState::EndSetup(const CWnd& dialog) {
  dialog.GetWindowRect(initialWindow_);
  dialog.GetClientRect(initialClient_);
  BindMarkedControls(list_, dialog);
  list_.CaptureRectangles(dialog);
  ready_ = true;
}

void CLayoutState::OnMinMaxInfo(MINMAXINFO& info) const {
  if (!ready_) return;
  const CSize smallest = initialWindow_.Size();
  if (smallest.cx != 0) info.ptMinTrackSize.x = smallest.cx;
  if (smallest.cy != 0) info.ptMinTrackSize.y = smallest.cy;
}

void CLayoutState::OnSize(CWnd& dialog, UINT type, CSize size) {
  lastSize_ = size;
  lastType_ = type;
  if (enabled_) ApplyLayout(dialog);
}

void CLayoutState::ApplyLayout(CWnd& dialog) {
  // A size message during set-up comes before there are first rectangles to start from.
  if (!ready_ || lastType_ == SIZE_MINIMIZED || dialog.GetSafeHwnd() == nullptr) return;
  list_.Resize(dialog, lastSize_, initialClient_.Size(), maximum_);
}

}  // namespace Geometry
