// The search filters' list and definition on stores and filters of the tests' own.

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>

#include "dialogs/filter_match_types.h"
#include "dialogs/search_filter_edit.h"
#include "fake_language.h"
#include "history_fixture.h"
#include "hollerin/hollerin.h"
#include "hollerin/search_filter_text.h"
#include "quimbly/quimbly.h"
#include "support/fake_machine.h"

namespace {

using HOLLERIN::SearchFilterValues;
using Filters = std::vector<SearchFilterValues>;
using Lines = std::vector<std::wstring>;

bool Checked(UINT dialog, int id) { return WidgetOf(dialog, id)->property("checked").toBool(); }
void Click(UINT dialog, int id) {
  QWidget* widget = WidgetOf(dialog, id);
  QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, widget->height() / 2));
}

QComboBox& Combo(int id) { return *static_cast<QComboBox*>(WidgetOf(IDD_SEARCH_FILTER, id)); }
std::string Shown(int id) { return Combo(id).currentText().toStdString(); }
QLineEdit& Name() { return *static_cast<QLineEdit*>(WidgetOf(IDD_SEARCH_FILTER, IDC_FILTER_NAME)); }

class SearchFilterEditor : public testing::Test {
 protected:
  SearchFilterEditor() { EXPECT_EQ(HOLLERIN::CreateBlankSearchFilter(&filter), S_OK); }

  INT_PTR Run(std::function<void()> act) {
    const Person person(IDD_SEARCH_FILTER, std::move(act));
    Geometry::CGeometryWnd<CSearchFilterEdit> editor(history, store, filter);
    INT_PTR result = 0;
    messages = AnswerMessages([&] { result = editor.DoModal(); });
    return result;
  }
  void Set(std::int32_t kind, std::int32_t type, const std::wstring& value);

  std::shared_ptr<INTERNAL_IFC::ISearchFilter> filter;
  std::shared_ptr<RecordingStore> store = std::make_shared<RecordingStore>();
  std::shared_ptr<INTERNAL_IFC::ILoadComboReg> history;
  std::vector<ShownMessage> messages;
};

/// A filter as it may be stored, whatever the dialogs would make.
void SearchFilterEditor::Set(std::int32_t kind, std::int32_t type, const std::wstring& value) {
  const auto list = HOLLERIN::CreateStore();
  list->WriteString(HOLLERIN::kSearchFilterSection, HOLLERIN::kSearchFilterListKey,
                    HOLLERIN::FormatSearchFilters({{true, kind, L"name", type, value}}));
  std::shared_ptr<INTERNAL_IFC::ISearchFilterList> filters;
  ASSERT_EQ(HOLLERIN::LoadSearchFilterList(list, &filters), S_OK);
  filter = filters->GetAt(0);
}

TEST(FilterMatchTypesTable, NamesComeFromTheLanguage) {
  const auto language = std::make_shared<FakeLanguage>();
  for (const unsigned number : {6U, 7U, 8U, 9U, 10U, 11U, 12U, 700U, 780U}) {
    language->strings[number] = L"s" + std::to_wstring(number);
  }
  const ScopedLanguage scope(language);
  const wchar_t* const kNames[] = {L"s6",  L"s7",     L"s8",   L"_BOOST_", L"s9", L"s10", L"s11",
                                   L"s12", L"PRESET", L"s700", L"s780",    L"",   L""};
  std::int32_t id = 0;
  for (const wchar_t* name : kNames) {
    EXPECT_EQ(LabelOf(FilterMatchTypes, id), name);
    EXPECT_EQ(IdOf(FilterMatchTypes, name), id == 12 ? 11 : id);
    ++id;
  }
  EXPECT_EQ(LabelOf(FilterMatchTypes, 13), L"<invalid>");
  EXPECT_EQ(IdOf(FilterMatchTypes, L"S6"), -1);
  language->strings[7] = L"s6";
  EXPECT_EQ(IdOf(FilterMatchTypes, L"s6"), 0) << "the first of equal names";
}

