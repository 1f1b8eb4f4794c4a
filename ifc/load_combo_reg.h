#pragma once

// A history provider: fills drop-down lists from the histories it keeps.

#include <functional>
#include <vector>

#include "platform/text.h"

class CComboBox;

namespace INTERNAL_IFC {

/// How an entry of a history reads in a list.
using ShownEntry = std::function<CString(const CString& entry)>;

/// The place of every operation is fixed; those that nobody calls are reserved and answer
/// E_NOTIMPL.
class ILoadComboReg {
 public:
  virtual ~ILoadComboReg() = default;                // 0
  virtual HRESULT Reserved1() { return E_NOTIMPL; }  // 1
  /// Makes the rows of the combo the entries of the history of looked-in folders, newest first.
  /// `forced` says that rows which the combo has already may be out of date. With `keepText` the
  /// combo's text and its selection stay, without it the newest entry is shown. With `labelled` a
  /// row reads what `shown` makes of its entry, without it the entry itself; `shown` is called
  /// once for each row, in order, in both cases. The item data of a row is the number of that
  /// call, from 0.
  virtual HRESULT Fill(CComboBox*, bool /*forced*/, bool /*keepText*/, bool /*labelled*/,
                       const ShownEntry& /*shown*/) {
    return E_NOTIMPL;
  }                                                  // 2
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
