#pragma once

// The document filters of the machine: programs that extract the text of documents.

#include <string>
#include <vector>

#include "platform/types.h"

namespace INTERNAL_IFC {

/// Extensions are given without a dot and found without regard to case.
///
/// The place of every operation is fixed; those that nobody calls are reserved and answer
/// E_NOTIMPL.
class IFilterMgr {
 public:
  virtual ~IFilterMgr() = default;                   // 0
  virtual HRESULT Reserved1() { return E_NOTIMPL; }  // 1
  /// Looks at the machine anew and replaces `extensions` by those that have a filter, each once;
  /// with `excludeText` without the filters that read nothing but plain text.
  virtual HRESULT GetFilterExtensions(std::vector<std::wstring>& extensions,
                                      bool excludeText) = 0;  // 2
  virtual HRESULT Reserved3() { return E_NOTIMPL; }           // 3
  /// Fills `location` with where the extension's filter lies; empties it when there is none, which
  /// is S_OK too.
  virtual HRESULT GetFilterLocation(const std::wstring& extension,
                                    std::wstring& location) = 0;  // 4
  /// As GetFilterLocation, for the filter's name.
  virtual HRESULT GetFilterName(const std::wstring& extension, std::wstring& name) = 0;  // 5
};

}  // namespace INTERNAL_IFC
