#include "pages/formats/boolean_page.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kOptions = L"Options";
constexpr Range kSimilarities = {0, 2};

constexpr auto kValues = MakeTable({
    {kOptions, L"LikeSimilarity", Int(0), Slider(IDC_SIMILARITY, kSimilarities), 2},
    {kOptions, L"MaxNearDistance", Int(0), Number(IDC_MAX_NEAR_DISTANCE, {1, 9999999}), 1},
});

constexpr int kHeadings[] = {IDC_SIMILARITY_HEADING, IDC_PROXIMITY_HEADING};

constexpr PageDescription kPage = {kValues, kHeadings};

}  // namespace

BEGIN_MESSAGE_MAP(CConfigEntryExprBooleanDlg, CValuePage)
ON_STN_CLICKED(IDC_SIMILARITY_LOW, &ThisClass::OnSimilarityLow)
ON_STN_CLICKED(IDC_SIMILARITY_MEDIUM, &ThisClass::OnSimilarityMedium)
ON_STN_CLICKED(IDC_SIMILARITY_HIGH, &ThisClass::OnSimilarityHigh)
END_MESSAGE_MAP()

CConfigEntryExprBooleanDlg::CConfigEntryExprBooleanDlg() : CValuePage(IDD, kPage) {}

BOOL CConfigEntryExprBooleanDlg::OnInitDialog() {
  CValuePage::OnInitDialog();
  similarity_.SetRange(kSimilarities.minimum, kSimilarities.maximum, TRUE);
  return TRUE;
}

void CConfigEntryExprBooleanDlg::BindMembers(CDataExchange* exchange) {
  DDX_Control(exchange, IDC_SIMILARITY, similarity_);
}
