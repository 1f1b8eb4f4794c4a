// Any text may be typed as a list of folders. What was read must come back the same from its text.

#include "quimbly/location_text.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::wstring text(data, data + size);
  for (const bool subfolders : {false, true}) {
    const auto locations = ParseLocations(text, subfolders);
    const std::wstring formatted = FormatLocations(locations, subfolders, true);
    if (ParseLocations(formatted, subfolders) != locations) std::abort();
  }
  return 0;
}
