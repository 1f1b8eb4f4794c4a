#pragma once

#include "core/value_page.h"
#include "resources/resource.h"

/// Which search fields may take a list of files from a file.
class CConfigEntryAdvFileListDlg : public CValuePage {
 public:
  static constexpr UINT IDD = IDD_FILE_LIST_PAGE;
  CConfigEntryAdvFileListDlg();

 protected:
  void BindMembers(CDataExchange* exchange) override;
};
