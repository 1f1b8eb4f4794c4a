#pragma once

// The combo box of the dialogs: rows may be indented or disabled, and the parent learns how the
// dropped list was closed.

#include <vector>

#include "platform/bcg.h"

class CCustomComboBox : public CBCGPComboBox {
 public:
  /// Lets AddItem make disabled rows. Off at first.
  void AllowDisabledRows(bool allow) { disabledRowsAllowed_ = allow; }
  /// Adds a row and yields its number. Each tab in the text is one level of indent and is not
  /// shown; where disabled rows are allowed, a "!" disables the row and is not shown.
  int AddItem(const CString& text);
  bool IsRowDisabled(int row) const;

  int DeleteString(UINT row) override;
  void ResetContent() override;
  BOOL PreTranslateMessage(MSG* message) override;

 protected:
  BOOL OnReflectedNotification(UINT code, int previous) override;

 private:
  void MoveDisabledRows(int from, int distance);

  bool disabledRowsAllowed_ = false;
  std::vector<std::int32_t> disabledRows_;
};
