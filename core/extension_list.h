#pragma once

// Lists of file extensions. Stores keep one text, the extensions separated by ","; edits show one
// on each line.

#include <string>
#include <string_view>
#include <vector>

/// The text without those of the characters that stand at its ends.
std::wstring_view TrimCharacters(std::wstring_view text, std::wstring_view characters);

/// The extensions of a stored list, in order, without dots and blanks around them; a piece of which
/// nothing is left is no extension. Anything else stays, such as a "*".
std::vector<std::wstring> SplitExtensions(std::wstring_view stored);

/// A stored list as lines, each ended by "\r\n".
std::wstring ExtensionLines(std::wstring_view stored);

/// Lines ended or separated by "\r\n" as a list to store, without blanks between the extensions.
std::wstring ExtensionList(std::wstring_view lines);
