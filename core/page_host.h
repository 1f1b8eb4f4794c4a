#pragma once

// Shows a page inside the dialog that hosts it.

#include "platform/dialog.h"

/// Turns the page into a plain child window, whatever its template says; this also enables it.
/// Nothing for a page without a window.
void AdoptPage(CDialog& page);

/// Moves the page to the rectangle of the frame control and shows it.
void PlacePage(CDialog& page, const CWnd& frame, const CWnd& host);
