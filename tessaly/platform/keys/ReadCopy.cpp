#include "tessaly/platform/keys/ReadCopy.h"

#include "tessaly/platform/Ansi.h"
#include "tessaly/platform/Core.h"

namespace tessaly::platform {
namespace {

constexpr std::size_t kMostKept = 8 << 20;
constexpr std::size_t kLargestKept = 64 << 10;
constexpr std::size_t kCostOfEntry = 200;

/// Other results are of the moment and not of what is stored.
bool isLasting(Long result) {
  return result == registry_result::kSuccess || result == registry_result::kNotFound;
}

std::size_t costOf(std::string_view name, const KeyValue& value) {
  return value.size() + name.size() + kCostOfEntry;
}

}  // namespace

std::size_t ReadCopy::Hash::operator()(const Spelling& spelling) const {
  const std::size_t text = std::hash<std::string_view>()(spelling.text);
  return text ^ (static_cast<std::size_t>(spelling.key) * 0x9E3779B97F4A7C15U);
}

ReadCopy::Spelling ReadCopy::spelled(const KeyStore* store, std::int64_t key, std::string_view text) {
  return {store, key, isAscii(text) ? 0 : core().locale->GetACP(), text};
}

ReadCopy::Kept ReadCopy::kept(const Spelling& spelling) {
  return {spelling.store, spelling.key, spelling.codePage, std::string(spelling.text)};
}

void ReadCopy::makeRoom(std::size_t size) {
  if (keptSize_ + size > kMostKept) {
    keys_.clear();
    values_.clear();
    keptSize_ = 0;
  }
  keptSize_ += size;
}

const ReadCopy::Key* ReadCopy::key(RegistryKey root, std::string_view path) {
  const auto found = keys_.find(spelled(nullptr, root, path));
  if (found == keys_.end()) return nullptr;
  return found->second.revision == found->second.store->keyRevision() ? &found->second : nullptr;
}

void ReadCopy::keep(RegistryKey root, std::string_view path, const Key& key) {
  if (!isLasting(key.result)) return;
  if (keys_.find(spelled(nullptr, root, path)) == keys_.end()) makeRoom(path.size() + kCostOfEntry);
  keys_.insert_or_assign(kept(spelled(nullptr, root, path)), key);
}

const ReadCopy::Value& ReadCopy::value(KeyStore& store, KeyStore::Id key, std::string_view name) {
  // The revision is asked for before the value is read: what changes in between is then read once more.
  const std::uint64_t revision = store.revision();
  const Spelling spelling = spelled(&store, key, name);
  const auto found = values_.find(spelling);
  if (found != values_.end() && found->second.revision == revision) return found->second;
  passing_ = {};
  passing_.revision = revision;
  passing_.result = store.value(key, fromAnsi(name), passing_.value);
  if (passing_.value.size() > kLargestKept || !isLasting(passing_.result)) return passing_;
  if (found != values_.end()) keptSize_ -= costOf(name, found->second.value);
  makeRoom(costOf(name, passing_.value));
  return values_.insert_or_assign(kept(spelling), passing_).first->second;
}

Long ReadCopy::subkeys(KeyStore& store, KeyStore::Id key, const std::vector<String>*& names) {
  const std::uint64_t revision = store.keyRevision();
  names = &listing_.names;
  if (listing_.store == &store && listing_.key == key && listing_.revision == revision)
    return registry_result::kSuccess;
  listing_.store = nullptr;
  const Long result = store.subkeys(key, listing_.names);
  listing_.store = result == registry_result::kSuccess ? &store : nullptr;
  listing_.key = key;
  listing_.revision = revision;
  return result;
}

}  // namespace tessaly::platform
