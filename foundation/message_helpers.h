#pragma once

// Plain messages to the user, shown in a task-modal box with an exclamation mark over the active
// window. A text of more than 2000 characters is shortened in the middle. Every text shown is also
// written to the application's log.

#include "platform/messages.h"
#include "platform/text.h"

/// Shows the text with the buttons of `type` (MB_OK, MB_YESNO, ...) and returns the button pressed
/// (IDOK, IDYES, ...). The caption may be null or empty: the application's title stands in.
int ShowMessageText(const CString& text, UINT type, const wchar_t* caption = nullptr);

/// The same with numbered language strings; caption string number 0 means no caption.
int ShowLangMessage(UINT text, UINT type, UINT caption = 0);

/// Tells of a failure that a task of its own does not describe; an OK button.
void ShowErrorText(const CString& text);
