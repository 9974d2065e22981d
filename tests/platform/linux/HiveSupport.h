#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tessaly/platform/keys/HiveFile.h"
#include "tests/support/linux/Forked.h"

namespace tessaly::tests {

/// Names of keys, from the outer to the inner one.
using Keys = std::vector<std::u16string_view>;

platform::KeyValue textValue(std::u16string_view text);

/// Writes a text, with its keys where they are missing.
Long put(platform::KeyStore& hive, const Keys& keys, std::u16string_view name, std::u16string_view text);

/// The text that stands there, or nothing where the store gives any other result than success.
std::optional<String> get(platform::KeyStore& hive, const Keys& keys, std::u16string_view name);

/// The result that a read gives.
Long resultOfGet(platform::KeyStore& hive, const Keys& keys, std::u16string_view name);

std::string bytesOf(const std::filesystem::path& file);
void writeBytes(const std::filesystem::path& file, std::string_view bytes);
unsigned modeOf(const std::filesystem::path& file);

/// Runs work as `asNobody` does; its temporary files are where such a user may make some.
int withoutRights(const std::function<int()>& work);

/// Runs a statement of SQLite's on a file.
void runSql(const std::filesystem::path& file, const char* sql);

/// Makes a database of some other program.
void makeDatabase(const std::filesystem::path& file, const char* pragma);

/// Leaves the hive as a writer does that is killed in the middle of a large change: half written, with the
/// journal that takes it back.
void interruptWrite(const std::filesystem::path& hive);

}  // namespace tessaly::tests
