#pragma once

// A combo box with an edit part that keeps what the user typed when its list closes without a
// choice.

#include "controls/custom_combo_box.h"

/// Notification to the parent: Enter was pressed in the combo. The parent answers non-zero when it
/// took the key.
constexpr UINT kComboEnterNotification = 0xF002;

class CAutoSelectionCombo : public CCustomComboBox {
 public:
  BOOL PreTranslateMessage(MSG* message) override;

 protected:
  void OnKillFocus(CWnd* receiver);
  void OnSize(UINT type, int cx, int cy);
  DECLARE_MESSAGE_MAP()

 private:
  /// Whether a row was chosen.
  bool CloseWith(int row);
};
