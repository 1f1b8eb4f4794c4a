#pragma once

#include "core/config_dialog.h"
#include "resources/resource.h"

/// Explains the group of expression types; shows no values.
class CConfigEntryExprDlg : public CConfigDialog {
 public:
  static constexpr UINT IDD = IDD_EXPRESSION_GROUP;
  CConfigEntryExprDlg() : CConfigDialog(IDD) {}
};
