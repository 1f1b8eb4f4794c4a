#include "pages/general/email_page.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kOptions = L"Options";

constexpr auto kValues = MakeTable({
    {kOptions, L"EmailStripHTML", Bool(false), Check(IDC_EMAIL_STRIP_HTML), 3},
    {kOptions, L"IncParentMsgName", Bool(false), Check(IDC_EMAIL_PARENT_NAME), 1},
    {kOptions, L"AddMsgBodyAttach", Bool(false), Check(IDC_EMAIL_BODY_ATTACHMENT), 2},
    {L"FOLDERS", L"ThunderbirdFolder", Text(), Edit(IDC_MAIL_FOLDER), 4},
});

constexpr int kHeadings[] = {IDC_EMAIL_HEADING, IDC_MAIL_FOLDER_HEADING};

constexpr EditRow kRows[] = {{IDC_MAIL_FOLDER, IDC_MAIL_FOLDER_BROWSE, IDC_MAIL_FOLDER_OPEN}};

constexpr Geometry::ControlConstraint kLayout[] = {
    {IDC_EMAIL_HEADING, L"CX"},     {IDC_MAIL_FOLDER_HEADING, L"CX"},
    {IDC_EMAIL_PARENT_NAME, L"CX"}, {IDC_EMAIL_BODY_ATTACHMENT, L"CX"},
    {IDC_EMAIL_STRIP_HTML, L"CX"},
};

constexpr PageDescription kPage = {kValues, kHeadings};

}  // namespace

CConfigEntryGeneralEmailDlg::CConfigEntryGeneralEmailDlg()
    : CFolderRowsPage(IDD, kPage, kRows, kLayout) {}
