#pragma once

// The desktop around the process.

#include <string>

/// Opens a file or folder with the desktop's own program for it, without waiting for that program.
/// FALSE when there is no desktop or it has no program for it. The machine in use may take the call
/// in the desktop's place.
bool OpenInDesktop(const std::wstring& nativePath);
