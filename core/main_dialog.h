#pragma once

// The main configuration dialog: a tree of settings pages on the left, the chosen page on the
// right.

#include "controls/separator.h"
#include "core/config_mgr.h"
#include "foundation/geometry.h"
#include "ifc/clear_history_settings.h"
#include "ifc/observer.h"
#include "platform/controls.h"

/// The page that is shown when the caller names none: the General group.
constexpr std::int32_t kDefaultPageId = 4;

/// Run as Geometry::CGeometryWnd<CConfigurationMain>. DoModal ends with IDOK when every page has
/// written its values into `config`; after anything else `config` may hold some of them. Restoring
/// the defaults replaces `config` and `master` and empties `fourth` at once.
class CConfigurationMain : public CBaseTranslateDialog,
                           public INTERNAL_IFC::IObserver,
                           public INTERNAL_IFC::IConfigDataProvider,
                           public Geometry::ILayout {
 public:
  /// Shares the stores. `initialPageId` is the page to show first; no page is shown when it names
  /// none.
  CConfigurationMain(const StoreHandle& config, const StoreHandle& master,
                     const StoreHandle& history, const StoreHandle& fourth,
                     std::int32_t initialPageId);

  HRESULT GetObserverId(std::uint32_t&) override { return E_NOTIMPL; }
  /// Rebuilds the children of a publisher's item when told that they have changed.
  HRESULT Notify(std::uint32_t code, INTERNAL_IFC::IObserverParms* parms) override;

  void GetConfig(StoreHandle& store) override { store = config_; }
  void GetMasterConfig(StoreHandle& store) override { store = master_; }
  void GetHistoryConfig(StoreHandle& store) override { store = history_; }
  CClearHistorySettings* GetClearHistorySettings() override { return &clearHistory_; }

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;
  /// Applies the whole tree; any failure is reported and keeps the dialog open.
  void OnOK() override;

  void OnSelectionChanging(NMHDR* header, LRESULT* result);
  void OnSelectionChanged(NMHDR* header, LRESULT* result);
  void OnRestoreDefaults();
  void OnSize(UINT type, int cx, int cy);
  DECLARE_MESSAGE_MAP()

 private:
  void SetUp(const StoreHandle& config, const StoreHandle& master, const StoreHandle& history,
             const StoreHandle& fourth, std::int32_t initialPageId);
  void SetUpTree();
  void BuildPageTree();
  void EmptyTree();
  void RestoreDefaults();
  void SelectInitialPage();
  void ShowEntry(INTERNAL_IFC::IConfigEntry& entry);
  void HidePage();
  void RebuildChildren(HTREEITEM item);

  CBCGPStatic frame_;
  CImageList images_;
  std::shared_ptr<CDialog> page_;  ///< The page shown now.
  std::shared_ptr<CConfigMgr> root_;
  StoreHandle config_;
  StoreHandle master_;
  StoreHandle history_;
  StoreHandle fourth_;
  CClearHistorySettings clearHistory_;
  std::int32_t initialPageId_ = kDefaultPageId;
  HTREEITEM initialItem_ = nullptr;
  CBCGPTreeCtrl tree_;
  CSeparator caption_;
  /// While items come and go the tree's notifications concern no choice of the user.
  bool rebuilding_ = false;
};
