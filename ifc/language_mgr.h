#pragma once

// The texts of the language in use.

#include <cstdint>
#include <string>

#include "platform/types.h"

namespace RES {

/// Stands for the texts that belong to no dialog of their own, such as tooltips.
constexpr std::int32_t kCommonTexts = -1;
/// The last argument of the placeholder operations: no further restriction.
constexpr std::int32_t kAnyItem = -99;

/// Texts returned by pointer live as long as the manager. The place of every operation is fixed;
/// those that nobody calls are reserved and answer E_NOTIMPL.
class ILanguageMgr {
 public:
  virtual ~ILanguageMgr() = default;                 // 0
  virtual HRESULT Reserved1() { return E_NOTIMPL; }  // 1
  virtual HRESULT Reserved2() { return E_NOTIMPL; }  // 2
  virtual HRESULT Reserved3() { return E_NOTIMPL; }  // 3
  virtual HRESULT Reserved4() { return E_NOTIMPL; }  // 4
  virtual HRESULT Reserved5() { return E_NOTIMPL; }  // 5
  virtual HRESULT Reserved6() { return E_NOTIMPL; }  // 6
  virtual HRESULT Reserved7() { return E_NOTIMPL; }  // 7
  /// Replaces a text of the form "{n}" by text n of that dialog (or the common texts); any other
  /// text, and a number without text, comes back unchanged.
  virtual std::wstring TranslateText(std::int32_t dialog, const std::wstring& text,
                                     std::int32_t item) = 0;  // 8
  /// A value that the language gives a dialog, such as its greatest layout width (selector 1);
  /// null when it gives none.
  virtual const wchar_t* GetDialogValue(std::int32_t dialog, std::int32_t selector) = 0;  // 9
  /// Numbered text; null when the language has none.
  virtual const wchar_t* GetString(std::uint32_t number) = 0;  // 10
  /// Text `number` of a dialog; null when the language has none.
  virtual const wchar_t* GetPlaceholderText(std::int32_t dialog, std::int32_t number,
                                            std::int32_t item) = 0;  // 11
  /// The application's name for captions; empty when the language gives none.
  virtual std::wstring GetAppTitle() = 0;  // 12
  /// The caption of plain message boxes; empty when the language gives none.
  virtual std::wstring GetMessageCaption() = 0;  // 13
};

}  // namespace RES
