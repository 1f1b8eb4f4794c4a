#pragma once

// Where the paths of dialogs lie on this system. A Windows-style path begins with a drive letter
// and a colon, with two backslashes, or holds a backslash and does not begin with "/"; its drives
// are those of the machine. All other paths are this system's own.

#include <map>
#include <optional>
#include <string>
#include <string_view>

bool IsWindowsPath(std::wstring_view path);

/// The path on this system. A path of this system comes back as it is. Of a Windows-style path, the
/// drive letter becomes its folder, "." and ".." are resolved without ever leaving the drive, and
/// each name is looked for as it is written first and then without regard to case; what does not
/// exist stays as it is written. Empty, with the last error ENOENT, when the path has no place
/// here: it is empty, holds a zero, names no known drive or is a network path.
std::wstring NativePath(std::wstring_view path);
/// The same where the drives lie as given; asks the machine nothing, and so works on any thread.
std::wstring NativePath(std::wstring_view path, const std::map<wchar_t, std::wstring>& drives);

/// The bytes of NativePath; nothing where that is empty.
std::optional<std::string> NativeFileName(std::wstring_view path);
