#include "pages/formats/utf8_page.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kFileType = L"FileType";

constexpr auto kValues = MakeTable({
    {kFileType, L"UTF8", Text(), Extensions(IDC_EXTENSIONS)},
    {kFileType, L"AutoDetectUTF8", Bool(false), Check(IDC_DETECT_UTF8)},
});

constexpr PageDescription kPage = {kValues};

constexpr Geometry::ControlConstraint kLayout[] = {
    {IDC_UTF8_EXPLANATION, L"CX"}, {IDC_EXTENSIONS, L"CY"}, {IDC_EXTENSIONS_HINT, L"CX+Y"}};

}  // namespace

CConfigEntryFileTypeUTF8Dlg::CConfigEntryFileTypeUTF8Dlg() : CValuePage(IDD, kPage) {}

BOOL CConfigEntryFileTypeUTF8Dlg::OnInitDialog() {
  CValuePage::OnInitDialog();
  Geometry::BindControls(*this, this, kLayout);
  return TRUE;
}
