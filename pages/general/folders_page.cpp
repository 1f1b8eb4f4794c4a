#include "pages/general/folders_page.h"

namespace {

using namespace page_values;

constexpr const wchar_t* kFolders = L"FOLDERS";

constexpr auto kValues = MakeTable({
    {kFolders, L"LogFile", Text(), Edit(IDC_LOG_FILE)},
    {kFolders, L"ConfigFile", Text(), Edit(IDC_CONFIG_FILE)},
    {kFolders, L"FavouriteFolder", Text(), Edit(IDC_FAVOURITE_FOLDER)},
    {kFolders, L"TempFolder", Text(), Edit(IDC_TEMP_FOLDER)},
    {kFolders, L"IndexFolder", Text(), Edit(IDC_INDEX_FOLDER)},
});

constexpr EditRow kRows[] = {
    {IDC_LOG_FILE, IDC_LOG_FILE_BROWSE, IDC_LOG_FILE_OPEN},
    {IDC_CONFIG_FILE, IDC_CONFIG_FILE_BROWSE, IDC_CONFIG_FILE_OPEN},
    {IDC_FAVOURITE_FOLDER, IDC_FAVOURITE_FOLDER_BROWSE, IDC_FAVOURITE_FOLDER_OPEN},
    {IDC_TEMP_FOLDER, IDC_TEMP_FOLDER_BROWSE, IDC_TEMP_FOLDER_OPEN},
    {IDC_INDEX_FOLDER, IDC_INDEX_FOLDER_BROWSE, IDC_INDEX_FOLDER_OPEN},
};

constexpr PageDescription kPage = {kValues};

}  // namespace

CConfigEntryGeneralFoldersDlg::CConfigEntryGeneralFoldersDlg()
    : CFolderRowsPage(IDD, kPage, kRows) {}

StoreHandle CConfigEntryGeneralFoldersDlg::GetValueStore() {
  StoreHandle master;
  if (GetWorkingStore() != nullptr) GetProvider()->GetMasterConfig(master);
  return master;
}
