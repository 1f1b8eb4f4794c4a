#include "pages/formats/formats_compressed.h"

namespace {

using namespace page_values;

constexpr auto kValues = MakeTable({
    {L"Options", L"UseAllCompressedFileTypes", Bool(false), InvertedRadio(IDC_COMPRESSED_ALL)},
});

bool IsArchive(INTERNAL_IFC::IConfigInterpreter& entry) {
  return !entry.IsDocumentFormat() && HasType(entry, L"compositefile");
}

constexpr auto kPicksSingle = &WhenChecked<IDC_FORMATS_CHECKED>;

constexpr int kListButtons[] = {IDC_FORMATS_CHECK_ALL, IDC_FORMATS_CLEAR_ALL};
constexpr EnablingRule kRules[] = {{kListButtons, kPicksSingle}};

constexpr Geometry::ControlConstraint kLayout[] = {{IDC_FORMATS_LIST, L"CX"}};

constexpr FormatsDescription kDialog = {.values = kValues,
                                        .shows = &IsArchive,
                                        .picksSingleFormats = kPicksSingle,
                                        .rules = kRules,
                                        .layout = kLayout,
                                        .syncsFilters = false};

}  // namespace

BEGIN_MESSAGE_MAP(CFormatsCompressed, CFormatsDialog)
ON_BN_CLICKED(IDC_COMPRESSED_ALL, &ThisClass::OnChoice)
ON_BN_CLICKED(IDC_FORMATS_CHECKED, &ThisClass::OnChoice)
ON_BN_CLICKED(IDC_FORMATS_CHECK_ALL, &ThisClass::OnCheckAll)
ON_BN_CLICKED(IDC_FORMATS_CLEAR_ALL, &ThisClass::OnClearAll)
END_MESSAGE_MAP()

CFormatsCompressed::CFormatsCompressed(StoreHandle store)
    : CFormatsDialog(IDD, kDialog, std::move(store)) {}
