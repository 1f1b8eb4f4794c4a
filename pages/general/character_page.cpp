#include "pages/general/character_page.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kOptions = L"Options";

constexpr auto kValues = MakeTable({
    {kOptions, L"NormalizeQuotes", BoolWrittenAsInt(false), Check(IDC_NORMALISE_QUOTES), 1},
    {kOptions, L"IncFilenameContents", Int(0), Check(IDC_FILE_NAME_AS_CONTENT), 6},
    {kOptions, L"IncFolderContents", Int(0), Check(IDC_FOLDER_NAME_AS_CONTENT), 7},
    {kOptions, L"MatchFullPathFileName", Int(0), Check(IDC_MATCH_FULL_PATH), 4},
    {kOptions, L"EOLUnix", Int(0), Check(IDC_EOL_UNIX), 2},
    {kOptions, L"EOLMac", Int(0), Check(IDC_EOL_MAC), 3},
    {kOptions, L"MaxLineLength", Int(0), Number(IDC_MAX_LINE_LENGTH, {10, 9999999}), 5},
});

constexpr int kHeadings[] = {IDC_LINES_HEADING, IDC_NAME_AS_CONTENT_HEADING, IDC_FILE_NAME_HEADING};

constexpr Geometry::ControlConstraint kLayout[] = {
    {IDC_FILE_NAME_AS_CONTENT, L"CX"},    {IDC_FOLDER_NAME_AS_CONTENT, L"CX"},
    {IDC_MATCH_FULL_PATH, L"CX"},         {IDC_LINES_HEADING, L"CX"},
    {IDC_NAME_AS_CONTENT_HEADING, L"CX"}, {IDC_FILE_NAME_HEADING, L"CX"},
};

constexpr PageDescription kPage = {kValues, kHeadings};

}  // namespace

CConfigEntryGeneralCharProcDlg::CConfigEntryGeneralCharProcDlg() : CValuePage(IDD, kPage) {}

BOOL CConfigEntryGeneralCharProcDlg::OnInitDialog() {
  CValuePage::OnInitDialog();
  Geometry::BindControls(*this, this, kLayout);
  return TRUE;
}
