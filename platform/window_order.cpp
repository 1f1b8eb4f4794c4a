#include <algorithm>

#include "platform/qt/accessible_names.h"
#include "platform/qt/tab_order.h"
#include "platform/wnd.h"

namespace {

/// Moves a control behind its sibling. False when they are no siblings.
bool MoveBehind(HWND control, HWND after) {
  const Peer* moved = FindPeer(control);
  const Peer* fixed = FindPeer(after);
  Peer* dialog = moved != nullptr ? FindPeer(moved->parent) : nullptr;
  if (dialog == nullptr || fixed == nullptr || fixed == moved || fixed->parent != moved->parent)
    return false;
  std::vector<ChildWindow>& children = dialog->children;
  const auto find = [&children](HWND window) {
    return std::ranges::find(children, window, &ChildWindow::window);
  };
  const ChildWindow entry = *find(control);
  children.erase(find(control));
  children.insert(find(after) + 1, entry);
  ArrangeTabOrder(control);
  UpdateAccessibleName(*moved);
  return true;
}

}  // namespace

BOOL CWnd::SetWindowPos(const CWnd* after, int x, int y, int cx, int cy, UINT flags) {
  const HWND sibling = after != nullptr ? after->m_hWnd : nullptr;
  if ((flags & SWP_NOZORDER) == 0 && !MoveBehind(m_hWnd, sibling)) return FALSE;
  return SetWindowPos(x, y, cx, cy, flags);
}