TEST_F(SearchFilterEditor, ShowsWhatAFilterHoldsAndGivesItBack) {
  const struct {
    std::int32_t kind, type;
    const wchar_t* value;
    const char *pattern, *nameType, *folders, *locationType;
    std::int32_t kindAfter, typeAfter;
    const wchar_t* valueAfter;
  } rows[] = {
      {1, 4, L"*.txt", "*.txt", "DOS expression", "", "Plain text", 1, 4, L"*.txt"},
      {1, 0, L"", "", "Boolean expression", "", "Plain text", 1, 0, L""},
      {1, 2, L".", ".", "Regular expression", "", "Plain text", 1, 2, L"."},
      {1, 1, L"x", "x", "", "", "Plain text", 1, 11, L"x"},
      {0, 1, L"/a;\"/b\"-", "", "DOS expression", "/a;\"/b\"-", "Plain text", 0, 1, L"/a;\"/b\"-"},
      {0, 2, L"/a", "", "DOS expression", "/a", "Regular expression", 0, 2, L"/a"},
      {0, 0, L"/a", "", "DOS expression", "/a", "Boolean expression", 0, 0, L"/a"},
      {0, 3, L"/a", "", "DOS expression", "/a", "", 0, 11, L"/a"},
      {0, 99, L"/a", "", "DOS expression", "/a", "", 0, 11, L"/a"},
      {0, 12, L"/a", "", "DOS expression", "/a", "", 0, 11, L"/a"},
      {7, 2, L"lost", "", "DOS expression", "", "Plain text", 1, 4, L""},
      {-1, 0, L"lost", "", "DOS expression", "", "Plain text", 1, 4, L""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << "kind " << row.kind << " type " << row.type);
    Set(row.kind, row.type, row.value);
    EXPECT_EQ(Run([&] {
                const bool location = row.kind == 0;
                EXPECT_EQ(Checked(IDD_SEARCH_FILTER, IDC_FILTER_BY_LOCATION), location);
                EXPECT_EQ(Checked(IDD_SEARCH_FILTER, IDC_FILTER_BY_NAME), !location);
                for (const int id : {IDC_FILTER_FOLDERS, IDC_FILTER_LOCATION_TYPE,
                                     IDC_FILTER_BROWSE, IDC_FILTER_EDIT_FOLDERS}) {
                  EXPECT_EQ(WidgetOf(IDD_SEARCH_FILTER, id)->isEnabled(), location) << id;
                }
                for (const int id : {IDC_FILTER_PATTERN, IDC_FILTER_NAME_TYPE}) {
                  EXPECT_EQ(WidgetOf(IDD_SEARCH_FILTER, id)->isEnabled(), !location) << id;
                }
                EXPECT_EQ(Shown(IDC_FILTER_PATTERN), row.pattern);
                EXPECT_EQ(Shown(IDC_FILTER_NAME_TYPE), row.nameType);
                EXPECT_EQ(Shown(IDC_FILTER_FOLDERS), row.folders);
                EXPECT_EQ(Shown(IDC_FILTER_LOCATION_TYPE), row.locationType);
                EXPECT_EQ(Name().text(), "name");
                EXPECT_TRUE(HasFocus(IDD_SEARCH_FILTER, IDC_FILTER_NAME));
                Click(IDD_SEARCH_FILTER, IDOK);
              }),
              IDOK);
    EXPECT_EQ(filter->GetFilterKind(), row.kindAfter);
    EXPECT_EQ(filter->GetMatchType(), row.typeAfter);
    EXPECT_EQ(filter->GetValue(), row.valueAfter);
    EXPECT_EQ(filter->GetName(), L"name");
  }
}

