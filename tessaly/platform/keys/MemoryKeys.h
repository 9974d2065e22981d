#pragma once

#include <map>
#include <memory>

#include "tessaly/platform/keys/KeyStore.h"

namespace tessaly::platform {

/// A key store in memory. Names are compared by the locale's upper case.
class MemoryKeys final : public KeyStore {
 public:
  MemoryKeys();
  ~MemoryKeys() override;
  MemoryKeys(const MemoryKeys&) = delete;
  MemoryKeys& operator=(const MemoryKeys&) = delete;

  /// Whether changes are taken; they are at first.
  void setWritable(bool writable) { writable_ = writable; }

  std::uint64_t revision() override { return revision_; }
  bool isWritable() override { return writable_; }
  Long find(Id from, KeyPath path, Id& key) override;
  Long create(Id from, KeyPath path, Id& key) override;
  Long remove(Id from, KeyPath path) override;
  Long subkeys(Id key, std::vector<String>& names) override;
  Long value(Id key, std::u16string_view name, KeyValue& value) override;
  Long setValue(Id key, std::u16string_view name, const KeyValue& value) override;
  Long removeValue(Id key, std::u16string_view name) override;
  Long values(Id key, std::vector<NamedValue>& values) override;
  Long transact(const std::function<Long()>& changes) override;

 private:
  struct Key {
    Id parent = 0;
    String name;
    std::map<String, Id> subkeys;
    std::map<String, NamedValue> values;
  };

  Long descend(Id from, KeyPath path, bool make, Id& key);
  Key* keyOf(Id key);
  Long changed();

  std::map<Id, Key> keys_;
  Id next_ = kRoot + 1;
  std::uint64_t revision_ = 1;
  bool writable_ = true;
};

}  // namespace tessaly::platform
