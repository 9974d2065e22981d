#include "tessaly/platform/linux/HiveSoundness.h"

#include <algorithm>

#include "tessaly/platform/linux/HiveFormat.h"

namespace tessaly::platform {
namespace {

class Faults {
 public:
  Faults(sqlite3* database, std::size_t most) : database_(database), most_(most) {}

  void checkFile() {
    sqlite::Statement check(database_, "PRAGMA quick_check");
    int code = check.step();
    for (; code == SQLITE_ROW && !isFull(); code = check.step()) {
      if (check.bytes(0) != "ok") addLines(check.bytes(0));
    }
    note(code);
  }

  template <class Row>
  void checkRows(const char* sql, const char* kind) {
    sqlite::Statement rows(database_, sql);
    int code = rows.step();
    for (; code == SQLITE_ROW && !isFull(); code = rows.step()) {
      Row row;
      if (!readRow(rows, row)) add(std::string("a ") + kind + " is not as it was written: " + row.name);
    }
    note(code);
  }

  void checkOwners(const char* sql, const char* kind) {
    sqlite::Statement lost(database_, sql);
    const int code = lost.step();
    if (code == SQLITE_ROW && lost.number(0) != 0) add(std::to_string(lost.number(0)) + " " + kind);
    note(code);
  }

  bool isFull() const { return lines_.size() >= most_; }
  std::vector<std::string> take() { return std::move(lines_); }

 private:
  /// The same is told once.
  void add(std::string line) {
    const bool isNew = std::find(lines_.begin(), lines_.end(), line) == lines_.end();
    if (!isFull() && isNew) lines_.push_back(std::move(line));
  }

  /// SQLite begins with a line that names the database.
  void addLines(std::string_view lines) {
    while (!lines.empty()) {
      const std::size_t end = std::min(lines.find('\n'), lines.size());
      const std::string_view line = lines.substr(0, end);
      if (!line.empty() && !line.starts_with("***")) add(std::string(line));
      lines.remove_prefix(std::min(end + 1, lines.size()));
    }
  }

  void note(int code) {
    if (code != SQLITE_ROW && code != SQLITE_DONE) add(sqlite3_errstr(code));
  }

  sqlite3* database_;
  std::size_t most_;
  std::vector<std::string> lines_;
};

}  // namespace

std::vector<std::string> faultsOf(sqlite3* database, std::size_t most) {
  Faults faults(database, most);
  faults.checkFile();
  faults.checkRows<hive::KeyRow>("SELECT parent, upper, name, id, sum FROM key", "key");
  faults.checkRows<hive::ValueRow>("SELECT key, upper, name, type, data, sum FROM value", "value");
  faults.checkOwners("SELECT count(*) FROM key WHERE parent<>1 AND parent NOT IN (SELECT id FROM key)",
                     "keys without the key that they were in");
  faults.checkOwners("SELECT count(*) - count(DISTINCT id) FROM key NOT INDEXED",
                     "keys that stand for others too");
  faults.checkOwners("SELECT count(*) FROM value WHERE key<>1 AND key NOT IN (SELECT id FROM key)",
                     "values without their key");
  return faults.take();
}

}  // namespace tessaly::platform
