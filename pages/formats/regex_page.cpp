#include "pages/formats/regex_page.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kOptions = L"Options";

constexpr auto kValues = MakeTable({
    {kOptions, L"UseClassicRE", Bool(false), Radio(IDC_REGEX_STANDARD, 2)},
    {kOptions, L"UseCharacterCollation", Bool(false), Check(IDC_REGEX_COLLATION)},
    {kOptions, L"RegExMaxLines", Int(0), Number(IDC_REGEX_MAX_LINES, {1, 9999999})},
});

constexpr int kHeadings[] = {IDC_REGEX_ENGINE_HEADING, IDC_REGEX_LIMIT_HEADING};

constexpr PageDescription kPage = {kValues, kHeadings};

}  // namespace

CConfigEntryExprRegExDlg::CConfigEntryExprRegExDlg() : CValuePage(IDD, kPage) {}
