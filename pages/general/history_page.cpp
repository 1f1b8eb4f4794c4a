#include "pages/general/history_page.h"

#include "foundation/catch_chain.h"
#include "ifc/brisquel.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kSource = L"Brisquel/ConfigEntryGeneralHistoryDlg";
constexpr const wchar_t* kOptions = L"Options";

constexpr auto kValues = MakeTable({
    {kOptions, L"MaxNavigationHistory", Int(0), Number(IDC_MAX_NAVIGATION_HISTORY, {0, 999})},
    {kOptions, L"MaxDropDownHistory", Int(0), Number(IDC_MAX_DROP_DOWN_HISTORY, {0, 999})},
    {kOptions, L"MaxMRUFileList", Int(0), Number(IDC_MAX_RECENT_FILES, {0, 99})},
    {kOptions, L"RememberOptions", Int(0), Check(IDC_REMEMBER_OPTIONS)},
    {kOptions, L"RememberWindowSize", Int(0), Check(IDC_REMEMBER_WINDOW_SIZE)},
    {kOptions, L"RememberLastSearch", Int(0), Check(IDC_REMEMBER_LAST_SEARCH)},
    {kOptions, L"RememberSort", Int(0), Check(IDC_REMEMBER_SORT)},
    {kOptions, L"ClearHistoryOnExit", Int(0), Check(IDC_CLEAR_HISTORY_ON_EXIT)},
});

constexpr int kHeadings[] = {IDC_REMEMBER_HEADING, IDC_HISTORY_LENGTH_HEADING};

constexpr PageDescription kPage = {kValues, kHeadings};

}  // namespace

BEGIN_MESSAGE_MAP(CConfigEntryGeneralHistoryDlg, CValuePage)
ON_BN_CLICKED(IDC_OPEN_CLEAR_HISTORY, &ThisClass::OnClearHistory)
ON_BN_CLICKED(IDC_OPEN_EDIT_HISTORY, &ThisClass::OnEditHistory)
END_MESSAGE_MAP()

CConfigEntryGeneralHistoryDlg::CConfigEntryGeneralHistoryDlg() : CValuePage(IDD, kPage) {}

HWND CConfigEntryGeneralHistoryDlg::DialogAround() const {
  const CWnd* parent = GetParent();
  return parent != nullptr ? parent->GetSafeHwnd() : nullptr;
}

StoreHandle CConfigEntryGeneralHistoryDlg::GetHistoryStore() const {
  StoreHandle history;
  if (GetProvider() != nullptr) GetProvider()->GetHistoryConfig(history);
  return history;
}

void CConfigEntryGeneralHistoryDlg::OnClearHistory() {
  RunGuarded([this] { ClearHistory(); }, MakeMsgBoxDisplay, CString(), kSource);
}

void CConfigEntryGeneralHistoryDlg::ClearHistory() {
  CClearHistorySettings* settings =
      GetProvider() != nullptr ? GetProvider()->GetClearHistorySettings() : nullptr;
  if (BRISQUEL::OpenClearHistoryDialog(DialogAround(), settings, GetHistoryStore()) != 0) return;
  // The application empties the lists that it shows itself.
  if (const StoreHandle store = GetWorkingStore()) store->WriteBool(L"ClearHistory", L"Done", true);
}

void CConfigEntryGeneralHistoryDlg::OnEditHistory() {
  const auto edit = [this] {
    BRISQUEL::OpenEditHistoryDialog(DialogAround(), GetHistoryStore(), GetWorkingStore());
  };
  RunGuarded(edit, MakeMsgBoxDisplay, CString(), kSource);
}