TEST_F(SearchFilterEditor, OffersSortedTypesAndNamesEveryControl) {
  Run([] {
    const std::pair<int, QStringList> kTypes[] = {
        {IDC_FILTER_NAME_TYPE, {"Boolean expression", "DOS expression", "Regular expression"}},
        {IDC_FILTER_LOCATION_TYPE, {"Boolean expression", "Plain text", "Regular expression"}}};
    for (const auto& [id, labels] : kTypes) {
      QStringList rows;
      for (int row = 0; row < Combo(id).count(); ++row) rows << Combo(id).itemText(row);
      EXPECT_EQ(rows, labels);
    }
    const std::pair<int, const char*> kNames[] = {
        {IDC_FILTER_NAME, "Name"},
        {IDC_FILTER_PATTERN, "Files with matching names"},
        {IDC_FILTER_NAME_TYPE, "Expression type of the names"},
        {IDC_FILTER_FOLDERS, "Files in these folders"},
        {IDC_FILTER_LOCATION_TYPE, "Expression type of the folders"},
        {IDC_FILTER_BROWSE, "Browse for a folder"},
        {IDC_FILTER_EDIT_FOLDERS, "Edit several folders"}};
    for (const auto& [id, name] : kNames) {
      EXPECT_EQ(WidgetOf(IDD_SEARCH_FILTER, id)->accessibleName(), name);
    }
  });
  EXPECT_EQ(store->reads, Lines{L"bool Options/EnableLookInAutoComplete true"});
  EXPECT_TRUE(store->writes.empty());
}

TEST_F(SearchFilterEditor, TheTextsOfTheOtherKindAreLeftOut) {
  EXPECT_EQ(Run([] {
              QTest::keyClicks(&Name(), "n");
              QTest::keyClicks(&Combo(IDC_FILTER_PATTERN), "*.c");
              Click(IDD_SEARCH_FILTER, IDC_FILTER_BY_LOCATION);
              QTest::keyClicks(&Combo(IDC_FILTER_FOLDERS), "/x");
              Click(IDD_SEARCH_FILTER, IDC_FILTER_BY_NAME);
              Click(IDD_SEARCH_FILTER, IDOK);
            }),
            IDOK);
  EXPECT_EQ(filter->GetFilterKind(), 1);
  EXPECT_EQ(filter->GetValue(), L"*.c");
}

TEST_F(SearchFilterEditor, AVeryLongNameIsKept) {
  const std::wstring name = std::wstring(10000, L'n') + L"\t\u00e4";
  const std::wstring value(100000, L'v');
  Set(1, 4, value);
  filter->SetName(name);
  EXPECT_EQ(Run([] { Click(IDD_SEARCH_FILTER, IDOK); }), IDOK);
  EXPECT_EQ(filter->GetName(), name);
  EXPECT_EQ(filter->GetValue(), value);
  Set(0, 1, value);
  EXPECT_EQ(Run([] { Click(IDD_SEARCH_FILTER, IDOK); }), IDOK);
  EXPECT_EQ(filter->GetValue(), value);
}

TEST_F(SearchFilterEditor, OffersEarlierFoldersOfItsHistory) {
  const auto kept = HOLLERIN::CreateStore();
  kept->WriteString(L"RecentFolders", L"0", L"/b");
  kept->WriteString(L"RecentFolders", L"1", L"/a;/c");
  ASSERT_EQ(TOLLIVER::CreateLoadComboReg(kept, &history), S_OK);
  Set(0, 1, L"/mine");
  Run([] {
    QComboBox& folders = Combo(IDC_FILTER_FOLDERS);
    EXPECT_EQ(folders.count(), 2);
    EXPECT_EQ(folders.itemText(1), "2 folders: /a;/c");
    EXPECT_EQ(folders.currentText(), "/mine") << "filling keeps the text";
    folders.showPopup();
    for (int step = 0; step < 2; ++step) QTest::keyClick(folders.view(), Qt::Key_Down);
    QTest::keyClick(folders.view(), Qt::Key_Return);
    Click(IDD_SEARCH_FILTER, IDOK);
  });
  EXPECT_EQ(filter->GetValue(), L"/a;/c");
}

