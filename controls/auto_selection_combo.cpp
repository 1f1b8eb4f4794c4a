#include "controls/auto_selection_combo.h"

namespace {

/// The text and the selection of a combo's edit part, to be put back after they were lost.
class EditState {
 public:
  explicit EditState(CComboBox& combo) : combo_(combo), selection_(combo.GetEditSel()) {
    combo.GetWindowText(text_);
  }
  const CString& Text() const { return text_; }
  bool HasEdit() const { return selection_ != static_cast<DWORD>(CB_ERR); }

  void PutBack() const {
    // A drop-down list holds its text by the row alone.
    if (!HasEdit()) {
      combo_.SetCurSel(combo_.FindStringExact(-1, text_));
      return;
    }
    combo_.SetWindowText(text_);
    combo_.SetEditSel(LOWORD(selection_), HIWORD(selection_));
  }
  void PutSelectionBackReversed() const {
    if (HasEdit()) combo_.SetEditSel(HIWORD(selection_), LOWORD(selection_));
  }

 private:
  CComboBox& combo_;
  DWORD selection_;
  CString text_;
};

}  // namespace

BEGIN_MESSAGE_MAP(CAutoSelectionCombo, CCustomComboBox)
ON_WM_KILLFOCUS()
ON_WM_SIZE()
END_MESSAGE_MAP()

BOOL CAutoSelectionCombo::PreTranslateMessage(MSG* message) {
  const bool enter = message->wParam == VK_RETURN;
  const bool handled = enter || message->wParam == VK_ESCAPE;
  if (message->message != WM_KEYDOWN || !handled) {
    return CCustomComboBox::PreTranslateMessage(message);
  }
  const HWND self = m_hWnd;
  const bool dropped = GetDroppedState() != FALSE;
  if (dropped) {
    const bool chosen = CloseWith(enter ? GetCurSel() : CB_ERR);
    if (chosen || !enter || !IsWindow(self)) return TRUE;
  }
  // Escape with a closed list is for the dialog, and the base passes it on.
  if (enter && (SendNotification(kComboEnterNotification) != 0 || dropped)) return TRUE;
  return IsWindow(self) ? CCustomComboBox::PreTranslateMessage(message) : TRUE;
}

bool CAutoSelectionCombo::CloseWith(int row) {
  const HWND self = m_hWnd;
  const EditState typed(*this);
  if (IsRowDisabled(row)) row = CB_ERR;
  SetCurSel(row);
  ShowDropDown(FALSE);
  if (!IsWindow(self)) return true;
  if (row < 0) {
    typed.PutBack();
    return false;
  }
  SetCurSel(row);
  SendNotification(CBN_SELCHANGE);
  return true;
}

void CAutoSelectionCombo::OnKillFocus(CWnd* receiver) {
  if (GetDroppedState()) {
    const EditState typed(*this);
    const int row = FindStringExact(-1, typed.Text());
    if (row >= 0) {
      SetCurSel(row);
      typed.PutBack();
    }
  }
  CCustomComboBox::OnKillFocus(receiver);
}

void CAutoSelectionCombo::OnSize(UINT type, int cx, int cy) {
  const EditState typed(*this);
  CCustomComboBox::OnSize(type, cx, cy);
  typed.PutSelectionBackReversed();
}
