#pragma once

// The text cache as files: looking at them, compacting and removing them.

#include <cstdint>
#include <functional>
#include <string>

/// What a database says of itself, in a time that does not depend on its size.
struct CacheFigures {
  std::uint64_t items = 0;
  std::int64_t unused = 0;  ///< Bytes.
  std::int64_t total = 0;   ///< Bytes, its side files included.
  std::wstring problem;     ///< Why only the total is known; empty when nothing is wrong.
};

/// A database that does not exist has nothing.
CacheFigures LookAtCache(const std::string& file);

/// Both return why the database could not be changed, in which case it is as it was; an empty text
/// for success, as with a database that does not exist. `cancelled` is asked now and then.
std::wstring CompactCacheFile(const std::string& file, const std::function<bool()>& cancelled);
std::wstring DeleteCacheFiles(const std::string& file);