TEST_F(SearchFilterEditor, AFailureOfCompletionIsReportedAndTheEditorUsed) {
  ScopedMachine machine;
  machine->fails = L"CreateAutoComplete";
  Set(0, 1, L"/a");
  for (const bool wanted : {true, false}) {
    store->values->WriteBool(L"Options", L"EnableLookInAutoComplete", wanted);
    EXPECT_EQ(Run([] {
                QTest::keyClicks(&Combo(IDC_FILTER_FOLDERS), "b");
                Click(IDD_SEARCH_FILTER, IDOK);
              }),
              IDOK);
    ASSERT_EQ(messages.size(), wanted ? 1U : 0U);
    if (wanted) {
      EXPECT_EQ(messages[0].caption, L"Application Error");
    }
    EXPECT_EQ(filter->GetValue(), wanted ? L"/ab" : L"/abb");
  }
}

class SearchFilterListTest : public testing::Test {
 protected:
  void Put(const Filters& filters) {
    store->values->WriteString(HOLLERIN::kSearchFilterSection, HOLLERIN::kSearchFilterListKey,
                               HOLLERIN::FormatSearchFilters(filters));
  }
  Filters Kept() const {
    return HOLLERIN::ParseSearchFilters(store->values->ReadString(HOLLERIN::kSearchFilterSection,
                                                                  HOLLERIN::kSearchFilterListKey,
                                                                  {}))
        .value();
  }
  BRISQUEL::Status Run(std::function<void()> act, bool active = false,
                       const BRISQUEL::StoreHandle& handle = nullptr) {
    const Person person(IDD_SEARCH_FILTER_LIST, std::move(act));
    BRISQUEL::Status status = -1;
    messages = AnswerMessages(
        [&] { status = BRISQUEL::OpenSearchFilterList(handle, nullptr, nullptr, active); });
    return status;
  }
  static QListView& List() {
    return *static_cast<QListView*>(WidgetOf(IDD_SEARCH_FILTER_LIST, IDC_SEARCH_FILTERS));
  }
  static void Switch(int row) {
    List().setFocus();
    List().setCurrentIndex(List().model()->index(row, 0));
    QTest::keyClick(&List(), Qt::Key_Space);
  }
  static void ClickMaster() { Click(IDD_SEARCH_FILTER_LIST, IDC_SEARCH_FILTERS_ACTIVE); }
  static bool Master() { return Checked(IDD_SEARCH_FILTER_LIST, IDC_SEARCH_FILTERS_ACTIVE); }
  static void Ok() { Click(IDD_SEARCH_FILTER_LIST, IDOK); }

  std::shared_ptr<RecordingStore> store = std::make_shared<RecordingStore>();
  std::vector<ShownMessage> messages;
};

