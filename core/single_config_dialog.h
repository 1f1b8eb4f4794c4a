#pragma once

// A small dialog around one page, outside the page tree.

#include <functional>

#include "core/config_dialog.h"
#include "ifc/config_entry.h"

class CSingleConfigDialog : public CBaseTranslateDialog, public INTERNAL_IFC::IConfigDataProvider {
 public:
  using PageHook = std::function<void(const std::shared_ptr<CDialog>& page)>;

  CSingleConfigDialog(StoreHandle config, std::shared_ptr<INTERNAL_IFC::IConfigEntry> entry,
                      CWnd* parent);

  /// Called with the page when it has been made, before it is shown. To be set before DoModal.
  void SetPageHook(PageHook hook) { hook_ = std::move(hook); }

  void GetConfig(StoreHandle& store) override { store = config_; }
  void GetMasterConfig(StoreHandle& store) override { store.reset(); }
  void GetHistoryConfig(StoreHandle& store) override { store.reset(); }
  CClearHistorySettings* GetClearHistorySettings() override { return nullptr; }

 protected:
  BOOL OnInitDialog() override;
  /// What the exchange raises is shown to the user and keeps the dialog open.
  void OnOK() override;
  /// Runs the page's own exchange in the same direction; its failure is this exchange's.
  void DoDataExchange(CDataExchange* exchange) override;

 private:
  void ShowPage();

  StoreHandle config_;
  std::shared_ptr<INTERNAL_IFC::IConfigEntry> entry_;
  std::shared_ptr<CDialog> page_;
  PageHook hook_;
  CBCGPStatic frame_;
};
