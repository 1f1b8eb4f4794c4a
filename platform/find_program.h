#pragma once

// Finding programs of the machine.

#include <optional>
#include <string>

/// Whether the path leads to a file that this user may run.
bool IsProgram(const std::string& path);

/// The path of the program of that file name: the first file in a folder of the search path for
/// programs (PATH) that may be run. Folders that are not absolute do not count. Nothing when there
/// is none, or when the name is empty or holds a slash.
std::optional<std::string> FindProgram(std::string_view name);
