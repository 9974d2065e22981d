// A hive as a file: when it is made, by whom it can be read, and that changes of others are seen.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "tessaly/platform/keys/KeyLimits.h"
#include "tests/platform/linux/HiveFixture.h"

namespace tessaly::tests {
namespace {

using namespace platform;
using namespace registry_result;
using std::filesystem::exists;
using std::filesystem::path;

/// The mask of modes, put back in the end.
class Umask {
 public:
  explicit Umask(mode_t mask) : before_(umask(mask)) {}
  Umask(const Umask&) = delete;
  Umask& operator=(const Umask&) = delete;
  ~Umask() { umask(before_); }

 private:
  mode_t before_;
};

TEST_F(HiveTest, ReadingWhereThereIsNoHiveMakesNothing) {
  KeyStore::Id key = 0;
  std::vector<String> names;
  std::vector<NamedValue> values;
  EXPECT_EQ(resultOfGet(*hive_, {u"a"}, u"v"), kNotFound);
  EXPECT_EQ(resultOfGet(*hive_, {}, u"v"), kNotFound);
  EXPECT_EQ(hive_->find(KeyStore::kRoot, {}, key), kSuccess);
  EXPECT_EQ(hive_->subkeys(KeyStore::kRoot, names), kSuccess);
  EXPECT_EQ(hive_->values(KeyStore::kRoot, values), kSuccess);
  EXPECT_EQ(hive_->remove(KeyStore::kRoot, Keys{u"a"}), kNotFound);
  EXPECT_EQ(hive_->removeValue(KeyStore::kRoot, u"v"), kNotFound);
  EXPECT_TRUE(hiveFaults(file()).empty());
  EXPECT_TRUE(names.empty());
  EXPECT_TRUE(values.empty());
  EXPECT_FALSE(exists(folder().parent_path()));
}

TEST_F(HiveTest, TheFirstWriteMakesFolderAndFile) {
  EXPECT_EQ(put(*hive_, {u"a", u"b"}, u"v", u"text"), kSuccess);
  EXPECT_EQ(get(*hive_, {u"a", u"b"}, u"v"), u"text");
  EXPECT_EQ(get(*open(), {u"A", u"B"}, u"V"), u"text");
}

TEST_F(HiveTest, ModesDoNotDependOnTheMask) {
  for (const mode_t mask : {0U, 022U, 077U}) {
    std::filesystem::remove_all(folder().parent_path());
    const Umask masked(mask);
    ASSERT_EQ(put(*open(HiveReaders::Owner), {u"a"}, u"v", u"text"), kSuccess);
    EXPECT_EQ(modeOf(file()), 0600U);
    EXPECT_EQ(modeOf(path(file()) += "-journal"), 0600U);
    EXPECT_EQ(modeOf(path(file()) += "-lock"), 0600U);
    EXPECT_EQ(modeOf(folder()), 0700U);
    std::filesystem::remove_all(folder().parent_path());
    ASSERT_EQ(put(*open(HiveReaders::Everybody), {u"a"}, u"v", u"text"), kSuccess);
    EXPECT_EQ(modeOf(file()), 0644U);
    EXPECT_EQ(modeOf(path(file()) += "-journal"), 0644U);
    EXPECT_EQ(modeOf(folder()), 0755U);
  }
}

TEST_F(HiveTest, KeysGoSoDeepAndNoDeeper) {
  KeyStore::Id key = KeyStore::kRoot;
  for (std::size_t depth = 0; depth < kDeepestPath; ++depth) {
    ASSERT_EQ(hive_->create(key, Keys{u"d"}, key), kSuccess) << depth;
  }
  EXPECT_EQ(hive_->create(key, Keys{u"d"}, key), kInvalidParameter);
}

TEST_F(HiveTest, WhatRootMakesInAUsersFolderIsTheUsers) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can try";
  constexpr unsigned nobody = 65534;
  std::filesystem::create_directories(folder());
  ASSERT_EQ(chown(folder().c_str(), nobody, nobody), 0);
  ASSERT_EQ(put(*hive_, {u"a"}, u"v", u"text"), kSuccess);
  for (const char* ending : {"", "-lock", "-journal"}) {
    struct stat status {};
    ASSERT_EQ(stat((path(file()) += ending).c_str(), &status), 0) << ending;
    EXPECT_EQ(status.st_uid, nobody) << ending;
  }
}

TEST_F(HiveTest, AFileOfNoBytesIsAnEmptyHive) {
  std::filesystem::create_directories(folder());
  writeBytes(file(), "");
  EXPECT_EQ(resultOfGet(*hive_, {u"a"}, u"v"), kNotFound);
  EXPECT_TRUE(hiveFaults(file()).empty());
  EXPECT_EQ(put(*hive_, {u"a"}, u"v", u"text"), kSuccess);
  EXPECT_EQ(get(*hive_, {u"a"}, u"v"), u"text");
}

TEST_F(HiveTest, AnythingElseInItsPlaceIsLeftAlone) {
  std::filesystem::create_directories(folder());
  const std::pair<std::string, Long> rows[] = {{"a text that is no hive", kNotAHive},
                                               {std::string(100'000, 'x'), kNotAHive},
                                               {"SQLite format 3", kNotAHive},
                                               {std::string("SQLite format 3\0", 16), kNotAHive}};
  for (const auto& [bytes, result] : rows) {
    writeBytes(file(), bytes);
    const auto hive = open();
    EXPECT_EQ(resultOfGet(*hive, {u"a"}, u"v"), result) << bytes.substr(0, 20);
    EXPECT_EQ(put(*hive, {u"a"}, u"v", u"text"), result) << bytes.substr(0, 20);
    EXPECT_EQ(bytesOf(file()), bytes);
    EXPECT_FALSE(hiveFaults(file()).empty());
  }
}

TEST_F(HiveTest, ADatabaseOfAnotherProgramIsLeftAlone) {
  for (const char* mode : {"PRAGMA journal_mode=DELETE", "PRAGMA journal_mode=WAL"}) {
    std::filesystem::remove_all(folder());
    std::filesystem::create_directories(folder());
    makeDatabase(file(), mode);
    const std::string before = bytesOf(file());
    const auto hive = open();
    EXPECT_EQ(resultOfGet(*hive, {u"a"}, u"v"), kNotAHive) << mode;
    EXPECT_EQ(put(*hive, {u"a"}, u"v", u"text"), kNotAHive) << mode;
    EXPECT_EQ(bytesOf(file()), before) << mode;
    EXPECT_FALSE(exists(path(file()) += "-shm")) << mode;
  }
}

TEST_F(HiveTest, AFolderOrAPipeInItsPlaceIsNoHive) {
  std::filesystem::create_directories(file());
  EXPECT_EQ(resultOfGet(*hive_, {u"a"}, u"v"), kNotAHive);
  EXPECT_EQ(put(*hive_, {u"a"}, u"v", u"text"), kNotAHive);
  std::filesystem::remove(file());
  ASSERT_EQ(mkfifo(file().c_str(), 0600), 0);
  EXPECT_EQ(resultOfGet(*hive_, {u"a"}, u"v"), kNotAHive);
  EXPECT_EQ(put(*hive_, {u"a"}, u"v", u"text"), kNotAHive);
}

TEST_F(HiveTest, WhoMayOnlyReadReadsAndHisWritesAreRefused) {
  std::filesystem::permissions(temporary_.path(), std::filesystem::perms(0755));
  ASSERT_EQ(put(*open(HiveReaders::Everybody), {u"a"}, u"v", u"text"), kSuccess);
  const bool isRoot = geteuid() == 0;
  if (!isRoot) {
    std::filesystem::permissions(file(), std::filesystem::perms(0444));
    std::filesystem::permissions(folder(), std::filesystem::perms(0555));
  }
  const int end = withoutRights([&] {
    const auto hive = open(HiveReaders::Everybody);
    if (hive->isWritable()) return 1;
    if (get(*hive, {u"a"}, u"v") != u"text") return 2;
    if (put(*hive, {u"a"}, u"v", u"other") != kAccessDenied) return 3;
    if (put(*hive, {u"b"}, u"v", u"other") != kAccessDenied) return 4;
    return get(*hive, {u"a"}, u"v") == u"text" ? 0 : 5;
  });
  std::filesystem::permissions(folder(), std::filesystem::perms(0755));
  EXPECT_EQ(end, 0);
}

TEST_F(HiveTest, AHiveThatMayNotBeReadGivesNothing) {
  ASSERT_EQ(put(*hive_, {u"a"}, u"v", u"text"), kSuccess);
  std::filesystem::permissions(file(), std::filesystem::perms(0));
  std::filesystem::permissions(folder(), std::filesystem::perms(0755));
  std::filesystem::permissions(folder().parent_path(), std::filesystem::perms(0755));
  EXPECT_EQ(withoutRights([&] { return resultOfGet(*open(), {u"a"}, u"v"); }), kAccessDenied);
  EXPECT_EQ(withoutRights([&] { return put(*open(), {u"a"}, u"v", u"x"); }), kAccessDenied);
}

TEST_F(HiveTest, AFolderThatMayNotBeWrittenDropsWrites) {
  std::filesystem::create_directories(folder());
  std::filesystem::permissions(folder(), std::filesystem::perms(0555));
  const int end = withoutRights([&] {
    const auto hive = open();
    if (hive->isWritable()) return 1;
    return resultOfGet(*hive, {u"a"}, u"v") == kNotFound && put(*hive, {u"a"}, u"v", u"x") == kAccessDenied
               ? 0
               : 2;
  });
  std::filesystem::permissions(folder(), std::filesystem::perms(0755));
  EXPECT_EQ(end, 0);
  EXPECT_FALSE(exists(file()));
}

TEST_F(HiveTest, AFullDiskDropsTheWriteAndKeepsTheRest) {
  ASSERT_EQ(put(*hive_, {u"a"}, u"v", u"text"), kSuccess);
  const int end = inProcess([&] {
    // Files of this process can't grow further, as on a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{40'000, 40'000};
    setrlimit(RLIMIT_FSIZE, &limit);
    const auto hive = open();
    if (put(*hive, {u"a"}, u"large", String(500'000, u'x')) == kSuccess) return 1;
    if (get(*hive, {u"a"}, u"v") != u"text") return 2;
    return get(*hive, {u"a"}, u"large") == std::nullopt ? 0 : 3;
  });
  EXPECT_EQ(end, 0);
  EXPECT_EQ(get(*hive_, {u"a"}, u"v"), u"text");
  EXPECT_TRUE(hiveFaults(file()).empty());
}

TEST_F(HiveTest, SeveralChangesAreKeptTogetherOrNotAtAll) {
  const Long result = hive_->transact([&] {
    put(*hive_, {u"a"}, u"v", u"1");
    put(*hive_, {u"b"}, u"v", u"2");
    return get(*hive_, {u"a"}, u"v") == u"1" ? kSuccess : kIoFailed;
  });
  EXPECT_EQ(result, kSuccess);
  EXPECT_EQ(get(*open(), {u"b"}, u"v"), u"2");
  const Long failed = hive_->transact([&] {
    put(*hive_, {u"a"}, u"v", u"3");
    return kAccessDenied;
  });
  EXPECT_EQ(failed, kAccessDenied);
  EXPECT_EQ(get(*hive_, {u"a"}, u"v"), u"1");
}

TEST_F(HiveTest, AChangeThatThrowsIsTakenBack) {
  ASSERT_EQ(put(*hive_, {u"a"}, u"v", u"1"), kSuccess);
  const auto throwing = [&]() -> Long {
    put(*hive_, {u"a"}, u"v", u"2");
    throw std::bad_alloc();
  };
  EXPECT_THROW(hive_->transact(throwing), std::bad_alloc);
  EXPECT_EQ(get(*hive_, {u"a"}, u"v"), u"1");
  EXPECT_EQ(put(*open(), {u"a"}, u"v", u"3"), kSuccess);
  EXPECT_EQ(get(*hive_, {u"a"}, u"v"), u"3");
}

TEST_F(HiveTest, KeepsTextThatIsNoSoundUnicode) {
  const String odd = {u'a', 0xD800, u'b', 0xDC00, 0, 0xFFFE};
  ASSERT_EQ(put(*hive_, {u"a"}, u"v", odd), kSuccess);
  EXPECT_EQ(get(*hive_, {u"a"}, u"v"), odd);
  const String nul = {0, u'a', 0};
  ASSERT_EQ(put(*hive_, {u"a"}, u"nul", nul), kSuccess);
  EXPECT_EQ(get(*hive_, {u"a"}, u"nul"), nul);
}

TEST_F(HiveTest, NoNameLeavesTheHive) {
  for (const std::u16string_view name :
       {u"..", u".", u"/etc/passwd", u"a/../../b", u"'; DROP TABLE key; --"}) {
    ASSERT_EQ(put(*hive_, {name}, name, u"text"), kSuccess);
    EXPECT_EQ(get(*hive_, {name}, name), u"text");
  }
  std::size_t files = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(temporary_.path())) {
    files += entry.is_regular_file() ? 1U : 0U;
  }
  EXPECT_EQ(files, 3U) << "the hive, its journal and its lock";
}

TEST_F(HiveTest, AReaderWithoutRightsReadsBehindAnInterruptedWrite) {
  std::filesystem::permissions(temporary_.path(), std::filesystem::perms(0755));
  for (int i = 0; i < 50; ++i) {
    const String name = u"v" + String(1, static_cast<char16_t>(u'A' + i));
    ASSERT_EQ(put(*open(HiveReaders::Everybody), {u"a"}, name, u"text"), kSuccess);
  }
  interruptWrite(file());
  const std::string before = bytesOf(file());
  if (geteuid() != 0) {
    std::filesystem::permissions(file(), std::filesystem::perms(0444));
    std::filesystem::permissions(folder(), std::filesystem::perms(0555));
  }
  const int end = withoutRights([&] {
    const auto hive = open(HiveReaders::Everybody);
    for (int i = 0; i < 50; ++i) {
      const String name = u"v" + String(1, static_cast<char16_t>(u'A' + i));
      if (get(*hive, {u"a"}, name) != u"text") return 1;
    }
    const auto revision = hive->revision();
    return revision == hive->revision() ? 0 : 2;
  });
  std::filesystem::permissions(folder(), std::filesystem::perms(0755));
  EXPECT_EQ(end, 0);
  EXPECT_EQ(bytesOf(file()), before);
  EXPECT_TRUE(hiveFaults(file()).empty());
}

TEST_F(HiveTest, TheNextWriterPutsAnInterruptedWriteRight) {
  ASSERT_EQ(put(*hive_, {u"a"}, u"v", u"text"), kSuccess);
  for (int i = 0; i < 50; ++i)
    ASSERT_EQ(put(*hive_, {u"a"}, String(3, static_cast<char16_t>(u'A' + i)), u"x"), kSuccess);
  interruptWrite(file());
  EXPECT_EQ(get(*open(), {u"a"}, u"v"), u"text");
  EXPECT_EQ(put(*hive_, {u"a"}, u"v", u"next"), kSuccess);
  EXPECT_EQ(get(*hive_, {u"a"}, u"v"), u"next");
  EXPECT_TRUE(hiveFaults(file()).empty());
}

}  // namespace
}  // namespace tessaly::tests
