#pragma once

// Menus read from the current module's resources and shown as popups.

#include <memory>

#include "platform/text.h"
#include "platform/types.h"

class CWnd;

constexpr UINT MF_BYCOMMAND = 0;
constexpr UINT MF_GRAYED = 1;
constexpr UINT MF_ENABLED = 0;

/// One row of a menu, in template order.
struct MenuRow {
  UINT command = 0;  ///< 0 for a submenu, and for a separator, which has no text either.
  CString text;
  bool enabled = true;
  HMENU submenu = nullptr;
};

class CMenu {
 public:
  CMenu() = default;
  /// Destroys the attached menu.
  virtual ~CMenu();
  CMenu(const CMenu&) = delete;
  CMenu& operator=(const CMenu&) = delete;

  HMENU m_hMenu = nullptr;

  /// FALSE for a stale handle, and when a menu is attached already.
  BOOL Attach(HMENU menu);
  HMENU Detach();
  BOOL DestroyMenu();
  /// A view of the submenu at that row; owned by this menu.
  HMENU GetSubMenu(int row) const;
  /// MF_ENABLED or MF_GRAYED for every row with that command, in submenus too; FALSE when there is
  /// none.
  BOOL EnableMenuItem(UINT command, UINT flags);
};

/// Loads menu `id` of that module; null when it has none. The caller destroys it.
HMENU LoadMenu(HINSTANCE module, UINT id);

/// -1 for a stale handle.
int GetMenuItemCount(HMENU menu);
/// The row at that place; false when the menu or the row does not exist.
bool GetMenuRow(HMENU menu, int row, MenuRow& out);
BOOL SetMenuText(HMENU menu, int row, const CString& text);

/// Shows a popup at the pointer, or below the focus when it was asked for by a key, until a row is
/// chosen or the popup is dismissed. The chosen command is sent to the owner as WM_COMMAND. FALSE
/// when the menu or the owner's window does not exist.
BOOL TrackPopupMenuAtCursor(HMENU popup, CWnd* owner);
