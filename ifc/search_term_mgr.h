#pragma once

// How the terms of a search are told apart where their hits are shown.

#include <cstdint>
#include <memory>

#include "ifc/config_data_mgr.h"

namespace INTERNAL_IFC {

/// The style of one term. The place of every operation is fixed here and in ISearchTermMgr; those
/// that nobody calls are reserved and answer E_NOTIMPL.
class ITermStyle {
 public:
  virtual ~ITermStyle() = default;                   // 0
  virtual HRESULT Reserved1() { return E_NOTIMPL; }  // 1
  virtual HRESULT Reserved2() { return E_NOTIMPL; }  // 2
  virtual COLORREF GetColor() const = 0;             // 3
  virtual void SetColor(COLORREF colour) = 0;        // 4
  virtual HRESULT Reserved5() { return E_NOTIMPL; }  // 5
  virtual HRESULT Reserved6() { return E_NOTIMPL; }  // 6
  virtual HRESULT Reserved7() { return E_NOTIMPL; }  // 7
  /// Whether the style differs from what was read.
  virtual bool IsModified() const = 0;  // 8
};

class ISearchTermMgr {
 public:
  virtual ~ISearchTermMgr() = default;               // 0
  virtual HRESULT Reserved1() { return E_NOTIMPL; }  // 1
  virtual HRESULT Reserved2() { return E_NOTIMPL; }  // 2
  virtual HRESULT Reserved3() { return E_NOTIMPL; }  // 3
  virtual HRESULT Reserved4() { return E_NOTIMPL; }  // 4
  virtual HRESULT Reserved5() { return E_NOTIMPL; }  // 5
  virtual HRESULT Reserved6() { return E_NOTIMPL; }  // 6
  virtual HRESULT Reserved7() { return E_NOTIMPL; }  // 7
  virtual HRESULT Reserved8() { return E_NOTIMPL; }  // 8
  /// Reads the style of the term with that index, 0 to 9, from the store. Every call makes a style
  /// of its own. E_INVALIDARG for another index or a null pointer; `style` is filled on success
  /// only.
  virtual HRESULT GetTermStyle(const std::shared_ptr<IConfigDataMgr>& store, std::int32_t index,
                               std::shared_ptr<ITermStyle>* style) = 0;  // 9
  /// Writes a style into the store as that of the term; statuses as GetTermStyle.
  virtual HRESULT SaveTermStyle(const std::shared_ptr<IConfigDataMgr>& store, std::int32_t index,
                                const std::shared_ptr<ITermStyle>& style) = 0;  // 10
};

}  // namespace INTERNAL_IFC
