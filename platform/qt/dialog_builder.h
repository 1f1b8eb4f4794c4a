#pragma once

// Windows made from dialog templates. Private to the platform layer.

#include "platform/dialog.h"

enum class DialogUse { Modal, Modeless };

/// Makes the window of the dialog object from that template of the current module and sets it up
/// (WM_INITDIALOG). A template with WS_CHILD becomes a child of `parent`, any other one a hidden
/// window owned by it. Null when the template is missing or damaged, or the window did not outlive
/// its set-up. An exception of the set-up destroys the window and passes.
HWND MakeDialogWindow(CDialog& dialog, UINT templateId, HWND parent, DialogUse use);

/// The dialog that a new modal dialog belongs to: the top-level window of `parent`, or else the
/// active one.
HWND OwnerOf(const CWnd* parent);
