#pragma once

// The text cache: texts that were extracted from files, in an SQLite database. A file has at most
// one text there, which counts for as long as the file's size and time are those of the extraction.

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "quimbly/database.h"

struct FileVersion {
  std::wstring path;
  std::int64_t size = 0;  ///< Bytes.
  std::int64_t time = 0;  ///< Of the last change, in nanoseconds since 1970.
};

struct CachedText {
  FileVersion file;
  std::wstring text;
};

/// Marks the databases of this cache in their header.
constexpr std::int64_t kCacheMark = 0x51544331;

/// Name of the database in the cache folder.
constexpr const char* kCacheFileName = "textcache.sqlite";
/// What SQLite may add to that name for files of its own.
constexpr const char* kCacheSideFiles[] = {"-journal", "-wal", "-shm"};

/// Number of texts, from the row that the database's triggers keep up to date.
constexpr const char* kCountItems = "SELECT items FROM counter";

class TextCache {
 public:
  /// Opens the database, which is made when it is missing. False, with the reason in Error(), when
  /// it cannot be used, such as one that is no text cache.
  bool Open(const std::string& file);

  /// Keeps the texts in place of older ones of the same files: all of them or, when that fails,
  /// none. Characters that are no code points are replaced by U+FFFD.
  bool Put(std::span<const CachedText> texts);
  /// Nothing when the cache has no text of this version of the file, or cannot be read.
  std::optional<std::wstring> Find(const FileVersion& file);

  const std::wstring& Error() const { return error_; }

 private:
  bool Fail();
  bool PutAll(std::span<const CachedText> texts);

  Database database_;
  std::wstring error_;
};
