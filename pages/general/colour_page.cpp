#include "pages/general/colour_page.h"

#include "foundation/exception.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kWindow = L"Window Settings";
constexpr const wchar_t* kTextTab = L"TextTab Settings";

constexpr auto kValues = MakeTable({
    {kWindow, L"HighlightColor", Int(0), Colour(IDC_RESULTS_COLOUR), 6},
    {kTextTab, L"OriginalLineColor", Int(0), Colour(IDC_ORIGINAL_LINE_COLOUR), 8},
    {kTextTab, L"SecondaryLineColor", Int(0), Colour(IDC_SECONDARY_LINE_COLOUR), 9},
    {kTextTab, L"HighlightColor", Int(0), Colour(IDC_TEXT_COLOUR), 7},
    {kWindow, L"HighlightBold", Bool(false), Check(IDC_RESULTS_BOLD), 1},
    {kWindow, L"HighlightUnder", Bool(false), Check(IDC_RESULTS_UNDERLINED), 2},
    {kWindow, L"HighlightBack", Bool(false), Check(IDC_RESULTS_BACKGROUND), 3},
    {kTextTab, L"HighlightBold", Bool(false), Check(IDC_TEXT_BOLD), 4},
    {kTextTab, L"HighlightUnder", Bool(false), Check(IDC_TEXT_UNDERLINED), 5},
});

/// By term.
constexpr int kTermButtons[] = {
    IDC_TERM_COLOUR_1, IDC_TERM_COLOUR_2, IDC_TERM_COLOUR_3, IDC_TERM_COLOUR_4, IDC_TERM_COLOUR_5,
    IDC_TERM_COLOUR_6, IDC_TERM_COLOUR_7, IDC_TERM_COLOUR_8, IDC_TERM_COLOUR_9, IDC_TERM_COLOUR_10,
};
static_assert(std::size(kTermButtons) == TERNWICK::kTermCount);

constexpr int kHeadings[] = {IDC_RESULTS_HEADING, IDC_TEXT_HEADING};

constexpr PageDescription kPage = {kValues, kHeadings, {}, WithoutStore::kBlank};

/// Controls whose texts stand on the page twice, with the headings that tell them apart.
struct TwinControl {
  int control;
  int heading;
};
constexpr TwinControl kTwins[] = {
    {IDC_RESULTS_COLOUR, IDC_RESULTS_HEADING},
    {IDC_RESULTS_BOLD, IDC_RESULTS_HEADING},
    {IDC_RESULTS_UNDERLINED, IDC_RESULTS_HEADING},
    {IDC_TEXT_COLOUR, IDC_TEXT_HEADING},
    {IDC_TEXT_BOLD, IDC_TEXT_HEADING},
    {IDC_TEXT_UNDERLINED, IDC_TEXT_HEADING},
};

CString TextOf(const CWnd& page, int id) {
  CString text;
  page.GetDlgItemText(id, text);
  return text;
}

}  // namespace

CConfigEntryColorDlg::CConfigEntryColorDlg() : CValuePage(IDD, kPage) {}

BOOL CConfigEntryColorDlg::OnInitDialog() {
  // The load exchange of the base reads the styles.
  manager_ = TERNWICK::CreateSearchTermMgr();
  ThrowHr(manager_ != nullptr ? S_OK : E_FAIL, L"Creating search term manager");
  CValuePage::OnInitDialog();
  NameControls();
  return TRUE;
}

/// Those who cannot see the page hear of the terms' buttons by number, and of controls with the
/// same text by heading.
void CConfigEntryColorDlg::NameControls() {
  int number = 0;
  for (const CConfigColorButton& button : termButtons_) {
    CString text;
    button.GetWindowText(text);
    SetAccessibleName(button.m_hWnd, text + L" " + std::to_wstring(++number));
  }
  for (const TwinControl& twin : kTwins) {
    const CString name = TextOf(*this, twin.heading) + L": " + TextOf(*this, twin.control);
    SetAccessibleName(GetDlgItem(twin.control)->m_hWnd, name);
  }
}

void CConfigEntryColorDlg::BindMembers(CDataExchange* exchange) {
  for (std::size_t term = 0; term < termButtons_.size(); ++term) {
    DDX_Control(exchange, kTermButtons[term], termButtons_[term]);
  }
}

void CConfigEntryColorDlg::BeginExchange(CDataExchange* exchange, const StoreHandle& store) {
  for (std::size_t term = 0; term < styles_.size(); ++term) {
    ThrowHr(manager_->GetTermStyle(store, static_cast<std::int32_t>(term), &styles_[term]),
            L"Reading search term style");
    if (exchange->m_bSaveAndValidate) continue;
    termButtons_[term].SetColor(styles_[term]->GetColor());
  }
}

void CConfigEntryColorDlg::EndExchange(CDataExchange* exchange, const StoreHandle& store) {
  if (!exchange->m_bSaveAndValidate) return;
  for (std::size_t term = 0; term < styles_.size(); ++term) {
    styles_[term]->SetColor(termButtons_[term].GetColor());
  }
  for (std::size_t term = 0; term < styles_.size(); ++term) {
    if (!styles_[term]->IsModified()) continue;
    ThrowHr(manager_->SaveTermStyle(store, static_cast<std::int32_t>(term), styles_[term]),
            L"Saving search term style");
  }
}
