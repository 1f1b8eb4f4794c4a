#pragma once

// Texts of the language in use.

#include <optional>

#include "ifc/language_mgr.h"
#include "platform/text.h"

/// What every text reads while no language is loaded.
constexpr const wchar_t* kNoLanguage = L"<no language>";

/// Numbered text of the language. "<no language>" without a language manager; a number that the
/// language does not have shows as "<no text 123>", so that a hole in a language file is seen and
/// can be named.
CString LanguageString(UINT number);

/// As LanguageString, but nothing without a language manager or without such a text.
std::optional<CString> FindLanguageString(UINT number);

/// A placeholder text ("{9}") of the common texts, such as tooltips, in the language;
/// "<no language>" without a language manager.
CString TranslateText(const CString& text);

/// Text `number` of the dialog with that template number; "<no language>" without a language
/// manager, "<no text 123>" where the language has none.
CString LanguagePlaceholder(UINT dialog, int number);
