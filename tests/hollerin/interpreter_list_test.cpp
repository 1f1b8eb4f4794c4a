#include "hollerin/interpreter_list.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "hollerin/hollerin.h"
#include "hollerin/interpreter_samples.h"
#include "hollerin/interpreter_store.h"
#include "hollerin/interpreter_text.h"
#include "hollerin/shipped_interpreters.h"
#include "support/fake_machine.h"

namespace {

using namespace HOLLERIN;
using Entries = std::vector<InterpreterEntry>;
using EntryHandle = std::shared_ptr<INTERNAL_IFC::IConfigInterpreter>;

InterpreterEntry Entry(const std::wstring& key, std::wstring type, bool enabled = true) {
  return {L"name of " + key, key, L"x", L"", std::move(type), enabled, false, false, false};
}

/// A list of another make, which ends after as many entries as it is told.
struct ForeignList : INTERNAL_IFC::IConfigInterpreterList {
  std::int32_t GetCount() override { return inner->GetCount(); }
  HRESULT FindByKey(const std::wstring&, EntryHandle&) override { return E_FAIL; }
  HRESULT GetAt(std::int32_t index, EntryHandle& entry) override {
    return index < good ? inner->GetAt(index, entry) : E_FAIL;
  }
  InterpreterListHandle inner;
  std::int32_t good = 0;
};

/// A machine with few filters, or none, and an application with a log.
class InterpreterLists : public testing::Test {
 protected:
  InterpreterLists() {
    machine_->filters.emplace();
    Application application;
    application.log = log_;
    SetUpApplication(application);
    EXPECT_EQ(CreateConfigInterpreterListMgr(&manager_), S_OK);
  }
  ~InterpreterLists() override { SetUpApplication({}); }

  InterpreterListHandle Load() {
    InterpreterListHandle list;
    EXPECT_EQ(LoadCurrentConfigInterpreterList(store_, &list), S_OK);
    return list;
  }
  Entries Loaded() { return ListEntries(*Load()).value_or(Entries()); }
  void Save(const Entries& entries) {
    EXPECT_EQ(SaveConfigInterpreterList(store_, MakeInterpreterList(entries), true), S_OK);
  }
  std::wstring Text(const wchar_t* key) { return store_->ReadString(L"Interpreters", key, L""); }
  EntryHandle Find(const InterpreterListHandle& list, const std::wstring& key) {
    EntryHandle entry;
    EXPECT_EQ(list->FindByKey(key, entry), S_OK);
    return entry;
  }

