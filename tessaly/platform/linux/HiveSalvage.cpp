#include "tessaly/platform/linux/HiveSalvage.h"

#include <algorithm>
#include <map>
#include <set>

#include "tessaly/base/Text.h"
#include "tessaly/platform/linux/HivePages.h"
#include "tessaly/platform/linux/UpperCase.h"

namespace tessaly::platform {
namespace {

using Id = KeyStore::Id;

constexpr std::string_view kLostAndFound = "Lost and found";

std::string upperName(std::string_view name) { return toUtf8(upperCased(fromUtf8(name))); }

bool asKey(const std::vector<PageColumn>& columns, hive::KeyRow& row) {
  if (columns.size() != 5) return false;
  row = {columns[0].number, std::string(columns[1].bytes), std::string(columns[2].bytes), columns[3].number};
  return sumOf(row) == columns[4].number && isPossible(row);
}

bool asValue(const std::vector<PageColumn>& columns, hive::ValueRow& row) {
  if (columns.size() != 6) return false;
  row = {columns[0].number,
         std::string(columns[1].bytes),
         std::string(columns[2].bytes),
         static_cast<RegistryType>(columns[3].number),
         std::string(columns[4].bytes),
         columns[4].isText};
  return sumOf(row) == columns[5].number;
}

/// The keys that can be reached from the root.
std::set<Id> reached(const std::vector<hive::KeyRow>& keys) {
  std::multimap<Id, Id> children;
  for (const hive::KeyRow& key : keys) children.emplace(key.parent, key.id);
  std::set<Id> found = {KeyStore::kRoot};
  for (std::vector<Id> next = {KeyStore::kRoot}; !next.empty();) {
    const auto [first, last] = children.equal_range(next.back());
    next.pop_back();
    for (auto child = first; child != last; ++child) {
      if (found.insert(child->second).second) next.push_back(child->second);
    }
  }
  return found;
}

/// Makes names under one key.
class LostKeys {
 public:
  explicit LostKeys(SalvagedRows& rows) : rows_(&rows) {}

  /// Puts a key there, under its name or the next that is free.
  void adopt(hive::KeyRow& key) {
    key.parent = home();
    key.name = freeName(key.name);
    key.upper = upperName(key.name);
  }

  void addKeyFor(Id lost) {
    hive::KeyRow key{home(), {}, freeName("Values"), lost};
    key.upper = upperName(key.name);
    rows_->keys.push_back(std::move(key));
  }

 private:
  Id home() {
    if (home_ == 0) {
      home_ = HiveRows::newId();
      std::string name = freeNameIn(namesOfRoot(), kLostAndFound);
      std::string upper = upperName(name);
      rows_->keys.push_back({KeyStore::kRoot, std::move(upper), std::move(name), home_});
    }
    return home_;
  }

  std::set<std::string> namesOfRoot() const {
    std::set<std::string> names;
    for (const hive::KeyRow& key : rows_->keys) {
      if (key.parent == KeyStore::kRoot) names.insert(key.upper);
    }
    return names;
  }

  static std::string freeNameIn(const std::set<std::string>& taken, std::string_view wanted) {
    std::string name(wanted);
    for (int number = 2; taken.contains(upperName(name)); ++number) name = numbered(wanted, number);
    return name;
  }

  /// Goes on counting where it was before for the same name.
  std::string freeName(std::string_view wanted) {
    std::string name(wanted);
    int& number = counts_[upperName(wanted)];
    while (!taken_.insert(upperName(name)).second) name = numbered(wanted, ++number + 1);
    return name;
  }

  static std::string numbered(std::string_view name, int number) {
    return std::string(name).append(" ").append(std::to_string(number));
  }

  SalvagedRows* rows_;
  Id home_ = 0;
  std::set<std::string> taken_;
  std::map<std::string, int> counts_;
};

}  // namespace

SalvagedRows salvage(std::string_view file) {
  SalvagedRows rows;
  std::set<Id> ids;
  std::set<std::pair<Id, std::string>> places;
  std::set<std::pair<Id, std::string>> names;
  forEachRow(file, [&](const std::vector<PageColumn>& columns) {
    hive::KeyRow key;
    hive::ValueRow value;
    if (asKey(columns, key) && ids.insert(key.id).second && places.emplace(key.parent, key.upper).second) {
      rows.keys.push_back(std::move(key));
    } else if (asValue(columns, value) && names.emplace(value.key, value.upper).second) {
      rows.values.push_back(std::move(value));
    }
  });
  return rows;
}

void gatherLost(SalvagedRows& rows) {
  LostKeys lost(rows);
  std::set<Id> ids = {KeyStore::kRoot};
  for (const hive::KeyRow& key : rows.keys) ids.insert(key.id);
  const std::size_t count = rows.keys.size();
  for (std::size_t i = 0; i < count; ++i) {
    if (ids.contains(rows.keys[i].parent)) continue;
    hive::KeyRow key = rows.keys[i];
    lost.adopt(key);
    rows.keys[i] = std::move(key);
  }
  // What hangs together in a circle can't have been written by a sound program.
  std::set<Id> known = reached(rows.keys);
  std::erase_if(rows.keys, [&](const hive::KeyRow& key) { return !known.contains(key.id); });
  for (const hive::ValueRow& value : rows.values) {
    if (known.insert(value.key).second) lost.addKeyFor(value.key);
  }
}

}  // namespace tessaly::platform
