#pragma once

// Dialog data exchange and validation: values travel between variables and controls in the
// direction that the exchange says.

#include "platform/wnd.h"

class CButton;

class CDataExchange {
 public:
  CDataExchange(CWnd* dialog, BOOL save) : m_bSaveAndValidate(save), m_pDlgWnd(dialog) {}

  BOOL m_bSaveAndValidate;
  CWnd* m_pDlgWnd;

  /// The control; a missing one raises CResourceException, since template and code disagree.
  CWnd* PrepareCtrl(int id);
  /// As PrepareCtrl, and remembers the control as the one that a failure gives the focus.
  CWnd* PrepareEditCtrl(int id);
  /// Gives the focus to the control prepared last, selects its whole text, and raises
  /// CUserException.
  [[noreturn]] void Fail();

 private:
  HWND last_ = nullptr;
  bool lastIsEdit_ = false;
};

/// Attaches `control` to the window, on the first exchange only.
void DDX_Control(CDataExchange* exchange, int id, CWnd& control);

/// 0, 1 or 2. A value outside shows as 0 (clear).
void DDX_Check(CDataExchange* exchange, int id, int& value);

/// 0-based index of the checked button in the group that starts with control `id`; -1 for none. A
/// value outside checks none.
void DDX_Radio(CDataExchange* exchange, int id, int& value);

void DDX_Text(CDataExchange* exchange, int id, CString& value);

/// Decimal text of an integer. A text that is no integer of 32 bits tells the user "Please enter an
/// integer." and fails.
void DDX_Text(CDataExchange* exchange, int id, int& value);

/// Loading selects the row whose text is exactly that, case-sensitively, or none; saving yields the
/// text of the combo.
void DDX_CBStringExact(CDataExchange* exchange, int id, CString& value);

/// 0-based row of a combo box; -1 for none. A value without a row selects none.
void DDX_CBIndex(CDataExchange* exchange, int id, int& value);

void DDX_Slider(CDataExchange* exchange, int id, int& value);

/// When saving: a value outside tells the user "Please enter an integer between %1 and %2." and
/// fails the exchange on the control exchanged last.
void DDV_MinMaxInt(CDataExchange* exchange, int value, int minimum, int maximum);
