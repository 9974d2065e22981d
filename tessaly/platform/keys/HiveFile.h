#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "tessaly/platform/keys/KeyStore.h"

/// Hives: key stores that are files, one for the user and one for the machine.
namespace tessaly::platform {

/// Who may read a hive besides its owner. It decides the mode of the files and folders that are made.
enum class HiveReaders { Owner, Everybody };

/// Where the user's and the machine's hive stand, by the environment.
std::filesystem::path userHivePath();
std::filesystem::path machineHivePath();

/// The user's name under `kUsers`: how Windows systems write a Unix user.
String registryUserName();

/// The store of a hive file. The file is opened at the first call that needs it, and made, with its folder,
/// at the first change. Where it is missing the store is empty; where it is damaged or no hive, calls give
/// `kCorrupt` or `kNotAHive` and the file stays as it is.
std::unique_ptr<KeyStore> hiveAt(std::filesystem::path path, HiveReaders readers);

/// What is wrong with a hive, a line each; empty where it is sound or missing. Nothing is changed.
std::vector<std::string> hiveFaults(const std::filesystem::path& path);

/// What a repair has done.
struct HiveRepair {
  std::size_t keys = 0;
  std::size_t values = 0;
  std::filesystem::path damaged;
};

/// Puts what can be read of a damaged hive into a new one in its place; the damaged file is kept beside it,
/// as `damaged`, which stays empty where nothing is wrong. A hive of a later version is `kNotAHive`. Keys
/// whose parents are lost come back under the key "Lost and found". Gives a number of `registry_result`.
Long repairHive(const std::filesystem::path& path, HiveRepair& repair);

}  // namespace tessaly::platform
