#include "pages/general/display_page.h"

#include "resources/text_ids.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kOptions = L"Options";

constexpr LabelRow kDisplayModes[] = {
    {0, TextId::kCutEnd},
    {1, TextId::kCutStart},
    {2, TextId::kCutMiddle},
    {3, TextId::kCutNothing},
};

constexpr Range kLineChars = {10, 9999999, IDC_LIMIT_LINE_CHARS};
constexpr Range kContextLines = {0, 99999};

constexpr auto kValues = MakeTable({
    {kOptions, L"LimitDisplayChars", Int(0), Check(IDC_LIMIT_LINE_CHARS)},
    {kOptions, L"MaxLineDisplayChars", Int(0), Number(IDC_MAX_LINE_CHARS, kLineChars)},
    {kOptions, L"MaxLineListSize", Int(0), Number(IDC_MAX_LINES, {1, 9999999})},
    {kOptions, L"SurroundLinesAfter", Int(0), Number(IDC_LINES_AFTER, kContextLines)},
    {kOptions, L"SurroundLinesBefore", Int(0), Number(IDC_LINES_BEFORE, kContextLines)},
    {kOptions, L"RightAlignLocation", Int(0), Labels(IDC_LOCATION_MODE, kDisplayModes)},
    {kOptions, L"CVTruncate", Int(0), Labels(IDC_LINE_MODE, kDisplayModes)},
});

constexpr int kHeadings[] = {IDC_LINE_LIST_HEADING, IDC_CONTEXT_LINES_HEADING,
                             IDC_DISPLAY_MODE_HEADING};

constexpr int kLimit[] = {IDC_MAX_LINE_CHARS};
constexpr EnablingRule kRules[] = {{kLimit, WhenChecked<IDC_LIMIT_LINE_CHARS>}};

constexpr PageDescription kPage = {kValues, kHeadings, kRules};

}  // namespace

CConfigEntryGeneralDisplayDlg::CConfigEntryGeneralDisplayDlg() : CValuePage(IDD, kPage) {}
