#pragma once

// What the library keeps for as long as it is loaded.

#include <memory>

#include "ifc/global_mgr.h"
#include "ifc/language_mgr.h"
#include "platform/module.h"

/// The process-wide objects, obtained when the library is loaded, in the order of the members, and
/// released in reverse order when it is unloaded. Nothing writes them in between, except that the
/// UI-extension library fills its slot once.
struct ProcessObjects {
  /// Obtains both managers from the configuration-store library.
  ProcessObjects();

  std::shared_ptr<INTERNAL_IFC::IGlobalMgr> global;
  std::shared_ptr<RES::ILanguageMgr> language;  ///< Null while no language is loaded.
  CDynLinkLibrary* uiLink = nullptr;            ///< Owned by the UI-extension library.
};

/// The one set of them. Made at load; valid until unload.
ProcessObjects& Process();

/// The application's log; null when there is none.
std::shared_ptr<INTERNAL_IFC::ILogMgr> ApplicationLog();
