#pragma once

// A store for dialogs that were given none.

#include <memory>

#include "ifc/config_data_mgr.h"

/// The store itself, or a blank one in the place of none: reads yield their defaults then, and what
/// is written is not kept. Raises CCP_Exception when a blank one cannot be made.
std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> StoreOrBlank(
    std::shared_ptr<INTERNAL_IFC::IConfigDataMgr> store);
