// Key-downs before a control sees them.

#include "platform/qt/message_delivery.h"

namespace {

struct KeyRow {
  int key;
  UINT virtualKey;
};

constexpr KeyRow kKeys[] = {
    {Qt::Key_Backspace, VK_BACK}, {Qt::Key_Tab, VK_TAB},       {Qt::Key_Backtab, VK_TAB},
    {Qt::Key_Return, VK_RETURN},  {Qt::Key_Enter, VK_RETURN},  {Qt::Key_Escape, VK_ESCAPE},
    {Qt::Key_PageUp, VK_PRIOR},   {Qt::Key_PageDown, VK_NEXT}, {Qt::Key_End, VK_END},
    {Qt::Key_Home, VK_HOME},      {Qt::Key_Up, VK_UP},         {Qt::Key_Down, VK_DOWN},
    {Qt::Key_Right, VK_RIGHT},    {Qt::Key_Delete, VK_DELETE}, {Qt::Key_F4, VK_F4},
};

/// Offers the key to one window's object. True when it took the key or its window is gone.
bool Offer(HWND window, MSG& message) {
  const Peer* peer = FindPeer(window);
  if (peer == nullptr) return true;
  CWnd* object = peer->attached;
  if (object == nullptr) return false;
  const ModuleOfWindow module(*peer);
  bool taken = false;
  const bool finished =
      GuardToolkitCall([&] { taken = object->PreTranslateMessage(&message) != FALSE; });
  return taken || !finished || FindPeer(window) == nullptr;
}

}  // namespace

UINT VirtualKey(int qtKey) {
  for (const KeyRow& row : kKeys)
    if (row.key == qtKey) return row.virtualKey;
  // Blank, digits and capital letters have the same numbers on both sides.
  const bool same = qtKey == Qt::Key_Space || (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) ||
                    (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z);
  return same ? static_cast<UINT>(qtKey) : 0;
}

bool PreTranslateKey(HWND window, UINT virtualKey) {
  MSG message{window, WM_KEYDOWN, virtualKey, 0};
  while (window != nullptr) {
    const Peer* peer = FindPeer(window);
    const HWND parent = peer != nullptr ? peer->parent : nullptr;
    if (Offer(window, message)) return true;
    window = parent;
  }
  return false;
}
