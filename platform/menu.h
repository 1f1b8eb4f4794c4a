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
  UINT command = 0;  ///< 0 for a submenu.
  CString text;
  bool enabled = true;
  HMENU submenu = nullptr;
};

class CMenu {
 public:
  virtual ~CMenu();

  HMENU m_hMenu = nullptr;

  BOOL Attach(HMENU menu);
  HMENU Detach();
  BOOL DestroyMenu();
  /// A view of the submenu at that row; owned by this menu.
  HMENU GetSubMenu(int row) const;
  BOOL EnableMenuItem(UINT command, UINT flags);
};

/// Loads menu `id` of that module; null when it has none. The caller destroys it.
HMENU LoadMenu(HINSTANCE module, UINT id);

int GetMenuItemCount(HMENU menu);
/// The row at that place; false when the menu or the row does not exist.
bool GetMenuRow(HMENU menu, int row, MenuRow& out);
BOOL SetMenuText(HMENU menu, int row, const CString& text);

/// Shows a popup at the pointer, or below the focus when it was asked for by a key, until a row is
/// chosen or the popup is dismissed. The chosen command is sent to the owner as WM_COMMAND.
BOOL TrackPopupMenuAtCursor(HMENU popup, CWnd* owner);
