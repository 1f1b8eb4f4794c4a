#include "pages/formats/dos_page.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kOptions = L"Options";

constexpr auto kValues = MakeTable({
    {kOptions, L"DOSStrict", Bool(false), Check(IDC_DOS_STRICT)},
    {kOptions, L"DOSImplyBoundary", Bool(false), Check(IDC_DOS_IMPLY_BOUNDARY)},
});

constexpr int kHeadings[] = {IDC_DOS_HEADING};

constexpr PageDescription kPage = {kValues, kHeadings};

}  // namespace

CConfigEntryExprDOSDlg::CConfigEntryExprDOSDlg() : CValuePage(IDD, kPage) {}
