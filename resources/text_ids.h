#pragma once

// Numbers of the language strings that belong to no dialog.

/// Arguments of the language manager's GetString.
namespace TextId {

// Titles of the groups of the page tree.
constexpr unsigned kGroupAdvanced = 44;
constexpr unsigned kGroupEditor = 50;
constexpr unsigned kGroupExpressions = 69;
constexpr unsigned kGroupExtensions = 75;
constexpr unsigned kGroupGeneral = 76;

// Titles of pages.
constexpr unsigned kPageBoolean = 70;
constexpr unsigned kPageDos = 71;
constexpr unsigned kPageRegex = 72;
constexpr unsigned kPageHash = 73;
constexpr unsigned kPageSearch = 162;
constexpr unsigned kPageMemory = 489;

/// Format of the caption above a page; its one argument is the page's title.
constexpr unsigned kPageCaption = 459;

// What was being done when an error was reported.
constexpr unsigned kClearingHistory = 43;
constexpr unsigned kSavingConfiguration = 83;
constexpr unsigned kRestoringDefaults = 85;

// Messages.
constexpr unsigned kAskRestoreDefaults = 84;
constexpr unsigned kTranslationFailed = 394;
constexpr unsigned kProblemRunningTask = 539;
constexpr unsigned kErrorOccurred = 540;
constexpr unsigned kAdditionalInformation = 541;

// Columns by which results are sorted.
constexpr unsigned kColumnNone = 367;
constexpr unsigned kColumnSize = 373;
constexpr unsigned kColumnModified = 384;
constexpr unsigned kColumnFileName = 445;
constexpr unsigned kColumnRelevance = 925;

constexpr unsigned kMegabytes = 417;

/// Entry of a colour button that opens the full colour dialog.
constexpr unsigned kOtherColour = 758;

}  // namespace TextId