TEST_F(SearchFilterListTest, TheMasterSwitchFollowsFiltersThatChanged) {
  const struct {
    const char* what;
    std::optional<bool> stored;
    bool startActive, shown;
    bool clicksMaster;
    std::vector<int> switched;
    bool after;
  } rows[] = {
      {"nothing stored", std::nullopt, false, false, false, {}, false},
      {"stored", true, false, true, false, {}, true},
      {"started active", false, true, true, false, {}, true},
      {"cleared by the user", false, true, true, true, {}, false},
      {"set by the user", false, false, false, true, {}, true},
      {"a filter that was on goes off, no other is on", true, false, true, false, {0}, false},
      {"a filter goes on", false, false, false, false, {1}, true},
      {"changed filters override the user", true, false, true, true, {1}, true},
      {"changed back is no change", true, false, true, true, {1, 1}, false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const Filters before = {{true, 1, L"on", 4, L"*"}, {false, 0, L"off", 1, L"/"}};
    store->values->Clear();
    Put(before);
    if (row.stored) store->values->WriteBool(L"PersistentFilters", L"Active", *row.stored);
    EXPECT_EQ(Run(
                  [&] {
                    EXPECT_EQ(Master(), row.shown);
                    for (const int number : row.switched) Switch(number);
                    if (row.clicksMaster) ClickMaster();
                    store->writes.clear();
                    Ok();
                  },
                  row.startActive, store),
              0);
    EXPECT_EQ(store->values->ReadBool(L"PersistentFilters", L"Active", !row.after), row.after);
    Filters after = before;
    for (const int number : row.switched) {
      bool& enabled = after[static_cast<std::size_t>(number)].enabled;
      enabled = !enabled;
    }
    EXPECT_EQ(Kept(), after);
    EXPECT_EQ(store->writes.size(), after == before ? 1U : 2U) << "an unchanged list is not saved";
    EXPECT_EQ(store->writes.back().rfind(L"bool PersistentFilters/Active", 0), 0U);
  }
}

TEST_F(SearchFilterListTest, WithoutAStoreNothingIsKept) {
  EXPECT_EQ(Run([] {
              EXPECT_FALSE(Master());
              {
                const Person editor(IDD_SEARCH_FILTER, [] { Click(IDD_SEARCH_FILTER, IDOK); });
                Click(IDD_SEARCH_FILTER_LIST, IDC_NEW_SEARCH_FILTER);
              }
              EXPECT_EQ(List().model()->rowCount(), 1);
              Ok();
            }),
            0);
  EXPECT_TRUE(messages.empty());
}

TEST_F(SearchFilterListTest, ADamagedListIsPutAsideOnOk) {
  store->values->WriteString(L"PersistentFilters", L"List", L"damaged");
  for (const bool confirmed : {false, true}) {
    EXPECT_EQ(Run(
                  [&] {
                    EXPECT_EQ(List().model()->rowCount(), 0);
                    if (confirmed) Ok();
                  },
                  false, store),
              confirmed ? 0 : 1);
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_NE(messages[0].text.find(L"damaged"), std::wstring::npos);
    EXPECT_EQ(store->values->ReadString(L"PersistentFilters", L"List", {}),
              confirmed ? L"" : L"damaged");
    EXPECT_EQ(store->values->ReadString(L"PersistentFilters", L"List.damaged-1", {}),
              confirmed ? L"damaged" : L"");
  }
}

TEST_F(SearchFilterListTest, FailuresKeepWhatIsStored) {
  const Filters before = {{true, 1, L"kept", 4, L"*"}};
  Put(before);
  ScopedMachine machine;
  const struct {
    const wchar_t* fails;
    bool offersNew;
    std::size_t messages;
  } rows[] = {{L"LoadSearchFilterList", false, 1},
              {L"SaveSearchFilterList", true, 1},
              {L"CreateBlankSearchFilter", true, 0}};
  for (const auto& row : rows) {
    SCOPED_TRACE(ToUtf8(row.fails));
    machine->fails = row.fails;
    const bool saves = std::wstring(row.fails) == L"SaveSearchFilterList";
    EXPECT_EQ(Run(
                  [&] {
                    QWidget* button = WidgetOf(IDD_SEARCH_FILTER_LIST, IDC_NEW_SEARCH_FILTER);
                    EXPECT_EQ(button->isEnabled(), row.offersNew);
                    if (saves) Switch(0);
                    if (!saves) QTest::mouseClick(button, Qt::LeftButton);
                    Ok();
                  },
                  false, store),
              saves ? 1 : 0)
        << "a failure leaves the dialog open";
    EXPECT_EQ(messages.size(), row.messages);
    EXPECT_EQ(Kept(), before);
  }
}

TEST_F(SearchFilterListTest, WithoutALanguageEveryTextSaysSo) {
  const ScopedLanguage scope(nullptr);
  Put({{true, 1, L"n", 4, L"*"}});
  Run(
      [] {
        EXPECT_EQ(List().model()->headerData(0, Qt::Horizontal).toString(), "<no language>");
        EXPECT_EQ(List().model()->index(0, 2).data().toString(), "<no language>");
        EXPECT_EQ(List().model()->index(0, 0).data().toString(), "n");
      },
      false, store);
}

}  // namespace
