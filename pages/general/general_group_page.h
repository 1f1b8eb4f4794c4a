#pragma once

#include "core/config_dialog.h"
#include "resources/resource.h"

/// Explains the group of general settings; shows no values.
class CConfigEntryGeneralDlg : public CConfigDialog {
 public:
  static constexpr UINT IDD = IDD_GENERAL_GROUP;
  CConfigEntryGeneralDlg() : CConfigDialog(IDD) {}
};
