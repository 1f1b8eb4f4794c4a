#pragma once

// The dialog that clears histories.

#include "foundation/translate_dialog.h"
#include "ifc/clear_history_settings.h"

/// DoModal ends with IDOK when the user had histories cleared, also where that or saving failed,
/// which is reported; after anything else neither the settings nor the store have changed.
class CClearHistoryDlg : public CBaseTranslateDialog {
 public:
  /// The settings must outlive the dialog; the store is shared.
  CClearHistoryDlg(CClearHistorySettings& settings,
                   std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> history);

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;
  void OnAllClicked();
  void OnClear();
  DECLARE_MESSAGE_MAP()

 private:
  void ClearChosen();

  std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> history_;
  CClearHistorySettings& settings_;
};
