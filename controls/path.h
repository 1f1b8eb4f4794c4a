#pragma once

// The texts of paths.
//
// A path is Windows-style when it begins with a drive letter and a colon or with "\\" (a network
// path, or one of the long-path prefixes "\\?\" and "\\?\UNC\"), or when it holds a backslash and
// does not begin with "/". Its separator is the backslash. Every other path is a path of this
// system, where a backslash is an ordinary character of a name.

#include <string>
#include <string_view>
#include <utility>

/// The root of a path. Of a Windows-style path the drive or the share, always ending in a
/// backslash: "C:\dir\x" has "C:\", "\\server\share\dir" has "\\server\share\"; a long-path prefix
/// stays part of the root, and a path without a separator after its drive, share or first two
/// characters is its own root. Of a path of this system "/", or nothing when the path is relative.
std::wstring GetPathRoot(std::wstring_view path);

/// Whether the file or folder exists. Separators at the end do not count, but a root keeps its own.
/// A Windows-style path is looked for where the machine's drives lie, without regard to case; one
/// with an unknown drive, and a network path, exists nowhere. On this system links are followed and
/// the file system decides about case.
bool PathExists(std::wstring_view path);

/// "\\?\UNC\server\share" becomes "\\server\share" and "\\?\C:\dir" becomes "C:\dir"; any other
/// path, such as one of this system, comes back unchanged.
std::wstring StripLongPathPrefix(std::wstring_view path);

/// The path with the separator of its style at the end; unchanged when it ends in one, or is empty.
std::wstring WithSeparator(std::wstring_view path);

/// The path up to and without its last separator, and the rest. A folder that is a root keeps its
/// separator ("/", "C:\"). Without a separator the folder is empty and the name is the whole path.
std::pair<std::wstring, std::wstring> SplitPath(std::wstring_view path);
