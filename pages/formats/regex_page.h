#pragma once

#include "core/value_page.h"
#include "resources/resource.h"

/// Regular expressions: engine, collation, greatest number of lines.
class CConfigEntryExprRegExDlg : public CValuePage {
 public:
  static constexpr UINT IDD = IDD_REGEX_PAGE;
  CConfigEntryExprRegExDlg();
};
