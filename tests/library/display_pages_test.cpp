// The pages of the display, of character processing and of threads.

#include <set>

#include "environment.h"
#include "fake_language.h"
#include "page_fixture.h"
#include "pages/general/character_page.h"
#include "pages/general/display_page.h"
#include "pages/general/threads_page.h"
#include "support/fake_machine.h"

namespace {

using Lines = std::vector<std::wstring>;
using DisplayPage = CConfigEntryGeneralDisplayDlg;
using CharacterPage = Geometry::CGeometryDynCreateWnd<CConfigEntryGeneralCharProcDlg>;
using ThreadsPage = Geometry::CGeometryDynCreateWnd<CConfigEntryGeneralThreadDlg>;

template <class Page>
std::shared_ptr<CConfigDialog> Make() {
  return std::make_shared<Page>();
}
using MakePage = std::shared_ptr<CConfigDialog> (*)();

class DisplayPages : public PageTest {
 protected:
  DisplayPages() {
    // What the pages refuse when it is absent.
    for (const wchar_t* key : {L"MaxLineListSize", L"MaxLineDisplayChars", L"MaxLineLength"}) {
      Give(L"Options", key, 50);
    }
  }
  void Give(const wchar_t* section, const wchar_t* key, int value) {
    store->values->WriteInt(section, key, value);
  }
  int Stored(const wchar_t* section, const wchar_t* key) {
    return store->values->ReadInt(section, key, -99);
  }
  static bool Save(CConfigDialog& page, std::size_t messages = 0) {
    bool saved = false;
    EXPECT_EQ(AnswerMessages([&] { saved = SavePage(page); }).size(), messages);
    return saved;
  }
  static CComboBox& Combo(const CWnd& page, int id) {
    return dynamic_cast<CComboBox&>(*page.GetDlgItem(id));
  }
  /// Chooses a row by keys, as a person does.
  static void Choose(CConfigDialog& page, int id, int row) {
    QWidget* combo = WidgetOf(page.GetTemplateId(), id);
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Home);
    for (int step = 0; step < row; ++step) QTest::keyClick(combo, Qt::Key_Down);
    ToolkitApplication::ProcessEvents();
    EXPECT_EQ(Combo(page, id).GetCurSel(), row);
  }

  ScopedMachine machine;
};

struct PageFacts {
  MakePage make;
  Lines reads;
  Lines writes;
};

TEST_F(DisplayPages, ReadAndWriteTheirValuesInOrder) {
  const PageFacts kFacts[] = {
      {Make<DisplayPage>,
       {L"int Options/LimitDisplayChars 0", L"int Options/MaxLineDisplayChars 0",
        L"int Options/MaxLineListSize 0", L"int Options/SurroundLinesAfter 0",
        L"int Options/SurroundLinesBefore 0", L"int Options/RightAlignLocation 0",
        L"int Options/CVTruncate 0"},
       {L"int Options/LimitDisplayChars 1", L"int Options/MaxLineDisplayChars 50",
        L"int Options/MaxLineListSize 50", L"int Options/SurroundLinesAfter 3",
        L"int Options/SurroundLinesBefore 2", L"int Options/RightAlignLocation 1",
        L"int Options/CVTruncate 3"}},
      {Make<CharacterPage>,
       {L"bool Options/NormalizeQuotes false", L"int Options/IncFilenameContents 0",
        L"int Options/IncFolderContents 0", L"int Options/MatchFullPathFileName 0",
        L"int Options/EOLUnix 0", L"int Options/EOLMac 0", L"int Options/MaxLineLength 0"},
       {L"int Options/NormalizeQuotes 1", L"int Options/EOLUnix 0", L"int Options/EOLMac 1",
        L"int Options/MatchFullPathFileName 1", L"int Options/MaxLineLength 50",
        L"int Options/IncFilenameContents 0", L"int Options/IncFolderContents 1"}},
      {Make<ThreadsPage>,
       {L"int Threading/Speed 0", L"int Threading/ThreadCount 0", L"int IndexThreading/Speed 0",
        L"int IndexThreading/ThreadCount 0", L"int Threading/Foreground 0",
        L"int Threading/Background 0", L"int Threading/Minimized 0", L"int Threading/Indexer 2"},
       {L"int Threading/Speed 3", L"int Threading/ThreadCount 7", L"int IndexThreading/Speed 1",
        L"int IndexThreading/ThreadCount 2", L"int Threading/Foreground 1",
        L"int Threading/Background 2", L"int Threading/Minimized 0", L"int Threading/Indexer 2"}},
  };
  const std::tuple<const wchar_t*, const wchar_t*, int> kGiven[] = {
      {L"Options", L"LimitDisplayChars", 1},
      {L"Options", L"SurroundLinesAfter", 3},
      {L"Options", L"SurroundLinesBefore", 2},
      {L"Options", L"RightAlignLocation", 1},
      {L"Options", L"CVTruncate", 3},
      {L"Options", L"NormalizeQuotes", 1},
      {L"Options", L"EOLMac", 1},
      {L"Options", L"IncFolderContents", 1},
      {L"Options", L"MatchFullPathFileName", 1},
      {L"Threading", L"Speed", 3},
      {L"Threading", L"ThreadCount", 7},
      {L"IndexThreading", L"Speed", 1},
      {L"IndexThreading", L"ThreadCount", 9},
      {L"Threading", L"Foreground", 1}};
  for (const auto& [section, key, value] : kGiven) Give(section, key, value);
  for (const PageFacts& facts : kFacts) {
    const auto page = facts.make();
    SCOPED_TRACE(page->GetTemplateId());
    // The background priority is the default of the indexer's.
    Give(L"Threading", L"Background", 2);
    store->reads.clear();
    store->writes.clear();
    Open(*page);
    EXPECT_EQ(store->reads, facts.reads);
    EXPECT_TRUE(store->writes.empty());
    ASSERT_TRUE(Save(*page));
    EXPECT_EQ(store->writes, facts.writes);
  }
}

