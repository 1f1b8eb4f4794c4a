#include "quimbly/cache_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "platform/text.h"
#include "quimbly/text_cache.h"

namespace {

/// Steps of the database's machine between two questions whether to stop.
constexpr int kStepsBetweenQuestions = 10000;

constexpr mode_t kWritableByAnybody = S_IWUSR | S_IWGRP | S_IWOTH;

enum class Presence { kNone, kFile, kUnusable };

std::wstring SystemText(int error) { return FromUtf8(std::strerror(error)); }

Presence LookFor(const std::string& file, struct stat& status, std::wstring& problem) {
  if (stat(file.c_str(), &status) != 0) {
    if (errno == ENOENT || errno == ENOTDIR) return Presence::kNone;
    problem = SystemText(errno);
    return Presence::kUnusable;
  }
  if (S_ISREG(status.st_mode)) return Presence::kFile;
  problem = L"it is not a regular file";
  return Presence::kUnusable;
}

/// 0 for a file that does not exist.
std::int64_t SizeOf(const std::string& file) {
  struct stat status {};
  return stat(file.c_str(), &status) == 0 ? std::int64_t{status.st_size} : 0;
}

/// Whether it is a database of this cache; an empty file is one that was never filled.
bool IsCache(Database& database, std::int64_t size, std::wstring& problem) {
  const auto mark = database.Number("PRAGMA application_id");
  if (!mark) {
    problem = database.Error();
  } else if (*mark != kCacheMark && size != 0) {
    problem = L"it is the database of something else";
  }
  return problem.empty();
}

/// A file that nobody may write is protected, from those too whom the system lets write anything.
bool IsProtected(const std::string& file, const struct stat& status) {
  return (status.st_mode & kWritableByAnybody) == 0 ||
         faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) != 0;
}

/// Opens a database that may be changed. False without a problem when there is none.
bool OpenForChange(const std::string& file, Database& database, std::wstring& problem) {
  struct stat status {};
  if (LookFor(file, status, problem) != Presence::kFile) return false;
  if (IsProtected(file, status)) {
    problem = FromUtf8(sqlite3_errstr(SQLITE_READONLY));
    return false;
  }
  if (!database.Open(file, false)) {
    problem = database.Error();
    return false;
  }
  return IsCache(database, status.st_size, problem);
}

int AskWhetherToStop(void* cancelled) {
  return (*static_cast<const std::function<bool()>*>(cancelled))() ? 1 : 0;
}

/// Whether nobody uses the database any more. Changes that wait in a write-ahead log are brought
/// home first, so that the log can go.
bool LockAlone(const std::string& file, Database& database) {
  const bool logged = access((file + "-wal").c_str(), F_OK) == 0;
  if (logged && !database.Run("PRAGMA journal_mode = DELETE")) return false;
  return database.Run("BEGIN EXCLUSIVE");
}

bool Remove(const std::string& file, std::wstring& problem) {
  if (unlink(file.c_str()) == 0 || errno == ENOENT || errno == ENOTDIR) return true;
  problem = SystemText(errno);
  return false;
}

/// The side files first: one that was left behind would be taken for a part of the next database.
void RemoveAll(const std::string& file, std::wstring& problem) {
  for (const char* ending : kCacheSideFiles) {
    if (!Remove(file + ending, problem)) return;
  }
  Remove(file, problem);
}

}  // namespace

CacheFigures LookAtCache(const std::string& file) {
  CacheFigures figures;
  struct stat status {};
  if (LookFor(file, status, figures.problem) != Presence::kFile) return figures;
  figures.total = status.st_size;
  for (const char* ending : kCacheSideFiles) figures.total += SizeOf(file + ending);
  Database database;
  if (!database.Open(file, false)) {
    figures.problem = database.Error();
    return figures;
  }
  if (!IsCache(database, status.st_size, figures.problem) || status.st_size == 0) return figures;
  const auto items = database.Number(kCountItems);
  const auto pages = database.Number("PRAGMA freelist_count");
  const auto pageSize = database.Number("PRAGMA page_size");
  if (!items || !pages || !pageSize || *items < 0) {
    figures.problem = database.Error();
    return figures;
  }
  figures.items = static_cast<std::uint64_t>(*items);
  figures.unused = *pages * *pageSize;
  return figures;
}

std::wstring CompactCacheFile(const std::string& file, const std::function<bool()>& cancelled) {
  std::wstring problem;
  Database database;
  if (!OpenForChange(file, database, problem)) return problem;
  auto question = cancelled;
  sqlite3_progress_handler(database.Get(), kStepsBetweenQuestions, AskWhetherToStop, &question);
  return database.Run("VACUUM") ? std::wstring() : database.Error();
}

std::wstring DeleteCacheFiles(const std::string& file) {
  std::wstring problem;
  Database database;
  const bool exists = OpenForChange(file, database, problem);
  if (exists && !LockAlone(file, database)) problem = database.Error();
  if (problem.empty()) RemoveAll(file, problem);
  return problem;
}
