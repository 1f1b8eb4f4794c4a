#pragma once

// Whether two paths name one folder.

#include <string>

/// Whether both paths name the same existing file or folder, in whatever style, case or with
/// whatever long-path prefix a Windows-style path is written, and through whatever links a path of
/// this system leads. A failure is shown to the user and answers false; never throws CCP_Exception.
bool IsSameFolder(const std::wstring& first, const std::wstring& second);
