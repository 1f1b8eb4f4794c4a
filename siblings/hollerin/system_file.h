#pragma once

// Files that must not be lost. Every function that can fail returns the system's error number, 0
// for success. A symbolic link is followed: the work is done on its target and the link stays.

#include <string>

namespace HOLLERIN {

/// The greatest file that is read, in bytes; also the greatest that is written, since a file that
/// could not be read again would be lost.
constexpr std::size_t kMaxFileSize = std::size_t{64} << 20;

/// The system's name of a path; false when the path cannot name a file.
bool ToSystemPath(const std::wstring& path, std::string& systemPath);

/// The system's text for an error number.
std::wstring SystemText(int error);

/// EFBIG for a file beyond kMaxFileSize, EINVAL for what is no regular file.
int ReadFile(const std::string& path, std::string& bytes);

/// Replaces the file, or makes it, in one step: whenever the process or the machine stops, the file
/// holds the old bytes or the new ones. It keeps its permissions; a new file belongs to its user
/// alone. EACCES for a file that the user may not write. After an error the old file is whole,
/// except that an error of the last flush leaves the new bytes in place unflushed.
int ReplaceFile(const std::string& path, std::string_view bytes);

/// Renames the file to a free name beside it, "<name>.damaged-<n>"; never replaces another file.
int PutAside(const std::string& path, std::string& newPath);

/// Removes what an interrupted ReplaceFile of this path left behind. The temporary files of one
/// that is still at work, in whatever process, stay.
void RemoveLeftovers(const std::string& path);

}  // namespace HOLLERIN
