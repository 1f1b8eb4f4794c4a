#include "pages/general/internal_viewer_page.h"

namespace {

using namespace page_values;

constexpr auto kValues = MakeTable({
    {L"Options", L"TabSize", Int(0), Number(IDC_VIEWER_TAB_SIZE, {1, 32})},
});

constexpr int kHeadings[] = {IDC_VIEWER_HEADING};

constexpr PageDescription kPage = {kValues, kHeadings};

}  // namespace

CConfigEntryInternalViewerDlg::CConfigEntryInternalViewerDlg() : CValuePage(IDD, kPage) {}
