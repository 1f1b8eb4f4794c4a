// Any bytes may stand in the registration of a component, and any text may be typed as the name of
// one. Neither ever leads out of the registration's folder.

#include <cstdint>
#include <cstdlib>

#include "platform/component_registry.h"
#include "platform/text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::wstring text = FromUtf8(bytes);
  const bool path = text.find(L'/') != text.npos || text.find(L'\0') != text.npos;
  if (IsProgId(text) && (path || text.starts_with(L'.'))) std::abort();
  const auto file = KeyFile::Parse(bytes);
  const auto registration = file ? ParseRegistration(*file) : std::nullopt;
  if (!registration) return 0;
  const std::string& library = registration->library;
  if (library.empty() || library.front() == '.' || library.find('/') != library.npos) std::abort();
  return 0;
}
