// Any bytes as a hive: whatever is read, a refused change leaves every byte as it is, and what a repair makes
// is sound.

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "tessaly/platform/keys/HiveFile.h"

namespace {

using namespace tessaly;
using namespace tessaly::platform;

constexpr int kDeepest = 20;

void require(bool condition) {
  if (!condition) std::abort();
}

/// A folder for this process, gone with it.
class Folder {
 public:
  Folder() : path_(std::filesystem::temp_directory_path() / ("tessaly-fuzz-" + std::to_string(getpid()))) {
    std::filesystem::create_directories(path_);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() { std::filesystem::remove_all(path_); }

  /// The path of a hive of these bytes, with nothing beside it.
  std::filesystem::path fill(const std::string& bytes) const {
    std::filesystem::remove_all(path_);
    std::filesystem::create_directories(path_);
    auto file = path_ / "user.hive";
    std::ofstream(file, std::ios::binary) << bytes;
    return file;
  }

 private:
  std::filesystem::path path_;
};

std::string bytesOf(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void readAll(KeyStore& hive, KeyStore::Id outer, int depth) {
  std::vector<NamedValue> values;
  if (hive.values(outer, values) == registry_result::kSuccess) {
    for (const NamedValue& named : values) {
      KeyValue value;
      require(hive.value(outer, named.name, value) != registry_result::kKeyDeleted);
    }
  }
  std::vector<String> names;
  if (depth == kDeepest || hive.subkeys(outer, names) != registry_result::kSuccess) return;
  for (const String& name : names) {
    const std::u16string_view path[] = {name};
    KeyStore::Id inner = 0;
    if (hive.find(outer, path, inner) == registry_result::kSuccess) readAll(hive, inner, depth + 1);
  }
}

Long write(KeyStore& hive) {
  const std::u16string_view path[] = {u"Fuzz", u"Key"};
  KeyStore::Id key = 0;
  const Long failure = hive.create(KeyStore::kRoot, path, key);
  return failure == registry_result::kSuccess ? hive.setValue(key, u"v", {kText, u"text", {}}) : failure;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Folder folder;
  const std::string bytes(data, data + size);
  const auto file = folder.fill(bytes);
  {
    const auto hive = hiveAt(file, HiveReaders::Owner);
    readAll(*hive, KeyStore::kRoot, 0);
    require(bytesOf(file) == bytes);
    if (write(*hive) != registry_result::kSuccess) require(bytesOf(file) == bytes);
  }
  const auto damaged = folder.fill(bytes);
  HiveRepair repair;
  if (repairHive(damaged, repair) == registry_result::kSuccess) {
    require(hiveFaults(damaged).empty());
    require(bytesOf(repair.damaged.empty() ? damaged : repair.damaged) == bytes);
    require(write(*hiveAt(damaged, HiveReaders::Owner)) == registry_result::kSuccess);
  }
  return 0;
}
