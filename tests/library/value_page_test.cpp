// The frame of the pages, driven through a page whose table has what the shipped pages lack.

#include "core/value_page.h"

#include "environment.h"
#include "page_fixture.h"

namespace {

using namespace page_values;

constexpr auto kValues = MakeTable({
    {L"T", L"Name", Text(L"none"), Edit(IDC_MAX_SEARCH_MEMORY), 4, 4},
    {L"T", L"Quotes", BoolWrittenAsInt(true), Check(IDC_USE_MEMORY_MANAGER), 1, 1},
    {L"T", L"Flag", Int(0), FlagCheck(IDC_KEEP_CURRENT_SEARCH), 2, 2},
    {L"T", L"Limit", Int(7), Number(IDC_REDUCE_LINES, {10, 20, IDC_USE_MEMORY_MANAGER}), 3, 5},
    {L"T", L"Other", IntDefaultingToRow(3), Number(IDC_REDUCE_CHARS, {1, 99}), 5, 3},
});
constexpr PageDescription kPage = {kValues};

class TestPage : public CValuePage {
 public:
  TestPage() : CValuePage(IDD_MEMORY_PAGE, kPage) {}

  int bound = 0;
  bool refuses = false;
  StoreHandle ownStore;

 protected:
  void BindMembers(CDataExchange*) override { ++bound; }
  StoreHandle GetValueStore() override { return ownStore ? ownStore : GetWorkingStore(); }
  void CheckValues(CDataExchange* exchange) override {
    exchange->PrepareEditCtrl(IDC_MAX_SEARCH_MEMORY);
    if (refuses) exchange->Fail();
  }
};

class ValuePageTest : public PageTest {
 protected:
  using Lines = std::vector<std::wstring>;
  TestPage page;
};

TEST_F(ValuePageTest, ReadsInTableOrderAndWritesInWriteOrder) {
  store->values->WriteInt(L"T", L"Limit", 15);
  store->values->WriteInt(L"T", L"Flag", 7);
  Open(page);
  EXPECT_EQ(store->reads, (Lines{L"text T/Name none", L"bool T/Quotes true", L"int T/Flag 0",
                                 L"int T/Limit 7", L"int T/Other 15"}));
  EXPECT_EQ(Text(page, IDC_MAX_SEARCH_MEMORY), L"none");
  page.SetDlgItemText(IDC_MAX_SEARCH_MEMORY, L"  two words ");
  ASSERT_TRUE(SavePage(page));
  EXPECT_EQ(store->writes, (Lines{L"int T/Quotes 1", L"int T/Flag 1", L"int T/Limit 15",
                                  L"text T/Name   two words ", L"int T/Other 15"}));
}

TEST_F(ValuePageTest, ANegativeFlagIsClear) {
  store->values->WriteInt(L"T", L"Flag", -1);
  store->values->WriteInt(L"T", L"Limit", 15);
  Open(page);
  EXPECT_FALSE(Checked(page, IDC_KEEP_CURRENT_SEARCH));
  ASSERT_TRUE(SavePage(page));
  EXPECT_EQ(store->values->ReadInt(L"T", L"Flag", 9), 0);
}

TEST_F(ValuePageTest, TheFirstBadValueInExchangeOrderIsReported) {
  Open(page);
  page.SetDlgItemText(IDC_REDUCE_LINES, L"9");
  page.SetDlgItemText(IDC_REDUCE_CHARS, L"100");
  bool saved = true;
  const auto messages = AnswerMessages([&] { saved = SavePage(page); });
  EXPECT_FALSE(saved);
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_NE(messages[0].text.find(L"99"), std::wstring::npos) << ToUtf8(messages[0].text);
  EXPECT_TRUE(store->writes.empty());
  EXPECT_TRUE(HasFocus(IDD_MEMORY_PAGE, IDC_REDUCE_CHARS));
}

TEST_F(ValuePageTest, AConditionalRangeIsCheckedWhileItsBoxIsSet) {
  store->values->WriteInt(L"T", L"Other", 5);
  Open(page);
  page.SetDlgItemText(IDC_REDUCE_LINES, L"-3");
  EXPECT_EQ(AnswerMessages([&] { EXPECT_FALSE(SavePage(page)); }).size(), 1U);
  page.CheckDlgButton(IDC_USE_MEMORY_MANAGER, BST_UNCHECKED);
  EXPECT_TRUE(SavePage(page));
  EXPECT_EQ(store->values->ReadInt(L"T", L"Limit", 0), -3);
}

TEST_F(ValuePageTest, ThePagesOwnCheckPreventsEveryWrite) {
  store->values->WriteInt(L"T", L"Limit", 15);
  Open(page);
  page.refuses = true;
  EXPECT_FALSE(SavePage(page));
  EXPECT_TRUE(store->writes.empty());
  page.refuses = false;
  EXPECT_TRUE(SavePage(page));
  EXPECT_EQ(store->writes.size(), 5U);
}

TEST_F(ValuePageTest, APageMayKeepItsValuesInAnotherStore) {
  const auto other = std::make_shared<RecordingStore>();
  other->values->WriteInt(L"T", L"Limit", 12);
  page.ownStore = other;
  Open(page);
  EXPECT_TRUE(SavePage(page));
  EXPECT_EQ(other->writes.size(), 5U);
  EXPECT_TRUE(store->reads.empty());
  EXPECT_TRUE(store->writes.empty());
}

TEST_F(ValuePageTest, MembersAreBoundWithoutAStore) {
  provider.config.reset();
  Open(page);
  EXPECT_EQ(page.bound, 1);
  EXPECT_TRUE(SavePage(page));
  EXPECT_EQ(page.bound, 2);
}

}  // namespace
