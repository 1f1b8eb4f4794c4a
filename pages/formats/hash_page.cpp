#include "pages/formats/hash_page.h"

namespace {

using namespace page_values;

constexpr int kAlgorithms[] = {IDC_HASH_BIT_0, IDC_HASH_BIT_1, IDC_HASH_BIT_2, IDC_HASH_BIT_3};

constexpr auto kValues = MakeTable({
    {L"Options", L"HashingAlgorithms", Int(1), Bits(kAlgorithms)},
});

constexpr int kHeadings[] = {IDC_HASH_HEADING};

constexpr PageDescription kPage = {kValues, kHeadings};

}  // namespace

CConfigEntryExprHashDlg::CConfigEntryExprHashDlg() : CValuePage(IDD, kPage) {}
