#pragma once

// The base of every dialog and page of the library: shared font, tooltips, translated texts.

#include <memory>

#include "panterow/panterow.h"
#include "platform/bcg.h"

class CBaseTranslateDialog : public CBCGPDialog {
 public:
  explicit CBaseTranslateDialog(UINT templateId, CWnd* parent = nullptr);

 protected:
  /// Sets the fonts, enables tooltips, translates all texts and takes the language's greatest
  /// layout size for this dialog. Returns TRUE.
  BOOL OnInitDialog() override;

  /// Supplies the tooltip of a control from the string-table entry with the control's number. TRUE
  /// when there is one.
  virtual BOOL OnToolTipText(UINT id, NMHDR* header, LRESULT* result);
  DECLARE_MESSAGE_MAP()

 private:
  void ApplyDialogFont();
  void ApplyMaxLayoutSize();

  std::shared_ptr<CFontMgr> fontMgr_;  ///< Keeps the dialog font alive.
  CString toolTip_;                    ///< The text of the tooltip being shown.
};
