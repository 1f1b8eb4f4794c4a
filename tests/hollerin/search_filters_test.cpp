// The persistent search filters of a store.

#include <gtest/gtest.h>

#include "hollerin/application.h"
#include "hollerin/hollerin.h"
#include "hollerin/sample_values.h"
#include "hollerin/search_filter_text.h"
#include "hollerin/store_xml.h"
#include "platform/text.h"
#include "support/fake_machine.h"

namespace {

using namespace HOLLERIN;
using INTERNAL_IFC::ISearchFilter;
using INTERNAL_IFC::ISearchFilterList;
using ListHandle = std::shared_ptr<ISearchFilterList>;
using FilterHandle = std::shared_ptr<ISearchFilter>;

FilterHandle Blank() {
  FilterHandle filter;
  EXPECT_EQ(CreateBlankSearchFilter(&filter), S_OK);
  return filter;
}

FilterHandle Named(const std::wstring& name) {
  FilterHandle filter = Blank();
  filter->SetName(name);
  return filter;
}

class SearchFilters : public testing::Test {
 protected:
  ListHandle Load(HRESULT status = S_OK) {
    ListHandle list;
    EXPECT_EQ(LoadSearchFilterList(store, &list), status);
    return list;
  }
  std::wstring Stored(const wchar_t* key = L"List") {
    return store->ReadString(L"PersistentFilters", key, L"none");
  }
  void Put(const std::wstring& text) { store->WriteString(L"PersistentFilters", L"List", text); }

