#pragma once

// A connection to an SQLite database, for one thread.

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class Database {
 public:
  /// Makes a missing file only with `create`. False, with the reason in Error(), when it cannot be
  /// opened; whether it is a database at all shows when it is used. A file that may only be read is
  /// opened for reading. Nothing waits for the locks of others.
  bool Open(const std::string& path, bool create);

  /// Runs statements without results.
  bool Run(const char* statements);
  /// The number in the first column of the first row; nothing on failure or without a row.
  std::optional<std::int64_t> Number(const char* query);
  /// SQLite's own text for what failed last.
  std::wstring Error() const;

  sqlite3* Get() const { return connection_.get(); }

 private:
  struct Closer {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
  };
  std::unique_ptr<sqlite3, Closer> connection_;
};

/// A prepared statement; to be destroyed before its database.
class Statement {
 public:
  /// What is wrong with the text shows at the first step.
  Statement(const Database& database, const char* text);

  /// Parameters count from 1. The text is copied.
  void Bind(int parameter, std::int64_t number);
  void Bind(int parameter, std::string_view text);

  enum class Step { kRow, kDone, kFailed };
  /// Goes on to the next row, or runs the statement; afterwards it can be bound and run again.
  Step Next();
  std::int64_t Number(int column) const { return sqlite3_column_int64(statement_.get(), column); }
  std::string_view Bytes(int column) const;

 private:
  struct Finalizer {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  std::unique_ptr<sqlite3_stmt, Finalizer> statement_;
};
