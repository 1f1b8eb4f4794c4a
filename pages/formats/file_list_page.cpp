#include "pages/formats/file_list_page.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kOptions = L"Options";

constexpr auto kValues = MakeTable({
    {kOptions, L"AllowContainingFileList", Int(0), FlagCheck(IDC_CONTAINING_FILE_LIST)},
    {kOptions, L"AllowFileNameFileList", Int(0), FlagCheck(IDC_FILE_NAME_FILE_LIST)},
});

constexpr PageDescription kPage = {kValues};

}  // namespace

CConfigEntryAdvFileListDlg::CConfigEntryAdvFileListDlg() : CValuePage(IDD, kPage) {}

void CConfigEntryAdvFileListDlg::BindMembers(CDataExchange* exchange) {
  // A list of folders is always allowed; no value stands behind its box.
  int always = BST_CHECKED;
  DDX_Check(exchange, IDC_LOOK_IN_FILE_LIST, always);
}
