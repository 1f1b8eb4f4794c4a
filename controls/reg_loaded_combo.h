#pragma once

// A combo box whose list comes from a history provider.

#include <memory>

#include "controls/auto_selection_combo.h"
#include "ifc/load_combo_reg.h"

class CRegLoadedCombo : public CAutoSelectionCombo {
 public:
  /// Keeps the provider and lets it attach its history to the combo. An empty pointer leaves the
  /// combo without one. Raises CCP_Exception when the provider fails.
  void LoadFromProvider(const std::shared_ptr<INTERNAL_IFC::ILoadComboReg>& provider);
  CString GetText() const;

 protected:
  BOOL OnReflectedNotification(UINT code, int previous) override;

 private:
  void FillFromProvider();
  void WidenToRows();

  std::shared_ptr<INTERNAL_IFC::ILoadComboReg> provider_;
};
