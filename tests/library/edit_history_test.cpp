// The dialog that edits histories, used as a person uses it.

#include <QClipboard>

#include "dialogs/history_categories.h"
#include "fake_language.h"
#include "history_fixture.h"
#include "support/fake_machine.h"

namespace {

using Texts = std::vector<std::wstring>;

QListWidget& List() {
  return *static_cast<QListWidget*>(WidgetOf(IDD_EDIT_HISTORY, IDC_HISTORY_LIST));
}
QPlainTextEdit& Edit() {
  return *static_cast<QPlainTextEdit*>(WidgetOf(IDD_EDIT_HISTORY, IDC_HISTORY_EDIT));
}
void ClickRow(int row) {
  List().scrollToItem(List().item(row));
  const QRect place = List().visualItemRect(List().item(row));
  QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, place.center());
}
void Click(int id) { QTest::mouseClick(WidgetOf(IDD_EDIT_HISTORY, id), Qt::LeftButton); }
void Replace(const QString& text) {
  QApplication::clipboard()->setText(text);
  QTest::keyClick(&Edit(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&Edit(), Qt::Key_V, Qt::ControlModifier);
}
std::string Shown() { return Edit().toPlainText().toStdString(); }

class EditHistoryTest : public testing::Test {
 protected:
  EditHistoryTest() {
    Put(L"RecentFileName", {L"*.txt", L"*.cpp"});
    Put(L"RecentContains", {L"needle"});
    Put(L"RecentFolders", {L"/home", L"a\u00A0b", L"/tmp"});
    config->WriteInt(L"Options", L"MaxDropDownHistory", 5);
  }

  void Put(const wchar_t* section, const Texts& entries) {
    store->ClearSection(section);
    int key = 0;
    for (const std::wstring& entry : entries) {
      store->WriteString(section, std::to_wstring(key++), entry);
    }
  }
  Texts Kept(const wchar_t* section) const {
    Texts entries;
    const auto values = store->GetValues().find(section);
    if (values == store->GetValues().end()) return entries;
    for (std::size_t key = 0; key < values->second.size(); ++key) {
      entries.push_back(store->ReadString(section, std::to_wstring(key), L"missing"));
    }
    return entries;
  }

  BRISQUEL::Status Run(std::function<void()> act) {
    const Person person(IDD_EDIT_HISTORY, std::move(act));
    BRISQUEL::Status status = -1;
    messages =
        AnswerMessages([&] { status = BRISQUEL::OpenEditHistoryDialog(nullptr, store, config); });
    return status;
  }

  std::shared_ptr<HOLLERIN::Store> store = HOLLERIN::CreateStore();
  std::shared_ptr<HOLLERIN::Store> config = HOLLERIN::CreateStore();
  std::vector<ShownMessage> messages;
};

TEST(HistoryCategories, HaveASectionAndAName) {
  const auto language = std::make_shared<FakeLanguage>();
  for (const unsigned number :
       {318U, 322U, 345U, 445U, 634U, 649U, 797U, 903U, 923U, 1065U, 1066U, 1067U}) {
    language->strings[number] = L"s" + std::to_wstring(number);
  }
  language->placeholders = {{{140, 8}, L"d8"}, {{140, 19}, L"d19"}};
  const ScopedLanguage scope(language);
  const std::pair<const wchar_t*, const wchar_t*> kCategories[] = {
      {L"RecentFolders", L"s322"},
      {L"RecentFileName", L"s445"},
      {L"RecentContains", L"s318"},
      {L"ScriptEngine", L"s634"},
      {L"RecentTransform", L"d8"},
      {L"RecentSaveResults", L"d19"},
      {L"RecentBulkCopy", L"s649 (s345)"},
      {L"RecentBulkZip", L"s1065"},
      {L"RecentSearchSession", L"s1066"},
      {L"RecentWorkspace", L"s1067"},
      {L"RecentIndex", L"s797"},
      {L"RecentFileNameLists", L"s903 (s445)"},
      {L"RecentContainingTextLists", L"s903 (s318)"},
      {L"RecentIndexGroups", L"s923"},
      {L"unknown-14", L"unknown-14"},
  };
  int number = 0;
  for (const auto& [section, name] : kCategories) {
    EXPECT_EQ(HistorySection(number), section);
    EXPECT_EQ(HistoryName(number++), name);
  }
  EXPECT_EQ(HistorySection(-2), L"unknown--2");
}

TEST_F(EditHistoryTest, ShowsTheHistoriesInTheirOrder) {
  Process().uiLink = nullptr;
  EXPECT_EQ(
      Run([] {
        QStringList rows;
        for (int row = 0; row < List().count(); ++row) rows << List().item(row)->text();
        QStringList names;
        for (const int number : {1, 2, 0, -1, 5, 8, 9, 6, 7, 4, 11, 12, -1, 10, 13}) {
          names << (number < 0 ? QString() : QString::fromStdWString(HistoryName(number).Str()));
        }
        EXPECT_EQ(rows, names);
        EXPECT_EQ(List().currentRow(), 0);
        EXPECT_EQ(Shown(), "*.txt\n*.cpp");
        EXPECT_EQ(List().accessibleName(), "Histories");
        EXPECT_EQ(Edit().accessibleName(), "File name");
        EXPECT_FALSE(WidgetOf(IDD_EDIT_HISTORY, IDOK)->window()->windowTitle().isEmpty());
        List().setFocus();
        QTest::keyClick(&List(), Qt::Key_Tab);
        EXPECT_TRUE(HasFocus(IDD_EDIT_HISTORY, IDC_HISTORY_EDIT));
        QTest::keyClick(&Edit(), Qt::Key_Tab);
        EXPECT_TRUE(HasFocus(IDD_EDIT_HISTORY, IDOK));
      }),
      1);
  EXPECT_NE(Process().uiLink, nullptr);
}

TEST_F(EditHistoryTest, StoresWhenTheHistoryChangesAndOnOk) {
  EXPECT_EQ(Run([] {
              Replace("new\n*.txt\n\nnew\n");
              ClickRow(2);
              EXPECT_EQ(Edit().document()->toRawText(),
                        QString::fromUtf16(u"/home\u2029a\u00A0b\u2029/tmp"));
              ClickRow(0);
              EXPECT_EQ(Shown(), "new\n*.txt");
              // A separator stores the history shown and leaves it there.
              Replace("newest");
              ClickRow(3);
              EXPECT_EQ(Shown(), "newest");
              QTest::keyClick(&Edit(), Qt::Key_End, Qt::ControlModifier);
              QTest::keyClick(&Edit(), Qt::Key_Return);
              QTest::keyClicks(&Edit(), "by keys");
              Click(IDOK);
            }),
            0);
  EXPECT_EQ(Kept(L"RecentFileName"), (Texts{L"newest", L"by keys"}));
  EXPECT_EQ(Kept(L"RecentFolders"), (Texts{L"/home", L"a\u00A0b", L"/tmp"}));
  EXPECT_EQ(Kept(L"RecentContains"), Texts{L"needle"});
  EXPECT_TRUE(messages.empty());
}

TEST_F(EditHistoryTest, CancelPutsTheStoreBack) {
  const HOLLERIN::Values before = store->GetValues();
  EXPECT_EQ(Run([] {
              Replace("gone");
              ClickRow(1);
              Click(IDCANCEL);
            }),
            1);
  EXPECT_EQ(store->GetValues(), before);
}

TEST_F(EditHistoryTest, CutsAVeryLongTextToTheMaximum) {
  const struct {
    std::optional<std::int32_t> maximum;
    std::size_t kept;
  } kCases[] = {{5, 5}, {999, 999}, {0, 0}, {-3, 25}, {std::nullopt, 25}};
  QStringList lines;
  for (int line = 0; line < 100000; ++line) lines << QStringLiteral("line %1").arg(line);
  const QString text = lines.join('\n');
  for (const auto& row : kCases) {
    config->Clear();
    if (row.maximum) config->WriteInt(L"Options", L"MaxDropDownHistory", *row.maximum);
    EXPECT_EQ(Run([&] {
                Replace(text);
                EXPECT_EQ(Edit().blockCount(), 100000);
                Click(IDOK);
              }),
              0);
    const Texts kept = Kept(L"RecentFileName");
    ASSERT_EQ(kept.size(), row.kept);
    if (kept.empty()) continue;
    EXPECT_EQ(kept.back(), L"line " + std::to_wstring(kept.size() - 1));
  }
}

TEST_F(EditHistoryTest, AHistoryThatCannotBeStoredStaysShown) {
  ScopedMachine machine;
  EXPECT_EQ(Run([&] {
              machine->fails = L"SetItems";
              Replace("precious");
              ClickRow(2);
              EXPECT_EQ(List().currentRow(), 0);
              Click(IDOK);
              EXPECT_EQ(Shown(), "precious");
              machine->fails.clear();
              Click(IDOK);
            }),
            0);
  EXPECT_EQ(messages.size(), 2U);
  EXPECT_NE(messages.at(0).text.find(L"Saving history changes"), std::wstring::npos);
  EXPECT_EQ(Kept(L"RecentFileName"), Texts{L"precious"});
}

TEST_F(EditHistoryTest, WithoutHistoriesNothingIsWritten) {
  ScopedMachine machine;
  const HOLLERIN::Values before = store->GetValues();
  for (const wchar_t* operation : {L"CreateLoadComboReg", L"GetItems"}) {
    machine->fails = operation;
    EXPECT_EQ(Run([] {
                EXPECT_EQ(Shown(), "Select a history to edit its entries here, one on each line.");
                Click(IDOK);
              }),
              0);
    EXPECT_EQ(messages.size(), 1U);
    EXPECT_EQ(store->GetValues(), before);
  }
}

TEST_F(EditHistoryTest, GrowsWithTheDialog) {
  Run([] {
    const QRect list = List().geometry(), edit = Edit().geometry();
    QWidget* window = List().window();
    window->resize(window->width() + 60, window->height() + 40);
    ToolkitApplication::ProcessEvents();
    EXPECT_EQ(List().geometry(), list.adjusted(0, 0, 0, 40));
    EXPECT_EQ(Edit().geometry(), edit.adjusted(0, 0, 60, 40));
  });
}

}  // namespace
