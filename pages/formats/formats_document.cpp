#include "pages/formats/formats_document.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kOptions = L"Options";

/// The stored numbers of the ways to choose formats, in the order of their buttons.
constexpr int kWays[] = {2, 1, 0};

constexpr auto kValues = MakeTable({
    {L"Filters", L"AutoManage", Int(0), RadioOf(IDC_DOCUMENTS_AUTOMATIC, kWays)},
    {kOptions, L"SearchRawDocData", Bool(false), Check(IDC_DOCUMENTS_RAW_DATA)},
    {kOptions, L"UseAllDocExtensionTypes", Bool(false), InvertedRadio(IDC_DOCUMENTS_ALL)},
    {kOptions, L"ExtractEmbeddedObjects", Bool(true), Check(IDC_DOCUMENTS_EMBEDDED)},
});

bool IsDocument(INTERNAL_IFC::IConfigInterpreter& entry) {
  return entry.IsDocumentFormat() || HasType(entry, L"textconverter") ||
         HasType(entry, L"textinterpreter") || HasType(entry, L"ifilter");
}

constexpr auto kPicksSingle = &WhenChecked<IDC_DOCUMENTS_MANUAL, IDC_FORMATS_CHECKED>;

constexpr int kManualControls[] = {IDC_DOCUMENTS_RAW_DATA, IDC_DOCUMENTS_ALL, IDC_FORMATS_CHECKED};
constexpr int kListButtons[] = {IDC_FORMATS_CHECK_ALL, IDC_FORMATS_CLEAR_ALL};
constexpr EnablingRule kRules[] = {{kManualControls, &WhenChecked<IDC_DOCUMENTS_MANUAL>},
                                   {kListButtons, kPicksSingle}};

constexpr int kHeadings[] = {IDC_DOCUMENTS_EMBEDDED_HEADING};

constexpr Geometry::ControlConstraint kLayout[] = {
    {IDC_FORMATS_LIST, L"CX+CY"},
    {IDOK, L"X+Y"},
    {IDCANCEL, L"X+Y"},
    {IDC_DOCUMENTS_RAW_DATA, L"Y"},
    {IDC_DOCUMENTS_EMBEDDED, L"Y"},
    {IDC_DOCUMENTS_EMBEDDED_HEADING, L"Y"},
};

constexpr FormatsDescription kDialog = {kValues, &IsDocument, kPicksSingle,
                                        kRules,  kHeadings,   kLayout};

}  // namespace

BEGIN_MESSAGE_MAP(CFormatsDocument, CFormatsDialog)
ON_BN_CLICKED(IDC_DOCUMENTS_AUTOMATIC, &ThisClass::OnChoice)
ON_BN_CLICKED(IDC_DOCUMENTS_AUTOMATIC_EARLIER, &ThisClass::OnChoice)
ON_BN_CLICKED(IDC_DOCUMENTS_MANUAL, &ThisClass::OnChoice)
ON_BN_CLICKED(IDC_DOCUMENTS_ALL, &ThisClass::OnChoice)
ON_BN_CLICKED(IDC_FORMATS_CHECKED, &ThisClass::OnChoice)
ON_BN_CLICKED(IDC_FORMATS_CHECK_ALL, &ThisClass::OnCheckAll)
ON_BN_CLICKED(IDC_FORMATS_CLEAR_ALL, &ThisClass::OnClearAll)
END_MESSAGE_MAP()

CFormatsDocument::CFormatsDocument(StoreHandle store)
    : CFormatsDialog(IDD, kDialog, std::move(store)) {}
