#pragma once

// Message numbers, notification codes, styles and the structures that travel with messages. Only
// what the library uses; the values are those that Win32 documents.

#include "platform/geometry_types.h"
#include "platform/types.h"

// Messages.
constexpr UINT WM_DESTROY = 0x0002;
constexpr UINT WM_SIZE = 0x0005;
constexpr UINT WM_SETFOCUS = 0x0007;
constexpr UINT WM_KILLFOCUS = 0x0008;
constexpr UINT WM_SETREDRAW = 0x000B;
constexpr UINT WM_PAINT = 0x000F;
constexpr UINT WM_CLOSE = 0x0010;
constexpr UINT WM_ERASEBKGND = 0x0014;
constexpr UINT WM_GETMINMAXINFO = 0x0024;
constexpr UINT WM_SETFONT = 0x0030;
constexpr UINT WM_CONTEXTMENU = 0x007B;
constexpr UINT WM_NOTIFY = 0x004E;
constexpr UINT WM_KEYFIRST = 0x0100;
constexpr UINT WM_KEYDOWN = 0x0100;
constexpr UINT WM_CHAR = 0x0102;
constexpr UINT WM_SYSKEYDOWN = 0x0104;
constexpr UINT WM_KEYLAST = 0x0109;
constexpr UINT WM_INITDIALOG = 0x0110;
constexpr UINT WM_COMMAND = 0x0111;
constexpr UINT WM_HSCROLL = 0x0114;
constexpr UINT WM_VSCROLL = 0x0115;
constexpr UINT WM_MOUSEWHEEL = 0x020A;
constexpr UINT WM_USER = 0x0400;
constexpr UINT WM_APP = 0x8000;
constexpr UINT EM_REPLACESEL = 0x00C2;
constexpr UINT CB_GETEDITSEL = 0x0140;
constexpr UINT CB_SETEDITSEL = 0x0142;
constexpr UINT CB_FINDSTRINGEXACT = 0x0158;
constexpr UINT LVM_SCROLL = 0x1014;
constexpr UINT LVM_GETEXTENDEDLISTVIEWSTYLE = 0x1037;
constexpr UINT TVM_EXPAND = 0x1102;

// Results of a message box or dialog, which are also the control numbers of its buttons.
constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;
constexpr int IDABORT = 3;
constexpr int IDRETRY = 4;
constexpr int IDIGNORE = 5;
constexpr int IDYES = 6;
constexpr int IDNO = 7;

// Size types of WM_SIZE.
constexpr UINT SIZE_RESTORED = 0;
constexpr UINT SIZE_MINIMIZED = 1;
constexpr UINT SIZE_MAXIMIZED = 2;

// Virtual keys.
constexpr UINT VK_BACK = 0x08;
constexpr UINT VK_TAB = 0x09;
constexpr UINT VK_RETURN = 0x0D;
constexpr UINT VK_ESCAPE = 0x1B;
constexpr UINT VK_PRIOR = 0x21;
constexpr UINT VK_NEXT = 0x22;
constexpr UINT VK_END = 0x23;
constexpr UINT VK_HOME = 0x24;
constexpr UINT VK_UP = 0x26;
constexpr UINT VK_RIGHT = 0x27;
constexpr UINT VK_DOWN = 0x28;
constexpr UINT VK_DELETE = 0x2E;
constexpr UINT VK_F4 = 0x73;

// Notification codes of WM_COMMAND.
constexpr UINT BN_CLICKED = 0;
constexpr UINT STN_CLICKED = 0;
constexpr UINT EN_CHANGE = 0x0300;
constexpr UINT LBN_SELCHANGE = 1;
constexpr UINT CBN_SELCHANGE = 1;
constexpr UINT CBN_EDITCHANGE = 5;
constexpr UINT CBN_DROPDOWN = 7;
constexpr UINT CBN_CLOSEUP = 8;
constexpr UINT CBN_SELENDOK = 9;
constexpr UINT CBN_SELENDCANCEL = 10;

