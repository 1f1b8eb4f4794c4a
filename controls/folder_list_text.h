#pragma once

// Several folders in one text: separated by ";", where a folder whose name holds a ";" stands in
// double quotes. Blanks around a folder do not count. A quote that nothing closes goes on to the
// end of the text.

#include <string>
#include <string_view>
#include <vector>

/// Where one folder stands in the text, without blanks before it and without its quotes.
struct FolderPlace {
  std::size_t start = 0;
  std::size_t end = 0;
  bool quoted = false;
  bool operator==(const FolderPlace&) const = default;
};

constexpr wchar_t kFolderSeparator = L';';

/// The folder that the caret stands in or at; an empty one between two separators has a place, too.
/// Blanks at its end belong to it, as it may go on.
FolderPlace FolderAt(std::wstring_view text, std::size_t caret);

/// The folders in order, those that are empty left out.
std::vector<std::wstring> SplitFolders(std::wstring_view text);

/// The text with the folder at that place replaced, quoted where it needs to be.
std::wstring ReplaceFolder(std::wstring_view text, const FolderPlace& place,
                           std::wstring_view folder);
