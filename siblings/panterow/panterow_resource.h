#pragma once

// Numbers of the library's dialog templates and their controls, shared by the resource script, the
// code and the language files. They lie behind those of the settings library.

#ifdef RC_INVOKED
#define IDOK 1
#define IDCANCEL 2
#define WS_POPUP 0x80000000
#define WS_CAPTION 0x00C00000
#define WS_BORDER 0x00800000
#define WS_VSCROLL 0x00200000
#define WS_SYSMENU 0x00080000
#define WS_TABSTOP 0x00010000
#define DS_SHELLFONT 0x48
#define CBS_DROPDOWN 0x2
#define CBS_AUTOHSCROLL 0x40
#define LBS_NOTIFY 0x1
#define LBS_NOINTEGRALHEIGHT 0x100
#endif

// Dialog of several folders.
#define IDD_MULTI_FOLDER 5590
#define IDC_NEW_FOLDER 5591
#define IDC_BROWSE_FOLDERS 5592
#define IDC_ADD_FOLDER 5593
#define IDC_FOLDER_LIST 5594
#define IDC_REMOVE_FOLDER 5595
#define IDC_FOLDER_UP 5596
#define IDC_FOLDER_DOWN 5597
#define IDC_SUBFOLDERS 5598
