#pragma once

#include "core/value_page.h"
#include "resources/resource.h"

/// The theme of the main window, its tabs, and the tab that it shows first.
class CConfigEntryUserInterfaceDlg : public CValuePage {
 public:
  static constexpr UINT IDD = IDD_USER_INTERFACE_PAGE;
  CConfigEntryUserInterfaceDlg();
};
