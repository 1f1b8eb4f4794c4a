#pragma once

// The base of every settings page: a child dialog that reaches its host's stores.

#include <memory>

#include "foundation/translate_dialog.h"
#include "ifc/config_data_provider.h"

using StoreHandle = std::shared_ptr<INTERNAL_IFC::IConfigDataMgr>;

class CConfigDialog : public CBaseTranslateDialog {
 public:
  explicit CConfigDialog(UINT templateId) : CBaseTranslateDialog(templateId) {}

  /// Makes the page's window, modeless, as a child of `parent`. The provider must outlive the page.
  /// When the window cannot be made the user is told `failure`, and the page stays without one.
  void CreatePage(CWnd* parent, INTERNAL_IFC::IConfigDataProvider* provider,
                  const wchar_t* failure);

 protected:
  INTERNAL_IFC::IConfigDataProvider* GetProvider() const { return provider_; }
  /// The configuration being edited; empty when the host has none.
  StoreHandle GetWorkingStore() const;

 private:
  INTERNAL_IFC::IConfigDataProvider* provider_ = nullptr;
};

/// Lets a page save its values. False when it refused one, and told the user. A page without a
/// window shows no values and has nothing to save.
bool SavePage(CDialog& page);
