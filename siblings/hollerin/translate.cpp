// Replacing the placeholders of dialogs and menus.

#include <algorithm>

#include "hollerin/application_state.h"
#include "hollerin/hollerin.h"
#include "platform/machine.h"
#include "platform/menu.h"
#include "platform/wnd.h"

namespace HOLLERIN {
namespace {

/// Windows whose text is the user's, who may well have typed "{1}".
bool HoldsUserText(HWND window) {
  const std::wstring_view name = GetClassName(window);
  return name == L"Edit" || name == L"ComboBox";
}

void TranslateWindow(CLanguageMgr& language, int dialog, HWND window) {
  const std::wstring text = GetWindowText(window);
  const std::optional<std::int32_t> number = PlaceholderNumber(text);
  if (!number) return;
  const wchar_t* const found = language.GetPlaceholderText(dialog, *number, RES::kAnyItem);
  if (found != nullptr) SetWindowText(window, found);
}

HRESULT TranslateRows(const CLanguageMgr& language, int menu, HMENU handle) {
  const int count = GetMenuItemCount(handle);
  if (count < 0) return E_FAIL;
  for (int row = 0; row < count; ++row) {
    MenuRow content;
    if (!GetMenuRow(handle, row, content)) return E_FAIL;
    const std::optional<std::int32_t> number = PlaceholderNumber(content.text.Str());
    const wchar_t* const found = number ? language.GetMenuText(menu, *number) : nullptr;
    if (found != nullptr && !SetMenuText(handle, row, found)) return E_FAIL;
    if (content.submenu == nullptr) continue;
    if (FAILED(TranslateRows(language, menu, content.submenu))) return E_FAIL;
  }
  return S_OK;
}

}  // namespace

HRESULT TranslateDialog(int dialog, HWND window) {
  if (GetMachine().Fails(L"TranslateDialog") || !IsWindow(window)) return E_FAIL;
  const std::shared_ptr<CLanguageMgr> language = GetApplicationState().language;
  if (language == nullptr) return S_OK;
  for (const HWND child : GetChildWindows(window)) {
    if (!HoldsUserText(child)) TranslateWindow(*language, dialog, child);
  }
  const wchar_t* const title = language->GetDialogTitle(dialog);
  if (title != nullptr) {
    SetWindowText(window, title);
  } else {
    TranslateWindow(*language, dialog, window);
  }
  return S_OK;
}

HRESULT TranslateMenu(int menu, HMENU handle) {
  if (GetMachine().Fails(L"TranslateMenu") || handle == nullptr) return E_FAIL;
  const std::shared_ptr<CLanguageMgr> language = GetApplicationState().language;
  return language == nullptr ? S_OK : TranslateRows(*language, menu, handle);
}

}  // namespace HOLLERIN
