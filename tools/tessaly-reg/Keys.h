#pragma once

#include <functional>
#include <vector>

#include "tessaly/platform/keys/PredefinedKeys.h"
#include "tools/tessaly-reg/KeyName.h"

namespace tessaly::reg {

/// A key that was found. A predefined key is always there; where there is nothing to show it has no store.
struct FoundKey {
  platform::KeyStore* store = nullptr;
  platform::KeyStore::Id id = 0;
  platform::RegistryKey root = 0;

  /// In full, from the long name of the predefined key on, in the case in which it is stored.
  String name;
};

/// The keys of the machine and of the user, by their names. Calls give numbers of `registry_result`.
class Keys {
 public:
  Keys(platform::KeyStore& machine, platform::KeyStore& user, String userName)
      : roots_(machine, user, std::move(userName)) {}

  /// Where a key's name leads. The names point into the key.
  Long place(const KeyName& key, platform::KeyPlace& place) const;

  Long find(const KeyName& key, FoundKey& found) const;

  Long subkeys(const FoundKey& key, std::vector<String>& names) const;
  static Long values(const FoundKey& key, std::vector<platform::NamedValue>& values);

  /// Goes to a direct subkey, by its stored name. Where it fails the key is of no more use.
  Long enter(FoundKey& key, std::u16string_view name) const;

  /// Visits a key and all below it, outer ones first. What others delete meanwhile is left out. Ends at the
  /// first visit that fails, and with `kCorrupt` where what is stored is no tree.
  Long walk(const FoundKey& key, const std::function<Long(const FoundKey&)>& visit) const;

  /// The name under which HKEY_USERS shows the user's keys.
  const String& userName() const { return roots_.userName(); }

 private:
  platform::PredefinedKeys roots_;
};

/// Deletes a key with all below it; `kCorrupt` where what is stored is no tree. For use within a transaction.
Long deleteTree(platform::KeyStore& store, platform::KeyStore::Id outer);

}  // namespace tessaly::reg
