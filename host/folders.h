#pragma once

// Where the program finds its files.

#include <QString>
#include <QStringList>

/// The folder of the stores: `wanted`, or the user's own when that is empty. Absolute.
QString DataFolder(const QString& wanted);

/// The folder of the language files: `wanted`, or the installed one, or that of the source tree
/// that the program was built in. Absolute; where none has a language file, the installed one.
QString LanguageFolder(const QString& wanted);

/// The folder of "master.revert.xml": the data folder when it has that file, so that a user can
/// override what was installed; otherwise the folder of the installed shared files.
QString ApplicationFolder(const QString& dataFolder);

/// The places where the settings library may be, best first.
QStringList LibraryCandidates();

/// The path with a separator at its end, as the stores' library wants folders.
std::wstring WithSeparator(const QString& folder);
