#include "pages/general/threads_page.h"

#include <algorithm>

#include "platform/system_info.h"
#include "resources/text_ids.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kThreading = L"Threading";
constexpr const wchar_t* kIndexThreading = L"IndexThreading";

/// Speeds: how many threads there are.
enum : int { kOnePerProcessor = 0, kHalfTheProcessors = 1, kOneThread = 2, kOwnCount = 3 };

constexpr LabelRow kSpeeds[] = {
    {kOnePerProcessor, TextId::kSpeedMaximum},
    {kHalfTheProcessors, TextId::kSpeedMedium},
    {kOneThread, TextId::kLow},
    {kOwnCount, TextId::kSpeedCustom},
};

constexpr LabelRow kPriorities[] = {
    {0, TextId::kPriorityNormal},
    {1, TextId::kPriorityBelowNormal},
    {2, TextId::kLow},
};

constexpr Range kSearchThreads = {1, 1024};
constexpr Range kIndexThreads = {1, 99};

// The counts are exchanged first, so that a bad one is reported before anything else; the last row
// takes its default from the background priority.
constexpr auto kValues = MakeTable({
    {kThreading, L"Speed", Int(0), Labels(IDC_SEARCH_SPEED, kSpeeds), 0, 3},
    {kThreading, L"ThreadCount", Int(0), Number(IDC_SEARCH_THREADS, kSearchThreads), 0, 1},
    {kIndexThreading, L"Speed", Int(0), Labels(IDC_INDEX_SPEED, kSpeeds), 0, 4},
    {kIndexThreading, L"ThreadCount", Int(0), Number(IDC_INDEX_THREADS, kIndexThreads), 0, 2},
    {kThreading, L"Foreground", Int(0), Labels(IDC_FOREGROUND_PRIORITY, kPriorities), 0, 5},
    {kThreading, L"Background", Int(0), Labels(IDC_BACKGROUND_PRIORITY, kPriorities), 0, 6},
    {kThreading, L"Minimized", Int(0), Labels(IDC_MINIMISED_PRIORITY, kPriorities), 0, 7},
    {kThreading, L"Indexer", IntDefaultingToRow(5), Labels(IDC_INDEXER_PRIORITY, kPriorities), 0,
     8},
});

constexpr int kHeadings[] = {IDC_SEARCH_SPEED_HEADING, IDC_INDEX_SPEED_HEADING,
                             IDC_PRIORITY_HEADING};

constexpr int kSearchCount[] = {IDC_SEARCH_THREADS, IDC_SEARCH_THREADS_UNIT};
constexpr int kIndexCount[] = {IDC_INDEX_THREADS, IDC_INDEX_THREADS_UNIT};
constexpr EnablingRule kRules[] = {
    {kSearchCount, WhenChosen<IDC_SEARCH_SPEED, kOwnCount>},
    {kIndexCount, WhenChosen<IDC_INDEX_SPEED, kOwnCount>},
};

constexpr PageDescription kPage = {kValues, kHeadings, kRules};

/// The controls of one speed.
struct SpeedRow {
  int heading;
  int speed;
  int count;
  int unit;
};
constexpr SpeedRow kSearch = {IDC_SEARCH_SPEED_HEADING, IDC_SEARCH_SPEED, IDC_SEARCH_THREADS,
                              IDC_SEARCH_THREADS_UNIT};
constexpr SpeedRow kIndex = {IDC_INDEX_SPEED_HEADING, IDC_INDEX_SPEED, IDC_INDEX_THREADS,
                             IDC_INDEX_THREADS_UNIT};

int ThreadsOf(int speed) {
  SYSTEM_INFO info;
  GetSystemInfo(&info);
  const auto processors = static_cast<int>(info.dwNumberOfProcessors);
  const auto clamped = [](int threads) {
    return std::clamp(threads, kSearchThreads.minimum, kSearchThreads.maximum);
  };
  if (speed == kOnePerProcessor) return clamped(processors);
  if (speed == kHalfTheProcessors) return clamped(processors / 2);
  return 1;
}

/// Shows how many threads the chosen speed comes to; a count of the user's own stays.
void ShowThreads(CWnd& page, const SpeedRow& row) {
  const std::optional<int> speed = ChosenId(page, row.speed);
  if (!speed || *speed == kOwnCount) return;
  page.SetDlgItemText(row.count, CString(std::to_wstring(ThreadsOf(*speed))));
}

/// Neither the combo nor the edit has a label before it: the heading above names both.
void NameForListeners(const CWnd& page, const SpeedRow& row) {
  CString heading, unit;
  page.GetDlgItemText(row.heading, heading);
  page.GetDlgItemText(row.unit, unit);
  SetAccessibleName(page.GetDlgItem(row.speed)->m_hWnd, heading);
  SetAccessibleName(page.GetDlgItem(row.count)->m_hWnd, heading + L": " + unit);
}

}  // namespace

BEGIN_MESSAGE_MAP(CConfigEntryGeneralThreadDlg, CValuePage)
ON_CBN_SELCHANGE(IDC_SEARCH_SPEED, &ThisClass::OnSearchSpeed)
ON_CBN_SELCHANGE(IDC_INDEX_SPEED, &ThisClass::OnIndexSpeed)
END_MESSAGE_MAP()

CConfigEntryGeneralThreadDlg::CConfigEntryGeneralThreadDlg() : CValuePage(IDD, kPage) {}

BOOL CConfigEntryGeneralThreadDlg::OnInitDialog() {
  CValuePage::OnInitDialog();
  for (const SpeedRow& row : {kIndex, kSearch}) {
    ShowThreads(*this, row);
    NameForListeners(*this, row);
  }
  return TRUE;
}

void CConfigEntryGeneralThreadDlg::OnSearchSpeed() { ShowThreads(*this, kSearch); }

void CConfigEntryGeneralThreadDlg::OnIndexSpeed() { ShowThreads(*this, kIndex); }
