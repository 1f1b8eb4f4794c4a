#include "quimbly/database.h"

#include "platform/text.h"

bool Database::Open(const std::string& path, bool create) {
  sqlite3* opened = nullptr;
  const int flags = SQLITE_OPEN_READWRITE | (create ? SQLITE_OPEN_CREATE : 0);
  const int status = sqlite3_open_v2(path.c_str(), &opened, flags, nullptr);
  connection_.reset(opened);  // There may be one that only holds the reason.
  if (status == SQLITE_OK) sqlite3_busy_timeout(opened, 0);
  return status == SQLITE_OK;
}

bool Database::Run(const char* statements) {
  return sqlite3_exec(Get(), statements, nullptr, nullptr, nullptr) == SQLITE_OK;
}

std::optional<std::int64_t> Database::Number(const char* query) {
  Statement statement(*this, query);
  if (statement.Next() != Statement::Step::kRow) return std::nullopt;
  return statement.Number(0);
}

std::wstring Database::Error() const {
  return FromUtf8(connection_ != nullptr ? sqlite3_errmsg(Get()) : sqlite3_errstr(SQLITE_NOMEM));
}

Statement::Statement(const Database& database, const char* text) {
  sqlite3_stmt* prepared = nullptr;
  sqlite3_prepare_v2(database.Get(), text, -1, &prepared, nullptr);
  statement_.reset(prepared);
}

void Statement::Bind(int parameter, std::int64_t number) {
  sqlite3_bind_int64(statement_.get(), parameter, number);
}

void Statement::Bind(int parameter, std::string_view text) {
  sqlite3_bind_text64(statement_.get(), parameter, text.data(), text.size(), SQLITE_TRANSIENT,
                      SQLITE_UTF8);
}

Statement::Step Statement::Next() {
  if (statement_ == nullptr) return Step::kFailed;
  const int status = sqlite3_step(statement_.get());
  if (status == SQLITE_ROW) return Step::kRow;
  sqlite3_reset(statement_.get());
  return status == SQLITE_DONE ? Step::kDone : Step::kFailed;
}

std::string_view Statement::Bytes(int column) const {
  const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement_.get(), column));
  const int size = sqlite3_column_bytes(statement_.get(), column);
  return bytes != nullptr ? std::string_view(bytes, static_cast<std::size_t>(size))
                          : std::string_view();
}
