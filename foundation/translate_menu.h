#pragma once

// Context menus in the language in use.

#include <functional>

#include "platform/menu.h"

class CWnd;

/// A menu that goes with its object.
class CBaseTranslateMenu : public CMenu {
 public:
  ~CBaseTranslateMenu() override { DestroyMenu(); }
};

/// Shows the first submenu of menu `id`, translated, as a popup at the pointer. The chosen command
/// goes to `owner` as WM_COMMAND. `prepare`, when given, may grey commands before it is shown.
/// FALSE when the menu is missing, cannot be translated, or was dismissed.
BOOL ShowTranslatedMenu(UINT id, CWnd* owner, const std::function<void(CMenu&)>& prepare = {});
