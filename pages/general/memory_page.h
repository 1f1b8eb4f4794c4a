#pragma once

#include "core/value_page.h"
#include "resources/resource.h"

/// The limits of the search memory manager.
class CConfigEntryMemMgrDlg : public CValuePage {
 public:
  static constexpr UINT IDD = IDD_MEMORY_PAGE;
  CConfigEntryMemMgrDlg();

 protected:
  BOOL OnInitDialog() override;
};
