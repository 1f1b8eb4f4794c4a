#include "platform/data_exchange.h"

#include <charconv>
#include <cwctype>

#include "platform/controls.h"
#include "platform/exceptions.h"
#include "platform/message_box.h"
#include "platform/qt/message_delivery.h"

namespace {

/// The string-table entry with the title of the application.
constexpr UINT kApplicationTitle = 57344;

constexpr wchar_t kNoInteger[] = L"Please enter an integer.";

/// Tells the user and fails the exchange.
[[noreturn]] void Refuse(CDataExchange& exchange, const std::wstring& text) {
  CString caption;
  caption.LoadString(kApplicationTitle);
  const Peer* peer = FindPeer(exchange.m_pDlgWnd->GetSafeHwnd());
  MessageBoxW(peer != nullptr ? peer->handle : nullptr, text, caption.Str(),
              MB_OK | MB_ICONEXCLAMATION);
  exchange.Fail();
}

/// The integer of a text with a sign and blanks around it, if it wants; none when anything else is
/// there or the number does not fit.
std::optional<int> ParseInteger(const std::wstring& text) {
  std::string digits;
  std::size_t first = 0, last = text.size();
  while (first < last && std::iswspace(static_cast<wint_t>(text[first])) != 0) ++first;
  while (last > first && std::iswspace(static_cast<wint_t>(text[last - 1])) != 0) --last;
  for (std::size_t i = first; i < last; ++i) {
    if (text[i] > 0x7F) return std::nullopt;
    digits += static_cast<char>(text[i]);
  }
  // The parser knows the minus sign alone.
  const bool plus = digits.size() > 1 && digits[0] == '+' && digits[1] != '-';
  const char* begin = digits.data() + (plus ? 1 : 0);
  const char* end = digits.data() + digits.size();
  int value = 0;
  const auto [stop, error] = std::from_chars(begin, end, value);
  if (error != std::errc() || stop != end) return std::nullopt;
  return value;
}

/// The radio buttons of the group that starts with control `id`.
std::vector<HWND> RadioGroup(const CWnd& dialog, int id) {
  std::vector<HWND> buttons;
  bool inside = false;
  for (const HWND child : GetChildWindows(dialog.GetSafeHwnd())) {
    if (inside && (GetWindowLong(child, GWL_STYLE) & WS_GROUP) != 0) break;
    inside = inside || GetDlgCtrlID(child) == id;
    const Peer* peer = FindPeer(child);
    if (inside && peer != nullptr && peer->kind == ControlKind::Radio) buttons.push_back(child);
  }
  return buttons;
}

void SetTextIfChanged(CWnd& control, const CString& text) {
  CString shown;
  control.GetWindowText(shown);
  if (!(shown == text)) control.SetWindowText(text);
}

void SelectWholeText(HWND window) {
  const Peer* peer = FindPeer(window);
  if (peer == nullptr) return;
  if (peer->kind == ControlKind::Combo) {
    ControlView<CComboBox>(window)->SetEditSel(0, -1);
  } else {
    ControlView<CEdit>(window)->SetSel(0, -1);
  }
}

}  // namespace

CWnd* CDataExchange::PrepareCtrl(int id) {
  CWnd* control = m_pDlgWnd->GetDlgItem(id);
  if (control == nullptr) {
    CString reason;
    reason.Format(L"The dialog has no control %d.", id);
    AfxThrowResourceException(reason);
  }
  last_ = control->m_hWnd;
  lastIsEdit_ = false;
  return control;
}

CWnd* CDataExchange::PrepareEditCtrl(int id) {
  CWnd* control = PrepareCtrl(id);
  lastIsEdit_ = true;
  return control;
}

void CDataExchange::Fail() {
  // A box that was shown in between may have ended the window.
  if (IsWindow(last_)) {
    CWnd::FromHandle(last_)->SetFocus();
    if (lastIsEdit_) SelectWholeText(last_);
  }
  AfxThrowUserException();
}

