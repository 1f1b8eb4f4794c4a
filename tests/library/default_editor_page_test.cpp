// The page of the default editor, whose value has rules of its own.

#include "pages/formats/default_editor_page.h"

#include <QAbstractButton>
#include <QButtonGroup>

#include "environment.h"
#include "page_fixture.h"
#include "support/fake_machine.h"

namespace {

constexpr const wchar_t* kKey = L"UseExternalAsDefault";
constexpr int kButtons[] = {IDC_EDITOR_DESKTOP, IDC_EDITOR_VIEWER, IDC_EDITOR_OWN,
                            IDC_EDITOR_EXTERNAL};

class DefaultEditorPage : public PageTest {
 protected:
  using Lines = std::vector<std::wstring>;

  DefaultEditorPage() { machine_->editors = {{L"gamma"}, {L"Alpha"}, {L"Beta", true}}; }
  /// The one radio button that is checked; 0 for none.
  static int CheckedButton(const CWnd& page) {
    int checked = 0;
    for (const int id : kButtons) {
      if (!Checked(page, id)) continue;
      EXPECT_EQ(checked, 0);
      checked = id;
    }
    return checked;
  }
  static CComboBox& Combo(const CWnd& page) {
    return dynamic_cast<CComboBox&>(*page.GetDlgItem(IDC_EDITOR_LIST));
  }

  ScopedMachine machine_;
};

TEST_F(DefaultEditorPage, TheStoredNumberChecksItsButtonAndIsSavedBack) {
  const struct {
    std::optional<int> stored;
    int button, saved;
  } kCases[] = {{std::nullopt, IDC_EDITOR_VIEWER, 3},
                {0, IDC_EDITOR_VIEWER, 3},
                {1, IDC_EDITOR_OWN, 1},
                {2, IDC_EDITOR_EXTERNAL, 2},
                {3, IDC_EDITOR_VIEWER, 3},
                {4, IDC_EDITOR_DESKTOP, 4},
                {5, 0, 3},
                {-1, 0, 3}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.stored.value_or(99));
    store->values->Clear();
    if (row.stored) store->values->WriteInt(L"Editor", kKey, *row.stored);
    CConfigEntryEditorDefaultDlg page;
    Open(page);
    EXPECT_EQ(CheckedButton(page), row.button);
    store->reads.clear();
    store->writes.clear();
    EXPECT_TRUE(SavePage(page));
    EXPECT_EQ(store->writes,
              Lines{L"int Editor/UseExternalAsDefault " + std::to_wstring(row.saved)});
    for (const std::wstring& read : store->reads) EXPECT_EQ(read.find(kKey), read.npos);
  }
}

TEST_F(DefaultEditorPage, ButtonsCountInTheirOrderOfPrecedence) {
  const struct {
    std::vector<int> checked;
    int saved;
  } kCases[] = {{{IDC_EDITOR_EXTERNAL, IDC_EDITOR_OWN, IDC_EDITOR_DESKTOP}, 2},
                {{IDC_EDITOR_OWN, IDC_EDITOR_VIEWER}, 1},
                {{IDC_EDITOR_DESKTOP, IDC_EDITOR_VIEWER}, 3},
                {{IDC_EDITOR_DESKTOP}, 4},
                {{}, 3}};
  for (const auto& row : kCases) {
    store->values->WriteInt(L"Editor", kKey, 9);
    CConfigEntryEditorDefaultDlg page;
    Open(page);
    // As in a group whose buttons do not exclude each other.
    const auto button = [](int id) {
      return qobject_cast<QAbstractButton*>(WidgetOf(IDD_DEFAULT_EDITOR_PAGE, id));
    };
    button(kButtons[0])->group()->setExclusive(false);
    for (const int id : row.checked) button(id)->setChecked(true);
    EXPECT_TRUE(SavePage(page));
    EXPECT_EQ(store->values->ReadInt(L"Editor", kKey, 0), row.saved);
  }
}

