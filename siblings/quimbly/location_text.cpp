#include "quimbly/location_text.h"

#include <algorithm>

using INTERNAL_IFC::Location;

namespace {

constexpr std::wstring_view kBlanks = L" \t";
constexpr wchar_t kSeparator = L';';
constexpr wchar_t kQuote = L'"';
constexpr wchar_t kWith = L'+';
constexpr wchar_t kWithout = L'-';

std::wstring_view Trimmed(std::wstring_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

class Reader {
 public:
  Reader(std::wstring_view text, bool subfolders) : rest_(text), subfolders_(subfolders) {}

  std::vector<Location> Run() {
    std::vector<Location> locations;
    while (!rest_.empty()) {
      Location location{{}, subfolders_};
      if (!TakeQuoted(location)) TakePlain(location);
      if (!location.folder.empty()) locations.push_back(std::move(location));
    }
    return locations;
  }

 private:
  void TakePlain(Location& location) {
    const std::size_t end = std::min(rest_.find(kSeparator), rest_.size());
    location.folder = Trimmed(rest_.substr(0, end));
    Skip(end + 1);
  }

  bool TakeQuoted(Location& location) {
    const std::size_t first = std::min(rest_.find_first_not_of(kBlanks), rest_.size());
    if (neverClosed_ || first == rest_.size() || rest_[first] != kQuote) return false;
    std::wstring folder;
    for (std::size_t at = first + 1; at < rest_.size(); ++at) {
      if (rest_[at] != kQuote) {
        folder += rest_[at];
      } else if (at + 1 < rest_.size() && rest_[at + 1] == kQuote) {
        folder += rest_[at++];
      } else if (TakeEnd(at + 1, location)) {
        location.folder = std::move(folder);
        return true;
      } else {
        folder += kQuote;
      }
    }
    neverClosed_ = true;
    return false;
  }

  /// Takes the text up to there, and what may stand behind a closing quote.
  bool TakeEnd(std::size_t at, Location& location) {
    const wchar_t mark = at < rest_.size() ? rest_[at] : kSeparator;
    const bool marked = mark == kWith || mark == kWithout;
    const std::size_t end =
        std::min(rest_.find_first_not_of(kBlanks, at + (marked ? 1 : 0)), rest_.size());
    if (end < rest_.size() && rest_[end] != kSeparator) return false;
    if (marked) location.subfolders = mark == kWith;
    Skip(end + 1);
    return true;
  }

  void Skip(std::size_t count) { rest_.remove_prefix(std::min(count, rest_.size())); }

  std::wstring_view rest_;
  bool subfolders_;
  bool neverClosed_ = false;
};

std::wstring Quoted(const std::wstring& folder) {
  std::wstring text(1, kQuote);
  for (const wchar_t character : folder) {
    if (character == kQuote) text += kQuote;
    text += character;
  }
  return text += kQuote;
}

bool NeedsQuotes(const std::wstring& folder) {
  return folder.front() == kQuote || folder.find(kSeparator) != folder.npos ||
         Trimmed(folder).size() != folder.size();
}

}  // namespace

std::vector<Location> ParseLocations(std::wstring_view text, bool subfolders) {
  return Reader(text, subfolders).Run();
}

std::wstring FormatLocations(const std::vector<Location>& locations, bool subfolders, bool marks) {
  std::wstring text;
  for (const Location& location : locations) {
    if (location.folder.empty()) continue;
    const bool marked = marks && location.subfolders != subfolders;
    if (!text.empty()) text += kSeparator;
    text += marked || NeedsQuotes(location.folder) ? Quoted(location.folder) : location.folder;
    if (marked) text += location.subfolders ? kWith : kWithout;
  }
  return text;
}
