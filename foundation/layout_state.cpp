#include "foundation/layout_state.h"

#include "foundation/marker_scan.h"

namespace Geometry {

void CLayoutState::EndSetup(const CWnd& dialog) {
  dialog.GetClientRect(initialClient_);
  BindMarkedControls(list_, dialog);
  list_.CaptureRectangles(dialog);
  ready_ = true;
}

void CLayoutState::OnMinMaxInfo(const CWnd& dialog, MINMAXINFO& info) const {
  if (!ready_) return;
  // The desktop adds the frame only when it shows the window, so the first window size is what was
  // the first client size with the frame of now.
  CRect window, client;
  dialog.GetWindowRect(window);
  dialog.GetClientRect(client);
  const int width = initialClient_.Width() + window.Width() - client.Width();
  const int height = initialClient_.Height() + window.Height() - client.Height();
  if (width > 0) info.ptMinTrackSize.x = width;
  if (height > 0) info.ptMinTrackSize.y = height;
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
