// LMDB: a read transaction, the value, the end. It maps its file, so that a read needs no system call.

#include <lmdb.h>

#include <cstring>
#include <memory>

#include "bench/Contestant.h"
#include "bench/Folder.h"

namespace tessaly::bench {
namespace {

constexpr std::size_t kMapSize = std::size_t{1} << 30;

struct Close {
  void operator()(MDB_env* environment) const { mdb_env_close(environment); }
};
using Environment = std::unique_ptr<MDB_env, Close>;

void check(int code) {
  if (code != MDB_SUCCESS) fail(mdb_strerror(code));
}

Environment opened(const std::filesystem::path& folder) {
  MDB_env* environment = nullptr;
  check(mdb_env_create(&environment));
  Environment result(environment);
  check(mdb_env_set_mapsize(environment, kMapSize));
  check(mdb_env_open(environment, folder.c_str(), 0, 0600));
  return result;
}

MDB_val valueOf(const void* data, std::size_t size) { return {size, const_cast<void*>(data)}; }
MDB_val valueOf(const std::string& text) { return valueOf(text.data(), text.size()); }

class Transaction {
 public:
  Transaction(MDB_env* environment, unsigned flags) {
    check(mdb_txn_begin(environment, nullptr, flags, &handle_));
  }
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  ~Transaction() { mdb_txn_abort(handle_); }

  MDB_dbi table() {
    MDB_dbi table = 0;
    check(mdb_dbi_open(handle_, nullptr, 0, &table));
    return table;
  }
  bool get(MDB_dbi table, const std::string& key, MDB_val& value) {
    MDB_val name = valueOf(key);
    return mdb_get(handle_, table, &name, &value) == MDB_SUCCESS;
  }
  void put(MDB_dbi table, const std::string& key, MDB_val value) {
    MDB_val name = valueOf(key);
    check(mdb_put(handle_, table, &name, &value, 0));
  }
  void commit() { check(mdb_txn_commit(std::exchange(handle_, nullptr))); }

 private:
  MDB_txn* handle_ = nullptr;
};

std::string keyOf(std::size_t key, const std::string& name) { return keyName(key, "\\") + '\\' + name; }

void fill(MDB_env* environment, const Store& store) {
  Transaction all(environment, 0);
  const MDB_dbi table = all.table();
  for (std::size_t key = 0; key < store.keys; ++key) {
    for (std::size_t n = 0; n < kNumbersOfKey; ++n) {
      const Long number = numberAt({key, n});
      all.put(table, keyOf(key, numberName(n)), valueOf(&number, sizeof number));
      all.put(table, keyOf(key, textName(n)), valueOf(textAt({key, n})));
    }
  }
  all.commit();
}

Environment environmentOf(const Store& store) {
  const std::filesystem::path folder = newFolder("lmdb") / store.name;
  const bool isNew = std::filesystem::create_directory(folder);
  Environment environment = opened(folder);
  if (isNew) fill(environment.get(), store);
  return environment;
}

class Lmdb {
 public:
  static constexpr const char* kKind = "LMDB";

  Lmdb(const Store& store, const std::vector<Place>& places)
      : environment_(environmentOf(store)), table_(Transaction(environment_.get(), MDB_RDONLY).table()) {
    for (const Place& place : places)
      names_.push_back({keyOf(place.key, numberName(place.value)), keyOf(place.key, textName(place.value))});
  }

  Long number(std::size_t place) {
    Transaction reading(environment_.get(), MDB_RDONLY);
    MDB_val value;
    Long number = kDefault;
    if (reading.get(table_, names_[place].number, value)) std::memcpy(&number, value.mv_data, sizeof number);
    return number;
  }
  std::string text(std::size_t place) {
    Transaction reading(environment_.get(), MDB_RDONLY);
    MDB_val value;
    const bool found = reading.get(table_, names_[place].text, value);
    return found ? std::string(static_cast<const char*>(value.mv_data), value.mv_size) : std::string();
  }
  static std::string plain(const std::string& text) { return text; }
  void write(std::size_t place, Long value) {
    Transaction writing(environment_.get(), 0);
    writing.put(table_, names_[place].number, valueOf(&value, sizeof value));
    writing.commit();
  }

 private:
  struct Names {
    std::string number;
    std::string text;
  };
  Environment environment_;
  MDB_dbi table_;
  std::vector<Names> names_;
};
const Entry<Lmdb> lmdb("LMDB", {});

}  // namespace
}  // namespace tessaly::bench
