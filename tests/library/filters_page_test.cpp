// The list of document filters: its rows, its end by the user, its failures.

#include "pages/formats/filters_page.h"
#include "environment.h"
#include "foundation/exception.h"
#include "page_fixture.h"
#include "pages/formats/filter_list_job.h"
#include "support/fake_machine.h"

namespace {

using Rows = std::vector<std::vector<std::wstring>>;
using Page = Geometry::CGeometryDynCreateWnd<CConfigEntryGeneralFiltersDlg>;

class FakeFilters : public INTERNAL_IFC::IFilterMgr {
 public:
  HRESULT GetFilterExtensions(std::vector<std::wstring>& extensions, bool excludeText) override {
    extensions = {L".DOC", L"a?b"};
    if (!excludeText) extensions.push_back(L"txt");
    return status;
  }
  HRESULT GetFilterLocation(const std::wstring& extension, std::wstring& location) override {
    if (extension == L"DOC") location = L"/usr/bin/doc";
    return S_OK;
  }
  HRESULT GetFilterName(const std::wstring& extension, std::wstring& name) override {
    if (extension == L"DOC" || extension == L"txt") name = L"name of " + extension;
    return S_OK;
  }
  HRESULT status = S_OK;
};

/// Cancels at the poll with that number, counted from 1.
class FakeProgress : public INTERNAL_IFC::IWorkProgress {
 public:
  bool IsCancelled() override { return ++polls >= cancelAt; }
  void ReportProgress(std::int32_t step, std::int32_t steps, std::int32_t done, std::int32_t total,
                      std::int32_t) override {
    EXPECT_EQ(steps, 3);
    reports.push_back({step, done, total});
  }
  void SetProgressText(std::int32_t) override {}
  std::shared_ptr<IWorkProgress> CreateSubProgress(std::int32_t,
                                                   std::shared_ptr<INTERNAL_IFC::IRunningStatus>,
                                                   std::shared_ptr<IWorkProgress>,
                                                   std::int32_t) override {
    return nullptr;
  }
  std::shared_ptr<IWorkProgress> CreateSubProgressRange(
      std::int32_t, std::int32_t, std::int32_t, std::shared_ptr<INTERNAL_IFC::IRunningStatus>,
      std::shared_ptr<IWorkProgress>, std::int32_t) override {
    return nullptr;
  }
  int cancelAt = 1000000;
  int polls = 0;
  std::vector<std::array<int, 3>> reports;
};

class FiltersPageTest : public PageTest {
 protected:
  FiltersPageTest() { machine->filters.emplace(); }

  static CListCtrl& List(const CWnd& page) {
    return dynamic_cast<CListCtrl&>(*page.GetDlgItem(IDC_FILTERS));
  }
  static Rows RowsOf(const CListCtrl& list) {
    Rows rows;
    for (int row = 0; row < list.GetItemCount(); ++row) {
      rows.push_back({list.GetItemText(row, 0).Str(), list.GetItemText(row, 1).Str(),
                      list.GetItemText(row, 2).Str()});
    }
    return rows;
  }
  /// Opens the page and lets it fill its list.
  void OpenAndFill(Page& page) {
    Open(page);
    ToolkitApplication::ProcessEvents();
  }
  Rows Fill(Page& page) {
    List(page).DeleteAllItems();
    FillFilterList(List(page), filters, store, progress);
    return RowsOf(List(page));
  }

