#include "pages/formats/filters_page.h"

#include "foundation/catch_chain.h"
#include "foundation/exception.h"
#include "foundation/language.h"
#include "hollerin/hollerin.h"
#include "pages/formats/filter_list_job.h"
#include "panterow/progress_dialog.h"
#include "resources/text_ids.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kSource = L"Brisquel/ConfigEntryGeneralFiltersDlg";
constexpr UINT kRefreshMessage = WM_APP + 0x76;

constexpr LabelRow kPriorities[] = {{0, TextId::kConvertersFirst}, {1, TextId::kFiltersFirst}};

constexpr auto kValues = MakeTable({
    {L"Filters", L"IncludeTextFilters", Bool(false), Check(IDC_INCLUDE_TEXT_FILTERS)},
    {L"Options", L"IFilterPriority", Int(0), Index(IDC_FILTER_PRIORITY, kPriorities)},
});

constexpr PageDescription kPage = {kValues};

constexpr Geometry::ControlConstraint kLayout[] = {
    {IDC_FILTERS_LABEL, L"CX"},          {IDC_FILTERS, L"CX+CY"},
    {IDC_INCLUDE_TEXT_FILTERS, L"CX+Y"}, {IDC_FILTER_PRIORITY_LABEL, L"Y"},
    {IDC_FILTER_PRIORITY, L"Y"},         {IDC_REFRESH_FILTERS, L"X"},
};

struct Column {
  UINT title;  ///< Language string.
  int width;   ///< For 96 logical pixels per inch.
};
constexpr Column kColumns[] = {{TextId::kColumnExtension, 80},
                               {TextId::kColumnFilter, 100},
                               {TextId::kColumnFilterLocation, 300}};

}  // namespace

BEGIN_MESSAGE_MAP(CConfigEntryGeneralFiltersDlg, CValuePage)
ON_MESSAGE(kRefreshMessage, &ThisClass::OnRefreshMessage)
ON_BN_CLICKED(IDC_REFRESH_FILTERS, &ThisClass::OnRefresh)
ON_BN_CLICKED(IDC_INCLUDE_TEXT_FILTERS, &ThisClass::OnIncludeTextFilters)
END_MESSAGE_MAP()

CConfigEntryGeneralFiltersDlg::CConfigEntryGeneralFiltersDlg() : CValuePage(IDD, kPage) {}

BOOL CConfigEntryGeneralFiltersDlg::OnInitDialog() {
  CValuePage::OnInitDialog();
  SetUpList();
  Geometry::BindControls(*this, this, kLayout);
  PostMessage(kRefreshMessage);
  return TRUE;
}

void CConfigEntryGeneralFiltersDlg::BindMembers(CDataExchange* exchange) {
  DDX_Control(exchange, IDC_FILTERS, list_);
}

void CConfigEntryGeneralFiltersDlg::SetUpList() {
  list_.ModifyStyle(LVS_TYPEMASK, LVS_REPORT);
  list_.SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
  int place = 0;
  for (const Column& column : kColumns) {
    list_.InsertColumn(place++, LanguageString(column.title), LVCFMT_LEFT,
                       globalUtils.ScaleByDPI(column.width));
  }
}

void CConfigEntryGeneralFiltersDlg::OnRefresh() {
  RunGuarded([this] { FillList(); }, MakeMsgBoxDisplay, CString(), kSource);
}

LRESULT CConfigEntryGeneralFiltersDlg::OnRefreshMessage(WPARAM, LPARAM) {
  OnRefresh();
  return 0;
}

void CConfigEntryGeneralFiltersDlg::OnIncludeTextFilters() {
  if (UpdateData(TRUE)) OnRefresh();
}

void CConfigEntryGeneralFiltersDlg::FillList() {
  const StoreHandle store = GetWorkingStore();
  if (filters_ == nullptr) {
    ThrowHr(HOLLERIN::CreateFilterMgr(&filters_, store), L"Creating filter manager");
  }
  list_.DeleteAllItems();
  const auto window = PANTEROW::CreateProgressDialog(this);
  auto& dialog = dynamic_cast<INTERNAL_IFC::IWorkProgressDialog&>(*window);
  dialog.RunWork(LanguageString(TextId::kLookingForFilters), true,
                 [&](INTERNAL_IFC::IWorkProgress* progress) {
                   return FillFilterList(list_, *filters_, store, *progress);
                 });
}
