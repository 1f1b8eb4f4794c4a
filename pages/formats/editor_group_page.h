#pragma once

#include "core/config_dialog.h"
#include "resources/resource.h"

/// Explains the group of editors; shows no values.
class CConfigEntryEditorDlg : public CConfigDialog {
 public:
  static constexpr UINT IDD = IDD_EDITOR_GROUP;
  CConfigEntryEditorDlg() : CConfigDialog(IDD) {}
};