BOOL CWnd::UpdateData(BOOL save) {
  const HWND window = m_hWnd;
  Peer* peer = FindPeer(window);
  if (peer == nullptr) return TRUE;
  if (peer->exchanging) return FALSE;

  struct Exchanging {
    explicit Exchanging(HWND exchanged) : window(exchanged) { Set(true); }
    ~Exchanging() { Set(false); }
    void Set(bool exchanging) const {
      if (Peer* found = FindPeer(window)) found->exchanging = exchanging;
    }
    HWND window;
  } const exchanging(window);
  const ModuleOfWindow module(*peer);
  CDataExchange exchange(this, save);
  try {
    DoDataExchange(&exchange);
    return TRUE;
  } catch (CUserException* failure) {
    failure->Delete();
    return FALSE;
  }
}

void CWnd::DoDataExchange(CDataExchange*) {}

void DDX_Control(CDataExchange* exchange, int id, CWnd& control) {
  if (control.m_hWnd != nullptr) return;
  exchange->PrepareCtrl(id);
  if (control.SubclassDlgItem(static_cast<UINT>(id), exchange->m_pDlgWnd)) return;
  CString reason;
  reason.Format(L"Control %d has an object already.", id);
  AfxThrowResourceException(reason);
}

void DDX_Check(CDataExchange* exchange, int id, int& value) {
  exchange->PrepareCtrl(id);
  if (exchange->m_bSaveAndValidate) {
    value = static_cast<int>(exchange->m_pDlgWnd->IsDlgButtonChecked(id));
  } else {
    const bool known = value >= BST_UNCHECKED && value <= BST_INDETERMINATE;
    exchange->m_pDlgWnd->CheckDlgButton(id, static_cast<UINT>(known ? value : BST_UNCHECKED));
  }
}

void DDX_Radio(CDataExchange* exchange, int id, int& value) {
  exchange->PrepareCtrl(id);
  if (exchange->m_bSaveAndValidate) value = -1;
  int index = 0;
  for (const HWND button : RadioGroup(*exchange->m_pDlgWnd, id)) {
    ControlView<CButton> view(button);
    if (!exchange->m_bSaveAndValidate) {
      view->SetCheck(index == value ? BST_CHECKED : BST_UNCHECKED);
    } else if (view->GetCheck() == BST_CHECKED) {
      value = index;
    }
    ++index;
  }
}

void DDX_Text(CDataExchange* exchange, int id, CString& value) {
  CWnd* control = exchange->PrepareEditCtrl(id);
  if (exchange->m_bSaveAndValidate) {
    control->GetWindowText(value);
  } else {
    SetTextIfChanged(*control, value);
  }
}

void DDX_Text(CDataExchange* exchange, int id, int& value) {
  CWnd* control = exchange->PrepareEditCtrl(id);
  if (!exchange->m_bSaveAndValidate) {
    SetTextIfChanged(*control, CString(std::to_wstring(value)));
    return;
  }
  CString text;
  control->GetWindowText(text);
  const std::optional<int> parsed = ParseInteger(text.Str());
  if (!parsed) Refuse(*exchange, kNoInteger);
  value = *parsed;
}

void DDX_CBStringExact(CDataExchange* exchange, int id, CString& value) {
  CWnd* control = exchange->PrepareCtrl(id);
  if (exchange->m_bSaveAndValidate) {
    control->GetWindowText(value);
    return;
  }
  ControlView<CComboBox> combo(control->m_hWnd);
  const int count = combo->GetCount();
  int row = 0;
  for (CString text; row < count; ++row) {
    combo->GetLBText(row, text);
    if (text == value) break;
  }
  combo->SetCurSel(row < count ? row : -1);
}

void DDX_CBIndex(CDataExchange* exchange, int id, int& value) {
  ControlView<CComboBox> combo(exchange->PrepareCtrl(id)->m_hWnd);
  if (exchange->m_bSaveAndValidate) {
    value = combo->GetCurSel();
  } else if (combo->SetCurSel(value) == CB_ERR) {
    combo->SetCurSel(-1);
  }
}

void DDX_Slider(CDataExchange* exchange, int id, int& value) {
  ControlView<CSliderCtrl> slider(exchange->PrepareCtrl(id)->m_hWnd);
  if (exchange->m_bSaveAndValidate) {
    value = slider->GetPos();
  } else {
    slider->SetPos(value);
  }
}

void DDV_MinMaxInt(CDataExchange* exchange, int value, int minimum, int maximum) {
  if (!exchange->m_bSaveAndValidate || (value >= minimum && value <= maximum)) return;
  Refuse(*exchange, L"Please enter an integer between " + std::to_wstring(minimum) + L" and " +
                        std::to_wstring(maximum) + L".");
}
