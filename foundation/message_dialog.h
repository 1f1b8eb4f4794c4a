#pragma once

// A message dialog of the library's own, with its text ready to be copied.

#include "platform/bcg.h"

/// Not translated: its few texts are literals of the template.
class CMessageBox : public CBCGPDialog {
 public:
  CMessageBox(UINT templateId, CString text, CWnd* parent = nullptr);

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;
  /// Draws the message beside the image, on one line.
  BOOL OnEraseBkgnd(CDC* dc);
  void OnCopy();
  DECLARE_MESSAGE_MAP()

 private:
  CFont font_;
  CString text_;
  CBCGPPngImage image_;
  CBCGPStatic imageControl_;
};
