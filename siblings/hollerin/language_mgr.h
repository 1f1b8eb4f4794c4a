#pragma once

// The texts of one language file behind the language interface.

#include <memory>

#include "hollerin/language_file.h"
#include "ifc/language_mgr.h"

namespace HOLLERIN {

/// The number of a text that is "{n}" from end to end.
std::optional<std::int32_t> PlaceholderNumber(std::wstring_view text);

/// The argument `item` of the placeholder operations restricts nothing: the files know no items.
class CLanguageMgr : public RES::ILanguageMgr {
 public:
  explicit CLanguageMgr(LanguageTexts texts) : texts_(std::move(texts)) {}

  std::wstring TranslateText(std::int32_t dialog, const std::wstring& text,
                             std::int32_t item) override;
  const wchar_t* GetDialogValue(std::int32_t dialog, std::int32_t selector) override;
  const wchar_t* GetString(std::uint32_t number) override;
  const wchar_t* GetPlaceholderText(std::int32_t dialog, std::int32_t number,
                                    std::int32_t item) override;
  std::wstring GetAppTitle() override { return texts_.appTitle; }
  std::wstring GetMessageCaption() override { return texts_.messageCaption; }

  /// Null where the language gives the dialog no caption.
  const wchar_t* GetDialogTitle(std::int32_t dialog) const;
  const wchar_t* GetMenuText(std::int32_t menu, std::int32_t number) const;

 private:
  const DialogTexts* FindDialog(std::int32_t dialog) const;

  LanguageTexts texts_;
};

/// Reads the file `name` of the folder. Empty when it cannot be read; `reason` says why then.
std::shared_ptr<CLanguageMgr> LoadLanguage(const std::wstring& folder, const std::wstring& name,
                                           std::wstring& reason);

}  // namespace HOLLERIN
