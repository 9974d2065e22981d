#include "tessaly/platform/linux/Sqlite.h"

namespace tessaly::platform::sqlite {

using namespace registry_result;

Long resultOf(int code) {
  switch (code & 0xFF) {
    case SQLITE_OK:
    case SQLITE_DONE:
    case SQLITE_ROW:
      return kSuccess;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return kBusy;
    case SQLITE_FULL:
      return kDiskFull;
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_AUTH:
    case SQLITE_CANTOPEN:
      return kAccessDenied;
    case SQLITE_IOERR:
      return kIoFailed;
    case SQLITE_NOMEM:
    case SQLITE_TOOBIG:
      return kNoResources;
    case SQLITE_NOTADB:
      return kNotAHive;
    default:
      return kCorrupt;
  }
}

int open(const std::string& path, int flags, Database& database) {
  sqlite3* opened = nullptr;
  const int code = sqlite3_open_v2(path.c_str(), &opened, flags | SQLITE_OPEN_NOMUTEX, nullptr);
  database.reset(opened);
  if (code != SQLITE_OK) return code;
  // The file may be anybody's: nothing that it says of itself is run.
  sqlite3_db_config(opened, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(opened, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  constexpr int longestRow = 4 << 20;
  sqlite3_limit(opened, SQLITE_LIMIT_LENGTH, longestRow);
  sqlite3_extended_result_codes(opened, 1);
  return run(opened, "PRAGMA cell_size_check=ON");
}

int run(sqlite3* database, const char* sql) { return sqlite3_exec(database, sql, nullptr, nullptr, nullptr); }

Statement::Statement(sqlite3* database, const char* sql) {
  sqlite3_stmt* statement = nullptr;
  prepared_ = sqlite3_prepare_v3(database, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
  statement_.reset(statement);
}

Statement& Statement::bind(int place, std::int64_t number) {
  sqlite3_bind_int64(statement_.get(), place, number);
  return *this;
}

Statement& Statement::bind(int place, std::string_view text) {
  sqlite3_bind_text64(statement_.get(), place, text.data() != nullptr ? text.data() : "", text.size(),
                      SQLITE_STATIC, SQLITE_UTF8);
  return *this;
}

Statement& Statement::bindBytes(int place, std::string_view bytes) {
  sqlite3_bind_blob64(statement_.get(), place, bytes.data() != nullptr ? bytes.data() : "", bytes.size(),
                      SQLITE_STATIC);
  return *this;
}

int Statement::finish() {
  int code = step();
  while (code == SQLITE_ROW) code = step();
  reset();
  return code == SQLITE_DONE ? SQLITE_OK : code;
}

std::string_view Statement::bytes(int column) const {
  const auto* data = static_cast<const char*>(sqlite3_column_blob(statement_.get(), column));
  const int size = sqlite3_column_bytes(statement_.get(), column);
  return data != nullptr ? std::string_view(data, static_cast<std::size_t>(size)) : std::string_view();
}

}  // namespace tessaly::platform::sqlite
