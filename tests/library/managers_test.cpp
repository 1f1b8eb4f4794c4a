// The page tree's managers and entries.

#include "core/config_mgr.h"

#include "core/config_entry_generic.h"
#include "core/tree_builder.h"
#include "environment.h"
#include "foundation/language.h"
#include "page_fixture.h"
#include "pages/formats/hash_page.h"
#include "resources/text_ids.h"

namespace {

class FakeEntry : public INTERNAL_IFC::IConfigEntry, public INTERNAL_IFC::IPublisher {
 public:
  FakeEntry(std::int32_t id, HRESULT status = S_OK) : pageId(id), status_(status) {}
  std::shared_ptr<CDialog> GetDialog(CWnd*, INTERNAL_IFC::IConfigDataProvider*) override {
    return nullptr;
  }
  CString GetTitle() override { return std::to_wstring(pageId); }
  std::int32_t GetPageId() override { return pageId; }
  std::uint32_t GetExtraValue() override { return 0; }
  HRESULT Apply() override {
    ++applied;
    if (raises) throw std::runtime_error("cannot be written");
    return status_;
  }
  std::int32_t GetImageIndex() override { return -1; }
  HRESULT Subscribe(INTERNAL_IFC::IObserver*,
                    std::shared_ptr<INTERNAL_IFC::IObserverParms> parms) override {
    subscription = std::dynamic_pointer_cast<CTreeViewParms>(parms);
    return S_OK;
  }

  std::int32_t pageId;
  int applied = 0;
  bool raises = false;
  std::shared_ptr<CTreeViewParms> subscription;