TEST_F(DefaultEditorPage, EditorsAreSortedAndTheChosenOneIsRememberedLast) {
  CConfigEntryEditorDefaultDlg page;
  Open(page);
  CComboBox& combo = Combo(page);
  ASSERT_EQ(combo.GetCount(), 3);
  Lines names(3);
  for (int row = 0; row < 3; ++row) {
    CString name;
    combo.GetLBText(row, name);
    names[static_cast<std::size_t>(row)] = name.Str();
  }
  EXPECT_EQ(names, (Lines{L"Alpha", L"Beta", L"gamma"}));
  EXPECT_EQ(combo.GetCurSel(), 1);
  EXPECT_EQ(WidgetOf(IDD_DEFAULT_EDITOR_PAGE, IDC_EDITOR_LIST)->accessibleName().toStdWString(),
            Text(page, IDC_EDITOR_LIST_HEADING));
  combo.SetCurSel(2);
  Click(page, IDC_EDITOR_EXTERNAL);
  EXPECT_TRUE(SavePage(page));
  EXPECT_EQ(store->writes,
            (Lines{L"int Editor/UseExternalAsDefault 2", L"text Editor/DefaultExternal gamma"}));
  store->writes.clear();
  combo.SetCurSel(-1);
  EXPECT_TRUE(SavePage(page));
  EXPECT_EQ(store->writes, Lines{L"int Editor/UseExternalAsDefault 2"});
}

TEST_F(DefaultEditorPage, WithoutADefaultTheFirstRowIsSelected) {
  machine_->editors = {{L"B"}, {L"A"}};
  CConfigEntryEditorDefaultDlg page;
  Open(page);
  EXPECT_EQ(Combo(page).GetCurSel(), 0);
  EXPECT_TRUE(SavePage(page));
  EXPECT_EQ(store->values->ReadString(L"Editor", L"DefaultExternal", L""), L"A");
}

TEST_F(DefaultEditorPage, WithoutEditorsTheirControlsAreDisabled) {
  const struct {
    std::vector<EditorFact> editors;
    const wchar_t* fails;
    bool enabled;
    int rows;
  } kCases[] = {{{}, L"", false, 0},
                {{{L"A"}}, L"", true, 1},
                {{{L"A"}}, L"GetEditors", true, 0},
                {{{L"A"}}, L"CreateExternalEditorMgr", false, 0}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(ToUtf8(row.fails));
    store->values->Clear();
    machine_->editors = row.editors;
    machine_->fails = row.fails;
    store->values->WriteInt(L"Editor", kKey, 2);
    CConfigEntryEditorDefaultDlg page;
    TakeLog();
    Open(page);
    EXPECT_EQ(TakeLog().empty(), *row.fails == 0);
    for (const int id : {IDC_EDITOR_EXTERNAL, IDC_EDITOR_LIST, IDC_EDITOR_LIST_HEADING}) {
      EXPECT_EQ(Enabled(page, id), row.enabled) << id;
    }
    EXPECT_EQ(Combo(page).GetCount(), row.rows);
    EXPECT_EQ(CheckedButton(page), IDC_EDITOR_EXTERNAL);
    store->writes.clear();
    Click(page, IDC_EDITOR_OWN);
    EXPECT_TRUE(SavePage(page));
    EXPECT_EQ(store->writes.size(), row.rows == 0 ? 1U : 2U);
    EXPECT_EQ(store->values->ReadInt(L"Editor", kKey, 0), 1);
  }
}

TEST_F(DefaultEditorPage, WithoutStoreTheEditorsAreListedAndNothingIsKept) {
  provider.config.reset();
  CConfigEntryEditorDefaultDlg page;
  Open(page);
  EXPECT_EQ(Combo(page).GetCount(), 3);
  EXPECT_EQ(Combo(page).GetCurSel(), 1);
  EXPECT_TRUE(SavePage(page));
  EXPECT_TRUE(store->reads.empty());
  EXPECT_TRUE(store->writes.empty());
}

}  // namespace
