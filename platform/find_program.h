#pragma once

// Finding programs of the machine.

#include <optional>
#include <string>

/// The path of the program of that file name: the first file in a folder of the search path for
/// programs (PATH) that may be run. Folders that are not absolute do not count. Nothing when there
/// is none, or when the name is empty or holds a slash.
std::optional<std::string> FindProgram(std::string_view name);
