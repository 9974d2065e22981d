#include "tessaly/platform/linux/HiveFormat.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "tessaly/base/Fnv.h"
#include "tessaly/base/Text.h"

namespace tessaly::platform::hive {
namespace {

using namespace registry_result;

static_assert(std::endian::native == std::endian::little,
              "sums and UTF-16 are written as they are in memory");

constexpr const char* kTables[] = {
    "CREATE TABLE key (parent INTEGER NOT NULL, upper TEXT NOT NULL, name TEXT NOT NULL, id INTEGER NOT "
    "NULL, "
    "sum INTEGER NOT NULL, PRIMARY KEY (parent, upper)) WITHOUT ROWID",
    "CREATE TABLE value (key INTEGER NOT NULL, upper TEXT NOT NULL, name TEXT NOT NULL, type INTEGER NOT "
    "NULL, "
    "data NOT NULL, sum INTEGER NOT NULL, PRIMARY KEY (key, upper)) WITHOUT ROWID",
    "CREATE UNIQUE INDEX key_id ON key (id)"};

class Sum {
 public:
  Sum& add(std::string_view bytes) {
    add(static_cast<std::int64_t>(bytes.size()));
    return addBytes(bytes);
  }
  Sum& add(std::int64_t number) {
    char bytes[sizeof number];
    std::memcpy(bytes, &number, sizeof number);
    return addBytes({bytes, sizeof bytes});
  }
  std::int64_t value() const { return static_cast<std::int64_t>(value_); }

 private:
  Sum& addBytes(std::string_view bytes) {
    value_ = fnv64(bytes, value_);
    return *this;
  }

  std::uint64_t value_ = kFnv64;
};

std::int64_t pragma(sqlite3* database, const char* sql, int& code) {
  sqlite::Statement statement(database, sql);
  const int step = statement.step();
  if (step != SQLITE_ROW) code = step;
  return step == SQLITE_ROW ? statement.number(0) : 0;
}

sqlite3_int64 sizeOf(sqlite3* database) {
  sqlite3_file* file = nullptr;
  sqlite3_int64 size = 0;
  sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file);
  file->pMethods->xFileSize(file, &size);
  return size;
}

/// Another schema would let SQLite read the rows in another way.
Long checkSchema(sqlite3* database) {
  sqlite::Statement tables(database, "SELECT sql FROM sqlite_schema ORDER BY rowid");
  std::size_t count = 0;
  for (int code = tables.step(); code != SQLITE_DONE; code = tables.step(), ++count) {
    if (code != SQLITE_ROW) return sqlite::resultOf(code);
    if (count == std::size(kTables) || tables.bytes(0) != kTables[count]) return kCorrupt;
  }
  return count == std::size(kTables) ? kSuccess : kCorrupt;
}

std::string bytesOf(std::u16string_view text) {
  std::string bytes(text.size() * sizeof(char16_t), '\0');
  if (!text.empty()) std::memcpy(bytes.data(), text.data(), bytes.size());
  return bytes;
}

String unitsOf(std::string_view bytes) {
  String text(bytes.size() / sizeof(char16_t), u'\0');
  if (!text.empty()) std::memcpy(text.data(), bytes.data(), text.size() * sizeof(char16_t));
  return text;
}

}  // namespace

std::int64_t sumOf(const KeyRow& row) {
  return Sum().add(row.parent).add(row.upper).add(row.name).add(row.id).value();
}

std::int64_t sumOf(const ValueRow& row) {
  const std::int64_t type = std::int64_t{row.type} * 2 + (row.isText ? 1 : 0);
  return Sum().add(row.key).add(row.upper).add(row.name).add(type).add(row.data).value();
}

int makeTables(sqlite3* database) {
  int code = SQLITE_OK;
  for (const char* table : kTables) {
    if (code == SQLITE_OK) code = sqlite::run(database, table);
  }
  const std::string marks = "PRAGMA application_id=" + std::to_string(kApplication) +
                            ";PRAGMA user_version=" + std::to_string(kVersion);
  return code == SQLITE_OK ? sqlite::run(database, marks.c_str()) : code;
}

Long checkTables(sqlite3* database) {
  int code = SQLITE_OK;
  const std::int64_t application = pragma(database, "PRAGMA application_id", code);
  const std::int64_t version = pragma(database, "PRAGMA user_version", code);
  const std::int64_t pages = pragma(database, "PRAGMA page_count", code);
  if (code != SQLITE_OK) return sqlite::resultOf(code);
  if (pages == 0) return sizeOf(database) == 0 ? kNotFound : kNotAHive;
  if (application != kApplication || version != kVersion) return kNotAHive;
  return checkSchema(database);
}

bool isPossible(const KeyRow& key) {
  const bool isOfKeys = key.id > KeyStore::kRoot && key.parent >= KeyStore::kRoot && key.id != key.parent;
  return isOfKeys && !key.name.empty() && key.name.find('\\') == std::string::npos;
}

std::uint32_t versionOf(std::string_view file) {
  constexpr std::size_t place = 60;
  std::uint32_t version = 0;
  for (const char byte : file.substr(std::min(place, file.size()), sizeof version)) {
    version = version << 8 | static_cast<unsigned char>(byte);
  }
  return version;
}

bool isMarkedAsHive(std::string_view file) {
  constexpr std::string_view magic("SQLite format 3\0", 16);
  constexpr std::size_t place = 68;
  constexpr std::string_view application = "TSSY";
  return file.starts_with(magic) && file.substr(std::min(place, file.size())).starts_with(application);
}

bool readRow(const sqlite::Statement& row, KeyRow& key) {
  key = {row.number(0), std::string(row.bytes(1)), std::string(row.bytes(2)), row.number(3)};
  return row.number(4) == sumOf(key) && isPossible(key);
}

bool readRow(const sqlite::Statement& row, ValueRow& value) {
  value.key = row.number(0);
  value.upper = row.bytes(1);
  value.name = row.bytes(2);
  value.type = static_cast<RegistryType>(row.number(3));
  value.data = row.bytes(4);
  value.isText = row.isText(4);
  return row.number(5) == sumOf(value);
}

void bindRow(sqlite::Statement& statement, const KeyRow& key) {
  statement.bind(1, key.parent).bind(2, key.upper).bind(3, key.name).bind(4, key.id).bind(5, sumOf(key));
}

void bindRow(sqlite::Statement& statement, const ValueRow& value) {
  statement.bind(1, value.key).bind(2, value.upper).bind(3, value.name);
  statement.bind(4, std::int64_t{value.type}).bind(6, sumOf(value));
  if (value.isText) {
    statement.bind(5, value.data);
  } else {
    statement.bindBytes(5, value.data);
  }
}

void setValue(ValueRow& row, const KeyValue& value) {
  row.type = value.type;
  row.data = value.isText() ? toUtf8(value.text) : value.bytes;
  row.isText = value.isText() && fromUtf8(row.data) == value.text;
  if (value.isText() && !row.isText) row.data = bytesOf(value.text);
}

KeyValue valueOf(const ValueRow& row) {
  KeyValue value;
  value.type = row.type;
  if (!value.isText()) {
    value.bytes = row.data;
  } else {
    value.text = row.isText ? fromUtf8(row.data) : unitsOf(row.data);
  }
  return value;
}

}  // namespace tessaly::platform::hive
