// The registry over hives: which file each predefined key is in, forks, and texts in several code pages.

#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <thread>

#include "tessaly/platform/Bodies.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Locale.h"
#include "tests/platform/linux/HiveSupport.h"
#include "tests/support/OwnSettings.h"

namespace tessaly::tests {
namespace {

using namespace platform;
using namespace registry_result;

class HiveRegistryTest : public testing::Test {
 protected:
  HiveRegistryTest() {
    useOwnSettings();
    std::filesystem::remove_all(userHivePath().parent_path());
    std::filesystem::remove_all(machineHivePath().parent_path());
  }

  static Long write(RegistryKey root, const char* path, const char* name, const std::string& text) {
    Registry& registry = ownRegistry();
    RegistryKey opened = 0;
    Long result = registry.RegCreateKeyExA(root, path, kKeyAllAccess, opened);
    if (result != kSuccess) return result;
    result = registry.RegSetValueExA(opened, name, kText, (text + "#").c_str(),
                                     static_cast<std::uint32_t>(text.size()));
    registry.RegCloseKey(opened);
    return result;
  }

  static std::string read(RegistryKey root, const char* path, const char* name) {
    Registry& registry = ownRegistry();
    RegistryKey opened = 0;
    if (registry.RegOpenKeyExA(root, path, kKeyRead, opened) != kSuccess) return "no key";
    std::string buffer(1000, '\0');
    RegistryType type = 0;
    auto size = static_cast<std::uint32_t>(buffer.size());
    const Long result = registry.RegQueryValueExA(opened, name, type, buffer.data(), size);
    registry.RegCloseKey(opened);
    return result == kSuccess ? buffer.substr(0, size) : "no value";
  }
};

TEST_F(HiveRegistryTest, TheUserAndTheMachineHaveAFileEach) {
  ASSERT_EQ(write(kCurrentUser, "Software\\T", "v", "user"), kSuccess);
  EXPECT_FALSE(std::filesystem::exists(machineHivePath()));
  ASSERT_EQ(write(kLocalMachine, "Software\\T", "v", "machine"), kSuccess);
  EXPECT_EQ(read(kCurrentUser, "Software\\T", "v"), "user");
  EXPECT_EQ(read(kLocalMachine, "Software\\T", "v"), "machine");
  EXPECT_EQ(modeOf(userHivePath()), 0600U);
  EXPECT_EQ(modeOf(machineHivePath()), 0644U);
}

TEST_F(HiveRegistryTest, TheOtherPredefinedKeysShowPartsOfThese) {
  ASSERT_EQ(write(kClassesRoot, ".txt", "v", "class"), kSuccess);
  EXPECT_EQ(read(kLocalMachine, "SOFTWARE\\Classes\\.txt", "v"), "class");
  ASSERT_EQ(write(kCurrentConfig, "Display", "v", "config"), kSuccess);
  EXPECT_EQ(read(kLocalMachine, "System\\CurrentControlSet\\Hardware Profiles\\Current\\Display", "v"),
            "config");
  ASSERT_EQ(write(kCurrentUser, "Software\\T", "v", "user"), kSuccess);
  const std::string user = "S-1-22-1-" + std::to_string(geteuid());
  EXPECT_EQ(read(kUsers, (user + "\\Software\\T").c_str(), "v"), "user");
  EXPECT_EQ(write(kUsers, "somebody\\Software", "v", "x"), kAccessDenied);
  EXPECT_EQ(ownRegistry().RegDeleteKeyA(kUsers, user.c_str()), kAccessDenied);
}

TEST_F(HiveRegistryTest, APredefinedKeyThatShowsNothingYetTakesValues) {
  Registry& registry = ownRegistry();
  RegistryKey key = 0;
  ASSERT_EQ(registry.RegOpenKeyExA(kClassesRoot, "", kKeyAllAccess, key), kSuccess);
  EXPECT_FALSE(std::filesystem::exists(machineHivePath()));
  EXPECT_EQ(registry.RegSetValueExA(key, "v", kNumber, "abcd#", 4), kSuccess);
  registry.RegCloseKey(key);
  EXPECT_EQ(read(kLocalMachine, "Software\\Classes", "v"), "abcd");
}

TEST_F(HiveRegistryTest, ReadingEverythingMakesNoFile) {
  for (const RegistryKey root : {kClassesRoot, kCurrentUser, kLocalMachine, kUsers, kCurrentConfig}) {
    EXPECT_EQ(read(root, "Software\\T", "v"), "no key");
    EXPECT_EQ(read(root, "", "v"), "no value");
  }
  EXPECT_FALSE(std::filesystem::exists(userHivePath().parent_path()));
  EXPECT_FALSE(std::filesystem::exists(machineHivePath().parent_path()));
}

TEST_F(HiveRegistryTest, AKeyStaysDeletedWhenItIsMadeAgainElsewhere) {
  Registry& registry = ownRegistry();
  ASSERT_EQ(write(kCurrentUser, "T", "v", "1"), kSuccess);
  RegistryKey key = 0;
  ASSERT_EQ(registry.RegOpenKeyExA(kCurrentUser, "T", kKeyRead, key), kSuccess);
  const int end = inProcess([] {
    if (ownRegistry().RegDeleteKeyA(kCurrentUser, "T") != kSuccess) return 1;
    return write(kCurrentUser, "T", "v", "2") == kSuccess ? 0 : 2;
  });
  ASSERT_EQ(end, 0);
  RegistryType type = 0;
  std::uint32_t size = 0;
  EXPECT_EQ(registry.RegQueryValueExA(key, "v", type, nullptr, size), kKeyDeleted);
  EXPECT_EQ(registry.RegCloseKey(key), kSuccess);
  EXPECT_EQ(read(kCurrentUser, "T", "v"), "2");
}

TEST_F(HiveRegistryTest, BothSidesOfAForkGoOnReadingAndWriting) {
  ASSERT_EQ(write(kCurrentUser, "T", "v", "before"), kSuccess);
  ASSERT_EQ(read(kCurrentUser, "T", "v"), "before");
  const int end = inProcess([] {
    if (read(kCurrentUser, "T", "v") != "before") return 1;
    return write(kCurrentUser, "T", "v", "child") == kSuccess ? 0 : 2;
  });
  EXPECT_EQ(end, 0);
  EXPECT_EQ(read(kCurrentUser, "T", "v"), "child");
  EXPECT_EQ(write(kCurrentUser, "T", "v", "parent"), kSuccess);
  EXPECT_EQ(inProcess([] { return read(kCurrentUser, "T", "v") == "parent" ? 0 : 1; }), 0);
}

TEST_F(HiveRegistryTest, ThreadsReadAndWriteAtOnce) {
  constexpr int threads = 4;
  constexpr int rounds = 50;
  std::atomic<int> faults = 0;
  std::vector<std::thread> running;
  running.reserve(threads);
  for (int i = 0; i < threads; ++i) {
    running.emplace_back([i, &faults] {
      const std::string name = "v" + std::to_string(i);
      for (int round = 0; round < rounds; ++round) {
        const std::string text = std::to_string(round);
        if (write(kCurrentUser, "T", name.c_str(), text) != kSuccess) ++faults;
        if (read(kCurrentUser, "T", name.c_str()) != text) ++faults;
      }
    });
  }
  for (std::thread& thread : running) thread.join();
  EXPECT_EQ(faults, 0);
}

TEST_F(HiveRegistryTest, AWriteIsSeenUnderEverySpellingOfItsName) {
  ASSERT_EQ(write(kCurrentUser, "T", "Name", "1"), kSuccess);
  EXPECT_EQ(read(kCurrentUser, "t", "NAME"), "1");
  ASSERT_EQ(write(kCurrentUser, "T", "Name", "2"), kSuccess);
  EXPECT_EQ(read(kCurrentUser, "t", "NAME"), "2");
  ASSERT_EQ(ownRegistry().RegDeleteKeyA(kCurrentUser, "T"), kSuccess);
  EXPECT_EQ(read(kCurrentUser, "t", "NAME"), "no key");
}

TEST_F(HiveRegistryTest, AKeyThatAnotherDeletesBetweenTwoWritesIsMadeAgain) {
  ASSERT_EQ(write(kCurrentUser, "T", "v", "1"), kSuccess);
  ASSERT_EQ(write(kCurrentUser, "T", "v", "2"), kSuccess);
  ASSERT_EQ(inProcess([] { return ownRegistry().RegDeleteKeyA(kCurrentUser, "T") == kSuccess ? 0 : 1; }), 0);
  EXPECT_EQ(read(kCurrentUser, "T", "v"), "no key");
  EXPECT_EQ(write(kCurrentUser, "T", "v", "3"), kSuccess);
  EXPECT_EQ(read(kCurrentUser, "T", "v"), "3");
}

TEST_F(HiveRegistryTest, TextWrittenUnderOneCodePageReadsUnderAnother) {
  {
    fake::Locale russian(1049, u",", 1251);
    const Override inForce(russian);
    ASSERT_EQ(write(kCurrentUser, "\xCA\xEB\xFE\xF7", "\xC8\xEC\xFF", "\xCF\xF0\xE8\xE2\xE5\xF2"), kSuccess);
  }
  fake::Locale japanese(1041, u".", 932);
  const Override inForce(japanese);
  EXPECT_EQ(read(kCurrentUser, "\x84\x4B\x84\x7C\x84\x90\x84\x89", "\x84\x49\x84\x7D\x84\x91"),
            "\x84\x50\x84\x82\x84\x79\x84\x72\x84\x75\x84\x84");
}

TEST_F(HiveRegistryTest, AWriterWithoutRightsInTheMachinesHiveIsRefused) {
  ASSERT_EQ(write(kLocalMachine, "T", "v", "machine"), kSuccess);
  for (auto folder = machineHivePath().parent_path(); folder != folder.root_path() && folder != "/tmp";
       folder = folder.parent_path())
    std::filesystem::permissions(folder, std::filesystem::perms(0755));
  if (geteuid() != 0) GTEST_SKIP() << "the owner of the file may write it";
  const int end = withoutRights([] {
    if (read(kLocalMachine, "T", "v") != "machine") return 1;
    if (write(kLocalMachine, "T", "v", "x") != kAccessDenied) return 2;
    return write(kLocalMachine, "U", "v", "x") == kAccessDenied ? 0 : 3;
  });
  EXPECT_EQ(end, 0);
}

}  // namespace
}  // namespace tessaly::tests
