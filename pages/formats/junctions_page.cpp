#include "pages/formats/junctions_page.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kOptions = L"Options";

constexpr auto kValues = MakeTable({
    {kOptions, L"SearchJunctionPoints", Int(0), Check(IDC_SEARCH_JUNCTIONS)},
    {kOptions, L"ExcludeSystemHiddenJunctionPoints", Int(0), Check(IDC_EXCLUDE_HIDDEN_JUNCTIONS)},
    {kOptions, L"ResolveShortCutFiles", Bool(false), Check(IDC_RESOLVE_FILE_SHORTCUTS)},
    {kOptions, L"ResolveShortCutFolders", Bool(false), Check(IDC_RESOLVE_FOLDER_SHORTCUTS)},
});

constexpr int kHeadings[] = {IDC_JUNCTIONS_HEADING, IDC_SHORTCUTS_HEADING};

constexpr int kOfJunctions[] = {IDC_EXCLUDE_HIDDEN_JUNCTIONS};
constexpr EnablingRule kRules[] = {{kOfJunctions, WhenChecked<IDC_SEARCH_JUNCTIONS>}};

constexpr PageDescription kPage = {kValues, kHeadings, kRules};

}  // namespace

CConfigEntryAdvJunctionsDlg::CConfigEntryAdvJunctionsDlg() : CValuePage(IDD, kPage) {}
