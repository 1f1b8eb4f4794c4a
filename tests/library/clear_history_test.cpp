// The dialog that clears histories, used as a person uses it.

#include "history_fixture.h"

namespace {

constexpr int kBoxes[] = {IDC_CLEAR_ALL, IDC_CLEAR_FILE_NAME, IDC_CLEAR_LOOK_IN,
                          IDC_CLEAR_CONTAINING};

void Click(int id) {
  QWidget* widget = WidgetOf(IDD_CLEAR_HISTORY, id);
  QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(6, widget->height() / 2));
}

class ClearHistoryTest : public testing::Test {
 protected:
  ClearHistoryTest() {
    for (const wchar_t* section :
         {L"RecentFileName", L"RecentFolders", L"RecentContains", L"RecentIndex"}) {
      store->values->WriteString(section, L"0", L"entry");
    }
    settings = CClearHistorySettings(store);
    settings.FileName = settings.LookIn = settings.Containing = settings.All = false;
  }

  BRISQUEL::Status Run(std::function<void()> act, CClearHistorySettings* given) {
    const Person person(IDD_CLEAR_HISTORY, std::move(act));
    BRISQUEL::Status status = -1;
    messages =
        AnswerMessages([&] { status = BRISQUEL::OpenClearHistoryDialog(nullptr, given, history); });
    return status;
  }
  BRISQUEL::Status Run(std::function<void()> act) { return Run(std::move(act), &settings); }

  /// The settings and the history in one store, so that the order of all writes is seen.
  std::shared_ptr<HistoryStore> store = std::make_shared<HistoryStore>();
  BRISQUEL::StoreHandle history = store;
  CClearHistorySettings settings;
  std::vector<ShownMessage> messages;
};

TEST_F(ClearHistoryTest, ClearsAndRemembersWhatIsChecked) {
  const struct {
    std::vector<int> boxes;
    std::vector<std::wstring> writes;
    std::size_t sections;  ///< What is left, the remembered choice included.
  } kCases[] = {
      {{},
       {L"bool ClearHistory/FileName false", L"bool ClearHistory/LookIn false",
        L"bool ClearHistory/Containing false", L"bool ClearHistory/All false", L"save"},
       5},
      {{IDC_CLEAR_LOOK_IN},
       {L"clear RecentFolders", L"bool ClearHistory/FileName false",
        L"bool ClearHistory/LookIn true", L"bool ClearHistory/Containing false",
        L"bool ClearHistory/All false", L"save"},
       4},
      {{IDC_CLEAR_FILE_NAME, IDC_CLEAR_CONTAINING, IDC_CLEAR_ALL},
       {L"clear RecentFileName", L"clear RecentContains", L"clear all",
        L"bool ClearHistory/FileName true", L"bool ClearHistory/LookIn false",
        L"bool ClearHistory/Containing true", L"bool ClearHistory/All true", L"save"},
       1},
  };
  const std::wstring before = [this] {
    std::wstring text;
    store->SaveToText(text);
    return text;
  }();
  for (const auto& row : kCases) {
    store->LoadFromText(before);
    store->writes.clear();
    settings.FileName = settings.LookIn = settings.Containing = settings.All = false;
    EXPECT_EQ(Run([&] {
                for (const int box : row.boxes) Click(box);
                Click(IDC_CLEAR_HISTORY);
              }),
              0);
    EXPECT_EQ(store->writes, row.writes);
    EXPECT_EQ(store->values->GetValues().size(), row.sections);
    EXPECT_TRUE(messages.empty());
  }
}

TEST_F(ClearHistoryTest, TheBoxOfAllDisablesTheOthersAndLeavesThemAsTheyWere) {
  settings.All = settings.LookIn = true;
  const auto enabled = [] {
    std::vector<int> ids;
    for (const int id : kBoxes) {
      if (WidgetOf(IDD_CLEAR_HISTORY, id)->isEnabled()) ids.push_back(id);
    }
    return ids;
  };
  EXPECT_EQ(Run([&] {
              EXPECT_EQ(enabled(), std::vector<int>{IDC_CLEAR_ALL});
              Click(IDC_CLEAR_ALL);
              EXPECT_EQ(enabled(), std::vector<int>(std::begin(kBoxes), std::end(kBoxes)));
              Click(IDC_CLEAR_ALL);
              EXPECT_EQ(enabled(), std::vector<int>{IDC_CLEAR_ALL});
              QTest::keyClick(WidgetOf(IDD_CLEAR_HISTORY, IDC_CLEAR_ALL), Qt::Key_Return);
            }),
            0);
  EXPECT_TRUE(settings.All && settings.LookIn);
  EXPECT_FALSE(settings.FileName || settings.Containing);
}

TEST_F(ClearHistoryTest, CancelChangesNothing) {
  Process().uiLink = nullptr;
  EXPECT_EQ(Run([] {
              for (const int box : kBoxes) Click(box);
              Click(IDCANCEL);
            }),
            1);
  EXPECT_TRUE(store->writes.empty());
  EXPECT_FALSE(settings.All || settings.FileName || settings.LookIn || settings.Containing);
  EXPECT_EQ(Process().uiLink, nullptr);
}

TEST_F(ClearHistoryTest, AFailureIsReportedAndTheDialogCloses) {
  const auto clear = [] {
    Click(IDC_CLEAR_LOOK_IN);
    Click(IDC_CLEAR_HISTORY);
  };
  store->saveStatus = E_FAIL;
  TakeLog();
  EXPECT_EQ(Run(clear), 0);
  ASSERT_EQ(messages.size(), 1U);
  EXPECT_EQ(messages[0].caption, L"Application Error");
  for (const wchar_t* part : {L"Saving history changes", L"Clearing the history", L"80004005"}) {
    EXPECT_NE((messages[0].text + messages[0].heading).find(part), std::wstring::npos)
        << ToUtf8(messages[0].text);
  }
  EXPECT_FALSE(TakeLog().empty());
  EXPECT_EQ(store->values->GetValues().count(L"RecentFolders"), 0U);
  history = nullptr;
  EXPECT_EQ(Run(clear), 0);
  EXPECT_EQ(messages.size(), 1U);
}

TEST_F(ClearHistoryTest, WithoutSettingsAllIsChosenAndNothingRemembered) {
  EXPECT_EQ(Run([] { Click(IDC_CLEAR_HISTORY); }, nullptr), 0);
  EXPECT_TRUE(store->values->GetValues().empty());
}

}  // namespace
