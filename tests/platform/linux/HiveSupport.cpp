#include "tests/platform/linux/HiveSupport.h"

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>

namespace tessaly::tests {
namespace {

/// Thousands of hives are written: in memory where that can be, since a disk may take its time.
const bool isInMemory = access("/dev/shm", W_OK) == 0 && setenv("TMPDIR", "/dev/shm", 0) == 0;

}  // namespace

using namespace platform;
using namespace registry_result;

KeyValue textValue(std::u16string_view text) {
  KeyValue value;
  value.type = kText;
  value.text = text;
  return value;
}

Long put(KeyStore& hive, const Keys& keys, std::u16string_view name, std::u16string_view text) {
  KeyStore::Id key = 0;
  const Long failure = hive.create(KeyStore::kRoot, keys, key);
  return failure == kSuccess ? hive.setValue(key, name, textValue(text)) : failure;
}

Long resultOfGet(KeyStore& hive, const Keys& keys, std::u16string_view name) {
  KeyStore::Id key = 0;
  KeyValue value;
  const Long failure = hive.find(KeyStore::kRoot, keys, key);
  return failure == kSuccess ? hive.value(key, name, value) : failure;
}

std::optional<String> get(KeyStore& hive, const Keys& keys, std::u16string_view name) {
  KeyStore::Id key = 0;
  KeyValue value;
  if (hive.find(KeyStore::kRoot, keys, key) != kSuccess) return std::nullopt;
  if (hive.value(key, name, value) != kSuccess) return std::nullopt;
  return value.text;
}

std::string bytesOf(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void writeBytes(const std::filesystem::path& file, std::string_view bytes) {
  std::ofstream(file, std::ios::binary | std::ios::trunc)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

unsigned modeOf(const std::filesystem::path& file) {
  struct stat status {};
  return stat(file.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
}

int withoutRights(const std::function<int()>& work) {
  if (!isInMemory) return asNobody(work);
  return asNobody([&] {
    unsetenv("TMPDIR");
    return work();
  });
}

void runSql(const std::filesystem::path& file, const char* sql) {
  sqlite3* database = nullptr;
  sqlite3_open(file.c_str(), &database);
  EXPECT_EQ(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
  sqlite3_close(database);
}

void makeDatabase(const std::filesystem::path& file, const char* pragma) {
  runSql(file, (std::string(pragma) + ";CREATE TABLE key (parent); INSERT INTO key VALUES (1)").c_str());
}

void interruptWrite(const std::filesystem::path& hive) {
  const int end = inProcess([&] {
    sqlite3* database = nullptr;
    sqlite3_open(hive.c_str(), &database);
    // A cache of one page makes SQLite write pages before the commit.
    const int code = sqlite3_exec(database,
                                  "PRAGMA journal_mode=PERSIST; PRAGMA cache_size=1; BEGIN IMMEDIATE;"
                                  "UPDATE value SET data=zeroblob(3000);"
                                  "UPDATE key SET name='overwritten';",
                                  nullptr, nullptr, nullptr);
    if (code == SQLITE_OK) raise(SIGKILL);
    return 1;
  });
  ASSERT_EQ(end, -SIGKILL);
}

}  // namespace tessaly::tests