TEST_F(DisplayPages, WithoutStoreNothingIsShownAndNothingWritten) {
  provider.config.reset();
  for (const auto& [make, edit] : {std::pair{MakePage(Make<DisplayPage>), IDC_MAX_LINES},
                                   {MakePage(Make<CharacterPage>), IDC_MAX_LINE_LENGTH},
                                   {MakePage(Make<ThreadsPage>), IDC_SEARCH_THREADS}}) {
    const auto page = make();
    Open(*page);
    EXPECT_EQ(Text(*page, edit), L"");
    EXPECT_TRUE(Save(*page));
  }
  EXPECT_TRUE(store->reads.empty());
  EXPECT_TRUE(store->writes.empty());
}

TEST_F(DisplayPages, NumbersAreAcceptedWithinTheirRangesOnly) {
  Give(L"Options", L"LimitDisplayChars", 1);
  Give(L"Threading", L"Speed", 3);
  Give(L"Threading", L"ThreadCount", 5);
  Give(L"IndexThreading", L"Speed", 3);
  Give(L"IndexThreading", L"ThreadCount", 5);
  struct Row {
    MakePage make;
    int control;
    int least, greatest;
  };
  for (const Row& row : {Row{Make<DisplayPage>, IDC_MAX_LINE_CHARS, 10, 9999999},
                         {Make<DisplayPage>, IDC_MAX_LINES, 1, 9999999},
                         {Make<DisplayPage>, IDC_LINES_AFTER, 0, 99999},
                         {Make<DisplayPage>, IDC_LINES_BEFORE, 0, 99999},
                         {Make<CharacterPage>, IDC_MAX_LINE_LENGTH, 10, 9999999},
                         {Make<ThreadsPage>, IDC_SEARCH_THREADS, 1, 1024},
                         {Make<ThreadsPage>, IDC_INDEX_THREADS, 1, 99}}) {
    const auto page = row.make();
    Open(*page);
    const auto expect = [&](const std::wstring& text, bool accepted) {
      SCOPED_TRACE(testing::Message() << row.control << ' ' << ToUtf8(text));
      page->SetDlgItemText(row.control, text);
      store->writes.clear();
      EXPECT_EQ(Save(*page, accepted ? 0 : 1), accepted);
      EXPECT_EQ(store->writes.empty(), !accepted);
      EXPECT_TRUE(accepted || HasFocus(page->GetTemplateId(), row.control));
    };
    expect(std::to_wstring(row.least - 1), false);
    expect(std::to_wstring(row.greatest + 1), false);
    expect(L"many", false);
    expect(std::to_wstring(row.greatest), true);
    expect(std::to_wstring(row.least), true);
  }
}

TEST_F(DisplayPages, TheFirstBadFieldInTheOrderOfExchangeIsReported) {
  Give(L"Options", L"LimitDisplayChars", 1);
  DisplayPage page;
  Open(page);
  for (const int id : {IDC_MAX_LINE_CHARS, IDC_MAX_LINES, IDC_LINES_AFTER, IDC_LINES_BEFORE}) {
    page.SetDlgItemText(id, L"-1");
  }
  for (const int id : {IDC_MAX_LINE_CHARS, IDC_MAX_LINES, IDC_LINES_AFTER, IDC_LINES_BEFORE}) {
    EXPECT_FALSE(Save(page, 1));
    EXPECT_TRUE(HasFocus(IDD_DISPLAY_PAGE, id)) << id;
    page.SetDlgItemText(id, L"10");
  }
  EXPECT_TRUE(Save(page));
}

TEST_F(DisplayPages, TheLimitOfCharactersIsCheckedWhileItIsUsedAndSavedAlways) {
  DisplayPage page;
  Open(page);
  EXPECT_FALSE(Enabled(page, IDC_MAX_LINE_CHARS));
  page.SetDlgItemText(IDC_MAX_LINE_CHARS, L"0");
  EXPECT_TRUE(Save(page));
  EXPECT_EQ(Stored(L"Options", L"MaxLineDisplayChars"), 0);
  Click(page, IDC_LIMIT_LINE_CHARS);
  EXPECT_TRUE(Enabled(page, IDC_MAX_LINE_CHARS));
  EXPECT_FALSE(Save(page, 1));
  Click(page, IDC_LIMIT_LINE_CHARS);
  EXPECT_FALSE(Enabled(page, IDC_MAX_LINE_CHARS));
}

