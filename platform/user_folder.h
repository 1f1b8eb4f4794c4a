#pragma once

// The folders that the desktop's conventions give a user, from the environment. They are absolute
// and have no separator at their end; a variable with any other text counts as not set.

#include <optional>
#include <string>
#include <vector>

/// The path without separators at its end; nothing when it is not absolute.
std::optional<std::string> AbsoluteFolder(std::string path);

std::optional<std::string> FolderFromEnvironment(const char* variable);

/// The user's home, by the environment or the user's account; nothing when neither knows one.
std::optional<std::string> HomeFolder();

/// The folder that the variable names, or else `usual` ("/.cache") in the user's home; nothing when
/// there is no home either.
std::optional<std::string> UserFolder(const char* variable, const char* usual);

/// Where applications keep the user's data; nothing when there is no home.
std::optional<std::string> UserDataFolder();

/// Where applications find data, best first: the user's own folder, then those of the system.
std::vector<std::string> DataFolders();
