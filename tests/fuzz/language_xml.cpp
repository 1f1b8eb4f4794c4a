// Any bytes may stand in a language file. They are refused with a reason, or every look-up works.

#include <cstdlib>

#include "hollerin/language_mgr.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::wstring reason;
  auto texts = HOLLERIN::ParseLanguageXml({reinterpret_cast<const char*>(data), size}, reason);
  if (!texts) {
    if (reason.empty()) std::abort();
    return 0;
  }
  HOLLERIN::CLanguageMgr language(std::move(*texts));
  for (std::int32_t number = 0; number < 16; ++number) {
    const std::wstring placeholder = L"{" + std::to_wstring(number) + L"}";
    const wchar_t* const text = language.GetPlaceholderText(1, number, RES::kAnyItem);
    const std::wstring expected = text == nullptr ? placeholder : text;
    if (language.TranslateText(1, placeholder, RES::kAnyItem) != expected) std::abort();
    language.GetString(static_cast<std::uint32_t>(number));
  }
  return 0;
}