// Window styles and extended styles.
constexpr DWORD WS_POPUP = 0x80000000U;
constexpr DWORD WS_CHILD = 0x40000000U;
constexpr DWORD WS_VISIBLE = 0x10000000U;
constexpr DWORD WS_DISABLED = 0x08000000U;
constexpr DWORD WS_CLIPCHILDREN = 0x02000000U;
constexpr DWORD WS_CAPTION = 0x00C00000U;
constexpr DWORD WS_BORDER = 0x00800000U;
constexpr DWORD WS_VSCROLL = 0x00200000U;
constexpr DWORD WS_HSCROLL = 0x00100000U;
constexpr DWORD WS_SYSMENU = 0x00080000U;
constexpr DWORD WS_THICKFRAME = 0x00040000U;
constexpr DWORD WS_GROUP = 0x00020000U;
constexpr DWORD WS_TABSTOP = 0x00010000U;
constexpr DWORD WS_EX_CONTROLPARENT = 0x00010000U;

constexpr DWORD BS_PUSHBUTTON = 0;
constexpr DWORD BS_DEFPUSHBUTTON = 1;
constexpr DWORD BS_CHECKBOX = 2;
constexpr DWORD BS_AUTOCHECKBOX = 3;
constexpr DWORD BS_RADIOBUTTON = 4;
constexpr DWORD BS_3STATE = 5;
constexpr DWORD BS_AUTO3STATE = 6;
constexpr DWORD BS_GROUPBOX = 7;
constexpr DWORD BS_AUTORADIOBUTTON = 9;
constexpr DWORD BS_TYPEMASK = 0x0F;
constexpr DWORD BS_MULTILINE = 0x2000;

constexpr DWORD SS_LEFT = 0;
constexpr DWORD SS_CENTER = 1;
constexpr DWORD SS_RIGHT = 2;
constexpr DWORD SS_BLACKFRAME = 7;
constexpr DWORD SS_ETCHEDHORZ = 0x10;
constexpr DWORD SS_BITMAP = 0x0E;
constexpr DWORD SS_TYPEMASK = 0x1F;
constexpr DWORD SS_NOPREFIX = 0x0080;
constexpr DWORD SS_NOTIFY = 0x0100;
constexpr DWORD SS_CENTERIMAGE = 0x0200;

constexpr DWORD ES_MULTILINE = 0x0004;
constexpr DWORD ES_READONLY = 0x0800;
constexpr DWORD ES_NUMBER = 0x2000;

constexpr DWORD LBS_NOTIFY = 0x0001;

constexpr DWORD CBS_SIMPLE = 1;
constexpr DWORD CBS_DROPDOWN = 2;
constexpr DWORD CBS_DROPDOWNLIST = 3;
constexpr DWORD CBS_SORT = 0x0100;

constexpr int GWL_STYLE = -16;
constexpr int GWL_EXSTYLE = -20;

// Positioning.
constexpr UINT SWP_NOSIZE = 0x0001;
constexpr UINT SWP_NOMOVE = 0x0002;
constexpr UINT SWP_NOZORDER = 0x0004;
constexpr UINT SWP_NOACTIVATE = 0x0010;
constexpr UINT SWP_NOCOPYBITS = 0x0100;
constexpr int SW_HIDE = 0;
constexpr int SW_SHOW = 5;

// Message boxes.
constexpr UINT MB_OK = 0;
constexpr UINT MB_OKCANCEL = 1;
constexpr UINT MB_ABORTRETRYIGNORE = 2;
constexpr UINT MB_YESNOCANCEL = 3;
constexpr UINT MB_YESNO = 4;
constexpr UINT MB_RETRYCANCEL = 5;
constexpr UINT MB_TYPEMASK = 0x0F;
constexpr UINT MB_ICONERROR = 0x10;
constexpr UINT MB_ICONQUESTION = 0x20;
constexpr UINT MB_ICONEXCLAMATION = 0x30;
constexpr UINT MB_ICONINFORMATION = 0x40;
constexpr UINT MB_ICONMASK = 0xF0;
constexpr UINT MB_TASKMODAL = 0x2000;

// Scroll bars of a window.
constexpr int SB_HORZ = 0;
constexpr int SB_VERT = 1;
constexpr UINT SB_THUMBPOSITION = 4;
constexpr UINT SB_THUMBTRACK = 5;

// Notification codes of WM_NOTIFY that several controls send.
constexpr UINT NM_CLICK = static_cast<UINT>(-2);
constexpr UINT NM_DBLCLK = static_cast<UINT>(-3);
constexpr UINT NM_RCLICK = static_cast<UINT>(-5);

