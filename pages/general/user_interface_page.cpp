#include "pages/general/user_interface_page.h"

#include "resources/text_ids.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kInterface = L"UserInterface";

constexpr LabelRow kThemes[] = {
    {0, TextId::kThemeSystem}, {1, TextId::kThemeClassic},      {2, TextId::kThemeLight},
    {3, TextId::kThemeDark},   {4, TextId::kThemeHighContrast}, {5, TextId::kThemeBlue},
};
/// Theme 1 is of the past.
constexpr std::int32_t kOfferedThemes[] = {0, 2, 3, 5, 4};

constexpr LabelRow kTabs[] = {
    {0, TextId::kTabHits},       {1, TextId::kTabText},    {2, TextId::kTabSummary},
    {3, TextId::kTabProperties}, {4, TextId::kTabPreview},
};

constexpr auto kValues = MakeTable({
    {kInterface, L"UITheme", Int(0), SomeLabels(IDC_UI_THEME, kThemes, kOfferedThemes), 4},
    {kInterface, L"DefaultTab", Int(0), Labels(IDC_UI_DEFAULT_TAB, kTabs), 5},
    {kInterface, L"UITabbed", Bool(false), Check(IDC_UI_TABBED), 1},
    {kInterface, L"UITaskbarPreviews", Bool(false), Check(IDC_UI_TASKBAR_PREVIEWS), 2},
    {kInterface, L"ShowCVTabs", Bool(false), Check(IDC_UI_CONTENTS_TABS), 3},
});

constexpr int kHeadings[] = {IDC_UI_TABS_HEADING};

constexpr int kOfTabs[] = {IDC_UI_TASKBAR_PREVIEWS};
constexpr EnablingRule kRules[] = {{kOfTabs, WhenChecked<IDC_UI_TABBED>}};

constexpr PageDescription kPage = {kValues, kHeadings, kRules};

}  // namespace

CConfigEntryUserInterfaceDlg::CConfigEntryUserInterfaceDlg() : CValuePage(IDD, kPage) {}
