#pragma once

#include "core/value_page.h"
#include "resources/resource.h"

/// How found lines are shown: how many, how much of each, the lines around a hit.
class CConfigEntryGeneralDisplayDlg : public CValuePage {
 public:
  static constexpr UINT IDD = IDD_DISPLAY_PAGE;
  CConfigEntryGeneralDisplayDlg();
};
