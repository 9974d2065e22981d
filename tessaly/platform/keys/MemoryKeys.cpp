#include "tessaly/platform/keys/MemoryKeys.h"

#include "tessaly/platform/Core.h"
#include "tessaly/platform/keys/KeyLimits.h"

namespace tessaly::platform {
namespace {

using namespace registry_result;

String upperName(std::u16string_view name) { return core().locale->CharUpperW(name); }

}  // namespace

MemoryKeys::MemoryKeys() { keys_[kRoot]; }
MemoryKeys::~MemoryKeys() = default;

MemoryKeys::Key* MemoryKeys::keyOf(Id key) {
  const auto found = keys_.find(key);
  return found != keys_.end() ? &found->second : nullptr;
}

Long MemoryKeys::changed() {
  ++revision_;
  return kSuccess;
}

Long MemoryKeys::descend(Id from, KeyPath path, bool make, Id& key) {
  if (keyOf(from) == nullptr) return kKeyDeleted;
  for (const std::u16string_view name : path) {
    Key& parent = keys_[from];
    const auto [subkey, missing] = parent.subkeys.try_emplace(upperName(name), next_);
    if (missing && !make) {
      parent.subkeys.erase(subkey);
      return kNotFound;
    }
    if (missing) {
      Key& made = keys_[next_++];
      made.parent = from;
      made.name = name;
      changed();
    }
    from = subkey->second;
  }
  key = from;
  return kSuccess;
}

Long MemoryKeys::find(Id from, KeyPath path, Id& key) { return descend(from, path, false, key); }

Long MemoryKeys::create(Id from, KeyPath path, Id& key) {
  std::size_t depth = path.size();
  for (const Key* outer = keyOf(from); outer != nullptr; outer = keyOf(outer->parent)) ++depth;
  // The root, which was counted too, is no level.
  if (depth > kDeepestPath + 1) return kInvalidParameter;
  const Long result = descend(from, path, writable_, key);
  return result == kNotFound ? kAccessDenied : result;
}

Long MemoryKeys::remove(Id from, KeyPath path) {
  Id key = 0;
  if (const Long result = find(from, path, key); result != kSuccess) return result;
  const Key& gone = keys_[key];
  if (!writable_ || key == kRoot || !gone.subkeys.empty()) return kAccessDenied;
  keys_[gone.parent].subkeys.erase(upperName(gone.name));
  keys_.erase(key);
  return changed();
}

Long MemoryKeys::subkeys(Id key, std::vector<String>& names) {
  const Key* const found = keyOf(key);
  if (found == nullptr) return kKeyDeleted;
  names.clear();
  for (const auto& [upper, subkey] : found->subkeys) names.push_back(keys_[subkey].name);
  return kSuccess;
}

Long MemoryKeys::value(Id key, std::u16string_view name, KeyValue& value) {
  const Key* const found = keyOf(key);
  if (found == nullptr) return kKeyDeleted;
  const auto named = found->values.find(upperName(name));
  if (named == found->values.end()) return kNotFound;
  value = named->second.value;
  return kSuccess;
}

Long MemoryKeys::setValue(Id key, std::u16string_view name, const KeyValue& value) {
  Key* const found = keyOf(key);
  if (found == nullptr) return kKeyDeleted;
  if (!writable_) return kAccessDenied;
  const auto [named, missing] = found->values.try_emplace(upperName(name), NamedValue{String(name), value});
  if (!missing) named->second.value = value;
  return changed();
}

Long MemoryKeys::removeValue(Id key, std::u16string_view name) {
  Key* const found = keyOf(key);
  if (found == nullptr) return kKeyDeleted;
  if (!writable_) return kAccessDenied;
  return found->values.erase(upperName(name)) != 0 ? changed() : kNotFound;
}

Long MemoryKeys::values(Id key, std::vector<NamedValue>& values) {
  const Key* const found = keyOf(key);
  if (found == nullptr) return kKeyDeleted;
  values.clear();
  for (const auto& [upper, named] : found->values) values.push_back(named);
  return kSuccess;
}

Long MemoryKeys::transact(const std::function<Long()>& changes) {
  const auto before = keys_;
  const Long result = changes();
  if (result != kSuccess) {
    keys_ = before;
    changed();
  }
  return result;
}

}  // namespace tessaly::platform
