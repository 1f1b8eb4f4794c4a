#pragma once

#include "core/value_page.h"
#include "resources/resource.h"

/// What is remembered from one run to the next, and how long the lists of it are.
class CConfigEntryGeneralHistoryDlg : public CValuePage {
 public:
  static constexpr UINT IDD = IDD_HISTORY_PAGE;
  CConfigEntryGeneralHistoryDlg();

 protected:
  void OnClearHistory();
  void OnEditHistory();
  DECLARE_MESSAGE_MAP()

 private:
  void ClearHistory();
  HWND DialogAround() const;
  StoreHandle GetHistoryStore() const;
};
