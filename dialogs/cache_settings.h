#pragma once

// The dialog of the text cache: where it lies, what it holds, how large and how old it may become.

#include "controls/semi_button.h"
#include "controls/separator.h"
#include "foundation/geometry.h"
#include "foundation/translate_dialog.h"
#include "ifc/app_folder_mgr.h"
#include "ifc/config_data_mgr.h"
#include "ifc/file_cache_mgr.h"
#include "ifc/work_progress.h"
#include "platform/number_format.h"

/// Run as Geometry::CGeometryDynCreateWnd<CCacheSettings>. The folder belongs to the global master
/// configuration, in which it is stored and saved when the user confirms; everything else belongs
/// to the store. Compacting and deleting happen at once, whatever the user presses in the end.
class CCacheSettings : public CBaseTranslateDialog,
                       public Geometry::ILayout,
                       public INTERNAL_IFC::IRunningStatus {
 public:
  /// Without a store only the cache itself can be looked after.
  explicit CCacheSettings(std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> store);

  /// Never: what the dialog has begun runs to its end.
  bool IsCancelled() override { return false; }

 protected:
  BOOL OnInitDialog() override;
  void DoDataExchange(CDataExchange* exchange) override;
  void OnOK() override;
  void OnBrowse();
  void OnOpen();
  void OnPolicyClicked();
  void OnCompact();
  void OnDelete();
  DECLARE_MESSAGE_MAP()

 private:
  using Operation = HRESULT (INTERNAL_IFC::IFileCacheMgr::*)(std::wstring&);

  void OpenCache();
  void ReadFolder();
  void ShowStatistics();
  /// What the folder edit names on the disk; nothing when that cannot be made out.
  std::wstring ExpandedEdit();
  HRESULT Expand(const std::wstring& text, std::wstring& path);
  void Change(Operation operation, const wchar_t* description);
  /// Raises CCP_Exception with the manager's own text when the operation fails.
  void RunOnCache(Operation operation);
  /// Whether the folder is stored as the user wants it; false when the user changed their mind.
  bool StoreFolder();
  void SaveFolder(INTERNAL_IFC::IConfigDataMgr& master, const std::wstring& previous);

  CSeparator folderHeading_;
  CSeparator sizeHeading_;
  CSeparator expiryHeading_;
  CSemiButton browse_;
  CSemiButton open_;
  CBCGPEdit folderEdit_;
  std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> store_;
  std::shared_ptr<INTERNAL_IFC::IFileCacheMgr> cache_;
  std::shared_ptr<INTERNAL_IFC::ICacheStats> statistics_;
  std::shared_ptr<HOLLERIN::IAppFolderMgr> folders_;
  CNumberFormatStruct numberFormat_;
  CString folder_;  ///< As the user sees it, with placeholders.
};
