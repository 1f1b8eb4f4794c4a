#pragma once

// CWnd: one window, a dialog or a control, with its messages.

#include <functional>
#include <vector>

#include "platform/gdi.h"
#include "platform/message_map.h"
#include "platform/messages.h"
#include "platform/text.h"

class CDataExchange;

class CWnd : public CCmdTarget {
 public:
  CWnd() = default;
  /// Destroys the window that the object is attached to.
  ~CWnd() override;
  CWnd(const CWnd&) = delete;
  CWnd& operator=(const CWnd&) = delete;

  HWND m_hWnd = nullptr;
  HWND GetSafeHwnd() const { return m_hWnd; }

  /// The object attached to a window; a temporary one, valid until the next idle time, where the
  /// window has none. Null for a handle that names no window.
  static CWnd* FromHandle(HWND window);

  /// Attaches the object to control `id` of `parent`; its messages go through this object's map.
  BOOL SubclassDlgItem(UINT id, CWnd* parent);
  HWND UnsubclassWindow();
  virtual BOOL DestroyWindow();

  CWnd* GetDlgItem(int id) const;
  CWnd* GetParent() const;
  int GetDlgCtrlID() const;

  void GetWindowText(CString& text) const;
  void SetWindowText(const CString& text);
  void SetDlgItemText(int id, const CString& text);
  void GetDlgItemText(int id, CString& text) const;

  BOOL EnableWindow(BOOL enable = TRUE);
  BOOL IsWindowEnabled() const;
  /// Whether the window and all its parents are shown.
  BOOL IsWindowVisible() const;
  BOOL ShowWindow(int command);
  CWnd* SetFocus();
  /// The control that has the keyboard focus; null when none of this process has.
  static CWnd* GetFocus();
  void Invalidate();
  void UpdateWindow();
  /// Keeps the window from being painted until it is allowed again, which paints it.
  void SetRedraw(BOOL redraw = TRUE);

  /// In screen coordinates. The frame that the desktop draws around a top-level dialog is not
  /// counted here or in any other position or size.
  void GetWindowRect(CRect& rect) const;
  void GetClientRect(CRect& rect) const;
  void ScreenToClient(CRect& rect) const;
  void MoveWindow(const CRect& rect);
  BOOL SetWindowPos(int x, int y, int cx, int cy, UINT flags);
  /// The same, and unless SWP_NOZORDER is given the control comes right after its sibling `after`,
  /// also in the order of the Tab key. FALSE, with nothing done, when they are no siblings.
  BOOL SetWindowPos(const CWnd* after, int x, int y, int cx, int cy, UINT flags);

  DWORD GetStyle() const;
  DWORD GetExStyle() const;
  BOOL ModifyStyle(DWORD remove, DWORD add);
  BOOL ModifyStyleEx(DWORD remove, DWORD add);

  /// Sends WM_SETFONT, whose wParam is the address of a CFont (null: the interface font).
  void SetFont(const CFont& font);
  CFont GetFont() const;

  LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
  BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
  /// Sends the message to every descendant window, all levels.
  void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

  BOOL EnableToolTips(BOOL enable = TRUE);

  void CheckDlgButton(int id, UINT check);
  UINT IsDlgButtonChecked(int id) const;

  /// Runs the data exchange: into the controls with FALSE, out of them with TRUE. FALSE when the
  /// exchange failed (CDataExchange::Fail) or is running already; any other exception passes.
  /// While it runs, notifications from the window's controls are not handled. TRUE, with nothing
  /// exchanged, when there is no window.
  BOOL UpdateData(BOOL save = TRUE);
  virtual void DoDataExchange(CDataExchange* exchange);

  /// Sees a key-down message before the control does; TRUE takes it.
  virtual BOOL PreTranslateMessage(MSG* message);

  /// Every message of the window comes through here.
  virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

 protected:
  virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
  virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
  /// The window's own behaviour for the message being handled.
  LRESULT Default();
  /// Called when the object has been attached to an existing control.
  virtual void PreSubclassWindow() {}

  void OnSize(UINT type, int cx, int cy);
  BOOL OnEraseBkgnd(CDC* dc);
  void OnKillFocus(CWnd* receiver);
  void OnKeyDown(UINT key, UINT repeats, UINT flags);
  void OnSysKeyDown(UINT key, UINT repeats, UINT flags);
  void OnChar(UINT character, UINT repeats, UINT flags);
  void OnDestroy();
  DECLARE_MESSAGE_MAP()

 private:
  friend class MessageDelivery;
  friend class WindowAttachment;
  class MessageDelivery* delivery_ = nullptr;  ///< The message being handled, innermost first.
};

/// Whether the handle names a living window.
BOOL IsWindow(HWND window);

LRESULT SendMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
BOOL PostMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// The direct child windows in template order; those made at run time come last unless they are
/// given another place.
std::vector<HWND> GetChildWindows(HWND parent);
/// The rectangle of a child window in its parent's client coordinates; empty for a stale handle.
CRect GetChildRect(HWND child);
/// The window class in the spelling of its documentation: "Button", "Static", "Edit", "ComboBox",
/// "ListBox", "SysTreeView32", "SysListView32", "msctls_trackbar32", "#32770" for a dialog.
const wchar_t* GetClassName(HWND window);
int GetDlgCtrlID(HWND window);
DWORD GetWindowLong(HWND window, int index);
std::wstring GetWindowText(HWND window);
BOOL SetWindowText(HWND window, const std::wstring& text);
HWND GetActiveWindow();
/// Names the control for those who cannot see it; for one that neither its own text nor a label
/// before it names.
void SetAccessibleName(HWND control, const CString& name);
/// The tooltip of a control, asked from the dialog that enabled tooltips; empty when it has none.
std::wstring GetToolTipText(HWND control);

/// Makes a child window of a standard class at run time; null when the class is unknown.
HWND CreateWindowChild(LPCWSTR className, const CString& text, DWORD style, const CRect& rect,
                       CWnd* parent, int id);

/// A batch of window positions, applied in one pass by EndDeferWindowPos.
class CDeferredPositions;
using HDWP = CDeferredPositions*;
HDWP BeginDeferWindowPos(int count);
HDWP DeferWindowPos(HDWP batch, HWND window, int x, int y, int cx, int cy, UINT flags);
BOOL EndDeferWindowPos(HDWP batch);

/// Shows the wait pointer for as long as the object lives.
class CWaitCursor {
 public:
  CWaitCursor();
  ~CWaitCursor();
};
