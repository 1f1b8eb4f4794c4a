#pragma once

#include "core/config_dialog.h"
#include "resources/resource.h"

/// Explains the group of advanced settings; shows no values.
class CConfigEntryAdvDlg : public CConfigDialog {
 public:
  static constexpr UINT IDD = IDD_ADVANCED_GROUP;
  CConfigEntryAdvDlg() : CConfigDialog(IDD) {}
};
