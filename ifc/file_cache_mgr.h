#pragma once

// The cache of texts that were extracted from documents.

#include <cstdint>
#include <memory>
#include <string>

#include "platform/types.h"

namespace INTERNAL_IFC {

/// Sizes in bytes.
struct CacheSizeInfo {
  std::int64_t unused = 0;  ///< What compacting would give back.
  std::int64_t total = 0;   ///< The whole database on the disk.
};

/// The figures of one moment.
class ICacheStats {
 public:
  virtual ~ICacheStats() = default;          // 0
  virtual std::uint64_t GetItemCount() = 0;  // 1
  virtual CacheSizeInfo GetSizeInfo() = 0;   // 2
};

/// The place of every operation is fixed; those that nobody calls are reserved and answer
/// E_NOTIMPL.
class IFileCacheMgr {
 public:
  virtual ~IFileCacheMgr() = default;  // 0
  /// Gives unused space of the database back to the system; nothing where there is no database. On
  /// failure the database is as it was, and `error` says in English what was done and why it did
  /// not work: "Compacting the text cache (database is locked: /path)".
  virtual HRESULT CompactCache(std::wstring& error) = 0;  // 1
  /// Removes the database with all its files; nothing where there is none. One that is in use,
  /// protected, or no database of this cache stays; `error` is filled as by CompactCache.
  virtual HRESULT DeleteCache(std::wstring& error) = 0;  // 2
  virtual HRESULT Reserved3() { return E_NOTIMPL; }      // 3
  virtual HRESULT Reserved4() { return E_NOTIMPL; }      // 4
  virtual HRESULT Reserved5() { return E_NOTIMPL; }      // 5
  /// The figures of now, in a time that does not depend on the number of items. Of a database that
  /// cannot be read the size alone is known, and the log says why. Null when there are no figures.
  virtual std::shared_ptr<ICacheStats> GetCacheStats() = 0;  // 6
};

}  // namespace INTERNAL_IFC
