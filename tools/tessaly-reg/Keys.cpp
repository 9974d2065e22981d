#include "tools/tessaly-reg/Keys.h"

#include <algorithm>
#include <unordered_set>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/keys/KeyLimits.h"
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

/// The way down a tree. A sound one has a single way to each key and is of a bounded depth; a file that was
/// made by hand may have rings.
class Descent {
 public:
  Long enter(KeyStore::Id key) {
    if (depth_ == kDeepest || !entered_.insert(key).second) return kCorrupt;
    ++depth_;
    return kSuccess;
  }

  void leave() { --depth_; }

 private:
  /// The root itself comes on top of the names.
  static constexpr std::size_t kDeepest = platform::kDeepestPath + 1;

  std::unordered_set<KeyStore::Id> entered_;
  std::size_t depth_ = 0;
};

/// Goes down with one name, which grows and shrinks: deep down, copies of it would be large.
class Walk {
 public:
  Walk(const Keys& keys, FoundKey from, const std::function<Long(const FoundKey&)>& visit)
      : keys_(keys), visit_(visit), here_(std::move(from)) {}

  /// Visits the key here and all below it.
  Long go();

 private:
  Long visitAll();
  Long below(const String& name);

  const Keys& keys_;
  const std::function<Long(const FoundKey&)>& visit_;
  FoundKey here_;
  Descent descent_;
};

Long Walk::go() {
  if (here_.store == nullptr) return visitAll();
  if (const Long result = descent_.enter(here_.id); result != kSuccess) return result;
  const Long result = visitAll();
  descent_.leave();
  return result;
}

Long Walk::visitAll() {
  if (const Long result = visit_(here_); result != kSuccess) return isGone(result) ? kSuccess : result;
  std::vector<String> names;
  Long result = keys_.subkeys(here_, names);
  for (auto name = names.begin(); result == kSuccess && name != names.end(); ++name) {
    result = below(*name);
    if (isGone(result)) result = kSuccess;
  }
  return isGone(result) ? kSuccess : result;
}

Long Walk::below(const String& name) {
  const std::size_t length = here_.name.size();
  KeyStore* const store = here_.store;
  const KeyStore::Id id = here_.id;
  Long result = keys_.enter(here_, name);
  if (result == kSuccess) result = go();
  here_.store = store;
  here_.id = id;
  here_.name.resize(length);
  return result;
}

Long deleteTreeWithin(KeyStore& store, KeyStore::Id outer, Descent& descent) {
  if (const Long result = descent.enter(outer); result != kSuccess) return result;
  std::vector<String> names;
  if (const Long result = store.subkeys(outer, names); result != kSuccess) return result;
  for (const std::u16string_view name : names) {
    KeyStore::Id inner = 0;
    Long result = store.find(outer, {&name, 1}, inner);
    if (result == kSuccess) result = deleteTreeWithin(store, inner, descent);
    if (result != kSuccess) return result;
  }
  descent.leave();
  return store.remove(outer, {});
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

Long Keys::enter(FoundKey& key, std::u16string_view name) const {
  key.name += u'\\';
  key.name += name;
  if (key.store != nullptr) return key.store->find(key.id, {&name, 1}, key.id);
  FoundKey found;
  const Long result = find({key.root, String(name)}, found);
  key.store = found.store;
  key.id = found.id;
  return result;
}

Long Keys::walk(const FoundKey& key, const std::function<Long(const FoundKey&)>& visit) const {
  return Walk(*this, key, visit).go();
}

Long deleteTree(KeyStore& store, KeyStore::Id outer) {
  Descent descent;
  return deleteTreeWithin(store, outer, descent);
}

}  // namespace tessaly::reg
