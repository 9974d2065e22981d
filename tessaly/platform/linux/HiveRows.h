#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "tessaly/platform/linux/HiveFormat.h"

namespace tessaly::platform {

/// The rows of an open hive. All but `begin` is for within a transaction; calls give numbers of
/// `registry_result`, and `kCorrupt` for a row that is not as it was written.
class HiveRows {
 public:
  using Id = KeyStore::Id;

  /// A number for a new key that no other key had or will have.
  static Id newId();

  /// The connection must outlive the object.
  explicit HiveRows(sqlite3* database) : database_(database) {}

  /// Begins a transaction and takes its lock. SQLite's extended code.
  int beginReading();

  /// Whether the hive has this program's version of the format; within a transaction.
  bool hasVersion();

  int beginWriting();
  Long commit();
  void rollback();

  /// How many keys a key is in, below the root.
  Long depth(Id key, std::size_t& depth);

  /// `kSuccess` for the root and each key that is there, otherwise `kKeyDeleted`.
  Long exists(Id key);

  Long subkey(Id parent, std::u16string_view name, Id& key);
  Long subkeys(Id parent, std::vector<String>& names);
  Long addSubkey(Id parent, std::u16string_view name, Id& key);

  /// Removes a key with its values, if it has no subkeys; `kAccessDenied` if it has.
  Long removeKey(Id key);

  Long value(Id key, std::u16string_view name, KeyValue& value);
  Long values(Id key, std::vector<NamedValue>& values);
  Long setValue(Id key, std::u16string_view name, const KeyValue& value);
  Long removeValue(Id key, std::u16string_view name);

  /// Puts rows in as they are.
  Long insert(const hive::KeyRow& row);
  Long insert(const hive::ValueRow& row);

 private:
  enum Sql : std::size_t;

  sqlite::Statement& statement(Sql sql);
  Long valueRow(Id key, const std::string& upper, hive::ValueRow& row);
  Long hasSubkeys(Id key, bool& has);

  static constexpr std::size_t kStatements = 17;

  sqlite3* database_;
  std::array<sqlite::Statement, kStatements> statements_;
};

}  // namespace tessaly::platform
