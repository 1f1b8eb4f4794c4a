#pragma once

#include "core/value_page.h"
#include "resources/resource.h"

/// How the internal viewer shows text.
class CConfigEntryInternalViewerDlg : public CValuePage {
 public:
  static constexpr UINT IDD = IDD_INTERNAL_VIEWER_PAGE;
  CConfigEntryInternalViewerDlg();
};
