#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "tessaly/platform/keys/KeyStore.h"

namespace tessaly::platform {

/// What has been read of the stores, good as long as the store's revisions stand. Keys and values are kept by
/// their paths and names as a caller spelled them. What is asked for is read where it is not kept; nothing is
/// read ahead.
class ReadCopy {
 public:
  /// A key as it was found, or the result that says why not.
  struct Key {
    KeyStore* store = nullptr;
    KeyStore::Id id = 0;
    Long result = 0;
    std::uint64_t revision = 0;
  };

  struct Value {
    KeyValue value;
    Long result = 0;
    std::uint64_t revision = 0;
  };

  /// What was kept for a path below a predefined key, or nothing where it holds no longer.
  const Key* key(RegistryKey root, std::string_view path);
  void keep(RegistryKey root, std::string_view path, const Key& key);

  /// A value of a key. It stays where it is until the next call.
  const Value& value(KeyStore& store, KeyStore::Id key, std::string_view name);

  /// The names of a key's subkeys; one key's are kept.
  Long subkeys(KeyStore& store, KeyStore::Id key, const std::vector<String>*& names);

 private:
  /// An 8-bit name: which code page it is in matters only where it is not ASCII.
  struct Spelling {
    const KeyStore* store;
    std::int64_t key;
    Long codePage;
    std::string_view text;
    bool operator==(const Spelling&) const = default;
  };
  struct Kept {
    const KeyStore* store;
    std::int64_t key;
    Long codePage;
    std::string text;
    operator Spelling() const { return {store, key, codePage, text}; }
  };
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(const Spelling& spelling) const;
  };
  struct Equal {
    using is_transparent = void;
    bool operator()(const Spelling& left, const Spelling& right) const { return left == right; }
  };
  template <class Entry>
  using Map = std::unordered_map<Kept, Entry, Hash, Equal>;

  struct Listing {
    const KeyStore* store = nullptr;
    KeyStore::Id key = 0;
    std::uint64_t revision = 0;
    std::vector<String> names;
  };

  static Spelling spelled(const KeyStore* store, std::int64_t key, std::string_view text);
  static Kept kept(const Spelling& spelling);
  void makeRoom(std::size_t size);

  Map<Key> keys_;
  Map<Value> values_;
  std::size_t keptSize_ = 0;
  Value passing_;
  Listing listing_;
};

}  // namespace tessaly::platform
