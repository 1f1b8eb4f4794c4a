#include "controls/folder_list_text.h"

#include <algorithm>

#include "controls/join_strings.h"

namespace {

constexpr wchar_t kQuote = L'"';

std::size_t FindFrom(std::wstring_view text, wchar_t sought, std::size_t from) {
  return std::min(text.find(sought, from), text.size());
}

/// The folder whose part of the text begins at `from`, and where that part ends.
FolderPlace ReadPlace(std::wstring_view text, std::size_t from, std::size_t& partEnd) {
  FolderPlace place;
  place.start = std::min(text.find_first_not_of(L' ', from), text.size());
  place.quoted = place.start < text.size() && text[place.start] == kQuote;
  if (place.quoted) {
    ++place.start;
    place.end = FindFrom(text, kQuote, place.start);
    partEnd = FindFrom(text, kFolderSeparator, place.end);
  } else {
    partEnd = place.end = FindFrom(text, kFolderSeparator, place.start);
  }
  return place;
}

}  // namespace

FolderPlace FolderAt(std::wstring_view text, std::size_t caret) {
  std::size_t partEnd = 0;
  FolderPlace place = ReadPlace(text, 0, partEnd);
  while (partEnd < std::min(caret, text.size())) place = ReadPlace(text, partEnd + 1, partEnd);
  return place;
}

std::vector<std::wstring> SplitFolders(std::wstring_view text) {
  std::vector<std::wstring> folders;
  for (std::size_t from = 0; from <= text.size();) {
    std::size_t partEnd = 0;
    const FolderPlace place = ReadPlace(text, from, partEnd);
    std::wstring folder(text.substr(place.start, place.end - place.start));
    if (!place.quoted) folder.resize(folder.find_last_not_of(L' ') + 1);
    if (!folder.empty()) folders.push_back(std::move(folder));
    from = partEnd + 1;
  }
  return folders;
}

std::wstring ReplaceFolder(std::wstring_view text, const FolderPlace& place,
                           std::wstring_view folder) {
  const std::wstring name(folder);
  const std::wstring separator(1, kFolderSeparator);
  std::wstring changed(text);
  changed.replace(place.start, place.end - place.start,
                  place.quoted ? name : JoinStrings({name}, separator, true));
  return changed;
}
