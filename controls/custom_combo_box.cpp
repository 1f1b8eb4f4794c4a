#include "controls/custom_combo_box.h"

#include <algorithm>
#include <string>

namespace {

constexpr int kIndentPixels = 25;  // Of one level, for 96 logical pixels per inch.

}  // namespace

int CCustomComboBox::AddItem(const CString& text) {
  std::wstring shown = text.Str();
  const auto levels = static_cast<int>(std::erase(shown, L'\t'));
  const bool disabled = disabledRowsAllowed_ && std::erase(shown, L'!') > 0;
  const int row = AddString(shown);
  if (row < 0) return row;
  MoveDisabledRows(row, 1);  // A sorted combo may have put it before others.
  if (levels > 0) SetItemIndent(row, levels * globalUtils.ScaleByDPI(kIndentPixels));
  if (disabled) {
    disabledRows_.push_back(row);
    SetItemColor(row, GetSysColor(COLOR_GRAYTEXT));
  }
  return row;
}

bool CCustomComboBox::IsRowDisabled(int row) const {
  return std::find(disabledRows_.begin(), disabledRows_.end(), row) != disabledRows_.end();
}

int CCustomComboBox::DeleteString(UINT row) {
  const int left = CBCGPComboBox::DeleteString(row);
  if (left == CB_ERR) return left;
  std::erase(disabledRows_, static_cast<std::int32_t>(row));
  MoveDisabledRows(static_cast<int>(row) + 1, -1);
  return left;
}

void CCustomComboBox::ResetContent() {
  CBCGPComboBox::ResetContent();
  disabledRows_.clear();
}

void CCustomComboBox::MoveDisabledRows(int from, int distance) {
  for (std::int32_t& row : disabledRows_) {
    if (row >= from) row += distance;
  }
}

BOOL CCustomComboBox::OnReflectedNotification(UINT code, int previous) {
  if (code != CBN_SELCHANGE || !IsRowDisabled(GetCurSel())) {
    return CBCGPComboBox::OnReflectedNotification(code, previous);
  }
  SetCurSel(previous);
  return TRUE;  // Nothing has changed that the parent should hear of.
}

BOOL CCustomComboBox::PreTranslateMessage(MSG* message) {
  const bool enter = message->wParam == VK_RETURN;
  const bool closes = enter || message->wParam == VK_ESCAPE;
  if (message->message != WM_KEYDOWN || !closes || !GetDroppedState()) {
    return CBCGPComboBox::PreTranslateMessage(message);
  }
  const HWND self = m_hWnd;
  const int row = GetCurSel();
  SendNotification(enter ? CBN_SELENDOK : CBN_SELENDCANCEL);
  if (!IsWindow(self)) return TRUE;
  ShowDropDown(FALSE);
  if (enter && row >= 0 && IsWindow(self)) ChooseRow(row);
  return TRUE;
}
