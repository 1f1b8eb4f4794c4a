#pragma once

// List boxes.

#include "platform/wnd.h"

/// Stands for no row.
constexpr int LB_ERR = -1;

/// A list box of which one row is selected. Row numbers are 0-based. What the program changes sends
/// no notification.
class CListBox : public CWnd {
 public:
  /// Appends a row; its number.
  int AddString(const CString& text);
  /// Inserts a row before row `row`, or behind the last with -1; its number. LB_ERR when there is
  /// no such place. The row that is selected stays so.
  int InsertString(int row, const CString& text);
  /// The number of rows left, or LB_ERR when there is no such row. A deleted selection leaves none.
  int DeleteString(UINT row);
  int GetCount() const;
  int GetCurSel() const;
  /// Selects a row and scrolls it into view; -1 selects none. LB_ERR when there is no such row.
  int SetCurSel(int row);
  DWORD_PTR GetItemData(int row) const;
  /// LB_ERR when there is no such row.
  int SetItemData(int row, DWORD_PTR data);
};

class CBCGPListBox : public CListBox {
 public:
  /// Appends a row that shows a line across the list; its number. The row can be selected, and its
  /// text is empty.
  int AddSeparator();
  BOOL IsSeparatorItem(int row) const;
};
