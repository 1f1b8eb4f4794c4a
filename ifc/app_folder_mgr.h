#pragma once

// The application's folders: stored paths may begin with placeholders that stand for folders of the
// user, so that they stay right when the user's folders move.

#include <memory>
#include <string>

#include "platform/types.h"

namespace HOLLERIN {

/// The place of every operation is fixed; those that nobody calls are reserved and answer
/// E_NOTIMPL.
class IAppFolderMgr {
 public:
  virtual ~IAppFolderMgr() = default;                // 0
  virtual HRESULT Reserved1() { return E_NOTIMPL; }  // 1
  virtual HRESULT Reserved2() { return E_NOTIMPL; }  // 2
  virtual HRESULT Reserved3() { return E_NOTIMPL; }  // 3
  /// The path with the longest known folder at its start replaced by that folder's placeholder;
  /// only whole path components count. A path that lies in no known folder comes back unchanged.
  virtual std::wstring CollapsePath(const std::wstring& path) = 0;  // 4
  /// Fills `path` with the text, every placeholder replaced by its folder. E_FAIL, with `path` left
  /// alone, when the text holds a placeholder that is not known.
  virtual HRESULT ExpandPath(const std::wstring& text, std::wstring& path) = 0;  // 5
};

}  // namespace HOLLERIN
