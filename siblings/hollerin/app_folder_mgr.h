#pragma once

// Makes the manager of the application's folders. It knows "%CONFIG%", "%DATA%", "%CACHE%",
// "%TEMP%" and "%DOCUMENTS%", the user's folders of these kinds, unless the machine dictates
// others.

#include "ifc/app_folder_mgr.h"

namespace HOLLERIN {

/// The folders are those of the moment of the call. E_INVALIDARG for a null pointer.
HRESULT CreateAppFolderMgr(std::shared_ptr<IAppFolderMgr>* manager);

}  // namespace HOLLERIN
