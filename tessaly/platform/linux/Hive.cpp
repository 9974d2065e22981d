#include "tessaly/platform/linux/Hive.h"

#include "tessaly/platform/keys/KeyLimits.h"

namespace tessaly::platform {
namespace {

using namespace registry_result;

/// What a call for a key gives where there is no hive: only the root is there, and it has nothing.
Long withoutHive(Long result, KeyStore::Id key, Long ofRoot) {
  if (result != Hive::kNothing) return result;
  return key == KeyStore::kRoot ? ofRoot : kKeyDeleted;
}

}  // namespace

Long Hive::descend(Id from, KeyPath path, Id& key) {
  key = from;
  for (const std::u16string_view name : path) {
    if (const Long result = rows_->subkey(key, name, key); result != kSuccess)
      return result == kNotFound && rows_->exists(from) == kKeyDeleted ? kKeyDeleted : result;
  }
  return path.empty() ? rows_->exists(from) : kSuccess;
}

Long Hive::descendAndMake(Id from, KeyPath path, Id& key) {
  std::size_t depth = 0;
  if (const Long failure = rows_->depth(from, depth); failure != kSuccess) return failure;
  if (depth + path.size() > kDeepestPath) return kInvalidParameter;
  key = from;
  for (const std::u16string_view name : path) {
    Long result = rows_->subkey(key, name, key);
    if (result == kNotFound) result = rows_->addSubkey(key, name, key);
    if (result != kSuccess) return result;
  }
  return kSuccess;
}

Long Hive::find(Id from, KeyPath path, Id& key) {
  if (from == kRoot && path.empty()) {
    key = kRoot;
    return kSuccess;
  }
  return withoutHive(read([&] { return descend(from, path, key); }), from, kNotFound);
}

Long Hive::create(Id from, KeyPath path, Id& key) {
  const Long found = find(from, path, key);
  return found == kNotFound ? write([&] { return descendAndMake(from, path, key); }, Touches::Keys) : found;
}

Long Hive::remove(Id from, KeyPath path) {
  Id key = 0;
  if (const Long failure = find(from, path, key); failure != kSuccess) return failure;
  if (key == kRoot) return kAccessDenied;
  return write(
      [&] {
        const Long failure = descend(from, path, key);
        return failure == kSuccess ? rows_->removeKey(key) : failure;
      },
      Touches::Keys);
}

Long Hive::subkeys(Id key, std::vector<String>& names) {
  names.clear();
  const auto work = [&] {
    const Long failure = rows_->exists(key);
    return failure == kSuccess ? rows_->subkeys(key, names) : failure;
  };
  return withoutHive(read(work), key, kSuccess);
}

Long Hive::value(Id key, std::u16string_view name, KeyValue& value) {
  const auto work = [&] {
    const Long result = rows_->value(key, name, value);
    return result == kNotFound && rows_->exists(key) == kKeyDeleted ? kKeyDeleted : result;
  };
  return withoutHive(read(work), key, kNotFound);
}

Long Hive::values(Id key, std::vector<NamedValue>& values) {
  values.clear();
  const auto work = [&] {
    const Long failure = rows_->exists(key);
    return failure == kSuccess ? rows_->values(key, values) : failure;
  };
  return withoutHive(read(work), key, kSuccess);
}

Long Hive::setValue(Id key, std::u16string_view name, const KeyValue& value) {
  return write(
      [&] {
        const Long failure = rows_->exists(key);
        return failure == kSuccess ? rows_->setValue(key, name, value) : failure;
      },
      Touches::Values);
}

Long Hive::removeValue(Id key, std::u16string_view name) {
  KeyValue before;
  if (const Long failure = value(key, name, before); failure != kSuccess) return failure;
  return write([&] { return rows_->removeValue(key, name); }, Touches::Values);
}

Long Hive::transact(const std::function<Long()>& changes) { return write(changes, Touches::Keys); }

std::unique_ptr<KeyStore> hiveAt(std::filesystem::path path, HiveReaders readers) {
  return std::make_unique<Hive>(std::move(path), readers);
}

}  // namespace tessaly::platform
