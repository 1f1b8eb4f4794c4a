#pragma once

// The interpreters that searches may use, as a store holds them.

#include <cstdint>
#include <memory>

#include "ifc/config_interpreter.h"

namespace INTERNAL_IFC {

/// A list in memory, loaded from a store and saved to one. Its entries live as long as anybody
/// holds them.
///
/// The place of every operation is fixed; those that nobody calls are reserved and answer
/// E_NOTIMPL.
class IConfigInterpreterList {
 public:
  virtual ~IConfigInterpreterList() = default;       // 0
  virtual HRESULT Reserved1() { return E_NOTIMPL; }  // 1
  virtual HRESULT Reserved2() { return E_NOTIMPL; }  // 2
  virtual HRESULT Reserved3() { return E_NOTIMPL; }  // 3
  virtual HRESULT Reserved4() { return E_NOTIMPL; }  // 4
  virtual HRESULT Reserved5() { return E_NOTIMPL; }  // 5
  virtual HRESULT Reserved6() { return E_NOTIMPL; }  // 6
  virtual HRESULT Reserved7() { return E_NOTIMPL; }  // 7
  virtual HRESULT Reserved8() { return E_NOTIMPL; }  // 8
  virtual std::int32_t GetCount() = 0;               // 9
  /// Fills `entry` with the entry of that key, or empties it when there is none, which is S_OK too;
  /// keys are told apart by case. E_FAIL empties it as well.
  virtual HRESULT FindByKey(const std::wstring& key,
                            std::shared_ptr<IConfigInterpreter>& entry) = 0;  // 10
  /// `index` counts from 0. E_INVALIDARG outside of the list, with `entry` emptied.
  virtual HRESULT GetAt(std::int32_t index, std::shared_ptr<IConfigInterpreter>& entry) = 0;  // 11
};

}  // namespace INTERNAL_IFC