  ScopedMachine machine_;
  std::shared_ptr<MemoryLog> log_ = CreateMemoryLog(nullptr);
  std::shared_ptr<Store> store_ = CreateStore();
  std::shared_ptr<INTERNAL_IFC::IConfigInterpreterListMgr> manager_;
};

TEST_F(InterpreterLists, TheShippedListCoversEveryKindAndContradictsItselfNowhere) {
  const Entries entries = Loaded();
  EXPECT_GE(entries.size(), 60U);
  EXPECT_TRUE(store_->GetValues().empty()) << "loading wrote something";
  std::set<std::wstring> keys, extensions;
  for (const InterpreterEntry& entry : entries) {
    SCOPED_TRACE(testing::PrintToString(entry.key));
    EXPECT_TRUE(keys.insert(entry.key).second);
    EXPECT_EQ(entry.key.find_first_of(L"* ,"), entry.key.npos);
    EXPECT_NE(entry.key, L"none");
    EXPECT_FALSE(entry.name.empty() || entry.info.empty());
    EXPECT_EQ(entry.extensions.find_first_of(L". *ABCDEFGHIJKLMNOPQRSTUVWXYZ"),
              entry.extensions.npos);
    if (entry.extensions.empty()) continue;
    for (std::size_t at = 0; at <= entry.extensions.size();) {
      const std::size_t end = std::min(entry.extensions.find(L',', at), entry.extensions.size());
      const std::wstring extension = entry.extensions.substr(at, end - at);
      EXPECT_FALSE(extension.empty());
      EXPECT_TRUE(extensions.insert(extension).second) << testing::PrintToString(extension);
      at = end + 1;
    }
  }
  for (const wchar_t* word : {L"textconverter", L"textinterpreter", L"ifilter", L"compositefile",
                              L"ocrformat", L"config", L"defaultinterpreter", L"emailrepository"}) {
    EXPECT_TRUE(std::any_of(entries.begin(), entries.end(), [word](const auto& entry) {
      return entry.type.find(word) != entry.type.npos;
    })) << testing::PrintToString(std::wstring(word));
  }
}

TEST_F(InterpreterLists, EveryTextAndFlagSurvivesAStoreAndItsTextForm) {
  const Entries entries = NastyEntries();
  Save(entries);
  EXPECT_EQ(Loaded(), entries);
  std::string snapshot;
  store_->SaveToNarrowText(snapshot);
  Save({});
  EXPECT_TRUE(Loaded().empty()) << "an empty list is a list";
  store_->LoadFromNarrowText(snapshot);
  EXPECT_EQ(Loaded(), entries);
  EXPECT_TRUE(log_->TakeLines().empty());
}

TEST_F(InterpreterLists, ChangesStayInTheObjectUntilItIsSaved) {
  Save({Entry(L"a", L"textconverter"), Entry(L"b", L"unheard-of kind", false)});
  const InterpreterListHandle list = Load();
  const EntryHandle b = Find(list, L"b");
  b->SetExtensions(L"one, .two,,");
  b->SetEnabled(true);
  b->SetOptionA(true);
  b->SetDocumentFormat(true);
  b->SetOptionC(true);
  EXPECT_FALSE(Find(Load(), L"b")->IsEnabled());
  EXPECT_EQ(SaveConfigInterpreterList(store_, list, false), S_FALSE);
  EXPECT_FALSE(Find(Load(), L"b")->IsEnabled());
  EXPECT_EQ(SaveConfigInterpreterList(store_, list, true), S_OK);
  const Entries expected = {
      Entry(L"a", L"textconverter"),
      {L"name of b", L"b", L"one, .two,,", L"", L"unheard-of kind", true, true, true, true}};
  EXPECT_EQ(Loaded(), expected);
}

TEST_F(InterpreterLists, EntriesAreFoundByKeyAndPlace) {
  const Entries entries = {Entry(L"a", L"t"), Entry(L"a*b", L"t"), Entry(L"a", L"second")};
  store_->WriteString(L"Interpreters", L"List", FormatInterpreters(ToViews(entries)));
  const InterpreterListHandle list = Load();
  EXPECT_EQ(log_->TakeLines().size(), 1U);
  ASSERT_EQ(list->GetCount(), 3);
  for (const wchar_t* key : {L"a", L"a*b", L"a~2"}) {
    ASSERT_NE(Find(list, key), nullptr);
    EXPECT_EQ(Find(list, key)->GetKey(), key);
    EXPECT_NE(Find(Load(), key), nullptr) << "the second load calls it another name";
  }
  EXPECT_EQ(Find(list, L"a~2")->GetType(), L"second");
  EntryHandle entry = Find(list, L"a");
  for (const std::int32_t index : {-1, 3}) {
    EXPECT_EQ(list->GetAt(index, entry), E_INVALIDARG);
    EXPECT_EQ(entry, nullptr);
  }
  EXPECT_EQ(Find(list, L"A"), nullptr);
  EXPECT_EQ(Find(list, L""), nullptr);
}

TEST_F(InterpreterLists, ListsOfAnotherMakeAreSavedWholeOrNotAtAll) {
  const Entries entries = NastyEntries();
  const auto list = std::make_shared<ForeignList>();
  list->inner = MakeInterpreterList(entries);
  list->good = list->GetCount() - 1;
  EXPECT_EQ(SaveConfigInterpreterList(store_, list, true), E_FAIL);
  EXPECT_TRUE(store_->GetValues().empty());
  ++list->good;
  EXPECT_EQ(SaveConfigInterpreterList(store_, list, true), S_OK);
  EXPECT_EQ(Loaded(), entries);
}

TEST_F(InterpreterLists, AnEntryOutlivesItsList) {
  Save({Entry(L"a", L"textconverter")});
  const EntryHandle entry = Find(Load(), L"a");
  entry->SetExtensions(L"long enough to need memory of its own");
  EXPECT_EQ(entry->GetName(), L"name of a");
  EXPECT_EQ(entry->GetExtensions(), L"long enough to need memory of its own");
}

TEST_F(InterpreterLists, ADamagedListIsReportedAndPutAsideBySaving) {
  Save({Entry(L"mine", L"t")});
  const std::wstring whole = Text(L"List");
  const std::wstring damages[] = {whole.substr(0, whole.size() / 2), L"?", whole + L" "};
  for (const std::wstring& damage : damages) {
    store_->WriteString(L"Interpreters", L"List", damage);
    const Values before = store_->GetValues();
    EXPECT_EQ(Loaded(), ShippedInterpreters());
    EXPECT_EQ(log_->TakeLines().size(), 1U);
    EXPECT_EQ(store_->GetValues(), before);
    for (const Entries& next : {Entries{Entry(L"new", L"t")}, Entries{}}) {
      Save(next);
      EXPECT_EQ(Loaded(), next);
    }
    EXPECT_EQ(log_->TakeLines().size(), 1U);
  }
  EXPECT_EQ(Text(L"Damaged1"), damages[0]);
  EXPECT_EQ(Text(L"Damaged2"), damages[1]);
  EXPECT_EQ(Text(L"Damaged3"), damages[2]);
  store_->WriteString(L"Interpreters", L"List", damages[1]);
  Save({});
  EXPECT_EQ(Text(L"Damaged4"), L"") << "put aside twice";
}

TEST_F(InterpreterLists, ResyncBringsTheStoredListInLineWithTheMachine) {
  const InterpreterEntry own = Entry(L"own", L"textconverter", false);
  const InterpreterEntry foreign = Entry(L"foreign", L"ifilter");
  const DocumentFilter doc = {L".doc", L"Words", L"/bin/words", L"-x %1"};
  const DocumentFilter dot = {L"dot", L"Words", L"/bin/words"};
  const DocumentFilter pdf = {L"pdf", L"Pages", L"/bin/pages"};
  const auto sync = [this](bool force, std::vector<DocumentFilter> filters) {
    machine_->filters = std::move(filters);
    EXPECT_EQ(manager_->ResyncIFilters(store_, force), S_OK);
    std::vector<std::wstring> rows;
    for (const InterpreterEntry& entry : Loaded()) {
      rows.push_back(entry.key + L"|" + entry.extensions + (entry.enabled ? L"|on" : L""));
    }
    return rows;
  };
  using Rows = std::vector<std::wstring>;
  Save({own, foreign});
  EXPECT_EQ(sync(true, {}), (Rows{L"own|x", L"foreign|x|on"}));
  EXPECT_FALSE(store_->GetValues().contains(L"Filters"));
  EXPECT_EQ(sync(false, {doc, pdf}),
            (Rows{L"own|x", L"foreign|x|on", L"ifilter:Words|doc|on", L"ifilter:Pages|pdf|on"}));
  EXPECT_EQ(Find(Load(), L"ifilter:Words")->GetType(), L"ifilter");

  const InterpreterListHandle list = Load();
  Find(list, L"ifilter:Words")->SetEnabled(false);
  Find(list, L"ifilter:Words")->SetOptionC(true);
  EXPECT_EQ(SaveConfigInterpreterList(store_, list, true), S_OK);
  EXPECT_EQ(sync(false, {doc, dot}), (Rows{L"own|x", L"foreign|x|on", L"ifilter:Words|doc,dot"}));
  EXPECT_TRUE(Find(Load(), L"ifilter:Words")->GetOptionC());

  // A machine that has not changed leaves the list alone, unless it is forced or the record gone.
  Save({own});
  EXPECT_EQ(sync(false, {doc, dot}), (Rows{L"own|x"}));
  EXPECT_EQ(sync(true, {doc, dot}), (Rows{L"own|x", L"ifilter:Words|doc,dot|on"}));
  Save({own});
  store_->WriteString(L"Filters", L"RegFileTypes", L"");
  EXPECT_EQ(sync(false, {doc, dot}), (Rows{L"own|x", L"ifilter:Words|doc,dot|on"}));
  EXPECT_EQ(sync(false, {}), (Rows{L"own|x"}));
  EXPECT_EQ(manager_->ResyncIFilters(nullptr, true), E_FAIL);
}

TEST_F(InterpreterLists, ResettingGivesTheShippedListWithTheFiltersOfTheMachine) {
  Save({Entry(L"own", L"textconverter")});
  machine_->filters = {{L"doc", L"Words", L"/bin/words"}};
  store_->WriteString(L"Filters", L"RegFileTypes", L"");
  EXPECT_EQ(manager_->ResyncIFilters(store_, true), S_OK);
  InterpreterListHandle list;
  ASSERT_EQ(manager_->LoadDefaultList(store_, list), S_OK);
  EXPECT_EQ(Loaded().size(), 2U) << "the default list was stored at once";
  EXPECT_EQ(SaveConfigInterpreterList(store_, list, true), S_OK);
  Entries expected = ShippedInterpreters();
  EXPECT_EQ(Loaded().size(), expected.size() + 1);
  EXPECT_EQ(Loaded().back().key, L"ifilter:Words");
  EXPECT_NE(store_->ReadString(L"Filters", L"RegFileTypes", L""), L"");
  // What is not stored is in line by itself: nothing has to be written.
  store_->Clear();
  EXPECT_EQ(manager_->ResyncIFilters(store_, true), S_OK);
  EXPECT_TRUE(store_->GetValues().empty());
  EXPECT_EQ(Loaded().back().key, L"ifilter:Words");
  EXPECT_EQ(manager_->LoadDefaultList(nullptr, list), E_FAIL);
}

TEST_F(InterpreterLists, EveryOperationFailsWhenTheMachineSaysSo) {
  Save({Entry(L"a", L"t")});
  InterpreterListHandle list, working = Load();
  EntryHandle entry;
  const std::pair<const wchar_t*, std::function<HRESULT()>> calls[] = {
      {L"LoadCurrentConfigInterpreterList",
       [&] { return LoadCurrentConfigInterpreterList(store_, &list); }},
      {L"SaveConfigInterpreterList",
       [&] { return SaveConfigInterpreterList(store_, working, true); }},
      {L"GetAt", [&] { return working->GetAt(0, entry); }},
      {L"FindByKey", [&] { return working->FindByKey(L"a", entry); }},
      {L"LoadDefaultList", [&] { return manager_->LoadDefaultList(store_, list); }},
  };
  const Values before = store_->GetValues();
  for (const auto& [name, call] : calls) {
    SCOPED_TRACE(testing::PrintToString(std::wstring(name)));
    machine_->fails = name;
    EXPECT_EQ(call(), E_FAIL);
    machine_->fails.clear();
    EXPECT_EQ(call(), S_OK);
    EXPECT_EQ(store_->GetValues(), before);
  }
  EXPECT_EQ(LoadCurrentConfigInterpreterList(nullptr, &list), E_FAIL);
  EXPECT_EQ(LoadCurrentConfigInterpreterList(store_, nullptr), E_INVALIDARG);
  EXPECT_EQ(SaveConfigInterpreterList(nullptr, working, true), E_FAIL);
  EXPECT_EQ(SaveConfigInterpreterList(store_, nullptr, true), E_FAIL);
}

}  // namespace