TEST_F(DisplayPages, ModesAreSortedByLabelAndSavedById) {
  const auto language = std::make_shared<FakeLanguage>();
  language->strings = {{602, L"d"}, {603, L"B"}, {604, L"c"}, {605, L"a"}};
  const ScopedLanguage other(language);
  for (const auto& [stored, row, saved] :
       {std::tuple{0, 3, 0}, {1, 1, 1}, {2, 2, 2}, {3, 0, 3}, {4, -1, -1}, {-1, -1, -1}}) {
    Give(L"Options", L"RightAlignLocation", stored);
    Give(L"Options", L"CVTruncate", stored);
    DisplayPage page;
    Open(page);
    for (const int id : {IDC_LOCATION_MODE, IDC_LINE_MODE}) {
      EXPECT_EQ(Combo(page, id).GetCount(), 4);
      EXPECT_EQ(Combo(page, id).GetCurSel(), row) << stored;
    }
    EXPECT_TRUE(Save(page));
    EXPECT_EQ(Stored(L"Options", L"RightAlignLocation"), saved);
    EXPECT_EQ(Stored(L"Options", L"CVTruncate"), saved);
  }
}

TEST_F(DisplayPages, ASpeedShowsItsThreadsAndOnlyAnOwnCountCanBeTyped) {
  struct Row {
    int processors;
    std::wstring counts[3];  // Of the first three speeds.
  };
  for (const Row& row :
       {Row{8, {L"8", L"4", L"1"}}, {1, {L"1", L"1", L"1"}}, {5000, {L"1024", L"1024", L"1"}}}) {
    machine->processors = row.processors;
    Give(L"Threading", L"Speed", 3);
    Give(L"Threading", L"ThreadCount", 77);
    Give(L"IndexThreading", L"Speed", 3);
    Give(L"IndexThreading", L"ThreadCount", 66);
    ThreadsPage page;
    Open(page);
    EXPECT_EQ(Text(page, IDC_SEARCH_THREADS), L"77");
    EXPECT_EQ(Text(page, IDC_INDEX_THREADS), L"66");
    for (const auto& [speed, count, unit] :
         {std::tuple{IDC_SEARCH_SPEED, IDC_SEARCH_THREADS, IDC_SEARCH_THREADS_UNIT},
          {IDC_INDEX_SPEED, IDC_INDEX_THREADS, IDC_INDEX_THREADS_UNIT}}) {
      for (const int id : {0, 1, 2}) {
        Choose(page, speed, id);
        EXPECT_EQ(Text(page, count), row.counts[id]) << row.processors << ' ' << id;
        EXPECT_FALSE(Enabled(page, count));
        EXPECT_FALSE(Enabled(page, unit));
      }
      Choose(page, speed, 3);
      EXPECT_EQ(Text(page, count), L"1");
      EXPECT_TRUE(Enabled(page, count));
      EXPECT_TRUE(Enabled(page, unit));
    }
  }
}

TEST_F(DisplayPages, AnUnknownSpeedShowsTheStoredCountAndIsSavedAsNone) {
  Give(L"Threading", L"Speed", 4);
  Give(L"Threading", L"ThreadCount", 33);
  Give(L"Threading", L"Foreground", 3);
  ThreadsPage page;
  Open(page);
  EXPECT_EQ(Text(page, IDC_SEARCH_THREADS), L"33");
  EXPECT_FALSE(Enabled(page, IDC_SEARCH_THREADS));
  EXPECT_TRUE(Save(page));
  EXPECT_EQ(Stored(L"Threading", L"Speed"), -1);
  EXPECT_EQ(Stored(L"Threading", L"Foreground"), -1);
  EXPECT_EQ(Stored(L"Threading", L"ThreadCount"), 33);
}

TEST_F(DisplayPages, IndexingRefusesMoreThanNinetyNineProcessors) {
  machine->processors = 100;
  ThreadsPage page;
  Open(page);
  EXPECT_EQ(Text(page, IDC_INDEX_THREADS), L"100");
  EXPECT_FALSE(Save(page, 1));
  EXPECT_TRUE(store->writes.empty());
  Choose(page, IDC_INDEX_SPEED, 1);
  EXPECT_TRUE(Save(page));
}

TEST_F(DisplayPages, SpeedsAndCountsAreSpokenByTheirHeadings) {
  ThreadsPage page;
  Open(page);
  std::set<QString> names;
  for (const int id : {IDC_SEARCH_SPEED, IDC_SEARCH_THREADS, IDC_INDEX_SPEED, IDC_INDEX_THREADS}) {
    const QString name = WidgetOf(IDD_THREADS_PAGE, id)->accessibleName();
    const bool search = id == IDC_SEARCH_SPEED || id == IDC_SEARCH_THREADS;
    EXPECT_TRUE(name.startsWith(search ? "Searching" : "Indexing")) << name.toStdString();
    EXPECT_TRUE(names.insert(name).second) << name.toStdString();
  }
}

}  // namespace
