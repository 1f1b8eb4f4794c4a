#include "foundation/language.h"

#include "foundation/globals.h"

namespace {

CString MissingText(long long number) {
  CString text;
  text.Format(L"<no text %d>", number);
  return text;
}

}  // namespace

CString LanguageString(UINT number) {
  const auto& manager = Process().language;
  if (manager == nullptr) return kNoLanguage;
  const wchar_t* text = manager->GetString(number);
  return text != nullptr ? CString(text) : MissingText(number);
}

std::optional<CString> FindLanguageString(UINT number) {
  const auto& manager = Process().language;
  const wchar_t* text = manager != nullptr ? manager->GetString(number) : nullptr;
  if (text == nullptr) return std::nullopt;
  return CString(text);
}

CString TranslateText(const CString& text) {
  const auto& manager = Process().language;
  if (manager == nullptr) return kNoLanguage;
  return manager->TranslateText(RES::kCommonTexts, text.Str(), RES::kAnyItem);
}

CString LanguagePlaceholder(UINT dialog, int number) {
  const auto& manager = Process().language;
  if (manager == nullptr) return kNoLanguage;
  const wchar_t* text =
      manager->GetPlaceholderText(static_cast<std::int32_t>(dialog), number, RES::kAnyItem);
  return text != nullptr ? CString(text) : MissingText(number);
}
