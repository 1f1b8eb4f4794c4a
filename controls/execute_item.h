#pragma once

// Opening a file or folder with the desktop's own program for it.

#include <string>

#include "controls/shell_item.h"

constexpr HRESULT kExecutingFailed = static_cast<HRESULT>(0x8004060DU);
constexpr HRESULT kUnusablePath = static_cast<HRESULT>(0x80040612U);

/// Opens the item as the desktop does by default. Raises CCP_Exception (0x8004060D, "Executing
/// item") when the desktop has no program for it or cannot be reached.
void ExecuteItem(const ShellItem& item);

/// Opens the file or folder of that name and says whether it was opened. A long-path prefix does
/// not count; a Windows-style path is looked for where the machine's drives lie, any other path in
/// the file system as it is written. A path that names nothing (0x80040612, "Testing folder path"),
/// and an item that cannot be opened, is shown to the user.
bool ExecuteItemFromName(const std::wstring& path);
