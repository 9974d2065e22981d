#include "tools/tessaly-reg/Keys.h"

#include <algorithm>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/keys/PathNames.h"

namespace tessaly::reg {
namespace {

using namespace platform::registry_result;
using platform::KeyPlace;
using platform::KeyStore;
using Names = std::vector<std::u16string_view>;

bool isGone(Long result) { return result == kNotFound || result == kKeyDeleted; }

/// A name in the case in which the store has it.
String storedName(KeyStore& store, KeyStore::Id parent, std::u16string_view name) {
  platform::Locale& locale = *platform::core().locale;
  const String upper = locale.CharUpperW(name);
  std::vector<String> names;
  store.subkeys(parent, names);
  const auto found = std::find_if(names.begin(), names.end(),
                                  [&](const String& other) { return locale.CharUpperW(other) == upper; });
  return found != names.end() ? *found : String(name);
}

/// The full name of a key whose last `own` names were given below its predefined key.
String fullName(const KeyPlace& place, std::size_t own, String outer) {
  const platform::KeyPath path = place.names;
  KeyStore::Id id = 0;
  place.store->find(place.from, path.first(path.size() - own), id);
  for (const std::u16string_view name : path.last(own)) {
    outer += u'\\' + storedName(*place.store, id, name);
    place.store->find(id, {&name, 1}, id);
  }
  return outer;
}

}  // namespace

Long Keys::place(const KeyName& key, KeyPlace& place) const {
  Names names;
  if (const Long result = platform::splitPath(key.path, names); result != kSuccess) return result;
  place = roots_.place(key.root, std::move(names));
  return kSuccess;
}

Long Keys::find(const KeyName& key, FoundKey& found) const {
  Names names;
  if (const Long result = platform::splitPath(key.path, names); result != kSuccess) return result;
  found = {nullptr, 0, key.root, String(longName(key.root))};
  const KeyPlace place = roots_.place(key.root, names);
  if (place.store == nullptr) return names.empty() ? kSuccess : kNotFound;
  const Long result = place.store->find(place.from, place.names, found.id);
  if (result == kNotFound && names.empty()) return kSuccess;
  if (result != kSuccess) return result;
  found.store = place.store;
  const bool isUser = key.root == platform::kUsers;
  if (isUser) found.name += u'\\' + userName();
  found.name = fullName(place, names.size() - (isUser ? 1 : 0), std::move(found.name));
  return kSuccess;
}

Long Keys::subkeys(const FoundKey& key, std::vector<String>& names) const {
  names.clear();
  if (key.store != nullptr) return key.store->subkeys(key.id, names);
  if (key.root == platform::kUsers) names.push_back(userName());
  return kSuccess;
}

Long Keys::values(const FoundKey& key, std::vector<platform::NamedValue>& values) {
  values.clear();
  return key.store != nullptr ? key.store->values(key.id, values) : kSuccess;
}

Long Keys::below(const FoundKey& key, std::u16string_view name, FoundKey& found) const {
  if (key.store == nullptr) return find({key.root, String(name)}, found);
  found = {key.store, 0, key.root, key.name + u'\\' + String(name)};
  return key.store->find(key.id, {&name, 1}, found.id);
}

Long Keys::walk(const FoundKey& key, const std::function<Long(const FoundKey&)>& visit) const {
  if (const Long result = visit(key); result != kSuccess) return isGone(result) ? kSuccess : result;
  std::vector<String> names;
  if (const Long result = subkeys(key, names); result != kSuccess) return isGone(result) ? kSuccess : result;
  for (const String& name : names) {
    FoundKey subkey;
    Long result = below(key, name, subkey);
    if (result == kSuccess) result = walk(subkey, visit);
    if (result != kSuccess && !isGone(result)) return result;
  }
  return kSuccess;
}

Long deleteTree(KeyStore& store, KeyStore::Id outer) {
  std::vector<String> names;
  if (const Long result = store.subkeys(outer, names); result != kSuccess) return result;
  for (const std::u16string_view name : names) {
    KeyStore::Id inner = 0;
    Long result = store.find(outer, {&name, 1}, inner);
    if (result == kSuccess) result = deleteTree(store, inner);
    if (result != kSuccess) return result;
  }
  return store.remove(outer, {});
}

}  // namespace tessaly::reg
