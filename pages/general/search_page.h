#pragma once

#include "core/value_page.h"
#include "resources/resource.h"

/// How a search runs: its mode, the sort after it, the hit count, search as you type.
class CConfigEntrySearchDlg : public CValuePage {
 public:
  static constexpr UINT IDD = IDD_SEARCH_PAGE;
  CConfigEntrySearchDlg();
};
