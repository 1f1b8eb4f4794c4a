#include "pages/formats/external_editor_page.h"

#include "controls/path.h"
#include "foundation/catch_chain.h"
#include "foundation/language.h"
#include "foundation/message_helpers.h"
#include "platform/file_dialog.h"
#include "resources/text_ids.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kSource = L"Brisquel/ConfigEntryEditorExternalDlg";

constexpr auto kValues = MakeTable({
    {L"Editor", L"ExternalPath", Text(), Edit(IDC_EDITOR_PATH)},
    {L"Editor", L"ExternalParms", Text(), Edit(IDC_EDITOR_PARAMETERS)},
});

constexpr PageDescription kPage = {kValues};

constexpr Geometry::ControlConstraint kLayout[] = {{IDC_EDITOR_BROWSE, L"X"},
                                                   {IDC_EDITOR_PATH, L"CX"},
                                                   {IDC_EDITOR_PARAMETERS, L"CX"},
                                                   {IDC_KNOWN_EDITOR, L"CX"}};

// What the application replaces when it starts the editor.
constexpr const wchar_t* kFilePath = L"$(FILEPATH)";
constexpr const wchar_t* kLineNumber = L"$(LINENUM)";

/// A known editor: part of its program's file name in lower case, and the pattern of its
/// parameters, which takes path and line.
struct KnownEditor {
  const wchar_t* name;
  const wchar_t* key;
  const wchar_t* pattern;
  bool lineFirst = false;
};
constexpr KnownEditor kKnownEditors[] = {
    {L"ConTEXT", L"context", LR"("%s" /g1:%s)"},
    {L"EditPlus", L"editplus", LR"("%s" -cursor %s)"},
    {L"NoteTab Pro/Lite", L"notetab", LR"("%s" /j=%s)"},
    {L"NotePad++", L"notepad++", LR"("%s" -n%s)"},
    {L"PSPad", L"pspad", LR"("%s" /%s)"},
    {L"Sublime Text", L"subl", LR"("%s:%s")"},
    {L"TextPad", L"textpad", LR"("%s"(%s))"},
    {L"UltraEdit-32", L"uedit", LR"("%s /%s")"},
    {L"VIM", L"vim", LR"(--remote-silent-tab +%s "%s")", true},
    {L"Visual Studio Code", L"code", LR"(-g "%s":%s)"},
};

CString ParametersOf(const KnownEditor& editor) {
  CString parameters;
  parameters.Format(editor.pattern, editor.lineFirst ? kLineNumber : kFilePath,
                    editor.lineFirst ? kFilePath : kLineNumber);
  return parameters;
}

/// The place of the first entry that fits; -1 when none does.
template <class Entries, class Fits>
int FindEntry(const Entries& entries, Fits&& fits) {
  for (std::size_t place = 0; place < entries.size(); ++place) {
    if (fits(*entries[place])) return static_cast<int>(place);
  }
  return -1;
}

}  // namespace

BEGIN_MESSAGE_MAP(CConfigEntryEditorExternalDlg, CValuePage)
ON_BN_CLICKED(IDC_EDITOR_BROWSE, &ThisClass::OnBrowse)
ON_CBN_SELCHANGE(IDC_KNOWN_EDITOR, &ThisClass::OnKnownEditor)
END_MESSAGE_MAP()

CConfigEntryEditorExternalDlg::CConfigEntryEditorExternalDlg() : CValuePage(IDD, kPage) {}

void CConfigEntryEditorExternalDlg::BindMembers(CDataExchange* exchange) {
  DDX_Control(exchange, IDC_EDITOR_PATH, path_);
  DDX_Control(exchange, IDC_EDITOR_PARAMETERS, parameters_);
  DDX_Control(exchange, IDC_KNOWN_EDITOR, known_);
}

BOOL CConfigEntryEditorExternalDlg::OnInitDialog() {
  CValuePage::OnInitDialog();
  Geometry::BindControls(*this, this, kLayout);
  for (const KnownEditor& editor : kKnownEditors) {
    entries_.push_back(std::make_shared<CEditorEntry>(editor.key, ParametersOf(editor)));
    known_.AddString(editor.name);
  }
  CString shown;
  parameters_.GetWindowText(shown);
  known_.SetCurSel(FindEntry(
      entries_, [&shown](const CEditorEntry& entry) { return entry.Parameters() == shown; }));
  return TRUE;
}

void CConfigEntryEditorExternalDlg::OnKnownEditor() {
  const int row = known_.GetCurSel();
  const bool chosen = row >= 0 && row < static_cast<int>(entries_.size());
  parameters_.SetWindowText(chosen ? entries_[static_cast<std::size_t>(row)]->Parameters()
                                   : CString());
}

void CConfigEntryEditorExternalDlg::OnBrowse() {
  RunGuarded([this] { BrowseForProgram(); }, MakeMsgBoxDisplay, CString(), kSource);
}

void CConfigEntryEditorExternalDlg::BrowseForProgram() {
  CString path;
  path_.GetWindowText(path);
  const CString filter = LanguageString(TextId::kEditorFilter);
  CFileDialog picker(TRUE, nullptr, path, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST | OFN_EXPLORER,
                     filter, this);
  if (picker.DoModal() != IDOK) {
    if (CommDlgExtendedError() != 0) ShowLangMessage(TextId::kEditorBrowsingFailed, MB_OK);
    return;
  }
  path_.SetWindowText(picker.GetPathName());
  ChooseByProgram(picker.GetPathName());
}

/// A program that is not known leaves choice and parameters alone.
void CConfigEntryEditorExternalDlg::ChooseByProgram(const CString& path) {
  CString name = SplitPath(path.Str()).second;
  name.MakeLower();
  const int row =
      FindEntry(entries_, [&name](const CEditorEntry& entry) { return entry.Runs(name); });
  if (row < 0) return;
  known_.SetCurSel(row);
  OnKnownEditor();
}
