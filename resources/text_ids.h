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
constexpr unsigned kPageFileLists = 45;
constexpr unsigned kPageFolders = 46;
constexpr unsigned kPageJunctions = 47;
constexpr unsigned kPageThreads = 48;
constexpr unsigned kPageTransform = 49;
constexpr unsigned kPageDefaultEditor = 51;
constexpr unsigned kPageExternalEditor = 52;
constexpr unsigned kPageInternalViewer = 53;
constexpr unsigned kPageBoolean = 70;
constexpr unsigned kPageDos = 71;
constexpr unsigned kPageRegex = 72;
constexpr unsigned kPageHash = 73;
constexpr unsigned kPageUtf8 = 74;
constexpr unsigned kPageHistory = 77;
constexpr unsigned kPageDisplay = 78;
constexpr unsigned kPageCharacters = 79;
constexpr unsigned kPageShell = 80;
constexpr unsigned kPageAlerts = 81;
constexpr unsigned kPageUserInterface = 82;
constexpr unsigned kPageSearch = 162;
constexpr unsigned kPageFilters = 398;
constexpr unsigned kPageLocalization = 440;
constexpr unsigned kPageMemory = 489;
constexpr unsigned kPageEmail = 647;
constexpr unsigned kPageColours = 757;

/// Format of the caption above a page; its one argument is the page's title.
constexpr unsigned kPageCaption = 459;

// What was being done when an error was reported.
constexpr unsigned kClearingHistory = 43;
constexpr unsigned kSavingConfiguration = 83;
constexpr unsigned kRestoringDefaults = 85;

// Messages.
constexpr unsigned kTransformNotCreated = 54;
constexpr unsigned kEditorBrowsingFailed = 56;
constexpr unsigned kAskResetInterpreters = 57;
constexpr unsigned kFoundSoundMissing = 59;
constexpr unsigned kEndSoundMissing = 60;
constexpr unsigned kSoundNotPlayed = 61;
constexpr unsigned kSoundNotFound = 62;
constexpr unsigned kBrowsingFailed = 64;
constexpr unsigned kAskRestoreDefaults = 84;
constexpr unsigned kTranslationFailed = 394;
constexpr unsigned kAskDeleteFilter = 397;
constexpr unsigned kAskNewCacheFolder = 476;
constexpr unsigned kProblemRunningTask = 539;
constexpr unsigned kErrorOccurred = 540;
constexpr unsigned kAdditionalInformation = 541;
constexpr unsigned kAskReplaceF3 = 767;

// Columns by which results are sorted.
constexpr unsigned kColumnNone = 367;
constexpr unsigned kColumnSize = 373;
constexpr unsigned kColumnModified = 384;
constexpr unsigned kColumnFileName = 445;
constexpr unsigned kColumnRelevance = 925;

// Themes of the main window, and the tabs that it can show first.
constexpr unsigned kThemeSystem = 18;
constexpr unsigned kThemeClassic = 19;
constexpr unsigned kThemeLight = 20;
constexpr unsigned kThemeDark = 21;
constexpr unsigned kThemeHighContrast = 22;
constexpr unsigned kThemeBlue = 23;
constexpr unsigned kTabHits = 114;
constexpr unsigned kTabText = 376;
constexpr unsigned kTabSummary = 29;
constexpr unsigned kTabProperties = 389;
constexpr unsigned kTabPreview = 478;

// What is cut off from texts that do not fit.
constexpr unsigned kCutEnd = 602;
constexpr unsigned kCutStart = 603;
constexpr unsigned kCutMiddle = 604;
constexpr unsigned kCutNothing = 605;

// Priorities, and speeds by the number of threads; the lowest of both share a text.
constexpr unsigned kPriorityNormal = 15;
constexpr unsigned kPriorityBelowNormal = 16;
constexpr unsigned kLow = 17;
constexpr unsigned kSpeedMaximum = 846;
constexpr unsigned kSpeedMedium = 847;
constexpr unsigned kSpeedCustom = 848;

// Document filters: the columns of their list, the title of the dialog shown meanwhile, and what
// goes first.
constexpr unsigned kColumnExtension = 65;
constexpr unsigned kColumnFilter = 66;
constexpr unsigned kColumnFilterLocation = 67;
constexpr unsigned kLookingForFilters = 154;
constexpr unsigned kConvertersFirst = 528;
constexpr unsigned kFiltersFirst = 529;

// Search filters: the columns of their list, which also has the one of extensions; the kind that
// file names are not; and the expression types.
constexpr unsigned kColumnFilterName = 86;
constexpr unsigned kColumnFilterValue = 87;
constexpr unsigned kLocation = 279;
constexpr unsigned kTypeBoolean = 6;
constexpr unsigned kTypePlain = 7;
constexpr unsigned kTypeRegex = 8;
constexpr unsigned kTypeDos = 9;
constexpr unsigned kTypeHash = 10;
constexpr unsigned kTypeWord = 11;
constexpr unsigned kTypeFileList = 12;
constexpr unsigned kTypeAnyWord = 700;
constexpr unsigned kTypeAllWords = 780;

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

// Names of the units of sizes.
constexpr unsigned kTerabytes = 296;
constexpr unsigned kBytes = 415;
constexpr unsigned kKilobytes = 416;
constexpr unsigned kMegabytes = 417;
constexpr unsigned kGigabytes = 418;

/// File types of the dialogs that pick an editor and a sound: pairs of a text and patterns, as
/// CFileDialog wants them.
constexpr unsigned kEditorFilter = 55;
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

// What a second start of the application does.
constexpr DialogText kInstanceAnother = {5536, 9};
constexpr DialogText kInstanceForShell = {5536, 10};
constexpr DialogText kInstanceSingle = {5536, 11};

/// What names the edit of the days in the dialog of the text cache.
constexpr DialogText kCacheDaysName = {5552, 18};

// What the box of the recognised language says while no language is selected.
constexpr DialogText kOcrNoLanguages = {5559, 12};
constexpr DialogText kOcrSelectLanguage = {5559, 13};

// What stands before an entry of several folders in the history of a look-in combo.
constexpr DialogText kSeveralFolders = {5547, 10};

// What is told of stored filters that were damaged, and what names the types of a filter.
constexpr DialogText kFiltersDamaged = {5546, 7};
constexpr DialogText kFilterNameType = {5547, 11};
constexpr DialogText kFilterLocationType = {5547, 12};

}  // namespace TextId
