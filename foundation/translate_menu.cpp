#include "foundation/translate_menu.h"

#include "hollerin/hollerin.h"
#include "platform/module.h"

BOOL ShowTranslatedMenu(UINT id, CWnd* owner, const std::function<void(CMenu&)>& prepare) {
  CBaseTranslateMenu menu;
  if (!menu.Attach(LoadMenu(AfxFindMenuModule(id), id))) return FALSE;
  if (FAILED(HOLLERIN::TranslateMenu(static_cast<int>(id), menu.m_hMenu))) return FALSE;
  const HMENU popup = menu.GetSubMenu(0);
  if (popup == nullptr) return FALSE;
  if (prepare) prepare(menu);
  return TrackPopupMenuAtCursor(popup, owner);
}
