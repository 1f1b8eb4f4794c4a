#pragma once

// The standard controls.

#include <vector>

#include "platform/wnd.h"

class CStatic : public CWnd {
 public:
  /// Shows an image, in its own size.
  void SetBitmap(const CBCGPPngImage& image);
};

constexpr int BST_UNCHECKED = 0;
constexpr int BST_CHECKED = 1;
constexpr int BST_INDETERMINATE = 2;

class CButton : public CWnd {
 public:
  int GetCheck() const;
  void SetCheck(int check);
};

class CEdit : public CWnd {
 public:
  /// Selects characters; (0, -1) selects all.
  void SetSel(int start, int end);
  void GetSel(int& start, int& end) const;
  void SetReadOnly(BOOL readOnly = TRUE);
  void SetLimitText(UINT characters);
};

/// The control number of a combo box's edit part, which is a child window of the combo. It gets the
/// combo's key messages first (WM_KEYDOWN, WM_SYSKEYDOWN with Alt held down, then WM_CHAR for what
/// types a character, Backspace among it); Default lets the combo do with the key what it does.
constexpr UINT kComboEditId = 1001;

/// Row numbers are 0-based; CB_ERR stands for none.
constexpr int CB_ERR = -1;

/// A combo box. What changes its rows or its selection from the program sends no notification.
class CComboBox : public CWnd {
 public:
  /// Appends the row, or puts it in its place when the combo sorts; its row number.
  int AddString(const CString& text);
  int InsertString(int row, const CString& text);
  /// The number of rows left, or CB_ERR. A deleted selection leaves none.
  virtual int DeleteString(UINT row);
  /// Removes all rows and empties the edit part.
  virtual void ResetContent();
  int GetCount() const;
  /// While the list is dropped, the row highlighted in it; otherwise the selected row, which a text
  /// typed into the edit part replaces by none.
  int GetCurSel() const;
  /// Selects a row without telling the parent; -1 selects none. CB_ERR when there is no such row.
  int SetCurSel(int row);
  void GetLBText(int row, CString& text) const;
  DWORD_PTR GetItemData(int row) const;
  int SetItemData(int row, DWORD_PTR data);
  /// The first row behind `startAfter`, wrapping around, whose text equals the given one without
  /// regard to case.
  int FindStringExact(int startAfter, const CString& text) const;

  BOOL GetDroppedState() const;
  /// Drops the list, or closes it without a choice.
  void ShowDropDown(BOOL show = TRUE);
  /// Least width of the dropped list in pixels.
  int SetDroppedWidth(UINT width);
  int GetDroppedWidth() const;
  BOOL LimitText(int characters);
  /// Shows a hint in grey while no row is selected and nothing is typed; empty shows none.
  BOOL SetCueBanner(const CString& text);

  /// The selection in the edit part, start in the low word and end in the high word; CB_ERR when
  /// there is no edit part.
  DWORD GetEditSel() const;
  /// Selects characters of the edit part with the caret at `end`; -1 for `end` is the text's end,
  /// -1 for `start` selects nothing. FALSE when there is no edit part.
  BOOL SetEditSel(int start, int end);

  /// Width of a text in the combo's font in pixels.
  int GetTextWidth(const CString& text) const;

 protected:
  /// Sees each of the combo's own notifications (CBN_...) before the parent does; TRUE keeps it
  /// from the parent. `previous` is the row that was selected before the user's change.
  virtual BOOL OnReflectedNotification(UINT code, int previous);
  /// Sends the parent a notification as the combo itself does, past OnReflectedNotification.
  LRESULT SendNotification(UINT code);
  /// Selects a row as the user does: CBN_SELCHANGE follows when that is a change.
  void ChooseRow(int row);

 private:
  friend class ComboPeer;
};

constexpr int SM_CXVSCROLL = 2;

/// A measure of the screen's controls in pixels: the width of a vertical scroll bar.
int GetSystemMetrics(int index);

class CSliderCtrl : public CWnd {
 public:
  void SetRange(int minimum, int maximum, BOOL redraw = FALSE);
  int GetPos() const;
  void SetPos(int position);
};

constexpr HTREEITEM TVI_ROOT = nullptr;
inline const HTREEITEM TVI_LAST = reinterpret_cast<HTREEITEM>(static_cast<INT_PTR>(-0xFFFE));

/// A tree of rows with images. Choosing a row asks the parent first (TVN_SELCHANGINGW; a result
/// other than 0 keeps the selection where it is) and tells it afterwards (TVN_SELCHANGEDW).
class CTreeCtrl : public CWnd {
 public:
  HTREEITEM InsertItem(const CString& text, int image, int selectedImage, HTREEITEM parent,
                       HTREEITEM after);
  BOOL DeleteAllItems();
  BOOL SetItemData(HTREEITEM item, DWORD_PTR data);
  DWORD_PTR GetItemData(HTREEITEM item) const;
  CString GetItemText(HTREEITEM item) const;
  HTREEITEM GetRootItem() const;
  HTREEITEM GetChildItem(HTREEITEM item) const;
  HTREEITEM GetNextSiblingItem(HTREEITEM item) const;
  HTREEITEM GetSelectedItem() const;
  BOOL SelectItem(HTREEITEM item);
  /// TVE_EXPAND or TVE_COLLAPSE; with TVE_COLLAPSERESET the children are removed as well.
  BOOL Expand(HTREEITEM item, UINT code);
  /// The list must live as long as the tree shows it; null takes it away.
  void SetImageList(const CImageList* images);
  /// Height of a row in pixels.
  void SetItemHeight(int height);
  int GetItemHeight() const;
};
