#pragma once

#include "core/value_page.h"
#include "resources/resource.h"

class CConfigExtensionMgr;

/// Explains the group of file extensions, and resets the interpreter list to the defaults.
class CConfigEntryExtensionMainDlg : public CValuePage {
 public:
  static constexpr UINT IDD = IDD_EXTENSION_GROUP;
  /// The manager owns the page; `store` is where the defaults go.
  CConfigEntryExtensionMainDlg(CConfigExtensionMgr& manager, StoreHandle store);

 protected:
  /// Asks first. The defaults are stored at once, and any failure is shown.
  void OnReset();
  DECLARE_MESSAGE_MAP()

 private:
  void StoreDefaults() const;

  CConfigExtensionMgr& manager_;
  StoreHandle store_;
};
