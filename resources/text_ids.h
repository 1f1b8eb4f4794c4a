#pragma once

// Numbers of the texts that the code asks the language for.

/// Arguments of the language manager's GetString.
namespace TextId {

// Titles of the groups of the page tree.
constexpr unsigned kGroupAdvanced = 44;
constexpr unsigned kGroupEditor = 50;
constexpr unsigned kGroupExpressions = 69;
constexpr unsigned kGroupExtensions = 75;
constexpr unsigned kGroupGeneral = 76;

// Titles of pages.
constexpr unsigned kPageFolders = 46;
constexpr unsigned kPageBoolean = 70;
constexpr unsigned kPageDos = 71;
constexpr unsigned kPageRegex = 72;
constexpr unsigned kPageHash = 73;
constexpr unsigned kPageHistory = 77;
constexpr unsigned kPageAlerts = 81;
constexpr unsigned kPageSearch = 162;
constexpr unsigned kPageMemory = 489;
constexpr unsigned kPageEmail = 647;

/// Format of the caption above a page; its one argument is the page's title.
constexpr unsigned kPageCaption = 459;

// What was being done when an error was reported.
constexpr unsigned kClearingHistory = 43;
constexpr unsigned kSavingConfiguration = 83;
constexpr unsigned kRestoringDefaults = 85;

// Messages.
constexpr unsigned kFoundSoundMissing = 59;
constexpr unsigned kEndSoundMissing = 60;
constexpr unsigned kSoundNotPlayed = 61;
constexpr unsigned kSoundNotFound = 62;
constexpr unsigned kBrowsingFailed = 64;
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

// Names of histories; that of file names is the name of their column. The names of three are put
// together of two texts each.
constexpr unsigned kHistoryContaining = 318;
constexpr unsigned kHistoryLookIn = 322;
constexpr unsigned kHistoryCopyTarget = 345;
constexpr unsigned kHistoryScriptEngine = 634;
constexpr unsigned kHistoryCopy = 649;
constexpr unsigned kHistoryIndex = 797;
constexpr unsigned kHistoryList = 903;
constexpr unsigned kHistoryIndexGroups = 923;
constexpr unsigned kHistoryZip = 1065;
constexpr unsigned kHistorySessions = 1066;
constexpr unsigned kHistoryWorkspaces = 1067;

constexpr unsigned kMegabytes = 417;

/// File types of the dialog that picks a sound: pairs of a text and patterns, as CFileDialog wants
/// them.
constexpr unsigned kSoundFilter = 63;

/// Entry of a colour button that opens the full colour dialog.
constexpr unsigned kOtherColour = 758;

}  // namespace TextId

/// A text of a dialog that no control of its template shows: arguments of LanguagePlaceholder.
struct DialogText {
  unsigned dialog;
  int number;
};

namespace TextId {

// Names of histories that dialogs of the application share; 140 is no template of this library.
constexpr DialogText kHistoryTransform = {140, 8};
constexpr DialogText kHistorySaveResults = {140, 19};

// The dialog that edits histories: what names its list for those who cannot see it, and what its
// edit box holds before a history is shown.
constexpr DialogText kHistoryListName = {5562, 1};
constexpr DialogText kHistoryEditText = {5562, 2};

// What stands before an entry of several folders in the history of a look-in combo.
constexpr DialogText kSeveralFolders = {5547, 10};

}  // namespace TextId
