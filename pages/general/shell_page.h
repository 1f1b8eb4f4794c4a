#pragma once

#include "core/value_page.h"
#include "resources/resource.h"

/// How the application is woven into the desktop. The boxes show the registrar's state, not the
/// stored settings, and opening the page brings the settings in line with that state.
class CConfigEntryGeneralShellDlg : public CValuePage {
 public:
  static constexpr UINT IDD = IDD_SHELL_PAGE;
  CConfigEntryGeneralShellDlg();

 protected:
  /// A failure of the registrar is logged; the page then opens with clear boxes.
  BOOL OnInitDialog() override;
  void BindMembers(CDataExchange* exchange) override;
  /// Asks the user whether the key shall be replaced where that cannot work.
  void OnReplaceF3();
  DECLARE_MESSAGE_MAP()

 private:
  void ShowIntegration(INTERNAL_IFC::IConfigDataMgr& store);
  void DisableIntegration(INTERNAL_IFC::IConfigDataMgr& store);
  void ShowInstanceMode(INTERNAL_IFC::IConfigDataMgr& store);

  CCustomComboBox instanceMode_;
};