// List view.
constexpr UINT LVN_ITEMCHANGED = static_cast<UINT>(-101);
constexpr DWORD LVS_ICON = 0;
constexpr DWORD LVS_REPORT = 1;
constexpr DWORD LVS_SMALLICON = 2;
constexpr DWORD LVS_LIST = 3;
constexpr DWORD LVS_TYPEMASK = 3;
constexpr DWORD LVS_SINGLESEL = 0x0004;
constexpr DWORD LVS_SHOWSELALWAYS = 0x0008;
constexpr DWORD LVS_AUTOARRANGE = 0x0100;
constexpr DWORD LVS_NOCOLUMNHEADER = 0x4000;
constexpr DWORD LVS_EX_CHECKBOXES = 0x00000004;
constexpr DWORD LVS_EX_FULLROWSELECT = 0x00000020;
constexpr DWORD LVS_EX_DOUBLEBUFFER = 0x00010000;
constexpr int LVCFMT_LEFT = 0;
constexpr int LVCFMT_RIGHT = 1;
constexpr int LVCFMT_CENTER = 2;
constexpr UINT LVIF_STATE = 0x0008;
constexpr UINT LVIS_FOCUSED = 0x0001;
constexpr UINT LVIS_SELECTED = 0x0002;
/// The check box: 1 shifted into these bits is unchecked, 2 checked.
constexpr UINT LVIS_STATEIMAGEMASK = 0xF000;
constexpr UINT INDEXTOSTATEIMAGEMASK(UINT image) { return image << 12; }
constexpr UINT LVHT_NOWHERE = 0x0001;
constexpr UINT LVHT_ONITEMLABEL = 0x0004;
constexpr UINT LVHT_ONITEMSTATEICON = 0x0008;

// Tree view.
constexpr UINT TVN_SELCHANGINGW = static_cast<UINT>(-450);
constexpr UINT TVN_SELCHANGEDW = static_cast<UINT>(-451);
constexpr UINT TVN_ITEMEXPANDINGW = static_cast<UINT>(-454);
constexpr UINT TVE_COLLAPSE = 0x0001;
constexpr UINT TVE_EXPAND = 0x0002;
constexpr UINT TVE_COLLAPSERESET = 0x8000;

// Tooltips.
constexpr UINT TTN_NEEDTEXTW = static_cast<UINT>(-530);
constexpr UINT TTF_IDISHWND = 0x0001;

// System colours.
constexpr int COLOR_WINDOW = 5;
constexpr int COLOR_WINDOWTEXT = 8;
constexpr int COLOR_BTNFACE = 15;
constexpr int COLOR_BTNSHADOW = 16;
constexpr int COLOR_GRAYTEXT = 17;
constexpr int COLOR_BTNTEXT = 18;

struct NMHDR {
  HWND hwndFrom = nullptr;
  UINT_PTR idFrom = 0;
  UINT code = 0;
};

struct TVITEMW {
  HTREEITEM hItem = nullptr;
  LPARAM lParam = 0;
};

struct NMTREEVIEW {
  NMHDR hdr;
  UINT action = 0;
  TVITEMW itemOld;
  TVITEMW itemNew;
};

/// What has changed in a row of a list view.
struct NMLISTVIEW {
  NMHDR hdr;
  int iItem = -1;
  int iSubItem = 0;
  UINT uNewState = 0;
  UINT uOldState = 0;
  UINT uChanged = 0;
  POINT ptAction;
  LPARAM lParam = 0;  ///< The row's item data.
};

/// A click on a list view; iItem is -1 where there is no row.
struct NMITEMACTIVATE {
  NMHDR hdr;
  int iItem = -1;
  int iSubItem = 0;
  UINT uNewState = 0;
  UINT uOldState = 0;
  UINT uChanged = 0;
  POINT ptAction;  ///< In client coordinates.
  LPARAM lParam = 0;
  UINT uKeyFlags = 0;
};

/// Asks for the text of a tooltip. With TTF_IDISHWND hdr.idFrom is the handle of the control.
struct TOOLTIPTEXTW {
  NMHDR hdr;
  const wchar_t* lpszText = nullptr;
  HINSTANCE hinst = nullptr;
  UINT uFlags = 0;
};

struct MINMAXINFO {
  POINT ptMinTrackSize;
  POINT ptMaxTrackSize;
};

/// A key-down message before translation.
struct MSG {
  HWND hwnd = nullptr;
  UINT message = 0;
  WPARAM wParam = 0;
  LPARAM lParam = 0;
};