  ScopedMachine machine;
  FakeFilters filters;
  FakeProgress progress;
  const Rows kAllRows = {{L"doc", L"<unknown>", L"<not found>"},
                         {L"xyz", L"<unknown>", L"<not found>"},
                         {L"DOC", L"name of DOC", L"/usr/bin/doc"},
                         {L"a?b", L"<unknown>", L"<not found>"}};
};

TEST_F(FiltersPageTest, FileTypesComeBeforeTheExtensionsOfFilters) {
  store->values->WriteString(L"Filters", L"FileTypes", L".doc,, ?xyz .");
  Page page;
  OpenAndFill(page);
  EXPECT_EQ(Fill(page), kAllRows);
  const std::vector<std::array<int, 3>> reports = {{1, 0, 0}, {2, 0, 0}, {2, 1, 4},
                                                   {2, 2, 4}, {2, 3, 4}, {2, 4, 4}};
  EXPECT_EQ(progress.reports, reports);
  store->values->WriteBool(L"Filters", L"IncludeTextFilters", true);
  ASSERT_EQ(Fill(page).size(), 5U);
  EXPECT_EQ(Fill(page)[4], (Rows::value_type{L"txt", L"name of txt", L"<not found>"}));
}

TEST_F(FiltersPageTest, CancellingKeepsTheRowsSoFar) {
  store->values->WriteString(L"Filters", L"FileTypes", L".doc,?xyz");
  Page page;
  OpenAndFill(page);
  Fill(page);
  const int polls = progress.polls;
  ASSERT_EQ(polls, 8) << "four steps and four rows";
  for (int poll = 1; poll <= polls; ++poll) {
    progress = {};
    progress.cancelAt = poll;
    const std::size_t rows = poll <= 4 ? 0 : std::size_t(poll - 5);
    EXPECT_EQ(Fill(page), Rows(kAllRows.begin(), kAllRows.begin() + long(rows))) << poll;
    EXPECT_EQ(progress.polls, poll);
  }
}

TEST_F(FiltersPageTest, FailuresNameTheirTaskAndLine) {
  Page page;
  OpenAndFill(page);
  const struct {
    const wchar_t* operation;
    const wchar_t* task;
    int line;
  } cases[] = {{L"CreateConfigInterpreterListMgr", L"Creating config interpreter list", 152},
               {L"ResyncIFilters", L"Resyncing IFilters", 158},
               {L"", L"Getting extension list", 171}};
  filters.status = E_OUTOFMEMORY;
  for (const auto& row : cases) {
    machine->fails = row.operation;
    try {
      Fill(page);
      ADD_FAILURE() << row.line;
    } catch (const CCP_Exception& exception) {
      EXPECT_EQ(exception.Record().task, row.task);
      EXPECT_EQ(exception.Record().line, row.line);
    }
  }
}

TEST_F(FiltersPageTest, TheListIsFilledAfterThePageIsShownAndFailuresAreTold) {
  machine->filters = {{L"doc", L"Doc reader", L"/bin/doc", L"", false}};
  const Rows expected = {{L"doc", L"Doc reader", L"/bin/doc"}};
  Page page;
  Open(page);
  EXPECT_EQ(List(page).GetItemCount(), 0);
  ToolkitApplication::ProcessEvents();
  EXPECT_EQ(RowsOf(List(page)), expected);
  machine->fails = L"GetFilterExtensions";
  const auto messages = AnswerMessages([&] { Click(page, IDC_REFRESH_FILTERS); });
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_EQ(messages[0].caption, L"Application Error");
  EXPECT_NE(messages[0].text.find(L" - :171 - Brisquel/ConfigEntryGeneralFiltersDlg"),
            std::wstring::npos);
  EXPECT_EQ(List(page).GetItemCount(), 0);
  machine->fails.clear();
  Click(page, IDC_REFRESH_FILTERS);
  EXPECT_EQ(RowsOf(List(page)), expected);
}

TEST_F(FiltersPageTest, AManagerThatCannotBeMadeIsTriedAgain) {
  machine->filters = {{L"doc", L"Doc reader", L"/bin/doc", L"", false}};
  Page page;
  machine->fails = L"CreateFilterMgr";
  EXPECT_EQ(AnswerMessages([&] { OpenAndFill(page); }).size(), 1U);
  machine->fails.clear();
  Click(page, IDC_REFRESH_FILTERS);
  EXPECT_EQ(RowsOf(List(page)), (Rows{{L"doc", L"Doc reader", L"/bin/doc"}}));
}

TEST_F(FiltersPageTest, WithoutStoreNothingIsExchangedAndTheListReportsIt) {
  provider.config.reset();
  Page page;
  EXPECT_EQ(AnswerMessages([&] { OpenAndFill(page); }).size(), 1U);
  EXPECT_EQ(AnswerMessages([&] { Click(page, IDC_INCLUDE_TEXT_FILTERS); }).size(), 1U);
  EXPECT_TRUE(store->reads.empty());
  EXPECT_TRUE(store->writes.empty());
}

TEST_F(FiltersPageTest, PrioritiesAreStoredByRow) {
  for (const auto& [stored, row, saved] : {std::tuple{0, 0, 0}, {1, 1, 1}, {5, -1, -1}}) {
    store->values->WriteInt(L"Options", L"IFilterPriority", stored);
    Page page;
    OpenAndFill(page);
    const auto& combo = dynamic_cast<const CComboBox&>(*page.GetDlgItem(IDC_FILTER_PRIORITY));
    EXPECT_EQ(combo.GetCount(), 2);
    EXPECT_EQ(combo.GetCurSel(), row) << stored;
    EXPECT_TRUE(SavePage(page));
    EXPECT_EQ(store->values->ReadInt(L"Options", L"IFilterPriority", 9), saved);
  }
}

TEST_F(FiltersPageTest, TheCheckBoxStoresBothValuesAtOnce) {
  Page page;
  OpenAndFill(page);
  store->writes.clear();
  dynamic_cast<CComboBox&>(*page.GetDlgItem(IDC_FILTER_PRIORITY)).SetCurSel(1);
  machine->filters = {{L"md", L"Reader", L"/bin/md", L"", true}};
  Click(page, IDC_INCLUDE_TEXT_FILTERS);
  ASSERT_GE(store->writes.size(), 2U);
  EXPECT_EQ(store->writes[0], L"bool Filters/IncludeTextFilters true");
  EXPECT_EQ(store->writes[1], L"int Options/IFilterPriority 1");
  EXPECT_EQ(List(page).GetItemCount(), 1);
  Click(page, IDC_INCLUDE_TEXT_FILTERS);
  EXPECT_EQ(List(page).GetItemCount(), 0);
}

}  // namespace
