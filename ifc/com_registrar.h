#pragma once

// How the application is woven into the desktop: the state as it is, not as the settings want it.

#include "platform/types.h"

namespace HOLLERIN {

/// The queries fill their flags with VARIANT_TRUE or VARIANT_FALSE on success only; E_INVALIDARG
/// for a null pointer. The place of every operation is fixed; those that nobody calls are reserved
/// and answer E_NOTIMPL.
class ICOMRegistrar {
 public:
  virtual ~ICOMRegistrar() = default;                // 0
  virtual HRESULT Reserved1() { return E_NOTIMPL; }  // 1
  /// Whether the application opens files of search results, stands in the context menu of folders,
  /// and takes the place of the file manager's search. `reserved` is VARIANT_FALSE.
  virtual HRESULT GetShellIntegration(VARIANT_BOOL* resultFiles, VARIANT_BOOL* folderMenu,
                                      VARIANT_BOOL* reserved, VARIANT_BOOL* searchKey) = 0;  // 2
  virtual HRESULT Reserved3() { return E_NOTIMPL; }                                          // 3
  virtual HRESULT Reserved4() { return E_NOTIMPL; }                                          // 4
  virtual HRESULT Reserved5() { return E_NOTIMPL; }                                          // 5
  virtual HRESULT Reserved6() { return E_NOTIMPL; }                                          // 6
  /// Whether the application comes up at a global hot key.
  virtual HRESULT GetHotKeyEnabled(VARIANT_BOOL* enabled) = 0;  // 7
  virtual HRESULT Reserved8() { return E_NOTIMPL; }             // 8
  /// Whether the application stands in the context menu of files.
  virtual HRESULT GetFileContextMenu(VARIANT_BOOL* enabled) = 0;  // 9
};

}  // namespace HOLLERIN
