#pragma once

#include "core/value_page.h"
#include "resources/resource.h"

/// DOS wildcard expressions.
class CConfigEntryExprDOSDlg : public CValuePage {
 public:
  static constexpr UINT IDD = IDD_DOS_PAGE;
  CConfigEntryExprDOSDlg();
};
