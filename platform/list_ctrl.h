#pragma once

// List views: rows with a label and, in report view, further columns.

#include "platform/wnd.h"

/// Rows and columns are counted from 0, and -1 stands for none. In report view (LVS_REPORT) each
/// row is a line of columns below their headings; in every other view the rows flow in columns from
/// top to bottom that are as wide as the longest label needs. One row at most is selected with
/// LVS_SINGLESEL; without LVS_SHOWSELALWAYS the selection shows only while the list has the focus.
///
/// The parent is told by WM_NOTIFY: LVN_ITEMCHANGED of each row whose selection, focus or check box
/// changes, whoever changes it; NM_CLICK, NM_DBLCLK and NM_RCLICK of clicks, also of those below
/// the rows. Two quick clicks on a check box are no double click. WM_CONTEXTMENU asks for the menu.
class CListCtrl : public CWnd {
 public:
  /// LVS_EX_CHECKBOXES gives every row a check box that a click or the space bar changes, of all
  /// selected rows when the row is selected. LVS_EX_FULLROWSELECT marks all columns of a selected
  /// row. LVS_EX_DOUBLEBUFFER is kept; every list is painted through a buffer. Returns the previous
  /// extended style.
  DWORD SetExtendedStyle(DWORD style);
  DWORD GetExtendedStyle() const;

  /// Widths are in pixels; -1 is a width for the heading. Returns the column's number, or -1. A row
  /// keeps its label when the only column goes.
  int InsertColumn(int column, const CString& heading, int format = LVCFMT_LEFT, int width = -1);
  BOOL DeleteColumn(int column);
  BOOL SetColumnWidth(int column, int width);
  /// 0 when there is no such column.
  int GetColumnWidth(int column) const;

  /// A number past the end appends. Returns the row's number, or -1.
  int InsertItem(int row, const CString& label);
  BOOL DeleteItem(int row);
  BOOL DeleteAllItems();
  int GetItemCount() const;

  /// FALSE when there is no such row.
  BOOL SetItemText(int row, int column, const CString& text);
  CString GetItemText(int row, int column) const;
  BOOL SetItemData(int row, DWORD_PTR data);
  DWORD_PTR GetItemData(int row) const;
  /// FALSE, with nothing changed, without check boxes.
  BOOL SetCheck(int row, BOOL check = TRUE);
  BOOL GetCheck(int row) const;

  /// Sets the bits of `mask` (LVIS_FOCUSED, LVIS_SELECTED) to those of `state`; row -1 is all rows.
  BOOL SetItemState(int row, UINT state, UINT mask);
  /// LVIS_FOCUSED, LVIS_SELECTED and, with check boxes, the one of LVIS_STATEIMAGEMASK.
  UINT GetItemState(int row, UINT mask) const;
  /// Walks through the selected rows in order; 0 when there is none.
  POSITION GetFirstSelectedItemPosition() const;
  /// The row at the position, which moves on to the next one.
  int GetNextSelectedItem(POSITION& position) const;

  /// The row at a point in client coordinates, below the headings. `flags` receives one of
  /// LVHT_NOWHERE, LVHT_ONITEMLABEL and LVHT_ONITEMSTATEICON (the check box).
  int HitTest(CPoint point, UINT* flags = nullptr) const;
  /// Scrolls the row into view.
  BOOL EnsureVisible(int row);
  /// The row's rectangle in client coordinates; FALSE when there is no such row.
  BOOL GetItemRect(int row, CRect& rect) const;

  /// Position of a scroll bar (SB_HORZ or SB_VERT): rows in report view and columns of rows in the
  /// others, pixels in the other direction.
  int GetScrollPos(int bar) const;
};

/// A message that drags a scroll bar (WM_HSCROLL or WM_VSCROLL) comes to the hooks below.
class CBCGPListCtrl : public CListCtrl {
 protected:
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
  /// Whether the scroll bars are redrawn after the message; a paint draws them anyhow.
  virtual bool RedrawsScrollBars(UINT message) const;
  /// Scrolls a bar (SB_HORZ or SB_VERT) to a position in its own units.
  virtual void ScrollTo(int bar, int position);
};
