#include "hollerin/default_configuration.h"

#include "platform/types.h"

namespace HOLLERIN {
namespace {

struct Row {
  const wchar_t* section;
  const wchar_t* key;
  std::variant<bool, std::int32_t> value;
};

/// A colour as stores keep it.
constexpr std::int32_t Colour(unsigned red, unsigned green, unsigned blue) {
  return static_cast<std::int32_t>(RGB(red, green, blue));
}

constexpr Row kConfiguration[] = {
    // Search modes, and the sort that follows the search: column -1 is none.
    {L"Options", L"OnePhaseSearch", 0},
    {L"Options", L"DeferredSortCol", -1},
    {L"Options", L"DeferredSortAsc", 1},
    {L"Options", L"SearchAsYouType", 0},
    {L"Options", L"SearchAsYouTypeTextTab", 0},
    {L"Options", L"ShowHitCount", false},
    // Found lines: how many are listed, how much is shown of each, and the lines around a hit; what
    // does not fit is cut off at its end.
    {L"Options", L"MaxLineListSize", 10000},
    {L"Options", L"LimitDisplayChars", 1},
    {L"Options", L"MaxLineDisplayChars", 1000},
    {L"Options", L"SurroundLinesBefore", 0},
    {L"Options", L"SurroundLinesAfter", 0},
    {L"Options", L"RightAlignLocation", 0},
    {L"Options", L"CVTruncate", 0},
    // How text is prepared for matching.
    {L"Options", L"NormalizeQuotes", 1},
    {L"Options", L"IncFilenameContents", 0},
    {L"Options", L"IncFolderContents", 0},
    {L"Options", L"MatchFullPathFileName", 0},
    {L"Options", L"EOLUnix", 1},
    {L"Options", L"EOLMac", 1},
    {L"Options", L"MaxLineLength", 100000},
    // The desktop: a second start, and the context menu of many files.
    {L"Options", L"SingleInstanceMode", 0},
    {L"Options", L"FastContextMenuDisabled", false},
    {L"Options", L"FastContextMenu", 50},
    // Threads: all processors for searching, half of them for indexing; priorities from normal, 0,
    // to low, 2.
    {L"Threading", L"Speed", 0},
    {L"Threading", L"ThreadCount", 1},
    {L"IndexThreading", L"Speed", 1},
    {L"IndexThreading", L"ThreadCount", 1},
    {L"Threading", L"Foreground", 0},
    {L"Threading", L"Background", 0},
    {L"Threading", L"Minimized", 1},
    {L"Threading", L"Indexer", 1},
    // Memory: megabytes, then lines and characters from which on results are reduced.
    {L"MemMgr", L"ApplyToCurrent", false},
    {L"MemMgr", L"UseMemMgr", true},
    {L"MemMgr", L"UseDefault", true},
    {L"MemMgr", L"MaxSearchMem", 500},
    {L"MemMgr", L"ReduceLines", 10000},
    {L"MemMgr", L"ReduceChars", 1000},
    // What is remembered from one run to the next.
    {L"Options", L"RememberOptions", 1},
    {L"Options", L"RememberWindowSize", 1},
    {L"Options", L"RememberLastSearch", 0},
    {L"Options", L"RememberSort", 1},
    {L"Options", L"ClearHistoryOnExit", 0},
    // Greatest number of entries that the histories keep, first those of drop-down lists.
    {L"Options", L"MaxDropDownHistory", 25},
    {L"Options", L"MaxNavigationHistory", 50},
    {L"Options", L"MaxMRUFileList", 10},
    // Alerts; the sounds are for the user to choose.
    {L"Alerts", L"PlaySound", 0},
    {L"Alerts", L"TaskbarNotification", 0},
    {L"Alerts", L"EveryFile", 0},
    {L"Alerts", L"EndSearchSound", 0},
    {L"Alerts", L"EndSearchTaskbarNotification", 0},
    // E-mail.
    {L"Options", L"EmailStripHTML", true},
    {L"Options", L"IncParentMsgName", true},
    {L"Options", L"AddMsgBodyAttach", false},
    // Expressions.
    {L"Options", L"LikeSimilarity", 1},
    {L"Options", L"MaxNearDistance", 10},
    {L"Options", L"DOSStrict", false},
    {L"Options", L"DOSImplyBoundary", false},
    {L"Options", L"UseClassicRE", false},
    {L"Options", L"UseCharacterCollation", false},
    {L"Options", L"RegExMaxLines", 1000},
    {L"Options", L"HashingAlgorithms", 1},
    // The main window.
    {L"UserInterface", L"UITheme", 0},
    {L"UserInterface", L"DefaultTab", 0},
    {L"UserInterface", L"UITabbed", true},
    {L"UserInterface", L"UITaskbarPreviews", false},
    {L"UserInterface", L"ShowCVTabs", true},
    // How found text is shown.
    {L"Options", L"TabSize", 4},
    {L"Window Settings", L"HighlightColor", Colour(192, 0, 0)},
    {L"Window Settings", L"HighlightBold", true},
    {L"Window Settings", L"HighlightUnder", false},
    {L"Window Settings", L"HighlightBack", false},
    {L"TextTab Settings", L"HighlightColor", Colour(192, 0, 0)},
    {L"TextTab Settings", L"HighlightBold", true},
    {L"TextTab Settings", L"HighlightUnder", false},
    {L"TextTab Settings", L"OriginalLineColor", Colour(0, 0, 0)},
    {L"TextTab Settings", L"SecondaryLineColor", Colour(96, 96, 96)},
    // The terms of a search: hues far apart, neighbours the farthest, dark enough for white paper.
    {L"SearchTerms", L"Color0", Colour(192, 0, 0)},
    {L"SearchTerms", L"Color1", Colour(0, 92, 197)},
    {L"SearchTerms", L"Color2", Colour(0, 122, 51)},
    {L"SearchTerms", L"Color3", Colour(178, 86, 0)},
    {L"SearchTerms", L"Color4", Colour(122, 31, 162)},
    {L"SearchTerms", L"Color5", Colour(0, 128, 140)},
    {L"SearchTerms", L"Color6", Colour(214, 0, 120)},
    {L"SearchTerms", L"Color7", Colour(112, 112, 0)},
    {L"SearchTerms", L"Color8", Colour(80, 80, 80)},
    {L"SearchTerms", L"Color9", Colour(34, 28, 110)},
    // Editors: 3 is the internal viewer.
    {L"Editor", L"UseExternalAsDefault", 3},
    // File lists, junction points and shortcuts.
    {L"Options", L"AllowContainingFileList", 0},
    {L"Options", L"AllowFileNameFileList", 0},
    {L"Options", L"SearchJunctionPoints", 0},
    {L"Options", L"ExcludeSystemHiddenJunctionPoints", 1},
    {L"Options", L"ResolveShortCutFiles", false},
    {L"Options", L"ResolveShortCutFolders", false},
    // Formats: 2 leaves the choice to the application.
    {L"Filters", L"AutoManage", 2},
    {L"Options", L"UseAllDocExtensionTypes", true},
    {L"Options", L"SearchRawDocData", false},
    {L"Options", L"ExtractEmbeddedObjects", true},
    {L"Options", L"UseAllCompressedFileTypes", true},
    {L"Filters", L"IncludeTextFilters", false},
    {L"Options", L"IFilterPriority", 0},
    {L"FileType", L"AutoDetectUTF8", true},
    {L"Options", L"CacheOCRText", true},
    {L"Options", L"OCRDetectOrientation", true},
    {L"Options", L"OCRPDFWithText", false},
    // The text cache: its size in bytes; policy 1 removes texts after the days.
    {L"Options", L"MaxTextCacheSize", 52428800},
    {L"Options", L"CacheExpirePolicy", 1},
    {L"Options", L"CacheExpireDays", 90},
    // Search filters.
    {L"PersistentFilters", L"Active", false},
    {L"Options", L"EnableLookInAutoComplete", true},
};

/// A folder beside the program of a portable installation, and elsewhere. Empty leaves it to the
/// system.
struct FolderRow {
  const wchar_t* key;
  const wchar_t* beside;
  const wchar_t* elsewhere;
};

constexpr FolderRow kFolders[] = {
    {L"CacheFolder", L"cache/", L""},     {L"LogFile", L"", L"%DATA%"},
    {L"ConfigFile", L"", L"%CONFIG%"},    {L"FavouriteFolder", L"", L"%DOCUMENTS%"},
    {L"TempFolder", L"temp/", L"%TEMP%"}, {L"IndexFolder", L"index/", L"%CACHE%"},
};

}  // namespace

Values ShippedConfiguration() {
  Values values;
  for (const Row& row : kConfiguration) {
    std::visit([&](auto value) { values[row.section][row.key] = value; }, row.value);
  }
  return values;
}

Values ShippedMasterConfiguration(bool portable, const std::wstring& appFolder) {
  const bool besideProgram = portable && !appFolder.empty();
  Values values;
  for (const FolderRow& row : kFolders) {
    values[L"FOLDERS"][row.key] = besideProgram ? appFolder + row.beside : row.elsewhere;
  }
  return values;
}

}  // namespace HOLLERIN
