// Any text may stand in a store as its list of search filters. What is accepted must come back the
// same, and so must every list of filters.

#include "hollerin/search_filter_text.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

using namespace HOLLERIN;

namespace {

using Filters = std::vector<SearchFilterValues>;

void Check(const Filters& filters) {
  if (ParseSearchFilters(FormatSearchFilters(filters)) != filters) std::abort();
}

/// Filters made of the input, 64 bytes each at most.
Filters FiltersFrom(const std::wstring& text) {
  constexpr std::size_t kLength = 16;
  Filters filters;
  for (std::size_t at = 0; at < text.size(); at += kLength) {
    const std::wstring part = text.substr(at, kLength);
    const auto number = static_cast<std::int32_t>(part.front());
    const std::size_t half = part.size() / 2;
    filters.push_back({number % 2 == 0, number, part.substr(0, half), ~number, part.substr(half)});
  }
  return filters;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // Bytes as characters reach the parser; whole characters make values.
  if (const auto filters = ParseSearchFilters(std::wstring(data, data + size))) Check(*filters);
  std::wstring text(size / sizeof(wchar_t), L'\0');
  std::memcpy(text.data(), data, text.size() * sizeof(wchar_t));
  Check(FiltersFrom(text));
  return 0;
}
