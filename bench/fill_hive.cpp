// Fills a hive with the settings of the benchmark, all in one change: singly, each would wait for the disk.

#include <cstdlib>
#include <cstring>
#include <iostream>

#include "bench/SettingsPlaces.h"
#include "tessaly/base/Text.h"
#include "tessaly/platform/keys/HiveFile.h"

namespace tessaly::bench {
namespace {

using platform::KeyStore;
using platform::KeyValue;
using platform::registry_result::kSuccess;

KeyValue number(Long value) {
  KeyValue result{platform::kNumber, {}, std::string(sizeof value, '\0')};
  std::memcpy(result.bytes.data(), &value, sizeof value);
  return result;
}

KeyValue text(const std::string& value) { return {platform::kText, fromUtf8(value), {}}; }

Long fillKey(KeyStore& store, std::size_t key) {
  const String tool = fromUtf8("Tool" + std::to_string(key));
  const std::u16string_view path[] = {u"Software", u"Vendor", tool};
  KeyStore::Id id = 0;
  Long failure = store.create(KeyStore::kRoot, path, id);
  for (std::size_t n = 0; failure == kSuccess && n < kNumbersOfKey; ++n)
    failure = store.setValue(id, fromUtf8(numberName(n)), number(numberAt({key, n})));
  for (std::size_t n = 0; failure == kSuccess && n < kTextsOfKey; ++n)
    failure = store.setValue(id, fromUtf8(textName(n)), text(textAt({key, n})));
  return failure;
}

Long fill(KeyStore& store, std::size_t keys) {
  return store.transact([&] {
    Long failure = kSuccess;
    for (std::size_t key = 0; failure == kSuccess && key < keys; ++key) failure = fillKey(store, key);
    return failure;
  });
}

}  // namespace
}  // namespace tessaly::bench

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "Usage: fill-hive <hive> <number of keys>\n";
    return 2;
  }
  const auto hive = tessaly::platform::hiveAt(argv[1], tessaly::platform::HiveReaders::Owner);
  const tessaly::Long failure = tessaly::bench::fill(*hive, std::strtoul(argv[2], nullptr, 10));
  if (failure != tessaly::platform::registry_result::kSuccess)
    std::cerr << argv[1] << ": error " << failure << '\n';
  return failure == tessaly::platform::registry_result::kSuccess ? 0 : 1;
}
