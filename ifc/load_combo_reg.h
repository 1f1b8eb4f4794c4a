#pragma once

// A history provider: fills drop-down lists from the histories it keeps.

#include <vector>

#include "platform/text.h"

class CComboBox;

namespace INTERNAL_IFC {

/// The place of every operation is fixed; those that nobody calls are reserved and answer
/// E_NOTIMPL.
class ILoadComboReg {
 public:
  virtual ~ILoadComboReg() = default;                // 0
  virtual HRESULT Reserved1() { return E_NOTIMPL; }  // 1
  virtual HRESULT Reserved2() { return E_NOTIMPL; }  // 2
  virtual HRESULT Reserved3() { return E_NOTIMPL; }  // 3
  virtual HRESULT Reserved4() { return E_NOTIMPL; }  // 4
  /// Brings combo and history in line: with false the history is attached to the combo and its
  /// newest entry shown, with true its list is filled because it is about to drop.
  virtual HRESULT Exchange(CComboBox* combo, bool aboutToDrop) = 0;  // 5
  virtual HRESULT Reserved6() { return E_NOTIMPL; }                  // 6
  /// Chooses the history of that name and its greatest number of entries.
  virtual HRESULT SelectList(const CString& section, std::int32_t maximum) = 0;  // 7
  virtual HRESULT Reserved8() { return E_NOTIMPL; }                              // 8
  virtual HRESULT Reserved9() { return E_NOTIMPL; }                              // 9
  /// The chosen history, newest first.
  virtual HRESULT GetItems(std::vector<CString>& items) = 0;  // 10
  /// Replaces the chosen history.
  virtual HRESULT SetItems(const std::vector<CString>& items) = 0;  // 11
};

}  // namespace INTERNAL_IFC
