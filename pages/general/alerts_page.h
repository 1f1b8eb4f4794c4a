#pragma once

#include "pages/general/edit_rows_page.h"
#include "resources/resource.h"

/// The alerts while a search finds files and at its end.
class CConfigEntryGeneralAlertsDlg : public CEditRowsPage {
 public:
  static constexpr UINT IDD = IDD_ALERTS_PAGE;
  CConfigEntryGeneralAlertsDlg();

 protected:
  /// A sound that is wanted must be named.
  void CheckValues(CDataExchange* exchange) override;
  /// Picks a sound file. Its folder is remembered at once, whatever becomes of the page.
  void OnBrowse(CEdit& edit) override;
  /// Plays the sound once.
  void OnAction(const CEdit& edit) override;

 private:
  CString ProposedFile(const CEdit& edit) const;
  void RememberFolder(const CString& file) const;
};
