// Positions of windows, one by one or in a batch.

#include <memory>
#include <vector>

#include "platform/qt/window_placement.h"

class CDeferredPositions {
 public:
  explicit CDeferredPositions(int count) {
    if (count > 0) positions_.reserve(static_cast<std::size_t>(count));
  }

  void Add(HWND window, int x, int y, int cx, int cy, UINT flags) {
    positions_.push_back({window, x, y, cx, cy, flags});
  }

  /// Handlers of size messages may destroy windows on the way; those are passed over.
  void Apply() const {
    for (const Position& position : positions_)
      if (Peer* peer = FindPeer(position.window))
        PlaceWindow(*peer, position.x, position.y, position.cx, position.cy, position.flags);
  }

 private:
  struct Position {
    HWND window;
    int x, y, cx, cy;
    UINT flags;
  };
  std::vector<Position> positions_;
};

HDWP BeginDeferWindowPos(int count) { return new CDeferredPositions(count); }

HDWP DeferWindowPos(HDWP batch, HWND window, int x, int y, int cx, int cy, UINT flags) {
  if (batch != nullptr) batch->Add(window, x, y, cx, cy, flags);
  return batch;
}

BOOL EndDeferWindowPos(HDWP batch) {
  if (batch == nullptr) return FALSE;
  const std::unique_ptr<CDeferredPositions> positions(batch);
  positions->Apply();
  return TRUE;
}

BOOL CWnd::SetWindowPos(int x, int y, int cx, int cy, UINT flags) {
  Peer* peer = FindPeer(m_hWnd);
  if (peer == nullptr) return FALSE;
  PlaceWindow(*peer, x, y, cx, cy, flags);
  return TRUE;
}

void CWnd::MoveWindow(const CRect& rect) {
  SetWindowPos(rect.left, rect.top, rect.Width(), rect.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
}
