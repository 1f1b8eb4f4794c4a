// The pages of the editor's parameters and of the settings for special needs.

#include "environment.h"
#include "foundation/language.h"
#include "page_fixture.h"
#include "pages/formats/external_editor_page.h"
#include "pages/formats/file_list_page.h"
#include "pages/formats/junctions_page.h"
#include "pages/formats/transform_page.h"
#include "resources/text_ids.h"
#include "support/fake_machine.h"

namespace {

using ExternalEditorPage = Geometry::CGeometryDynCreateWnd<CConfigEntryEditorExternalDlg>;
using Lines = std::vector<std::wstring>;

class AdvancedPages : public PageTest {};

TEST_F(AdvancedPages, StoredParametersSelectTheirEditorWhenTheyAreExactlyItsOwn) {
  const struct {
    const wchar_t* parameters;
    int row;
  } kCases[] = {{LR"~("$(FILEPATH)" -n$(LINENUM))~", 3},
                {LR"~("$(FILEPATH)" -n$(LINENUM) )~", -1},
                {LR"~("$(FILEPATH)" -N$(LINENUM))~", -1},
                {LR"~(--remote-silent-tab +$(LINENUM) "$(FILEPATH)")~", 8},
                {LR"~(-g "$(FILEPATH)":$(LINENUM))~", 9},
                {L"", -1}};
  for (const auto& row : kCases) {
    store->values->WriteString(L"Editor", L"ExternalParms", row.parameters);
    ExternalEditorPage page;
    Open(page);
    const auto& combo = dynamic_cast<const CComboBox&>(*page.GetDlgItem(IDC_KNOWN_EDITOR));
    EXPECT_EQ(combo.GetCount(), 10);
    EXPECT_EQ(combo.GetCurSel(), row.row) << ToUtf8(row.parameters);
  }
}

TEST_F(AdvancedPages, ThePathIsNamedByTheLabelAtTheEnd) {
  ExternalEditorPage page;
  Open(page);
  const auto name = [](int id) { return WidgetOf(IDD_EXTERNAL_EDITOR_PAGE, id)->accessibleName(); };
  EXPECT_EQ(name(IDC_EDITOR_PATH), QStringLiteral("Path of the editor"));
  EXPECT_EQ(name(IDC_KNOWN_EDITOR), QStringLiteral("Known editors"));
  EXPECT_EQ(name(IDC_EDITOR_PARAMETERS), QStringLiteral("Command-line parameters"));
}

TEST_F(AdvancedPages, AFolderListIsAlwaysAllowed) {
  for (const bool given : {true, false}) {
    if (!given) provider.config.reset();
    CConfigEntryAdvFileListDlg page;
    Open(page);
    EXPECT_TRUE(Checked(page, IDC_LOOK_IN_FILE_LIST));
    EXPECT_FALSE(Enabled(page, IDC_LOOK_IN_FILE_LIST));
    page.CheckDlgButton(IDC_LOOK_IN_FILE_LIST, BST_UNCHECKED);
    store->writes.clear();
    EXPECT_TRUE(SavePage(page));
    EXPECT_EQ(store->writes.size(), given ? 2U : 0U);
    page.UpdateData(FALSE);
    EXPECT_TRUE(Checked(page, IDC_LOOK_IN_FILE_LIST));
  }
}

TEST_F(AdvancedPages, HiddenJunctionsFollowTheirSwitchAndKeepTheirState) {
  store->values->WriteInt(L"Options", L"SearchJunctionPoints", 1);
  store->values->WriteInt(L"Options", L"ExcludeSystemHiddenJunctionPoints", 1);
  CConfigEntryAdvJunctionsDlg page;
  Open(page);
  EXPECT_TRUE(Enabled(page, IDC_EXCLUDE_HIDDEN_JUNCTIONS));
  Click(page, IDC_SEARCH_JUNCTIONS);
  EXPECT_FALSE(Enabled(page, IDC_EXCLUDE_HIDDEN_JUNCTIONS));
  EXPECT_TRUE(SavePage(page));
  EXPECT_EQ(store->writes[0], L"int Options/SearchJunctionPoints 0");
  EXPECT_EQ(store->writes[1], L"int Options/ExcludeSystemHiddenJunctionPoints 1");
  Click(page, IDC_SEARCH_JUNCTIONS);
  EXPECT_TRUE(Enabled(page, IDC_EXCLUDE_HIDDEN_JUNCTIONS));
}

TEST_F(AdvancedPages, AComponentIsWrittenAndThenChecked) {
  ScopedMachine machine;
  machine->components = {{L"Acme.Transform.1"}};
  const struct {
    std::wstring text;
    const wchar_t* fails;
    bool accepted;
  } kCases[] = {{L"Acme.Transform.1", L"", true},
                {L"acme.transform.1", L"", true},
                {L"", L"CLSIDFromProgID", true},
                {L"Acme.Transform.1", L"CLSIDFromProgID", false},
                {L"Acme.Transform.1", L"CoCreateInstance", false},
                {L" Acme.Transform.1", L"", false},
                {L"Acme.Transform.2", L"", false},
                {L"../Acme.Transform.1", L"", false},
                {std::wstring(10000, L'x'), L"", false}};
  for (const auto& row : kCases) {
    SCOPED_TRACE(ToUtf8(row.text.substr(0, 30)) + " " + ToUtf8(row.fails));
    machine->fails.clear();
    CConfigEntryAdvTransformDlg page;
    Open(page);
    page.SetDlgItemText(IDC_TRANSFORM_COMPONENT, row.text);
    machine->fails = row.fails;
    store->writes.clear();
    bool saved = false;
    const auto messages = AnswerMessages([&] { saved = SavePage(page); });
    EXPECT_EQ(saved, row.accepted);
    EXPECT_EQ(store->writes, Lines{L"text CustomTransform/MSXMLProgId " + row.text});
    ASSERT_EQ(messages.size(), row.accepted ? 0U : 1U);
    if (row.accepted) continue;
    EXPECT_EQ(messages[0].text, LanguageString(TextId::kTransformNotCreated).Str());
    EXPECT_EQ(messages[0].buttons, QMessageBox::Ok);
    EXPECT_TRUE(HasFocus(IDD_TRANSFORM_PAGE, IDC_TRANSFORM_COMPONENT));
  }
}

}  // namespace
