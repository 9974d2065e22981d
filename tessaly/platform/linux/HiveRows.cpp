#include "tessaly/platform/linux/HiveRows.h"

#include <algorithm>

#include "tessaly/base/Text.h"
#include "tessaly/platform/keys/KeyLimits.h"
#include "tessaly/platform/linux/UpperCase.h"

namespace tessaly::platform {
namespace {

using namespace registry_result;
using sqlite::Use;

std::string upperKey(std::u16string_view name) { return toUtf8(upperCased(name)); }

}  // namespace

HiveRows::Id HiveRows::newId() {
  sqlite3_int64 number = 0;
  sqlite3_randomness(sizeof number, &number);
  constexpr sqlite3_int64 positive = 0x7FFFFFFFFFFFFFFF;
  return std::max<sqlite3_int64>(number & positive, KeyStore::kRoot + 1);
}

enum HiveRows::Sql : std::size_t {
  BeginReading,
  Look,
  BeginWriting,
  Commit,
  Rollback,
  KeyExists,
  FindParent,
  FindSubkey,
  ListSubkeys,
  AnySubkey,
  InsertKey,
  DeleteKey,
  DeleteValues,
  FindValue,
  ListValues,
  PutValue,
  DeleteValue
};

sqlite::Statement& HiveRows::statement(Sql sql) {
  static constexpr std::array<const char*, kStatements> kSql = {
      "BEGIN",
      "PRAGMA user_version",
      "BEGIN IMMEDIATE",
      "COMMIT",
      "ROLLBACK",
      "SELECT 1 FROM key WHERE id=?1",
      "SELECT parent FROM key WHERE id=?1",
      "SELECT parent, upper, name, id, sum FROM key WHERE parent=?1 AND upper=?2",
      "SELECT parent, upper, name, id, sum FROM key WHERE parent=?1 ORDER BY upper",
      "SELECT 1 FROM key WHERE parent=?1 LIMIT 1",
      "INSERT INTO key (parent, upper, name, id, sum) VALUES (?1, ?2, ?3, ?4, ?5)",
      "DELETE FROM key WHERE id=?1",
      "DELETE FROM value WHERE key=?1",
      "SELECT key, upper, name, type, data, sum FROM value WHERE key=?1 AND upper=?2",
      "SELECT key, upper, name, type, data, sum FROM value WHERE key=?1 ORDER BY upper",
      "INSERT INTO value (key, upper, name, type, data, sum) VALUES (?1, ?2, ?3, ?4, ?5, ?6) "
      "ON CONFLICT (key, upper) DO UPDATE SET name=?3, type=?4, data=?5, sum=?6",
      "DELETE FROM value WHERE key=?1 AND upper=?2"};
  sqlite::Statement& statement = statements_[sql];
  if (!statement.isPrepared()) statement = sqlite::Statement(database_, kSql[sql]);
  return statement;
}

int HiveRows::beginReading() {
  if (const int code = statement(BeginReading).finish(); code != SQLITE_OK) return code;
  const int code = statement(Look).finish();
  if (code != SQLITE_OK) rollback();
  return code;
}

bool HiveRows::hasVersion() {
  const Use look(statement(Look));
  return look->step() == SQLITE_ROW && look->number(0) == hive::kVersion;
}

int HiveRows::beginWriting() { return statement(BeginWriting).finish(); }

Long HiveRows::commit() {
  const int code = statement(Commit).finish();
  if (code != SQLITE_OK) rollback();
  return sqlite::resultOf(code);
}

void HiveRows::rollback() {
  if (sqlite3_get_autocommit(database_) == 0) statement(Rollback).finish();
}

Long HiveRows::exists(Id key) {
  if (key == KeyStore::kRoot) return kSuccess;
  const Use row(statement(KeyExists));
  row->bind(1, key);
  const int code = row->step();
  return code == SQLITE_DONE ? kKeyDeleted : sqlite::resultOf(code);
}

Long HiveRows::depth(Id key, std::size_t& depth) {
  for (depth = 0; key != KeyStore::kRoot && depth <= kDeepestPath; ++depth) {
    const Use row(statement(FindParent));
    row->bind(1, key);
    const int code = row->step();
    if (code == SQLITE_DONE) return depth == 0 ? kKeyDeleted : kCorrupt;
    if (code != SQLITE_ROW) return sqlite::resultOf(code);
    key = row->number(0);
  }
  return kSuccess;
}

Long HiveRows::subkey(Id parent, std::u16string_view name, Id& key) {
  const std::string upper = upperKey(name);
  const Use row(statement(FindSubkey));
  row->bind(1, parent).bind(2, upper);
  const int code = row->step();
  if (code == SQLITE_DONE) return kNotFound;
  if (code != SQLITE_ROW) return sqlite::resultOf(code);
  hive::KeyRow found;
  if (!readRow(*row, found)) return kCorrupt;
  key = found.id;
  return kSuccess;
}

Long HiveRows::subkeys(Id parent, std::vector<String>& names) {
  const Use row(statement(ListSubkeys));
  row->bind(1, parent);
  names.clear();
  int code = row->step();
  for (; code == SQLITE_ROW; code = row->step()) {
    hive::KeyRow found;
    if (!readRow(*row, found)) return kCorrupt;
    names.push_back(fromUtf8(found.name));
  }
  return sqlite::resultOf(code);
}

Long HiveRows::addSubkey(Id parent, std::u16string_view name, Id& key) {
  key = newId();
  return insert(hive::KeyRow{parent, upperKey(name), toUtf8(name), key});
}

Long HiveRows::removeKey(Id key) {
  bool hasSubkeys = true;
  if (const Long failure = this->hasSubkeys(key, hasSubkeys); failure != kSuccess) return failure;
  if (hasSubkeys) return kAccessDenied;
  for (const Sql sql : {DeleteValues, DeleteKey}) {
    const Long failure = sqlite::resultOf(statement(sql).bind(1, key).finish());
    if (failure != kSuccess) return failure;
  }
  return kSuccess;
}

Long HiveRows::hasSubkeys(Id key, bool& has) {
  const Use row(statement(AnySubkey));
  row->bind(1, key);
  const int code = row->step();
  has = code == SQLITE_ROW;
  return sqlite::resultOf(code);
}

Long HiveRows::valueRow(Id key, const std::string& upper, hive::ValueRow& row) {
  const Use found(statement(FindValue));
  found->bind(1, key).bind(2, upper);
  const int code = found->step();
  if (code == SQLITE_DONE) return kNotFound;
  if (code != SQLITE_ROW) return sqlite::resultOf(code);
  return readRow(*found, row) ? kSuccess : kCorrupt;
}

Long HiveRows::value(Id key, std::u16string_view name, KeyValue& value) {
  hive::ValueRow row;
  const Long result = valueRow(key, upperKey(name), row);
  if (result == kSuccess) value = valueOf(row);
  return result;
}

Long HiveRows::values(Id key, std::vector<NamedValue>& values) {
  const Use row(statement(ListValues));
  row->bind(1, key);
  values.clear();
  int code = row->step();
  for (; code == SQLITE_ROW; code = row->step()) {
    hive::ValueRow found;
    if (!readRow(*row, found)) return kCorrupt;
    values.push_back({fromUtf8(found.name), valueOf(found)});
  }
  return sqlite::resultOf(code);
}

Long HiveRows::setValue(Id key, std::u16string_view name, const KeyValue& value) {
  hive::ValueRow row{key, upperKey(name), toUtf8(name), 0, {}, false};
  hive::ValueRow before;
  const Long found = valueRow(key, row.upper, before);
  if (found != kSuccess && found != kNotFound) return found;
  // A value keeps the name that it was made with.
  if (found == kSuccess) row.name = before.name;
  hive::setValue(row, value);
  return insert(row);
}

Long HiveRows::removeValue(Id key, std::u16string_view name) {
  const std::string upper = upperKey(name);
  sqlite::Statement& remove = statement(DeleteValue).bind(1, key).bind(2, upper);
  const Long result = sqlite::resultOf(remove.finish());
  if (result != kSuccess) return result;
  return sqlite3_changes(database_) != 0 ? kSuccess : kNotFound;
}

Long HiveRows::insert(const hive::KeyRow& row) {
  sqlite::Statement& insert = statement(InsertKey);
  bindRow(insert, row);
  return sqlite::resultOf(insert.finish());
}

Long HiveRows::insert(const hive::ValueRow& row) {
  sqlite::Statement& insert = statement(PutValue);
  bindRow(insert, row);
  return sqlite::resultOf(insert.finish());
}

}  // namespace tessaly::platform
