#pragma once

#include <sqlite3.h>

#include <memory>
#include <string>
#include <string_view>

#include "tessaly/platform/Registry.h"

/// SQLite's handles, closed with their owners. Its result codes become the registry's at `resultOf`.
namespace tessaly::platform::sqlite {

/// What a result code means to a caller of the registry.
Long resultOf(int code);

struct Close {
  void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};
using Database = std::unique_ptr<sqlite3, Close>;

/// Opens a file that exists, for writing where that is allowed, and settles how it is treated.
int open(const std::string& path, int flags, Database& database);

int run(sqlite3* database, const char* sql);

/// A prepared statement. Text and blobs that are bound must outlive the next `reset`.
class Statement {
 public:
  Statement() = default;
  Statement(sqlite3* database, const char* sql);

  bool isPrepared() const { return statement_ != nullptr; }

  Statement& bind(int place, std::int64_t number);
  Statement& bind(int place, std::string_view text);
  Statement& bindBytes(int place, std::string_view bytes);

  /// SQLITE_ROW, SQLITE_DONE or what went wrong.
  int step() { return statement_ != nullptr ? sqlite3_step(statement_.get()) : prepared_; }
  /// Runs to the end; SQLITE_OK or what went wrong.
  int finish();

  std::int64_t number(int column) const { return sqlite3_column_int64(statement_.get(), column); }
  std::string_view bytes(int column) const;
  bool isText(int column) const { return sqlite3_column_type(statement_.get(), column) == SQLITE_TEXT; }

  void reset() {
    if (statement_ != nullptr) sqlite3_reset(statement_.get());
  }

 private:
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  std::unique_ptr<sqlite3_stmt, Finalize> statement_;
  int prepared_ = SQLITE_MISUSE;
};

/// Resets a statement when its user is done with the row.
class Use {
 public:
  explicit Use(Statement& statement) : statement_(&statement) {}
  Use(const Use&) = delete;
  Use& operator=(const Use&) = delete;
  ~Use() { statement_->reset(); }
  Statement* operator->() const { return statement_; }
  Statement& operator*() const { return *statement_; }

 private:
  Statement* statement_;
};

}  // namespace tessaly::platform::sqlite
