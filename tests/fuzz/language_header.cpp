// Any bytes may stand at the beginning of a language file. A name that is found stands there in
// quotes, and is one that a person can be shown.

#include <cstdlib>

#include "pages/general/language_header.h"
#include "platform/text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view all(reinterpret_cast<const char*>(data), size);
  const std::string_view bytes = all.substr(0, kLanguageHeaderSize);
  const auto name = LanguageNameIn(bytes);
  if (!name) return 0;
  const std::string quoted = "lang=\"" + ToUtf8(*name) + '"';
  if (name->empty() || bytes.find(quoted) == bytes.npos) std::abort();
  return 0;
}
