#pragma once

// CDialog: a window made from a dialog template, modal or as a child of another dialog.

#include "platform/wnd.h"

class CDialog : public CWnd {
 public:
  /// The window is made by DoModal or Create from that template of the current module.
  explicit CDialog(UINT templateId, CWnd* parent = nullptr);
  ~CDialog() override;

  UINT GetTemplateId() const { return templateId_; }

  /// Runs the dialog until it ends; the number given to EndDialog, or -1 when the window cannot be
  /// made (missing or damaged template). Exceptions raised while the window is made or by message
  /// handlers end the dialog and pass to the caller.
  virtual INT_PTR DoModal();

  /// Makes the window without running it: a child of `parent` when the template says so. FALSE when
  /// the template is missing or damaged.
  BOOL Create(UINT templateId, CWnd* parent);

  void EndDialog(int result);

  /// Makes the control of that number the one that Enter presses.
  void SetDefID(UINT id);

 protected:
  /// Loads the controls from the data (UpdateData(FALSE)). TRUE gives the focus to the first
  /// control of the tab order.
  virtual BOOL OnInitDialog();
  /// UpdateData(TRUE), then the end with IDOK; an exchange that fails keeps the dialog open.
  virtual void OnOK();
  virtual void OnCancel();

  void OnOKCommand() { OnOK(); }
  void OnCancelCommand() { OnCancel(); }
  DECLARE_MESSAGE_MAP()

 private:
  LRESULT OnInitDialogMessage(WPARAM wParam, LPARAM lParam);
  LRESULT OnCloseMessage(WPARAM wParam, LPARAM lParam);

  friend class ModalRun;
  UINT templateId_;
  CWnd* parent_;
  class ModalRun* run_ = nullptr;
};

/// Pixels of a rectangle in the dialog units of that dialog's font.
void MapDialogRect(HWND dialog, CRect& rect);
