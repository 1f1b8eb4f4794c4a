#include "controls/join_strings.h"

std::wstring JoinStrings(const std::vector<std::wstring>& texts, std::wstring_view separator,
                         bool quote) {
  const auto needsQuotes = [&](const std::wstring& text) {
    return quote && !separator.empty() && text.find(separator) != std::wstring::npos;
  };
  std::wstring joined;
  for (const std::wstring& text : texts) {
    if (&text != &texts.front()) joined += separator;
    joined += needsQuotes(text) ? L'"' + text + L'"' : text;
  }
  return joined;
}
