// The facts of every page: what it reads and writes, in which order, and how it behaves.

#include <set>

#include "environment.h"
#include "page_fixture.h"
#include "pages/formats/boolean_page.h"
#include "pages/formats/dos_page.h"
#include "pages/formats/external_editor_page.h"
#include "pages/formats/file_list_page.h"
#include "pages/formats/filters_page.h"
#include "pages/formats/hash_page.h"
#include "pages/formats/junctions_page.h"
#include "pages/formats/regex_page.h"
#include "pages/formats/transform_page.h"
#include "pages/formats/utf8_page.h"
#include "pages/general/alerts_page.h"
#include "pages/general/colour_page.h"
#include "pages/general/email_page.h"
#include "pages/general/folders_page.h"
#include "pages/general/history_page.h"
#include "pages/general/internal_viewer_page.h"
#include "pages/general/localization_page.h"
#include "pages/general/memory_page.h"
#include "pages/general/search_page.h"
#include "pages/general/user_interface_page.h"
#include "resources/text_ids.h"

namespace {

using Lines = std::vector<std::wstring>;

struct PageFacts {
  const char* name;
  std::shared_ptr<CConfigDialog> (*make)();
  Lines reads;   ///< With their defaults.
  Lines writes;  ///< Of a save without changes, after `given`.
  HOLLERIN::Values given;
};

template <class Page>
std::shared_ptr<CConfigDialog> Make() {
  return std::make_shared<Page>();
}

using HistoryPage = CConfigEntryGeneralHistoryDlg;
using FoldersPage = Geometry::CGeometryDynCreateWnd<CConfigEntryGeneralFoldersDlg>;
using AlertsPage = Geometry::CGeometryDynCreateWnd<CConfigEntryGeneralAlertsDlg>;
using ExternalEditorPage = Geometry::CGeometryDynCreateWnd<CConfigEntryEditorExternalDlg>;
using FiltersPage = Geometry::CGeometryDynCreateWnd<CConfigEntryGeneralFiltersDlg>;
using Utf8Page = Geometry::CGeometryDynCreateWnd<CConfigEntryFileTypeUTF8Dlg>;
using EmailPage = Geometry::CGeometryDynCreateWnd<CConfigEntryGeneralEmailDlg>;
using ColourPage = Geometry::CGeometryDynCreateWnd<CConfigEntryColorDlg>;

/// The reads of all term colours, followed by others.
Lines TermReadsAnd(Lines others) {
  Lines lines;
  for (char digit = '0'; digit <= '9'; ++digit) {
    lines.push_back(std::wstring(L"int SearchTerms/Color") + wchar_t(digit) + L" 0");
  }
  lines.insert(lines.end(), others.begin(), others.end());
  return lines;
}

const PageFacts kFacts[] = {
    {"history",
     Make<HistoryPage>,
     {L"int Options/MaxNavigationHistory 0", L"int Options/MaxDropDownHistory 0",
      L"int Options/MaxMRUFileList 0", L"int Options/RememberOptions 0",
      L"int Options/RememberWindowSize 0", L"int Options/RememberLastSearch 0",
      L"int Options/RememberSort 0", L"int Options/ClearHistoryOnExit 0"},
     {L"int Options/MaxNavigationHistory 999", L"int Options/MaxDropDownHistory 0",
      L"int Options/MaxMRUFileList 99", L"int Options/RememberOptions 1",
      L"int Options/RememberWindowSize 0", L"int Options/RememberLastSearch 0",
      L"int Options/RememberSort 1", L"int Options/ClearHistoryOnExit 0"},
     {{L"Options",
       {{L"MaxNavigationHistory", 999},
        {L"MaxMRUFileList", 99},
        {L"RememberOptions", 1},
        {L"RememberSort", 1}}}}},
    {"folders",
     Make<FoldersPage>,
     {L"text FOLDERS/LogFile ", L"text FOLDERS/ConfigFile ", L"text FOLDERS/FavouriteFolder ",
      L"text FOLDERS/TempFolder ", L"text FOLDERS/IndexFolder "},
     {L"text FOLDERS/LogFile %A%", L"text FOLDERS/ConfigFile ", L"text FOLDERS/FavouriteFolder ",
      L"text FOLDERS/TempFolder ", L"text FOLDERS/IndexFolder /i"},
     {{L"FOLDERS", {{L"LogFile", L"%A%"}, {L"IndexFolder", L"/i"}}}}},
    {"alerts",
     Make<AlertsPage>,
     {L"int Alerts/PlaySound 0", L"int Alerts/TaskbarNotification 0", L"int Alerts/EveryFile 0",
      L"text Alerts/SoundPath ", L"int Alerts/EndSearchSound 0",
      L"int Alerts/EndSearchTaskbarNotification 0", L"text Alerts/EndSearchSoundPath "},
     {L"int Alerts/PlaySound 1", L"int Alerts/TaskbarNotification 0", L"int Alerts/EveryFile 1",
      L"text Alerts/SoundPath a", L"int Alerts/EndSearchSound 0",
      L"int Alerts/EndSearchTaskbarNotification 0", L"text Alerts/EndSearchSoundPath "},
     {{L"Alerts", {{L"PlaySound", 1}, {L"EveryFile", 1}, {L"SoundPath", L"a"}}}}},
    {"e-mail",
     Make<EmailPage>,
     {L"bool Options/EmailStripHTML false", L"bool Options/IncParentMsgName false",
      L"bool Options/AddMsgBodyAttach false", L"text FOLDERS/ThunderbirdFolder "},
     {L"bool Options/IncParentMsgName false", L"bool Options/AddMsgBodyAttach true",
      L"bool Options/EmailStripHTML true", L"text FOLDERS/ThunderbirdFolder /m"},
     {{L"Options", {{L"EmailStripHTML", true}, {L"AddMsgBodyAttach", true}}},
      {L"FOLDERS", {{L"ThunderbirdFolder", L"/m"}}}}},
    {"search",
     Make<CConfigEntrySearchDlg>,
     {L"int Options/DeferredSortCol -1", L"int Options/DeferredSortAsc 1",
      L"int Options/SearchAsYouType 0", L"int Options/SearchAsYouTypeTextTab 0",
      L"int Options/OnePhaseSearch 0", L"bool Options/ShowHitCount false"},
     {L"int Options/OnePhaseSearch 2", L"int Options/SearchAsYouType 1",
      L"int Options/SearchAsYouTypeTextTab 0", L"bool Options/ShowHitCount true",
      L"int Options/DeferredSortCol 25", L"int Options/DeferredSortAsc 0"},
     {{L"Options",
       {{L"OnePhaseSearch", 2},
        {L"SearchAsYouType", 1},
        {L"ShowHitCount", true},
        {L"DeferredSortCol", 25},
        {L"DeferredSortAsc", 0}}}}},
    {"memory",
     Make<CConfigEntryMemMgrDlg>,
     {L"bool MemMgr/ApplyToCurrent false", L"bool MemMgr/UseMemMgr false",
      L"bool MemMgr/UseDefault false", L"int MemMgr/MaxSearchMem 0", L"int MemMgr/ReduceLines 0",
      L"int MemMgr/ReduceChars 0"},
     {L"bool MemMgr/ApplyToCurrent true", L"bool MemMgr/UseMemMgr true",
      L"bool MemMgr/UseDefault true", L"int MemMgr/MaxSearchMem 1",
      L"int MemMgr/ReduceLines 999999", L"int MemMgr/ReduceChars 10"},
     {{L"MemMgr",
       {{L"ApplyToCurrent", true},
        {L"UseMemMgr", true},
        {L"UseDefault", true},
        {L"MaxSearchMem", 1},
        {L"ReduceLines", 999999},
        {L"ReduceChars", 10}}}}},
    {"boolean",
     Make<CConfigEntryExprBooleanDlg>,
     {L"int Options/LikeSimilarity 0", L"int Options/MaxNearDistance 0"},
     {L"int Options/MaxNearDistance 9999999", L"int Options/LikeSimilarity 1"},
     {{L"Options", {{L"LikeSimilarity", 1}, {L"MaxNearDistance", 9999999}}}}},
    {"dos",
     Make<CConfigEntryExprDOSDlg>,
     {L"bool Options/DOSStrict false", L"bool Options/DOSImplyBoundary false"},
     {L"bool Options/DOSStrict true", L"bool Options/DOSImplyBoundary false"},
     {{L"Options", {{L"DOSStrict", true}}}}},
    {"regex",
     Make<CConfigEntryExprRegExDlg>,
     {L"bool Options/UseClassicRE false", L"bool Options/UseCharacterCollation false",
      L"int Options/RegExMaxLines 0"},
     {L"bool Options/UseClassicRE true", L"bool Options/UseCharacterCollation true",
      L"int Options/RegExMaxLines 1"},
     {{L"Options",
       {{L"UseClassicRE", true}, {L"UseCharacterCollation", true}, {L"RegExMaxLines", 1}}}}},
    {"hash",
     Make<CConfigEntryExprHashDlg>,
     {L"int Options/HashingAlgorithms 1"},
     {L"int Options/HashingAlgorithms 10"},
     {{L"Options", {{L"HashingAlgorithms", 10}}}}},
    {"user interface",
     Make<CConfigEntryUserInterfaceDlg>,
     {L"int UserInterface/UITheme 0", L"int UserInterface/DefaultTab 0",
      L"bool UserInterface/UITabbed false", L"bool UserInterface/UITaskbarPreviews false",
      L"bool UserInterface/ShowCVTabs false"},
     {L"bool UserInterface/UITabbed false", L"bool UserInterface/UITaskbarPreviews true",
      L"bool UserInterface/ShowCVTabs true", L"int UserInterface/UITheme 5",
      L"int UserInterface/DefaultTab 3"},
     {{L"UserInterface",
       {{L"UITaskbarPreviews", true},
        {L"ShowCVTabs", true},
        {L"UITheme", 5},
        {L"DefaultTab", 3}}}}},
    {"internal viewer",
     Make<CConfigEntryInternalViewerDlg>,
     {L"int Options/TabSize 0"},
     {L"int Options/TabSize 32"},
     {{L"Options", {{L"TabSize", 32}}}}},
    {"language",
     Make<CConfigEntryLocalizationDlg>,
     {L"text Language/File lang-en.xml"},
     {L"text Language/File lang-en.xml"},
     {{L"Language", {{L"File", L"LANG-EN.XML"}}}}},
    {"colours",
     Make<ColourPage>,
     TermReadsAnd(
         {L"int Window Settings/HighlightColor 0", L"int TextTab Settings/OriginalLineColor 0",
          L"int TextTab Settings/SecondaryLineColor 0", L"int TextTab Settings/HighlightColor 0",
          L"bool Window Settings/HighlightBold false", L"bool Window Settings/HighlightUnder false",
          L"bool Window Settings/HighlightBack false", L"bool TextTab Settings/HighlightBold false",
          L"bool TextTab Settings/HighlightUnder false"}),
     {L"bool Window Settings/HighlightBold true", L"bool Window Settings/HighlightUnder false",
      L"bool Window Settings/HighlightBack true", L"bool TextTab Settings/HighlightBold false",
      L"bool TextTab Settings/HighlightUnder true", L"int Window Settings/HighlightColor 255",
      L"int TextTab Settings/HighlightColor -1", L"int TextTab Settings/OriginalLineColor 65280",
      L"int TextTab Settings/SecondaryLineColor 16777215"},
     {{L"Window Settings",
       {{L"HighlightColor", 0xFF}, {L"HighlightBold", true}, {L"HighlightBack", true}}},
      {L"TextTab Settings",
       {{L"HighlightColor", -1},
        {L"OriginalLineColor", 0xFF00},
        {L"SecondaryLineColor", 0xFFFFFF},
        {L"HighlightUnder", true}}},
      {L"SearchTerms", {{L"Color3", 7}}}}},
    {"external editor",
     Make<ExternalEditorPage>,
     {L"text Editor/ExternalPath ", L"text Editor/ExternalParms "},
     {L"text Editor/ExternalPath  /bin/e ", L"text Editor/ExternalParms $(X)"},
     {{L"Editor", {{L"ExternalPath", L" /bin/e "}, {L"ExternalParms", L"$(X)"}}}}},
    {"file lists",
     Make<CConfigEntryAdvFileListDlg>,
     {L"int Options/AllowContainingFileList 0", L"int Options/AllowFileNameFileList 0"},
     {L"int Options/AllowContainingFileList 1", L"int Options/AllowFileNameFileList 0"},
     {{L"Options", {{L"AllowContainingFileList", 7}, {L"AllowFileNameFileList", -1}}}}},
    {"junctions",
     Make<CConfigEntryAdvJunctionsDlg>,
     {L"int Options/SearchJunctionPoints 0", L"int Options/ExcludeSystemHiddenJunctionPoints 0",
      L"bool Options/ResolveShortCutFiles false", L"bool Options/ResolveShortCutFolders false"},
     {L"int Options/SearchJunctionPoints 0", L"int Options/ExcludeSystemHiddenJunctionPoints 1",
      L"bool Options/ResolveShortCutFiles false", L"bool Options/ResolveShortCutFolders true"},
     {{L"Options",
       {{L"ExcludeSystemHiddenJunctionPoints", 1}, {L"ResolveShortCutFolders", true}}}}},
    {"transform",
     Make<CConfigEntryAdvTransformDlg>,
     {L"text CustomTransform/MSXMLProgId "},
     {L"text CustomTransform/MSXMLProgId "},
     {}},
    {"filters",
     Make<FiltersPage>,
     {L"bool Filters/IncludeTextFilters false", L"int Options/IFilterPriority 0"},
     {L"bool Filters/IncludeTextFilters true", L"int Options/IFilterPriority 1"},
     {{L"Filters", {{L"IncludeTextFilters", true}}}, {L"Options", {{L"IFilterPriority", 1}}}}},
    {"UTF-8",
     Make<Utf8Page>,
     {L"text FileType/UTF8 ", L"bool FileType/AutoDetectUTF8 false"},
     {L"text FileType/UTF8 txt,*.md", L"bool FileType/AutoDetectUTF8 true"},
     {{L"FileType", {{L"UTF8", L".txt , ,*.md,"}, {L"AutoDetectUTF8", true}}}}},
};

class PageFactsTest : public PageTest {
 protected:
  void Give(const HOLLERIN::Values& values) {
    for (const auto& [section, keys] : values) {
      for (const auto& [key, value] : keys) store->values->Write(section, key, value);
    }
  }
  void Give(const wchar_t* section, const wchar_t* key, HOLLERIN::Value value) {
    store->values->Write(section, key, std::move(value));
  }
  /// Saves and tells whether the page accepted its values; messages are answered.
  static bool Save(CConfigDialog& page, std::size_t messages = 0) {
    bool saved = false;
    EXPECT_EQ(AnswerMessages([&] { saved = SavePage(page); }).size(), messages);
    return saved;
  }
};

TEST_F(PageFactsTest, EveryPageReadsAndWritesItsValuesInOrder) {
  for (const PageFacts& facts : kFacts) {
    SCOPED_TRACE(facts.name);
    store->values->Clear();
    Give(facts.given);
    store->reads.clear();
    store->writes.clear();
    const auto page = facts.make();
    Open(*page);
    EXPECT_EQ(store->reads, facts.reads);
    EXPECT_TRUE(store->writes.empty());
    ASSERT_TRUE(Save(*page));
    EXPECT_EQ(store->writes, facts.writes);
  }
}

TEST_F(PageFactsTest, WithoutStoreNothingIsWrittenAndOnlyTheSearchPageShowsDefaults) {
  provider.config.reset();
  for (const PageFacts& facts : kFacts) {
    SCOPED_TRACE(facts.name);
    const auto page = facts.make();
    Open(*page);
    EXPECT_TRUE(Save(*page));
    if (page->GetTemplateId() == IDD_SEARCH_PAGE) {
      EXPECT_TRUE(Checked(*page, IDC_SEARCH_TWO_PHASES));
      EXPECT_TRUE(Checked(*page, IDC_DEFERRED_SORT_ASCENDING));
    }
    if (page->GetTemplateId() == IDD_HASH_PAGE) {
      EXPECT_FALSE(Checked(*page, IDC_HASH_BIT_0));
    }
    if (page->GetTemplateId() == IDD_REGEX_PAGE) {
      EXPECT_EQ(Text(*page, IDC_REGEX_MAX_LINES), L"");
    }
  }
  EXPECT_TRUE(store->reads.empty());
  EXPECT_TRUE(store->writes.empty());
}

TEST_F(PageFactsTest, WithoutMasterConfigurationTheFoldersStayEmptyAndNothingIsWritten) {
  Give(L"FOLDERS", L"LogFile", L"/log");
  provider.master.reset();
  FoldersPage page;
  Open(page);
  EXPECT_EQ(Text(page, IDC_LOG_FILE), L"");
  EXPECT_TRUE(Save(page));
  EXPECT_TRUE(store->reads.empty());
  EXPECT_TRUE(store->writes.empty());
}

TEST_F(PageFactsTest, ImageButtonsAreSpokenAsTheirTooltipsSay) {
  FoldersPage page;
  Open(page);
  std::set<QString> names;
  for (const int id : {IDC_LOG_FILE_BROWSE, IDC_LOG_FILE_OPEN, IDC_CONFIG_FILE_BROWSE,
                       IDC_CONFIG_FILE_OPEN, IDC_INDEX_FOLDER_BROWSE, IDC_INDEX_FOLDER_OPEN}) {
    const QString name = WidgetOf(IDD_FOLDERS_PAGE, id)->accessibleName();
    EXPECT_EQ(name.toStdWString(), GetToolTipText(page.GetDlgItem(id)->m_hWnd)) << id;
    EXPECT_TRUE(names.insert(name).second) << name.toStdString();
  }
}

TEST_F(PageFactsTest, SearchModeOutsideItsRangeShowsAndSavesTheFirst) {
  for (const int stored : {3, -1}) {
    Give(L"Options", L"OnePhaseSearch", stored);
    CConfigEntrySearchDlg page;
    Open(page);
    EXPECT_TRUE(Checked(page, IDC_SEARCH_TWO_PHASES)) << stored;
    EXPECT_TRUE(Save(page));
    EXPECT_EQ(store->values->ReadInt(L"Options", L"OnePhaseSearch", 9), 0);
  }
}

TEST_F(PageFactsTest, SortColumnsAreShownByLabel) {
  for (const auto& [stored, row, saved] :
       {std::tuple{-1, 0, -1}, {0, 1, 0}, {2, 2, 2}, {5, 3, 5}, {25, 4, 25}, {7, -1, -1}}) {
    Give(L"Options", L"DeferredSortCol", stored);
    CConfigEntrySearchDlg page;
    Open(page);
    const auto& combo = dynamic_cast<const CComboBox&>(*page.GetDlgItem(IDC_DEFERRED_SORT_COLUMN));
    EXPECT_EQ(combo.GetCount(), 5);
    EXPECT_EQ(combo.GetCurSel(), row) << stored;
    EXPECT_TRUE(Save(page));
    EXPECT_EQ(store->values->ReadInt(L"Options", L"DeferredSortCol", 9), saved);
  }
}

TEST_F(PageFactsTest, WithoutLanguageTheFirstOfTheEqualSortColumnsIsSaved) {
  const ScopedLanguage none(nullptr);
  Give(L"Options", L"DeferredSortCol", 5);
  CConfigEntrySearchDlg page;
  Open(page);
  EXPECT_EQ(Text(page, IDC_DEFERRED_SORT_COLUMN), L"<no language>");
  EXPECT_TRUE(Save(page));
  EXPECT_EQ(store->values->ReadInt(L"Options", L"DeferredSortCol", 9), -1);
}

TEST_F(PageFactsTest, SortControlsFollowTheThirdSearchMode) {
  CConfigEntrySearchDlg page;
  Open(page);
  for (const auto& [click, enabled] : {std::pair{IDC_SEARCH_TWO_PHASES, false},
                                       {IDC_SEARCH_THEN_SORT, true},
                                       {IDC_SEARCH_ONE_PHASE, false}}) {
    Click(page, click);
    EXPECT_EQ(Enabled(page, IDC_DEFERRED_SORT_COLUMN), enabled) << click;
    EXPECT_EQ(Enabled(page, IDC_DEFERRED_SORT_ASCENDING), enabled) << click;
  }
}

TEST_F(PageFactsTest, MemoryLimitsFollowTheirSwitches) {
  CConfigEntryMemMgrDlg page;
  Open(page);
  const int limits[] = {IDC_MEMORY_LIMIT_LABEL, IDC_DEFAULT_MEMORY_LIMIT, IDC_OWN_MEMORY_LIMIT,
                        IDC_REDUCE_LINES_LABEL, IDC_REDUCE_LINES,         IDC_REDUCE_CHARS_LABEL,
                        IDC_REDUCE_CHARS,       IDC_KEEP_CURRENT_SEARCH};
  const auto expect = [&](bool on, bool own) {
    for (const int id : limits) EXPECT_EQ(Enabled(page, id), on) << id;
    EXPECT_EQ(Enabled(page, IDC_MAX_SEARCH_MEMORY), own);
    EXPECT_EQ(Enabled(page, IDC_MAX_SEARCH_MEMORY_UNIT), own);
  };
  expect(false, false);
  EXPECT_TRUE(Checked(page, IDC_OWN_MEMORY_LIMIT));
  Click(page, IDC_USE_MEMORY_MANAGER);
  expect(true, true);
  Click(page, IDC_DEFAULT_MEMORY_LIMIT);
  expect(true, false);
  Click(page, IDC_OWN_MEMORY_LIMIT);
  expect(true, true);
  Click(page, IDC_USE_MEMORY_MANAGER);
  expect(false, false);
  EXPECT_EQ(Text(page, IDC_MAX_SEARCH_MEMORY_UNIT), L"MB");
}

TEST_F(PageFactsTest, CheckingTheInvertedBoxWritesFalse) {
  Give(L"MemMgr", L"ApplyToCurrent", true);
  for (const wchar_t* key : {L"MaxSearchMem", L"ReduceLines", L"ReduceChars"}) {
    Give(L"MemMgr", key, 50);
  }
  CConfigEntryMemMgrDlg page;
  Open(page);
  EXPECT_FALSE(Checked(page, IDC_KEEP_CURRENT_SEARCH));
  page.CheckDlgButton(IDC_KEEP_CURRENT_SEARCH, BST_CHECKED);
  EXPECT_TRUE(Save(page));
  EXPECT_FALSE(store->values->ReadBool(L"MemMgr", L"ApplyToCurrent", true));
}

struct NumberCase {
  std::shared_ptr<CConfigDialog> (*make)();
  int control;
  const wchar_t* text;
  bool accepted;
};

TEST_F(PageFactsTest, NumbersAreAcceptedWithinTheirRangesOnly) {
  const NumberCase cases[] = {
      {Make<CConfigEntryMemMgrDlg>, IDC_MAX_SEARCH_MEMORY, L"0", false},
      {Make<CConfigEntryMemMgrDlg>, IDC_MAX_SEARCH_MEMORY, L"999999", true},
      {Make<CConfigEntryMemMgrDlg>, IDC_REDUCE_LINES, L"1000000", false},
      {Make<CConfigEntryMemMgrDlg>, IDC_REDUCE_LINES, L"many", false},
      {Make<CConfigEntryMemMgrDlg>, IDC_REDUCE_CHARS, L"9", false},
      {Make<CConfigEntryMemMgrDlg>, IDC_REDUCE_CHARS, L"10", true},
      {Make<CConfigEntryMemMgrDlg>, IDC_REDUCE_CHARS, L"999999", true},
      {Make<CConfigEntryMemMgrDlg>, IDC_REDUCE_CHARS, L"1000000", false},
      {Make<CConfigEntryExprBooleanDlg>, IDC_MAX_NEAR_DISTANCE, L"0", false},
      {Make<CConfigEntryExprBooleanDlg>, IDC_MAX_NEAR_DISTANCE, L"1", true},
      {Make<CConfigEntryExprBooleanDlg>, IDC_MAX_NEAR_DISTANCE, L"10000000", false},
      {Make<CConfigEntryExprRegExDlg>, IDC_REGEX_MAX_LINES, L"0", false},
      {Make<CConfigEntryExprRegExDlg>, IDC_REGEX_MAX_LINES, L"9999999", true},
      {Make<CConfigEntryInternalViewerDlg>, IDC_VIEWER_TAB_SIZE, L"0", false},
      {Make<CConfigEntryInternalViewerDlg>, IDC_VIEWER_TAB_SIZE, L"1", true},
      {Make<CConfigEntryInternalViewerDlg>, IDC_VIEWER_TAB_SIZE, L"32", true},
      {Make<CConfigEntryInternalViewerDlg>, IDC_VIEWER_TAB_SIZE, L"33", false},
  };
  for (const wchar_t* key : {L"MaxSearchMem", L"ReduceLines", L"ReduceChars"}) {
    Give(L"MemMgr", key, 50);
  }
  for (const NumberCase& number : cases) {
    SCOPED_TRACE(testing::Message() << number.control << " " << ToUtf8(number.text));
    const auto page = number.make();
    Open(*page);
    page->SetDlgItemText(number.control, number.text);
    store->writes.clear();
    EXPECT_EQ(Save(*page, number.accepted ? 0 : 1), number.accepted);
    EXPECT_EQ(store->writes.empty(), !number.accepted);
  }
}

TEST_F(PageFactsTest, ClicksOnTheLabelsMoveTheSlider) {
  Give(L"Options", L"MaxNearDistance", 5);
  CConfigEntryExprBooleanDlg page;
  Open(page);
  for (const auto& [label, position] :
       {std::pair{IDC_SIMILARITY_HIGH, 2}, {IDC_SIMILARITY_LOW, 0}, {IDC_SIMILARITY_MEDIUM, 1}}) {
    store->writes.clear();
    Click(page, label);
    EXPECT_TRUE(store->writes.empty());
    EXPECT_TRUE(Save(page));
    EXPECT_EQ(store->values->ReadInt(L"Options", L"LikeSimilarity", 9), position);
  }
}

TEST_F(PageFactsTest, ClassicEngineIsTheSecondRadioButton) {
  Give(L"Options", L"UseClassicRE", true);
  Give(L"Options", L"RegExMaxLines", 5);
  CConfigEntryExprRegExDlg page;
  Open(page);
  EXPECT_TRUE(Checked(page, IDC_REGEX_CLASSIC));
  Click(page, IDC_REGEX_STANDARD);
  EXPECT_TRUE(Save(page));
  EXPECT_FALSE(store->values->ReadBool(L"Options", L"UseClassicRE", true));
}

TEST_F(PageFactsTest, HashBitsAboveTheFourBoxesAreDropped) {
  Give(L"Options", L"HashingAlgorithms", 0x13);
  CConfigEntryExprHashDlg page;
  Open(page);
  EXPECT_TRUE(Checked(page, IDC_HASH_BIT_0));
  EXPECT_TRUE(Checked(page, IDC_HASH_BIT_1));
  EXPECT_FALSE(Checked(page, IDC_HASH_BIT_2));
  EXPECT_TRUE(Save(page));
  EXPECT_EQ(store->values->ReadInt(L"Options", L"HashingAlgorithms", 9), 3);
  Click(page, IDC_HASH_BIT_0);
  Click(page, IDC_HASH_BIT_1);
  EXPECT_TRUE(Save(page));
  EXPECT_EQ(store->values->ReadInt(L"Options", L"HashingAlgorithms", 9), 0);
}

}  // namespace
