#include "hollerin/language_mgr.h"

#include "hollerin/system_file.h"
#include "hollerin/value_conversion.h"

namespace HOLLERIN {
namespace {

template <class Texts>
const wchar_t* Lookup(const Texts& texts, typename Texts::key_type number) {
  const auto text = texts.find(number);
  return text == texts.end() ? nullptr : text->second.c_str();
}

}  // namespace

std::optional<std::int32_t> PlaceholderNumber(std::wstring_view text) {
  if (text.size() < 3 || text.front() != L'{' || text.back() != L'}' || text[1] == L'-') {
    return std::nullopt;
  }
  return ParseInt(text.substr(1, text.size() - 2));
}

const DialogTexts* CLanguageMgr::FindDialog(std::int32_t dialog) const {
  const auto found = texts_.dialogs.find(dialog);
  return found == texts_.dialogs.end() ? nullptr : &found->second;
}

std::wstring CLanguageMgr::TranslateText(std::int32_t dialog, const std::wstring& text,
                                         std::int32_t item) {
  const std::optional<std::int32_t> number = PlaceholderNumber(text);
  const wchar_t* const found = number ? GetPlaceholderText(dialog, *number, item) : nullptr;
  return found == nullptr ? text : found;
}

const wchar_t* CLanguageMgr::GetDialogValue(std::int32_t dialog, std::int32_t selector) {
  const DialogTexts* const texts = FindDialog(dialog);
  return texts == nullptr ? nullptr : Lookup(texts->values, selector);
}

const wchar_t* CLanguageMgr::GetString(std::uint32_t number) {
  return Lookup(texts_.strings, number);
}

const wchar_t* CLanguageMgr::GetPlaceholderText(std::int32_t dialog, std::int32_t number,
                                                std::int32_t) {
  if (dialog == RES::kCommonTexts) return Lookup(texts_.common, number);
  const DialogTexts* const texts = FindDialog(dialog);
  return texts == nullptr ? nullptr : Lookup(texts->texts, number);
}

const wchar_t* CLanguageMgr::GetDialogTitle(std::int32_t dialog) const {
  const DialogTexts* const texts = FindDialog(dialog);
  return texts == nullptr || !texts->title ? nullptr : texts->title->c_str();
}

const wchar_t* CLanguageMgr::GetMenuText(std::int32_t menu, std::int32_t number) const {
  const auto found = texts_.menus.find(menu);
  return found == texts_.menus.end() ? nullptr : Lookup(found->second, number);
}

std::shared_ptr<CLanguageMgr> LoadLanguage(const std::wstring& folder, const std::wstring& name,
                                           std::wstring& reason) {
  std::string path, bytes;
  // The name comes from a configuration; it must not lead out of the folder.
  if (name.empty() || name.find(L'/') != name.npos || !ToSystemPath(folder + name, path)) {
    reason = L"\"" + name + L"\" is no name of a language file";
    return nullptr;
  }
  if (const int error = ReadFile(path, bytes)) {
    reason = folder + name + L": " + SystemText(error);
    return nullptr;
  }
  std::optional<LanguageTexts> texts = ParseLanguageXml(bytes, reason);
  if (texts) return std::make_shared<CLanguageMgr>(std::move(*texts));
  reason = folder + name + L": " + reason;
  return nullptr;
}

}  // namespace HOLLERIN
