#include "platform/menu.h"

#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <map>
#include <utility>
#include <vector>

#include "platform/module.h"
#include "platform/qt/last_input.h"
#include "platform/qt/peer.h"
#include "platform/resource_script.h"

namespace {

using Rows = std::vector<MenuRow>;

/// Handles count on and are never given twice, so that a stale one is found out.
class MenuTable {
 public:
  HMENU Add(const std::vector<MenuItemTemplate>& items) {
    Rows rows;
    for (const MenuItemTemplate& item : items) {
      const HMENU submenu = item.children.empty() ? nullptr : Add(item.children);
      rows.push_back({item.command, CString(item.text), !item.grayed, submenu});
    }
    const auto handle = reinterpret_cast<HMENU>(++last_);
    menus_.emplace(handle, std::move(rows));
    return handle;
  }

  Rows* Find(HMENU menu) {
    const auto found = menus_.find(menu);
    return found != menus_.end() ? &found->second : nullptr;
  }

  MenuRow* FindRow(HMENU menu, int row) {
    Rows* rows = Find(menu);
    if (rows == nullptr || row < 0 || static_cast<std::size_t>(row) >= rows->size()) return nullptr;
    return &(*rows)[static_cast<std::size_t>(row)];
  }

  bool Remove(HMENU menu) {
    const auto node = menus_.extract(menu);
    if (node.empty()) return false;
    for (const MenuRow& row : node.mapped()) Remove(row.submenu);
    return true;
  }

 private:
  std::map<HMENU, Rows> menus_;
  std::uintptr_t last_ = 0;
};

MenuTable& Menus() {
  static MenuTable table;
  return table;
}

/// None for a stale handle, such as that of a submenu that was destroyed on its own.
Rows& RowsOf(HMENU menu) {
  static Rows none;
  Rows* rows = Menus().Find(menu);
  return rows != nullptr ? *rows : none;
}

bool EnableRows(HMENU menu, UINT command, bool enable) {
  bool found = false;
  for (MenuRow& row : RowsOf(menu)) {
    if (row.submenu != nullptr) {
      found = EnableRows(row.submenu, command, enable) || found;
    } else if (row.command == command) {
      row.enabled = enable;
      found = true;
    }
  }
  return found;
}

void FillPopup(QMenu& popup, HMENU menu) {
  for (const MenuRow& row : RowsOf(menu)) {
    const QString text = ToQt(row.text.Str());
    if (row.submenu != nullptr) {
      QMenu* inner = popup.addMenu(text);
      inner->setEnabled(row.enabled);
      FillPopup(*inner, row.submenu);
    } else if (row.command == 0 && row.text.IsEmpty()) {
      popup.addSeparator();
    } else {
      QAction* action = popup.addAction(text);
      action->setEnabled(row.enabled);
      action->setData(row.command);
    }
  }
}

QPoint PopupPosition() {
  const QWidget* focus = QApplication::focusWidget();
  if (!GetLastInput().byKey || focus == nullptr) return GetLastInput().pointer;
  // Views answer with their current row, edits with their caret.
  const QRect place = focus->inputMethodQuery(Qt::ImCursorRectangle).toRect();
  return focus->mapToGlobal(focus->rect().intersected(place).bottomLeft());
}

}  // namespace

CMenu::~CMenu() { DestroyMenu(); }

BOOL CMenu::Attach(HMENU menu) {
  if (Menus().Find(menu) == nullptr || m_hMenu != nullptr) return FALSE;
  m_hMenu = menu;
  return TRUE;
}

HMENU CMenu::Detach() { return std::exchange(m_hMenu, nullptr); }

BOOL CMenu::DestroyMenu() { return Menus().Remove(Detach()); }

HMENU CMenu::GetSubMenu(int row) const {
  const MenuRow* found = Menus().FindRow(m_hMenu, row);
  return found != nullptr ? found->submenu : nullptr;
}

BOOL CMenu::EnableMenuItem(UINT command, UINT flags) {
  return EnableRows(m_hMenu, command, (flags & MF_GRAYED) == 0);
}

HMENU LoadMenu(HINSTANCE module, UINT id) {
  if (module == nullptr || module->Resources() == nullptr) return nullptr;
  ResourceError error;
  const auto items = module->Resources()->Menu(id, error);
  return items ? Menus().Add(*items) : nullptr;
}

int GetMenuItemCount(HMENU menu) {
  const Rows* rows = Menus().Find(menu);
  return rows != nullptr ? static_cast<int>(rows->size()) : -1;
}

bool GetMenuRow(HMENU menu, int row, MenuRow& out) {
  const MenuRow* found = Menus().FindRow(menu, row);
  if (found != nullptr) out = *found;
  return found != nullptr;
}

BOOL SetMenuText(HMENU menu, int row, const CString& text) {
  MenuRow* found = Menus().FindRow(menu, row);
  if (found == nullptr) return FALSE;
  found->text = text;
  return TRUE;
}

BOOL TrackPopupMenuAtCursor(HMENU popup, CWnd* owner) {
  const HWND window = owner != nullptr ? owner->GetSafeHwnd() : nullptr;
  const Peer* peer = FindPeer(window);
  if (peer == nullptr || Menus().Find(popup) == nullptr) return FALSE;

  // The owner may be destroyed while the popup is open, and the popup with it.
  const QPointer<QMenu> menu = new QMenu(peer->widget);
  FillPopup(*menu, popup);
  const QAction* chosen = menu->exec(PopupPosition());
  const UINT command = chosen != nullptr ? chosen->data().toUInt() : 0;
  delete menu.data();
  if (command != 0 && IsWindow(window)) SendMessage(window, WM_COMMAND, command, 0);
  return TRUE;
}
