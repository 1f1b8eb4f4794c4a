#pragma once

#include "pages/general/folder_rows_page.h"
#include "resources/resource.h"

/// How e-mail messages are searched, and where the mail folder lies.
class CConfigEntryGeneralEmailDlg : public CFolderRowsPage {
 public:
  static constexpr UINT IDD = IDD_EMAIL_PAGE;
  CConfigEntryGeneralEmailDlg();
};
