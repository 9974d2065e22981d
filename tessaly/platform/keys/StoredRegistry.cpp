#include "tessaly/platform/keys/StoredRegistry.h"

#include <cstring>

#include "tessaly/platform/Ansi.h"
#include "tessaly/platform/keys/AccessRights.h"
#include "tessaly/platform/keys/KeyLimits.h"
#include "tessaly/platform/keys/PathNames.h"

namespace tessaly::platform {
namespace {

using namespace registry_result;
using Lock = std::lock_guard<std::mutex>;

std::string_view textOf(const char* text) { return text != nullptr ? text : std::string_view(); }

Long copyOut(std::string_view data, void* buffer, std::uint32_t& size) {
  const std::uint32_t room = size;
  size = static_cast<std::uint32_t>(data.size());
  if (buffer == nullptr) return kSuccess;
  if (room < size) return kMoreData;
  if (size != 0) std::memcpy(buffer, data.data(), size);
  return kSuccess;
}

KeyValue valueOf(RegistryType type, const void* data, std::uint32_t size) {
  KeyValue value;
  value.type = type;
  const std::string_view bytes(static_cast<const char*>(data), size);
  if (value.isText()) {
    value.text = fromAnsi(bytes);
  } else {
    value.bytes = bytes;
  }
  return value;
}

}  // namespace

StoredRegistry::StoredRegistry(KeyStore& machine, KeyStore& user, String userName)
    : roots_(machine, user, userName), users_{std::move(userName)} {}

OpenKey StoredRegistry::keyOf(RegistryKey key) const {
  if (PredefinedKeys::isPredefined(key)) return {nullptr, 0, key, kKeyAllAccess};
  const OpenKey* const open = open_.find(key);
  return open != nullptr ? *open : OpenKey();
}

KeyPlace StoredRegistry::place(const OpenKey& base, std::vector<std::u16string_view> names) const {
  if (base.predefined != 0) return roots_.place(base.predefined, std::move(names));
  return {base.store, base.id, std::move(names)};
}

ReadCopy::Key StoredRegistry::belowPredefined(RegistryKey root, std::string_view path) {
  if (const ReadCopy::Key* kept = copy_.key(root, path)) return *kept;
  const String wide = fromAnsi(path);
  std::vector<std::u16string_view> names;
  ReadCopy::Key key;
  key.result = splitPath(wide, names);
  if (key.result != kSuccess) return key;
  const KeyPlace there = roots_.place(root, std::move(names));
  key.store = there.store;
  key.result = kNotFound;
  if (key.store == nullptr) return key;
  key.revision = key.store->keyRevision();
  key.result = key.store->find(there.from, there.names, key.id);
  copy_.keep(root, path, key);
  return key;
}

Long StoredRegistry::find(const OpenKey& base, std::string_view path, OpenKey& found) {
  if (base.predefined != 0) {
    const ReadCopy::Key key = belowPredefined(base.predefined, path);
    found = {key.store, key.id, 0, 0};
    if (key.result != kNotFound || !path.empty()) return key.result;
    // A predefined key is always there, even where what it shows is not.
    found = base;
    return kSuccess;
  }
  const String wide = fromAnsi(path);
  std::vector<std::u16string_view> names;
  if (const Long result = splitPath(wide, names); result != kSuccess) return result;
  found = {base.store, 0, 0, 0};
  return base.store->find(base.id, names, found.id);
}

Long StoredRegistry::make(const OpenKey& base, std::string_view path, OpenKey& found) {
  const String wide = fromAnsi(path);
  std::vector<std::u16string_view> names;
  if (const Long result = splitPath(wide, names); result != kSuccess) return result;
  const KeyPlace there = place(base, std::move(names));
  if (there.store == nullptr) return kAccessDenied;
  if (const Long result = checkPath(there.names); result != kSuccess) return result;
  found = {there.store, 0, 0, 0};
  return there.store->create(there.from, there.names, found.id);
}

Long StoredRegistry::open(const OpenKey& found, RegistryAccess access, RegistryKey& result) {
  // Whether the store can be written takes system calls to find out, and reading is what is done most.
  const bool isWritable = !asksForWriting(access) || found.store == nullptr || found.store->isWritable();
  const auto granted = grantedAccess(access, isWritable);
  if (!granted) return kAccessDenied;
  OpenKey key = found;
  key.access = *granted;
  result = open_.add(key);
  return kSuccess;
}

/// A key in its store, held with the rights that a call needs.
Long StoredRegistry::held(RegistryKey key, RegistryAccess needed, OpenKey& found) {
  const OpenKey base = keyOf(key);
  if (base.isNone()) return kInvalidHandle;
  if ((base.access & needed) != needed) return kAccessDenied;
  found = base;
  return base.predefined != 0 ? find(base, {}, found) : kSuccess;
}

Long StoredRegistry::RegOpenKeyExA(RegistryKey key, const char* path, RegistryAccess access,
                                   RegistryKey& result) {
  const Lock lock(mutex_);
  const OpenKey base = keyOf(key);
  if (base.isNone()) return kInvalidHandle;
  OpenKey found;
  const Long failure = find(base, textOf(path), found);
  return failure == kSuccess ? open(found, access, result) : failure;
}

Long StoredRegistry::RegCreateKeyExA(RegistryKey key, const char* path, RegistryAccess access,
                                     RegistryKey& result) {
  const Lock lock(mutex_);
  const OpenKey base = keyOf(key);
  if (base.isNone()) return kInvalidHandle;
  OpenKey found;
  Long failure = find(base, textOf(path), found);
  if (failure == kNotFound) failure = make(base, textOf(path), found);
  return failure == kSuccess ? open(found, access, result) : failure;
}

Long StoredRegistry::RegQueryValueExA(RegistryKey key, const char* name, RegistryType& type, void* buffer,
                                      std::uint32_t& size) {
  const Lock lock(mutex_);
  OpenKey open;
  if (const Long failure = held(key, kQueryValue, open); failure != kSuccess) return failure;
  if (open.store == nullptr) return kNotFound;
  const ReadCopy::Value& read = copy_.value(*open.store, open.id, textOf(name));
  if (read.result != kSuccess) return read.result;
  type = read.value.type;
  if (read.value.isText()) return copyOut(toAnsi(read.value.text), buffer, size);
  return copyOut(read.value.bytes, buffer, size);
}

Long StoredRegistry::RegSetValueExA(RegistryKey key, const char* name, RegistryType type, const void* data,
                                    std::uint32_t size) {
  const Lock lock(mutex_);
  OpenKey open;
  if (const Long failure = held(key, kSetValue, open); failure != kSuccess) return failure;
  if (open.store == nullptr) {
    if (const Long failure = make(open, {}, open); failure != kSuccess) return failure;
  }
  const String wideName = fromAnsi(textOf(name));
  if (const Long failure = checkValueName(wideName); failure != kSuccess) return failure;
  const KeyValue value = valueOf(type, data, size);
  if (const Long failure = checkValue(value); failure != kSuccess) return failure;
  return open.store->setValue(open.id, wideName, value);
}

Long StoredRegistry::subkeyNames(RegistryKey key, RegistryAccess needed, const std::vector<String>*& names) {
  OpenKey open;
  if (const Long failure = held(key, needed, open); failure != kSuccess) return failure;
  if (open.store != nullptr) return copy_.subkeys(*open.store, open.id, names);
  names = open.predefined == kUsers ? &users_ : &none_;
  return kSuccess;
}

Long StoredRegistry::RegQueryInfoKeyA(RegistryKey key, std::uint32_t& subkeys) {
  const Lock lock(mutex_);
  const std::vector<String>* names = nullptr;
  const Long failure = subkeyNames(key, kQueryValue, names);
  if (failure == kSuccess) subkeys = static_cast<std::uint32_t>(names->size());
  return failure;
}

Long StoredRegistry::RegEnumKeyA(RegistryKey key, std::uint32_t index, char* buffer, std::uint32_t size) {
  const Lock lock(mutex_);
  const std::vector<String>* names = nullptr;
  if (const Long failure = subkeyNames(key, kEnumerateSubKeys, names); failure != kSuccess) return failure;
  if (index >= names->size()) return kNoMoreItems;
  const std::string name = toAnsi((*names)[index]);
  std::uint32_t room = size;
  return copyOut({name.c_str(), name.size() + 1}, buffer, room);
}

Long StoredRegistry::RegDeleteKeyA(RegistryKey key, const char* path) {
  const Lock lock(mutex_);
  const OpenKey base = keyOf(key);
  if (base.isNone()) return kInvalidHandle;
  if (path == nullptr) return kInvalidParameter;
  const String wide = fromAnsi(path);
  std::vector<std::u16string_view> names;
  if (const Long failure = splitPath(wide, names); failure != kSuccess) return failure;
  if (base.predefined != 0 && names.empty()) return kAccessDenied;
  const KeyPlace there = place(base, std::move(names));
  return there.store != nullptr ? there.store->remove(there.from, there.names) : kNotFound;
}

Long StoredRegistry::RegCloseKey(RegistryKey key) {
  const Lock lock(mutex_);
  return PredefinedKeys::isPredefined(key) || open_.close(key) ? kSuccess : kInvalidHandle;
}

}  // namespace tessaly::platform
