#pragma once

#include "pages/general/folder_rows_page.h"
#include "resources/resource.h"

/// Where the application keeps its files. The locations belong to the master configuration.
class CConfigEntryGeneralFoldersDlg : public CFolderRowsPage {
 public:
  static constexpr UINT IDD = IDD_FOLDERS_PAGE;
  CConfigEntryGeneralFoldersDlg();

 protected:
  /// The master configuration, of a host that has a configuration being edited too.
  StoreHandle GetValueStore() override;
};
