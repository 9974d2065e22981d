#include "tools/tessaly-reg/RegImport.h"

#include <algorithm>

#include "tessaly/platform/keys/KeyLimits.h"
#include "tools/support/Utf8.h"
#include "tools/support/Visible.h"

namespace tessaly::reg {
namespace {

using namespace platform::registry_result;
using platform::KeyPlace;
using platform::KeyStore;
using Kind = RegChange::Kind;

bool isOfKey(const RegChange& change) {
  return change.kind == Kind::MakeKey || change.kind == Kind::DeleteKey;
}

Long deleteKey(const KeyPlace& place) {
  KeyStore::Id key = 0;
  const Long result = place.store->find(place.from, place.names, key);
  if (result == kNotFound) return kSuccess;
  return result == kSuccess ? deleteTree(*place.store, key) : result;
}

Long deleteValue(KeyStore& store, KeyStore::Id key, std::u16string_view name) {
  const Long result = store.removeValue(key, name);
  return result == kNotFound ? kSuccess : result;
}

}  // namespace

RegImport::RegImport(const RegFile& file, const Keys& keys) : file_(file), keys_(keys) {
  places_.resize(file.keys.size());
  for (std::size_t i = 0; i < places_.size(); ++i) keys.place(file.keys[i], places_[i]);
}

std::vector<LineError> RegImport::faults() const {
  std::vector<LineError> faults;
  for (const RegChange& change : file_.changes) {
    std::string fault = faultOf(change);
    if (!fault.empty()) faults.push_back({change.line, std::move(fault)});
    if (faults.size() == kMostErrors) break;
  }
  return faults;
}

std::string RegImport::faultOf(const RegChange& change) const {
  if (isOfKey(change)) return faultOfKey(change);
  const bool isNowhere = places_[change.key].store == nullptr && file_.keys[change.key].path.empty();
  if (isNowhere) return "HKEY_USERS itself holds no values";
  if (!tools::hasWholePairs(change.name)) return "the name of the value holds half a character";
  if (platform::checkValueName(change.name) != kSuccess)
    return "the name of the value is over 16383 characters long";
  if (platform::checkValue(change.value) != kSuccess) return "the data is larger than 1 MiB";
  return {};
}

std::string RegImport::faultOfKey(const RegChange& change) const {
  const KeyPlace& place = places_[change.key];
  const bool isWhole = file_.keys[change.key].path.empty();
  if (place.store == nullptr && !isWhole) {
    return "HKEY_USERS shows the keys of the user who imports and no others, under " +
           tools::inQuotes(keys_.userName());
  }
  if (change.kind == Kind::DeleteKey && place.names.empty()) return "this key itself can't be deleted";
  if (!std::all_of(place.names.begin(), place.names.end(), tools::hasWholePairs))
    return "a name of the key holds half a character";
  if (platform::checkPath(place.names) == kSuccess) return {};
  const bool isDeep = place.names.size() > platform::kDeepestPath;
  return isDeep ? "the key lies below more than 512 others" : "a name of the key is over 255 characters long";
}

bool RegImport::concerns(const KeyStore& store) const {
  return std::any_of(places_.begin(), places_.end(),
                     [&](const KeyPlace& place) { return place.store == &store; });
}

/// One within the other, so that a failure in either takes both back.
ImportResult RegImport::apply(KeyStore& machine, KeyStore& user) const {
  ImportResult end;
  const auto changeUser = [&] {
    if (!concerns(user)) return kSuccess;
    const Long result = user.transact([&] { return applyTo(user); });
    end.isUserDone = result == kSuccess;
    if (result != kSuccess) end.failed = &user;
    return result;
  };
  const auto changeBoth = [&] {
    const Long result = applyTo(machine);
    return result == kSuccess ? changeUser() : result;
  };
  end.result = concerns(machine) ? machine.transact(changeBoth) : changeUser();
  if (end.result != kSuccess && end.failed == nullptr) end.failed = &machine;
  return end;
}

Long RegImport::applyTo(KeyStore& store) const {
  KeyStore::Id key = 0;
  for (const RegChange& change : file_.changes) {
    if (places_[change.key].store != &store) continue;
    if (const Long result = applyOne(change, key); result != kSuccess) return result;
  }
  return kSuccess;
}

Long RegImport::applyOne(const RegChange& change, KeyStore::Id& key) const {
  const KeyPlace& place = places_[change.key];
  switch (change.kind) {
    case Kind::MakeKey:
      return place.store->create(place.from, place.names, key);
    case Kind::DeleteKey:
      return deleteKey(place);
    case Kind::SetValue:
      return place.store->setValue(key, change.name, change.value);
    default:
      return deleteValue(*place.store, key, change.name);
  }
}

}  // namespace tessaly::reg
