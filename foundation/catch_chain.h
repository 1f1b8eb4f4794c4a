#pragma once

// The boundary of a dialog: what is thrown inside is reported, and the dialog stays open.

#include <utility>

#include "foundation/error_display.h"
#include "platform/text.h"

/// Reports the exception being handled, whatever its kind; to be called from a catch clause.
/// Returns its status, always negative: the exception's own for CCP_Exception and _com_error,
/// 0x80040605 for a thing of unknown kind, E_FAIL (or E_OUTOFMEMORY) otherwise. Never throws.
HRESULT ReportCurrentException(MakeErrorDisplay makeDisplay, const CString& context,
                               const wchar_t* source) noexcept;

/// Runs `work` and reports whatever it throws: to the user (MakeMsgBoxDisplay) or to the log
/// (MakeLogDisplay), with `context`, what the user was doing, and `source`, the name of the calling
/// source file. S_OK when nothing was thrown, else the failing status.
template <class Work>
HRESULT RunGuarded(Work&& work, MakeErrorDisplay makeDisplay, const CString& context,
                   const wchar_t* source) {
  try {
    std::forward<Work>(work)();
    return S_OK;
  } catch (...) {
    return ReportCurrentException(makeDisplay, context, source);
  }
}
