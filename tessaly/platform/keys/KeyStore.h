#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tessaly/platform/Registry.h"

namespace tessaly::platform {

/// What a value holds. Text types hold UTF-16 as written, a NUL at the end included where one was; all others
/// hold bytes.
struct KeyValue {
  RegistryType type = kNoType;
  String text;
  std::string bytes;

  bool isText() const { return type == kText || type == kExpandableText || type == kTexts; }

  /// In bytes, as the platform counts it.
  std::size_t size() const { return isText() ? text.size() * sizeof(char16_t) : bytes.size(); }

  bool operator==(const KeyValue&) const = default;
};

struct NamedValue {
  String name;
  KeyValue value;
};

/// The names from an outer key to an inner one; empty is the key itself.
using KeyPath = std::span<const std::u16string_view>;

/// A tree of keys with named values, under one root that always exists. Names keep their case and are found
/// in any. Calls give numbers of `registry_result`. For one thread at a time.
struct KeyStore {
  /// Stands for one key for good: a key that is deleted and made again has another one.
  using Id = std::int64_t;
  static constexpr Id kRoot = 1;

  virtual ~KeyStore() = default;

  /// A number that changes whenever something that was read here may have changed, by whomever.
  virtual std::uint64_t revision() = 0;

  /// Likewise for which keys there are; values alone don't change it.
  virtual std::uint64_t keyRevision() { return revision(); }

  /// Whether a change has any hope.
  virtual bool isWritable() = 0;

  virtual Long find(Id from, KeyPath path, Id& key) = 0;

  /// Finds a key, making it and its parents where they are missing.
  virtual Long create(Id from, KeyPath path, Id& key) = 0;

  /// Deletes a key and its values; `kAccessDenied` for one with subkeys and for the root.
  virtual Long remove(Id from, KeyPath path) = 0;

  /// The names of the direct subkeys in the order of their upper-cased forms.
  virtual Long subkeys(Id key, std::vector<String>& names) = 0;

  virtual Long value(Id key, std::u16string_view name, KeyValue& value) = 0;
  virtual Long setValue(Id key, std::u16string_view name, const KeyValue& value) = 0;
  virtual Long removeValue(Id key, std::u16string_view name) = 0;

  /// All values in the order of their upper-cased names; the unnamed one, which comes first, has an empty
  /// name.
  virtual Long values(Id key, std::vector<NamedValue>& values) = 0;

  /// Runs several changes as one: where they give `kSuccess` all of them are kept, otherwise none.
  virtual Long transact(const std::function<Long()>& changes) = 0;
};

}  // namespace tessaly::platform
