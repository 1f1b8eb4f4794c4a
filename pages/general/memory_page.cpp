#include "pages/general/memory_page.h"

#include "foundation/language.h"
#include "resources/text_ids.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kMemory = L"MemMgr";

constexpr auto kValues = MakeTable({
    {kMemory, L"ApplyToCurrent", Bool(false), InvertedCheck(IDC_KEEP_CURRENT_SEARCH)},
    {kMemory, L"UseMemMgr", Bool(false), Check(IDC_USE_MEMORY_MANAGER)},
    {kMemory, L"UseDefault", Bool(false), InvertedRadio(IDC_DEFAULT_MEMORY_LIMIT)},
    {kMemory, L"MaxSearchMem", Int(0), Number(IDC_MAX_SEARCH_MEMORY, {1, 999999})},
    {kMemory, L"ReduceLines", Int(0), Number(IDC_REDUCE_LINES, {1, 999999})},
    {kMemory, L"ReduceChars", Int(0), Number(IDC_REDUCE_CHARS, {10, 999999})},
});

constexpr int kLimits[] = {
    IDC_MEMORY_LIMIT_LABEL, IDC_DEFAULT_MEMORY_LIMIT, IDC_OWN_MEMORY_LIMIT, IDC_REDUCE_LINES_LABEL,
    IDC_REDUCE_LINES,       IDC_REDUCE_CHARS_LABEL,   IDC_REDUCE_CHARS,     IDC_KEEP_CURRENT_SEARCH,
};
constexpr int kOwnLimit[] = {IDC_MAX_SEARCH_MEMORY, IDC_MAX_SEARCH_MEMORY_UNIT};
constexpr EnablingRule kRules[] = {
    {kLimits, WhenChecked<IDC_USE_MEMORY_MANAGER>},
    {kOwnLimit, WhenChecked<IDC_USE_MEMORY_MANAGER, IDC_OWN_MEMORY_LIMIT>},
};

constexpr PageDescription kPage = {kValues, {}, kRules};

}  // namespace

CConfigEntryMemMgrDlg::CConfigEntryMemMgrDlg() : CValuePage(IDD, kPage) {}

BOOL CConfigEntryMemMgrDlg::OnInitDialog() {
  CValuePage::OnInitDialog();
  SetDlgItemText(IDC_MAX_SEARCH_MEMORY_UNIT, LanguageString(TextId::kMegabytes));
  return TRUE;
}