 private:
  HRESULT status_;
};

class FakeGroup : public CConfigMgrBase {
 public:
  explicit FakeGroup(EntryList children) : CConfigMgrBase(L"group", 50, 2) {
    for (EntryHandle& child : children) AddChild(std::move(child));
  }
  std::shared_ptr<CDialog> CreateGroupDialog(CWnd*, INTERNAL_IFC::IConfigDataProvider*) override {
    return nullptr;
  }
};

INTERNAL_IFC::IConfigParent& AsParent(const EntryHandle& entry) {
  return dynamic_cast<INTERNAL_IFC::IConfigParent&>(*entry);
}

class ManagersTest : public PageTest {
 protected:
  /// The page with that id, opened as the main dialog opens it.
  std::shared_ptr<CDialog> OpenEntry(CConfigMgr& root, std::int32_t pageId) {
    EntryList groups;
    root.GetChildren(groups);
    for (const EntryHandle& group : groups) {
      EntryList pages;
      AsParent(group).GetChildren(pages);
      pages.push_back(group);
      for (const EntryHandle& page : pages) {
        if (page->GetPageId() == pageId) return page->GetDialog(&host, &provider);
      }
    }
    return nullptr;
  }
};

TEST_F(ManagersTest, TheTreeHasItsGroupsAndPagesInOrder) {
  struct Node {
    unsigned title;
    std::int32_t pageId;
    std::int32_t image;
    std::vector<std::int32_t> pages;
  };
  const Node expected[] = {{TextId::kGroupGeneral, 4, 0, {7, 5, 27, 29, 6, 10, 12, 26, 30, 24}},
                           {TextId::kGroupExpressions, 22, 1, {19, 23, 21, 20}},
                           {TextId::kGroupEditor, 8, 2, {2, 3, 25}},
                           {TextId::kGroupAdvanced, 13, 3, {17, 11, 16, 28, 9, 14}},
                           {TextId::kGroupExtensions, 1, 4, {15, 18}}};
  CConfigMgr root(store);
  EntryList groups(7);
  ASSERT_EQ(root.GetChildren(groups), 5);
  for (std::size_t index = 0; index < groups.size(); ++index) {
    const Node& node = expected[index];
    EXPECT_EQ(groups[index]->GetTitle(), LanguageString(node.title));
    EXPECT_EQ(groups[index]->GetPageId(), node.pageId);
    EXPECT_EQ(groups[index]->GetImageIndex(), node.image);
    EXPECT_EQ(groups[index]->GetExtraValue(), 0U);
    EntryList pages;
    const int count = AsParent(groups[index]).GetChildren(pages);
    EXPECT_EQ(count, static_cast<int>(pages.size()));
    std::vector<std::int32_t> ids;
    for (const EntryHandle& page : pages) {
      // The pages of interpreters have no ids.
      if (page->GetPageId() != -1) ids.push_back(page->GetPageId());
      EXPECT_EQ(page->GetImageIndex(), -1);
      EXPECT_FALSE(page->GetTitle().IsEmpty());
    }
    EXPECT_EQ(ids, node.pages);
  }
}

TEST_F(ManagersTest, TitlesAreReadWhenTheNodesAreMade) {
  EntryList groups;
  {
    const ScopedLanguage none(nullptr);
    CConfigMgr(store).GetChildren(groups);
  }
  for (const EntryHandle& group : groups) EXPECT_EQ(group->GetTitle(), kNoLanguage);
}

TEST_F(ManagersTest, EveryPageIsMadeOnceOnItsTemplate) {
  CConfigMgr root(store);
  for (const PageRow& row : PageTreePages()) {
    const auto page = OpenEntry(root, row.pageId);
    ASSERT_NE(page, nullptr) << row.pageId;
    EXPECT_NE(page->GetSafeHwnd(), nullptr);
    EXPECT_EQ(page->GetTemplateId(), row.templateId);
    EXPECT_EQ(page, OpenEntry(root, row.pageId));
  }
  for (const GroupRow& row : PageTreeGroups()) {
    const auto page = OpenEntry(root, row.pageId);
    ASSERT_NE(page, nullptr) << row.pageId;
    EXPECT_EQ(page->GetTemplateId(), row.templateId);
    EXPECT_EQ(page, OpenEntry(root, row.pageId));
    AdoptPage(*page);
    EXPECT_TRUE(page->IsWindowEnabled());
  }
}

TEST_F(ManagersTest, ApplyingATreeWithoutOpenPagesWritesNothing) {
  CConfigMgr root(store);
  EXPECT_EQ(root.Apply(), S_OK);
  EXPECT_TRUE(store->writes.empty());
}

TEST_F(ManagersTest, ARefusedPageStopsTheApplyBehindThePagesBeforeIt) {
  CConfigMgr root(store);
  OpenEntry(root, 27);
  OpenEntry(root, 19);  // Its distance is 0, which it refuses.
  OpenEntry(root, 20);
  HRESULT status = S_OK;
  EXPECT_EQ(AnswerMessages([&] { status = root.Apply(); }).size(), 1U);
  EXPECT_EQ(status, E_FAIL);
  EXPECT_EQ(store->values->GetValues().at(L"Options").count(L"OnePhaseSearch"), 1U);
  EXPECT_EQ(store->values->GetValues().at(L"Options").count(L"HashingAlgorithms"), 0U);
}

TEST_F(ManagersTest, AFailureIsLoggedAndStopsTheRest) {
  const auto first = std::make_shared<FakeEntry>(1);
  const auto failing = std::make_shared<FakeEntry>(2, E_OUTOFMEMORY);
  const auto last = std::make_shared<FakeEntry>(3);
  const EntryList tree = {std::make_shared<FakeGroup>(EntryList{first, failing}), last};
  TakeLog();
  EXPECT_EQ(ApplyEntries(tree), E_OUTOFMEMORY);
  EXPECT_EQ(first->applied, 1);
  EXPECT_EQ(failing->applied, 1);
  EXPECT_EQ(last->applied, 0);
  const std::vector<std::wstring> log = TakeLog();
  ASSERT_FALSE(log.empty());
  EXPECT_NE(log[0].find(L"Applying configuration"), std::wstring::npos) << ToUtf8(log[0]);

  failing->raises = true;
  EXPECT_LT(ApplyEntries(tree), 0);
  EXPECT_EQ(last->applied, 0);
}

TEST_F(ManagersTest, APageWhoseLoadRaisedIsNotKept) {
  CConfigEntryGeneric<CConfigEntryExprHashDlg> entry(L"Hash", 20);
  store->failsReading = true;
  EXPECT_THROW(entry.GetDialog(&host, &provider), std::runtime_error);
  EXPECT_EQ(entry.Apply(), S_OK);
  EXPECT_TRUE(store->writes.empty());
  store->failsReading = false;
  EXPECT_NE(entry.GetDialog(&host, &provider), nullptr);
  EXPECT_EQ(entry.Apply(), S_OK);
  EXPECT_EQ(store->writes.size(), 1U);
}

/// A page on a template that does not exist.
class HomelessPage : public CConfigDialog {
 public:
  HomelessPage() : CConfigDialog(1) {}
};

TEST_F(ManagersTest, APageWithoutWindowIsReportedKeptAndNeverSaved) {
  CConfigEntryGeneric<HomelessPage> entry(L"Homeless", 99);
  std::shared_ptr<CDialog> page;
  const auto messages = AnswerMessages([&] { page = entry.GetDialog(&host, &provider); });
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_EQ(messages[0].text, L"Unable to create extension dlg");
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(page->GetSafeHwnd(), nullptr);
  EXPECT_EQ(entry.GetDialog(&host, &provider), page);
  EXPECT_EQ(entry.Apply(), S_OK);
}

class IgnoringObserver : public INTERNAL_IFC::IObserver {
 public:
  HRESULT GetObserverId(std::uint32_t&) override { return E_NOTIMPL; }
  HRESULT Notify(std::uint32_t, INTERNAL_IFC::IObserverParms*) override { return S_OK; }
};

TEST_F(ManagersTest, TheTreeHoldsEveryEntryAndTheLastMatchIsFound) {
  const auto leaf = std::make_shared<FakeEntry>(7);
  const auto again = std::make_shared<FakeEntry>(7);
  FakeGroup root({std::make_shared<FakeGroup>(EntryList{leaf}), again});
  CTreeCtrl tree;
  ASSERT_TRUE(tree.SubclassDlgItem(IDC_PAGE_TREE, &host));
  IgnoringObserver observer;
  HTREEITEM found = nullptr;
  BuildTree(tree, observer, root, TVI_ROOT, 7, found);
  const HTREEITEM group = tree.GetRootItem();
  ASSERT_NE(group, nullptr);
  EXPECT_EQ(tree.GetItemText(group), L"group");
  const HTREEITEM child = tree.GetChildItem(group);
  EXPECT_EQ(EntryOf(tree, child), leaf.get());
  EXPECT_EQ(tree.GetNextSiblingItem(group), found);
  EXPECT_EQ(EntryOf(tree, found), again.get());
  ASSERT_NE(leaf->subscription, nullptr);
  EXPECT_EQ(leaf->subscription->Item(), child);
  EXPECT_EQ(again->subscription->Item(), found);
  EXPECT_EQ(EntryOf(tree, nullptr), nullptr);
}

}  // namespace
