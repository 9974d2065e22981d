#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tessaly/platform/keys/KeyStore.h"
#include "tessaly/platform/linux/Sqlite.h"

/// How a hive's rows are written, told in docs/formats.md.
namespace tessaly::platform::hive {

inline constexpr std::int32_t kApplication = 0x54535359;
inline constexpr std::int32_t kVersion = 1;

/// Makes the tables in an empty file, within the caller's transaction.
int makeTables(sqlite3* database);

/// `kSuccess` for a hive, `kNotFound` for an empty file, otherwise why it is none.
Long checkTables(sqlite3* database);

/// The version that a file's first bytes tell.
std::uint32_t versionOf(std::string_view file);

/// Whether a file's first bytes say that it is a hive, of whatever version.
bool isMarkedAsHive(std::string_view file);

/// A row of the table of keys.
struct KeyRow {
  KeyStore::Id parent = 0;
  std::string upper;
  std::string name;
  KeyStore::Id id = 0;
};

/// A row of the table of values.
struct ValueRow {
  KeyStore::Id key = 0;
  std::string upper;
  std::string name;
  RegistryType type = 0;
  std::string data;
  bool isText = false;
};

/// The sum that is written with a row: what changes one of its bytes changes the sum.
std::int64_t sumOf(const KeyRow& row);
std::int64_t sumOf(const ValueRow& row);

/// Whether a key can be so at all; who forges a row may give it its sum.
bool isPossible(const KeyRow& key);

/// Whether the row has the sum that was written with it. The columns stand in the order of the tables.
bool readRow(const sqlite::Statement& row, KeyRow& key);
bool readRow(const sqlite::Statement& row, ValueRow& value);

/// Binds all of a row's columns in the order of the tables.
void bindRow(sqlite::Statement& statement, const KeyRow& key);
void bindRow(sqlite::Statement& statement, const ValueRow& value);

/// A value between its row and its caller. Text is UTF-8 in the file, or bytes where it is no sound UTF-16.
void setValue(ValueRow& row, const KeyValue& value);
KeyValue valueOf(const ValueRow& row);

}  // namespace tessaly::platform::hive
