// A hive that others change, replace, remove or put back while it is open: the next read and write see it.

#include <chrono>

#include "tests/platform/linux/HiveFixture.h"

namespace tessaly::tests {
namespace {

using namespace platform;
using namespace registry_result;
using std::filesystem::exists;
using std::filesystem::path;
using HiveChangesTest = HiveTest;

TEST_F(HiveChangesTest, SeesWhatAnotherHasWritten) {
  const auto other = open();
  EXPECT_EQ(get(*hive_, {u"a"}, u"v"), std::nullopt);
  const auto before = hive_->revision();
  ASSERT_EQ(put(*other, {u"a"}, u"v", u"1"), kSuccess);
  EXPECT_NE(hive_->revision(), before);
  EXPECT_EQ(get(*hive_, {u"a"}, u"v"), u"1");
  const auto between = hive_->revision();
  EXPECT_EQ(hive_->revision(), between);
  ASSERT_EQ(put(*other, {u"a"}, u"v", u"2"), kSuccess);
  EXPECT_NE(hive_->revision(), between);
  EXPECT_EQ(get(*hive_, {u"a"}, u"v"), u"2");
}

TEST_F(HiveChangesTest, TheRevisionStandsWhileNothingChanges) {
  ASSERT_EQ(put(*hive_, {u"a"}, u"v", u"1"), kSuccess);
  ASSERT_EQ(get(*hive_, {u"a"}, u"v"), u"1");
  const auto revision = hive_->revision();
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(get(*hive_, {u"a"}, u"v"), u"1");
    EXPECT_EQ(hive_->revision(), revision);
  }
}

TEST_F(HiveChangesTest, SeesThatTheFileWasReplaced) {
  ASSERT_EQ(put(*hive_, {u"a"}, u"v", u"old"), kSuccess);
  const path made = folder() / "new.hive";
  ASSERT_EQ(put(*hiveAt(made, HiveReaders::Owner), {u"a"}, u"v", u"new"), kSuccess);
  ASSERT_EQ(get(*hive_, {u"a"}, u"v"), u"old");
  const auto before = hive_->revision();
  std::filesystem::rename(made, file());
  EXPECT_NE(hive_->revision(), before);
  EXPECT_EQ(get(*hive_, {u"a"}, u"v"), u"new");
}

TEST_F(HiveChangesTest, SeesThatTheFileWasReplacedThoughAnotherNameOfItIsLeft) {
  ASSERT_EQ(put(*hive_, {u"a"}, u"v", u"old"), kSuccess);
  ASSERT_EQ(get(*hive_, {u"a"}, u"v"), u"old");
  const auto before = hive_->revision();
  std::filesystem::rename(file(), folder() / "kept.hive");
  EXPECT_NE(hive_->revision(), before);
  EXPECT_EQ(get(*hive_, {u"a"}, u"v"), std::nullopt);
}

TEST_F(HiveChangesTest, SeesThatTheFileWasRemovedAndMadeAgain) {
  ASSERT_EQ(put(*hive_, {u"a"}, u"v", u"old"), kSuccess);
  ASSERT_EQ(get(*hive_, {u"a"}, u"v"), u"old");
  std::filesystem::remove_all(folder());
  EXPECT_EQ(get(*hive_, {u"a"}, u"v"), std::nullopt);
  EXPECT_FALSE(exists(folder()));
  ASSERT_EQ(put(*open(), {u"a"}, u"v", u"new"), kSuccess);
  EXPECT_EQ(get(*hive_, {u"a"}, u"v"), u"new");
}

TEST_F(HiveChangesTest, AWriteGoesIntoTheFileThatIsThereNow) {
  ASSERT_EQ(put(*hive_, {u"a"}, u"v", u"old"), kSuccess);
  std::filesystem::remove_all(folder());
  EXPECT_EQ(put(*hive_, {u"b"}, u"v", u"new"), kSuccess);
  EXPECT_EQ(get(*open(), {u"b"}, u"v"), u"new");
  EXPECT_EQ(get(*open(), {u"a"}, u"v"), std::nullopt);
}

TEST_F(HiveChangesTest, SeesThatAnOlderContentWasPutBackInPlace) {
  ASSERT_EQ(put(*hive_, {u"a"}, u"v", u"old"), kSuccess);
  const std::string backup = bytesOf(file());
  ASSERT_EQ(put(*hive_, {u"a"}, u"v", u"new"), kSuccess);
  ASSERT_EQ(get(*hive_, {u"a"}, u"v"), u"new");
  const auto before = hive_->revision();
  writeBytes(file(), backup);
  EXPECT_NE(hive_->revision(), before);
  EXPECT_EQ(get(*hive_, {u"a"}, u"v"), u"old");
}

TEST_F(HiveChangesTest, SeesAWriteAfterAnOlderContentWithTheSameCountWasPutBack) {
  ASSERT_EQ(put(*hive_, {u"a"}, u"v", u"0"), kSuccess);
  const std::string backup = bytesOf(file());
  ASSERT_EQ(put(*hive_, {u"a"}, u"v", u"lost"), kSuccess);
  ASSERT_EQ(get(*hive_, {u"a"}, u"v"), u"lost");
  // SQLite's change counter is then the one that this process has seen.
  writeBytes(file(), backup);
  ASSERT_EQ(inProcess([&] { return put(*open(), {u"a"}, u"w", u"kept") == kSuccess ? 0 : 1; }), 0);
  EXPECT_EQ(get(*hive_, {u"a"}, u"v"), u"0");
  EXPECT_EQ(get(*hive_, {u"a"}, u"w"), u"kept");
  ASSERT_EQ(put(*hive_, {u"a"}, u"x", u"new"), kSuccess);
  EXPECT_EQ(get(*open(), {u"a"}, u"w"), u"kept");
  EXPECT_TRUE(hiveFaults(file()).empty());
}

TEST_F(HiveChangesTest, SeesThatTheFolderWasExchanged) {
  ASSERT_EQ(put(*hive_, {u"a"}, u"v", u"old"), kSuccess);
  ASSERT_EQ(get(*hive_, {u"a"}, u"v"), u"old");
  const auto before = hive_->revision();
  const path other = folder().parent_path() / "other";
  ASSERT_EQ(put(*hiveAt(other / "user.hive", HiveReaders::Owner), {u"a"}, u"v", u"new"), kSuccess);
  std::filesystem::rename(folder(), folder().parent_path() / "kept");
  std::filesystem::rename(other, folder());
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (hive_->revision() == before && std::chrono::steady_clock::now() < end) {
  }
  EXPECT_NE(hive_->revision(), before);
  EXPECT_EQ(get(*hive_, {u"a"}, u"v"), u"new");
}

}  // namespace
}  // namespace tessaly::tests
