#include "pages/general/search_page.h"

#include "resources/text_ids.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kOptions = L"Options";

constexpr LabelRow kSortColumns[] = {
    {-1, TextId::kColumnNone}, {0, TextId::kColumnFileName},   {2, TextId::kColumnModified},
    {5, TextId::kColumnSize},  {25, TextId::kColumnRelevance},
};

constexpr auto kValues = MakeTable({
    {kOptions, L"DeferredSortCol", Int(-1), Labels(IDC_DEFERRED_SORT_COLUMN, kSortColumns), 5},
    {kOptions, L"DeferredSortAsc", Int(1), Check(IDC_DEFERRED_SORT_ASCENDING), 6},
    {kOptions, L"SearchAsYouType", Int(0), Check(IDC_SEARCH_AS_YOU_TYPE), 2},
    {kOptions, L"SearchAsYouTypeTextTab", Int(0), Check(IDC_SEARCH_AS_YOU_TYPE_TEXT_TAB), 3},
    {kOptions, L"OnePhaseSearch", Int(0), Radio(IDC_SEARCH_TWO_PHASES, 3), 1},
    {kOptions, L"ShowHitCount", Bool(false), Check(IDC_SHOW_HIT_COUNT), 4},
});

constexpr int kHeadings[] = {IDC_SEARCH_MODE_HEADING, IDC_SEARCH_AS_YOU_TYPE_HEADING};

constexpr int kSortControls[] = {IDC_DEFERRED_SORT_COLUMN, IDC_DEFERRED_SORT_ASCENDING};
constexpr EnablingRule kRules[] = {{kSortControls, WhenChecked<IDC_SEARCH_THEN_SORT>}};

constexpr PageDescription kPage = {kValues, kHeadings, kRules, WithoutStore::kBlank};

}  // namespace

CConfigEntrySearchDlg::CConfigEntrySearchDlg() : CValuePage(IDD, kPage) {}
