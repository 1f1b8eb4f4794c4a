#include "core/extension_list.h"

namespace {

constexpr std::wstring_view kComma = L",";
constexpr std::wstring_view kLineEnd = L"\r\n";

/// Calls `take` with every piece between the separators that is not empty once it is trimmed.
template <class Take>
void ForEachPiece(std::wstring_view text, std::wstring_view separator, std::wstring_view trimmed,
                  Take take) {
  while (true) {
    const std::size_t end = text.find(separator);
    const std::wstring_view piece = TrimCharacters(text.substr(0, end), trimmed);
    if (!piece.empty()) take(piece);
    if (end == std::wstring_view::npos) return;
    text.remove_prefix(end + separator.size());
  }
}

}  // namespace

std::wstring_view TrimCharacters(std::wstring_view text, std::wstring_view characters) {
  const std::size_t first = text.find_first_not_of(characters);
  if (first == std::wstring_view::npos) return {};
  return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

std::vector<std::wstring> SplitExtensions(std::wstring_view stored) {
  std::vector<std::wstring> extensions;
  ForEachPiece(stored, kComma, L". ",
               [&](std::wstring_view piece) { extensions.emplace_back(piece); });
  return extensions;
}

std::wstring ExtensionLines(std::wstring_view stored) {
  std::wstring lines;
  ForEachPiece(stored, kComma, L". ",
               [&](std::wstring_view piece) { lines.append(piece).append(kLineEnd); });
  return lines;
}

std::wstring ExtensionList(std::wstring_view lines) {
  std::wstring list;
  ForEachPiece(lines, kLineEnd, L". \r\n", [&](std::wstring_view piece) {
    if (!list.empty()) list.append(kComma);
    list.append(piece);
  });
  return list;
}
