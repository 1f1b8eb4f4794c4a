#pragma once

// The window styles that the resource script names, with the values that Win32 documents. Only the
// script includes this header; the code has its own constants.

// Any window.
#define WS_POPUP 0x80000000
#define WS_CHILD 0x40000000
#define WS_VISIBLE 0x10000000
#define WS_DISABLED 0x08000000
#define WS_CLIPCHILDREN 0x02000000
#define WS_CAPTION 0x00C00000
#define WS_BORDER 0x00800000
#define WS_VSCROLL 0x00200000
#define WS_SYSMENU 0x00080000
#define WS_GROUP 0x00020000
#define WS_TABSTOP 0x00010000

// Dialogs.
#define DS_SETFONT 0x40
#define DS_MODALFRAME 0x80
#define DS_FIXEDSYS 0x08
#define DS_SHELLFONT (DS_SETFONT | DS_FIXEDSYS)

// Buttons.
#define BS_AUTOCHECKBOX 0x3
#define BS_AUTORADIOBUTTON 0x9
#define BS_MULTILINE 0x2000

// Statics.
#define SS_LEFT 0x0
#define SS_CENTER 0x1
#define SS_BLACKFRAME 0x7
#define SS_BITMAP 0xE
#define SS_ETCHEDHORZ 0x10
#define SS_NOPREFIX 0x80
#define SS_NOTIFY 0x100

// Edits.
#define ES_MULTILINE 0x4
#define ES_AUTOHSCROLL 0x80
#define ES_READONLY 0x800
#define ES_WANTRETURN 0x1000

// List boxes.
#define LBS_NOTIFY 0x1
#define LBS_OWNERDRAWFIXED 0x10
#define LBS_HASSTRINGS 0x40
#define LBS_NOINTEGRALHEIGHT 0x100

// List views.
#define LVS_REPORT 0x1
#define LVS_LIST 0x3
#define LVS_SINGLESEL 0x4
#define LVS_SHOWSELALWAYS 0x8

// Combo boxes.
#define CBS_DROPDOWNLIST 0x3
#define CBS_OWNERDRAWFIXED 0x10
#define CBS_HASSTRINGS 0x200

// Trackbars.
#define TBS_AUTOTICKS 0x1

// Tree views.
#define TVS_HASBUTTONS 0x1
#define TVS_HASLINES 0x2
#define TVS_LINESATROOT 0x4
#define TVS_DISABLEDRAGDROP 0x10
#define TVS_SHOWSELALWAYS 0x20

// What most templates and controls are made of.
#define DIALOG_FONT FONT 9, "MS Shell Dlg"
#define PAGE_STYLE DS_SHELLFONT | WS_CHILD | WS_CLIPCHILDREN
#define CHECK_STYLE BS_AUTOCHECKBOX | WS_TABSTOP
#define LONG_CHECK_STYLE CHECK_STYLE | BS_MULTILINE
#define RADIO_STYLE BS_AUTORADIOBUTTON | WS_TABSTOP
#define FIRST_RADIO_STYLE RADIO_STYLE | WS_GROUP
#define LINES_EDIT_STYLE ES_MULTILINE | ES_WANTRETURN | WS_VSCROLL
#define SLIDER_LABEL_STYLE SS_CENTER | SS_NOTIFY
