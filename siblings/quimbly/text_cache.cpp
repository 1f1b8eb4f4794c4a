#include "quimbly/text_cache.h"

#include "platform/text.h"

namespace {

/// A database without a mark is made; the mark is kCacheMark in decimal. Triggers that count also
/// see the rows that a REPLACE of somebody else removes.
constexpr const char* kMake = R"(
BEGIN IMMEDIATE;
CREATE TABLE texts (
  path TEXT NOT NULL PRIMARY KEY,
  size INTEGER NOT NULL,
  time INTEGER NOT NULL,
  text TEXT NOT NULL
);
CREATE TABLE counter (items INTEGER NOT NULL);
INSERT INTO counter VALUES (0);
CREATE TRIGGER text_added AFTER INSERT ON texts
  BEGIN UPDATE counter SET items = items + 1; END;
CREATE TRIGGER text_removed AFTER DELETE ON texts
  BEGIN UPDATE counter SET items = items - 1; END;
PRAGMA user_version = 1;
PRAGMA application_id = 1364476721;
COMMIT;
)";
static_assert(kCacheMark == 1364476721);

constexpr const char* kPut =
    "INSERT INTO texts VALUES (?1, ?2, ?3, ?4) ON CONFLICT (path) DO UPDATE "
    "SET size = excluded.size, time = excluded.time, text = excluded.text";

constexpr const char* kFind = "SELECT text FROM texts WHERE path = ?1 AND size = ?2 AND time = ?3";

void BindFile(Statement& statement, const FileVersion& file) {
  statement.Bind(1, ToUtf8(file.path));
  statement.Bind(2, file.size);
  statement.Bind(3, file.time);
}

}  // namespace

bool TextCache::Fail() {
  error_ = database_.Error();
  return false;
}

bool TextCache::Open(const std::string& file) {
  if (!database_.Open(file, true) || !database_.Run("PRAGMA recursive_triggers = ON")) {
    return Fail();
  }
  const auto mark = database_.Number("PRAGMA application_id");
  const auto pages = database_.Number("PRAGMA page_count");
  if (!mark || !pages) return Fail();
  if (*mark == kCacheMark) return true;
  if (*mark == 0 && *pages == 0) return database_.Run(kMake) || Fail();
  error_ = L"this is the database of something else";
  return false;
}

bool TextCache::Put(std::span<const CachedText> texts) {
  if (!database_.Run("BEGIN IMMEDIATE")) return Fail();
  if (PutAll(texts) && database_.Run("COMMIT")) return true;
  Fail();
  database_.Run("ROLLBACK");
  return false;
}

bool TextCache::PutAll(std::span<const CachedText> texts) {
  Statement statement(database_, kPut);
  for (const CachedText& cached : texts) {
    BindFile(statement, cached.file);
    statement.Bind(4, ToUtf8(cached.text));
    if (statement.Next() != Statement::Step::kDone) return false;
  }
  return true;
}

std::optional<std::wstring> TextCache::Find(const FileVersion& file) {
  Statement statement(database_, kFind);
  BindFile(statement, file);
  if (statement.Next() != Statement::Step::kRow) return std::nullopt;
  return FromUtf8(statement.Bytes(0));
}
