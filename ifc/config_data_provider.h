#pragma once

// What a page holds to reach its host's stores.

#include <memory>

#include "ifc/config_data_mgr.h"

class CClearHistorySettings;

namespace INTERNAL_IFC {

/// Each getter shares ownership of the store, or leaves the handle empty where the host has none.
class IConfigDataProvider {
 public:
  virtual ~IConfigDataProvider() = default;
  virtual void GetConfig(std::shared_ptr<IConfigDataMgr>& store) = 0;
  virtual void GetMasterConfig(std::shared_ptr<IConfigDataMgr>& store) = 0;
  virtual void GetHistoryConfig(std::shared_ptr<IConfigDataMgr>& store) = 0;
  /// Owned by the host; null where it has none.
  virtual CClearHistorySettings* GetClearHistorySettings() = 0;
};

}  // namespace INTERNAL_IFC
