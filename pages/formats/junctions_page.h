#pragma once

#include "core/value_page.h"
#include "resources/resource.h"

/// How a search follows junction points and shortcuts.
class CConfigEntryAdvJunctionsDlg : public CValuePage {
 public:
  static constexpr UINT IDD = IDD_JUNCTIONS_PAGE;
  CConfigEntryAdvJunctionsDlg();
};
