#pragma once

// The language files that the application has.

#include <functional>
#include <string>

/// Told of a language file: its name in the folder, and the language's own name.
using LanguageVisitor = std::function<void(const std::wstring& file, const std::wstring& language)>;

/// The folder of the language files, ending in a separator. Raises CCP_Exception when it is not
/// known.
std::wstring LanguageFolder();

/// Visits the language files of a folder in the order of the file system. Of each file only the
/// beginning is read; one that does not name its language there is passed over. Raises
/// CCP_Exception at the first file that cannot be read, and when the folder cannot be listed.
void VisitLanguageFiles(const std::wstring& folder, const LanguageVisitor& visit);