  std::shared_ptr<Store> store = CreateStore();
};

TEST_F(SearchFilters, EveryTextSurvivesTheStoreAndItsFile) {
  std::vector<std::wstring> texts = NastyTexts();
  texts.push_back(std::wstring(10000, L'\u00E4'));
  const ListHandle list = Load();
  for (const std::wstring& text : texts) {
    const FilterHandle filter = Named(text);
    filter->SetValue(text + L";" + text);
    list->Add(filter);
  }
  ASSERT_EQ(SaveSearchFilterList(store, list), S_OK);
  std::wstring reason;
  const auto file = ParseStoreXml(FormatStoreXml(store->GetValues()), reason);
  ASSERT_TRUE(file) << ToUtf8(reason);
  EXPECT_EQ(*file, store->GetValues());
  const ListHandle back = Load();
  ASSERT_EQ(back->GetCount(), static_cast<std::int32_t>(texts.size()));
  for (std::size_t n = 0; n < texts.size(); ++n) {
    const FilterHandle filter = back->GetAt(static_cast<std::int32_t>(n));
    EXPECT_EQ(filter->GetName(), texts[n]) << n;
    EXPECT_EQ(filter->GetValue(), texts[n] + L";" + texts[n]) << n;
  }
  EXPECT_FALSE(back->IsModified());
}

TEST_F(SearchFilters, EveryValueComesBackInOrder) {
  std::vector<SearchFilterValues> filters;
  for (const std::int32_t number : {0, 1, 2, -1, 12, INT32_MIN, INT32_MAX}) {
    filters.push_back({number % 2 == 0, number, L"n" + std::to_wstring(number), -number / 2, L""});
  }
  for (int n = 0; n < 200; ++n) filters.push_back({true, 0, std::to_wstring(200 - n), 1, L"v"});
  EXPECT_EQ(ParseSearchFilters(FormatSearchFilters(filters)), filters);
  EXPECT_EQ(ParseSearchFilters(FormatSearchFilters({})), std::vector<SearchFilterValues>{});
}

TEST_F(SearchFilters, ABlankFilterIsANameFilterThatIsOn) {
  const FilterHandle filter = Blank();
  EXPECT_TRUE(filter->IsEnabled());
  EXPECT_EQ(filter->GetName() + filter->GetValue(), L"");
  EXPECT_EQ(filter->GetMatchType(), 4);
  EXPECT_EQ(filter->GetFilterKind(), INTERNAL_IFC::kNameFilter);
  filter->SetNameKind(false);
  EXPECT_EQ(filter->GetFilterKind(), INTERNAL_IFC::kLocationFilter);
}

TEST_F(SearchFilters, ACloneIsIndependent) {
  const FilterHandle filter = Named(L"one");
  const FilterHandle clone = filter->Clone();
  clone->SetName(L"two");
  clone->SetEnabled(false);
  EXPECT_EQ(filter->GetName(), L"one");
  EXPECT_TRUE(filter->IsEnabled());
  EXPECT_EQ(clone->GetName(), L"two");
}

TEST_F(SearchFilters, IsModifiedTellsWhetherSavingWouldMakeADifference) {
  const struct {
    const char* what;
    void (*change)(ISearchFilterList&);
    bool modified;
    std::int32_t count;
  } kChanges[] = {
      {"nothing", [](ISearchFilterList&) {}, false, 2},
      {"add", [](ISearchFilterList& list) { list.Add(Blank()); }, true, 3},
      {"add nothing", [](ISearchFilterList& list) { list.Add(nullptr); }, false, 2},
      {"remove", [](ISearchFilterList& list) { list.RemoveAt(0); }, true, 1},
      {"remove outside",
       [](ISearchFilterList& list) {
         list.RemoveAt(-1);
         list.RemoveAt(2);
       },
       false, 2},
      {"replace", [](ISearchFilterList& list) { list.SetAt(1, Named(L"new")); }, true, 2},
      {"replace by an equal one",
       [](ISearchFilterList& list) { list.SetAt(1, list.GetAt(1)->Clone()); }, false, 2},
      {"replace outside",
       [](ISearchFilterList& list) {
         list.SetAt(2, Blank());
         list.SetAt(-1, Blank());
         list.SetAt(0, nullptr);
       },
       false, 2},
      {"switch off", [](ISearchFilterList& list) { list.GetAt(0)->SetEnabled(false); }, true, 2},
      {"off and on again",
       [](ISearchFilterList& list) {
         list.GetAt(0)->SetEnabled(false);
         list.GetAt(0)->SetEnabled(true);
       },
       false, 2},
  };
  Put(FormatSearchFilters({{true, 1, L"a", 4, L"*.a"}, {false, 0, L"b", 1, L"/b"}}));
  for (const auto& row : kChanges) {
    SCOPED_TRACE(row.what);
    const ListHandle list = Load();
    row.change(*list);
    EXPECT_EQ(list->IsModified(), row.modified);
    EXPECT_EQ(list->GetCount(), row.count);
    EXPECT_EQ(list->GetAt(-1), nullptr);
    EXPECT_EQ(list->GetAt(row.count), nullptr);
  }
}

TEST_F(SearchFilters, ADamagedListIsPutAsideAndReported) {
  const auto log = CreateMemoryLog(nullptr);
  Application application;
  application.log = log;
  SetUpApplication(application);
  const std::wstring whole = FormatSearchFilters({{true, 1, L"a", 4, L"*.a"}});
  std::wstring forged, wrongType, gap;
  store->WriteInt(L"00000000", L"Enabled", 1);
  store->SaveToText(forged);
  store->ClearSection(L"00000000");
  for (const auto& [key, value] : Section{{L"Enabled", true},
                                          {L"Kind", std::wstring(L"1")},
                                          {L"Name", std::wstring()},
                                          {L"Type", std::int32_t{1}},
                                          {L"Value", std::wstring()}}) {
    store->Write(L"00000000", key, value);
  }
  store->SaveToText(wrongType);
  store->Write(L"00000000", L"Kind", std::int32_t{1});
  store->Write(L"00000001", L"Kind", std::int32_t{1});
  store->SaveToText(gap);
  store->Clear();
  int number = 0;
  for (const std::wstring& damaged :
       {std::wstring(L"x"), whole.substr(1), whole + L" ", forged, wrongType, gap}) {
    Put(damaged);
    const ListHandle list = Load(S_FALSE);
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->GetCount(), 0);
    EXPECT_FALSE(list->IsModified());
    const std::wstring key = L"List.damaged-" + std::to_wstring(++number);
    EXPECT_EQ(Stored(key.c_str()), damaged);
    const auto lines = log->TakeLines();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_NE(lines.front().find(key), std::wstring::npos);
    Load();  // Told once.
    EXPECT_TRUE(log->TakeLines().empty());
  }
  // A list that was damaged behind a loaded one's back.
  Put(L"behind");
  const ListHandle list = Load(S_FALSE);
  Put(L"again");
  list->Add(Named(L"new"));
  EXPECT_EQ(SaveSearchFilterList(store, list), S_OK);
  EXPECT_EQ(Stored(L"List.damaged-7"), L"behind");
  EXPECT_EQ(Stored(L"List.damaged-8"), L"again");
  EXPECT_EQ(Load()->GetAt(0)->GetName(), L"new");
}

TEST_F(SearchFilters, WithoutAStoreThereAreNone) {
  ListHandle list;
  EXPECT_EQ(LoadSearchFilterList(nullptr, &list), S_OK);
  EXPECT_EQ(list->GetCount(), 0);
  EXPECT_EQ(SaveSearchFilterList(nullptr, list), S_FALSE);
  EXPECT_EQ(LoadSearchFilterList(store, nullptr), E_INVALIDARG);
  EXPECT_EQ(SaveSearchFilterList(store, nullptr), E_INVALIDARG);
  EXPECT_EQ(CreateBlankSearchFilter(nullptr), E_INVALIDARG);
}

TEST_F(SearchFilters, FailWhereTheMachineSaysSo) {
  ScopedMachine machine;
  ListHandle list = Load();
  FilterHandle filter;
  machine->fails = L"LoadSearchFilterList";
  EXPECT_EQ(LoadSearchFilterList(store, &list), E_FAIL);
  machine->fails = L"SaveSearchFilterList";
  EXPECT_EQ(SaveSearchFilterList(store, list), E_FAIL);
  EXPECT_EQ(Stored(), L"none");
  machine->fails = L"CreateBlankSearchFilter";
  EXPECT_EQ(CreateBlankSearchFilter(&filter), E_FAIL);
}

}  // namespace
