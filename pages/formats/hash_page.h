#pragma once

#include "core/value_page.h"
#include "resources/resource.h"

/// Hash-value expressions: which algorithms are used.
class CConfigEntryExprHashDlg : public CValuePage {
 public:
  static constexpr UINT IDD = IDD_HASH_PAGE;
  CConfigEntryExprHashDlg();
};
