#pragma once

// Persistent search filters: named restrictions that apply to every search while they are on.

#include <cstdint>
#include <memory>
#include <string>

#include "platform/types.h"

namespace INTERNAL_IFC {

/// What a filter restricts.
enum SearchFilterKind : std::int32_t { kLocationFilter = 0, kNameFilter = 1 };

/// One filter. The place of every operation is fixed; those that nobody calls are reserved and
/// answer E_NOTIMPL.
class ISearchFilter {
 public:
  virtual ~ISearchFilter() = default;                // 0
  virtual HRESULT Reserved1() { return E_NOTIMPL; }  // 1
  virtual HRESULT Reserved2() { return E_NOTIMPL; }  // 2
  /// Whether the filter takes part in searches.
  virtual bool IsEnabled() = 0;        // 3
  virtual std::wstring GetName() = 0;  // 4
  /// The pattern of a name filter, or the folders of a location filter in the text form of a
  /// location list.
  virtual std::wstring GetValue() = 0;  // 5
  /// Number of the expression type.
  virtual std::int32_t GetMatchType() = 0;  // 6
  /// A SearchFilterKind; a stored filter may have any other number too.
  virtual std::int32_t GetFilterKind() = 0;              // 7
  virtual void SetEnabled(bool enabled) = 0;             // 8
  virtual void SetName(const std::wstring& name) = 0;    // 9
  virtual void SetValue(const std::wstring& value) = 0;  // 10
  virtual void SetMatchType(std::int32_t type) = 0;      // 11
  /// Makes it a name filter, or a location filter.
  virtual void SetNameKind(bool name) = 0;  // 12
  /// An independent copy.
  virtual std::shared_ptr<ISearchFilter> Clone() = 0;  // 13
};

/// The filters in their order, shared with whoever took one out. Numbers are 0-based; a number
/// outside, and a null filter, changes nothing.
class ISearchFilterList {
 public:
  virtual ~ISearchFilterList() = default;  // 0
  /// Whether the list holds anything else than when it was loaded, changes inside of its filters
  /// included.
  virtual bool IsModified() = 0;                                       // 1
  virtual HRESULT Reserved2() { return E_NOTIMPL; }                    // 2
  virtual std::int32_t GetCount() = 0;                                 // 3
  virtual void Add(const std::shared_ptr<ISearchFilter>& filter) = 0;  // 4
  virtual void RemoveAt(std::int32_t index) = 0;                       // 5
  virtual void SetAt(std::int32_t index,
                     const std::shared_ptr<ISearchFilter>& filter) = 0;  // 6
  /// Null when there is none.
  virtual std::shared_ptr<ISearchFilter> GetAt(std::int32_t index) = 0;  // 7
};

}  // namespace INTERNAL_IFC
