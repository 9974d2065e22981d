// SQLite by itself, with a table and a journal mode as the library's hives have them: one prepared SELECT by
// the key's number and the value's name, and one prepared UPSERT, each a transaction of its own. The way from
// a path to the key's number is left out.

#include <sqlite3.h>

#include <cstring>
#include <memory>

#include "bench/Contestant.h"
#include "bench/Folder.h"

namespace tessaly::bench {
namespace {

constexpr const char* kTable =
    "CREATE TABLE value (key INTEGER NOT NULL, upper TEXT NOT NULL, name TEXT NOT NULL, type INTEGER NOT "
    "NULL, "
    "data NOT NULL, sum INTEGER NOT NULL, PRIMARY KEY (key, upper)) WITHOUT ROWID";
constexpr const char* kSelect = "SELECT data FROM value WHERE key=?1 AND upper=?2";
constexpr const char* kUpsert =
    "INSERT INTO value (key, upper, name, type, data, sum) VALUES (?1, ?2, ?3, ?4, ?5, ?6) "
    "ON CONFLICT (key, upper) DO UPDATE SET name=?3, type=?4, data=?5, sum=?6";

struct Close {
  void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Database = std::unique_ptr<sqlite3, Close>;
using Statement = std::unique_ptr<sqlite3_stmt, Close>;

void run(sqlite3* database, const char* sql) {
  if (sqlite3_exec(database, sql, nullptr, nullptr, nullptr) != SQLITE_OK) fail(sqlite3_errmsg(database));
}

Database opened(const std::filesystem::path& path) {
  sqlite3* database = nullptr;
  sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX,
                  nullptr);
  sqlite3_busy_timeout(database, 5000);
  run(database, "PRAGMA journal_mode=PERSIST; PRAGMA synchronous=FULL");
  return Database(database);
}

Statement prepared(sqlite3* database, const char* sql) {
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v3(database, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
  if (statement == nullptr) fail(sqlite3_errmsg(database));
  return Statement(statement);
}

void bindText(sqlite3_stmt* statement, int place, const std::string& text) {
  sqlite3_bind_text(statement, place, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
}

/// A statement at one row; it is ready for the next when this goes.
class Row {
 public:
  Row(sqlite3_stmt* statement, std::size_t key, const std::string& upper) : statement_(statement) {
    sqlite3_bind_int64(statement, 1, static_cast<sqlite3_int64>(key));
    bindText(statement, 2, upper);
  }
  Row(const Row&) = delete;
  Row& operator=(const Row&) = delete;
  ~Row() { sqlite3_reset(statement_); }

  bool found() { return sqlite3_step(statement_) == SQLITE_ROW; }
  std::string data() {
    const void* data = sqlite3_column_blob(statement_, 0);
    return {static_cast<const char*>(data), static_cast<std::size_t>(sqlite3_column_bytes(statement_, 0))};
  }
  Long number() {
    Long value = 0;
    std::memcpy(&value, sqlite3_column_blob(statement_, 0), sizeof value);
    return value;
  }
  void write(const std::string& name, int type, const void* data, std::size_t size) {
    bindText(statement_, 3, name);
    sqlite3_bind_int(statement_, 4, type);
    sqlite3_bind_blob(statement_, 5, data, static_cast<int>(size), SQLITE_STATIC);
    sqlite3_bind_int64(statement_, 6, static_cast<sqlite3_int64>(size));
    if (sqlite3_step(statement_) != SQLITE_DONE) fail("SQLite writes nothing");
  }

 private:
  sqlite3_stmt* statement_;
};

void fillKey(sqlite3_stmt* upsert, std::size_t key) {
  for (std::size_t n = 0; n < kNumbersOfKey; ++n) {
    const Long value = numberAt({key, n});
    Row(upsert, key, "NUMBER" + std::to_string(n)).write(numberName(n), 4, &value, sizeof value);
  }
  for (std::size_t n = 0; n < kTextsOfKey; ++n) {
    const std::string value = textAt({key, n});
    Row(upsert, key, "TEXT" + std::to_string(n)).write(textName(n), 1, value.data(), value.size());
  }
}

void fill(const std::filesystem::path& path, const Store& store) {
  const Database database = opened(path);
  run(database.get(), kTable);
  const Statement upsert = prepared(database.get(), kUpsert);
  run(database.get(), "BEGIN");
  for (std::size_t key = 0; key < store.keys; ++key) fillKey(upsert.get(), key);
  run(database.get(), "COMMIT");
}

std::filesystem::path fileOf(const Store& store) {
  std::filesystem::path path = newFolder("sqlite") / store.name;
  if (!std::filesystem::exists(path)) fill(path, store);
  return path;
}

class Sqlite {
 public:
  static constexpr const char* kKind = "SQLite";

  Sqlite(const Store& store, const std::vector<Place>& places) : database_(opened(fileOf(store))) {
    for (const Place& place : places)
      names_.push_back({place.key, numberName(place.value), "NUMBER" + std::to_string(place.value),
                        "TEXT" + std::to_string(place.value)});
  }

  Long number(std::size_t place) {
    Row row(select_.get(), names_[place].key, names_[place].upper);
    return row.found() ? row.number() : kDefault;
  }
  std::string text(std::size_t place) {
    Row row(select_.get(), names_[place].key, names_[place].text);
    return row.found() ? row.data() : std::string();
  }
  static std::string plain(const std::string& text) { return text; }
  void write(std::size_t place, Long value) {
    const Names& names = names_[place];
    Row(upsert_.get(), names.key, names.upper).write(names.name, 4, &value, sizeof value);
  }

 private:
  struct Names {
    std::size_t key;
    std::string name;
    std::string upper;
    std::string text;
  };
  Database database_;
  Statement select_ = prepared(database_.get(), kSelect);
  Statement upsert_ = prepared(database_.get(), kUpsert);
  std::vector<Names> names_;
};
const Entry<Sqlite> sqlite("SQLite", {});

}  // namespace
}  // namespace tessaly::bench
