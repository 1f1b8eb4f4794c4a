#include "controls/reg_loaded_combo.h"

#include <algorithm>

#include "foundation/catch_chain.h"
#include "foundation/exception.h"

namespace {

constexpr const wchar_t* kTask = L"Loading the list of a combo box";
constexpr const wchar_t* kWidthMargin = L"WWW";

}  // namespace

void CRegLoadedCombo::LoadFromProvider(
    const std::shared_ptr<INTERNAL_IFC::ILoadComboReg>& provider) {
  provider_ = provider;
  if (provider_ != nullptr) ThrowHr(provider_->Exchange(this, false), kTask);
}

CString CRegLoadedCombo::GetText() const {
  CString text;
  GetWindowText(text);
  return text;
}

BOOL CRegLoadedCombo::OnReflectedNotification(UINT code, int previous) {
  if (code == CBN_DROPDOWN && provider_ != nullptr) {
    RunGuarded([this] { FillFromProvider(); }, MakeMsgBoxDisplay, CString(),
               L"reg_loaded_combo.cpp");
  }
  return CAutoSelectionCombo::OnReflectedNotification(code, previous);
}

void CRegLoadedCombo::FillFromProvider() {
  const CString typed = GetText();
  const DWORD selection = GetEditSel();
  const HRESULT status = provider_->Exchange(this, true);
  // Filling the list anew empties the edit part; what the user typed stays.
  if (GetText().IsEmpty() && !typed.IsEmpty()) {
    SetWindowText(typed);
    SetEditSel(LOWORD(selection), HIWORD(selection));
  }
  ThrowHr(status, kTask);
  WidenToRows();
}

void CRegLoadedCombo::WidenToRows() {
  int widest = 0;
  for (int row = 0; row < GetCount(); ++row) {
    CString text;
    GetLBText(row, text);
    widest = std::max(widest, GetTextWidth(text));
  }
  const int margins = GetSystemMetrics(SM_CXVSCROLL) + GetTextWidth(kWidthMargin);
  SetDroppedWidth(static_cast<UINT>(widest + margins));
}
