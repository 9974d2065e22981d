#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "tessaly/platform/keys/KeyStore.h"

namespace tessaly::platform {

/// Where a path leads: names below a key of a store.
struct KeyPlace {
  KeyStore* store = nullptr;
  KeyStore::Id from = KeyStore::kRoot;
  std::vector<std::u16string_view> names;
};

/// What the five predefined keys show of the machine's and the user's store.
class PredefinedKeys {
 public:
  PredefinedKeys(KeyStore& machine, KeyStore& user, String userName)
      : machine_(&machine), user_(&user), userName_(std::move(userName)) {}

  static bool isPredefined(RegistryKey key);

  /// Where names below a predefined key lead; no store where it is `kUsers` and they lead to nobody.
  KeyPlace place(RegistryKey root, std::vector<std::u16string_view> names) const;

  /// The name of the user's part of `kUsers`.
  const String& userName() const { return userName_; }

 private:
  KeyPlace placeOfUser(std::vector<std::u16string_view> names) const;

  KeyStore* machine_;
  KeyStore* user_;
  String userName_;
};

}  // namespace tessaly::platform
