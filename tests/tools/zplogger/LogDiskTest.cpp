// What log files may be on a real disk, on both platforms.

#include "tools/zplogger/LogDisk.h"

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"
#include "tests/tools/zplogger/Folder.h"

namespace tessaly::zplogger {
namespace {

using tests::LogFolder;

constexpr const char* kNew = "2026-11-21 22:36:18.645 0 Host new\n";
constexpr const char* kLog = "2026-11-21 21:40:24.123 0 Host before\n";

TEST(ZpLogDisk, MakesAFileAndAppendsToIt) {
  const LogFolder folder;
  EXPECT_EQ(folder.append(u"a.log", "one\n"), "");
  EXPECT_EQ(folder.append(u"a.log", "two\n"), "");
  EXPECT_EQ(folder.read(u"a.log"), "one\ntwo\n");
}

TEST(ZpLogDisk, KeepsWhatStandsInAFile) {
  const LogFolder folder;
  folder.write(u"a.log", "before\n");
  EXPECT_EQ(folder.append(u"a.log", "one\n"), "");
  EXPECT_EQ(folder.read(u"a.log"), "before\none\n");
}

TEST(ZpLogDisk, MakesNoFolders) {
  const LogFolder folder;
  EXPECT_EQ(folder.append(u"none/a.log", "one\n"), "its folder is not there");
  EXPECT_FALSE(std::filesystem::exists(folder.path(u"none")));
}

TEST(ZpLogDisk, WritesToNoFolder) {
  const LogFolder folder;
  std::filesystem::create_directory(folder.path(u"a.log"));
  EXPECT_EQ(folder.append(u"a.log", "one\n"), "it is a folder");
}

TEST(ZpLogDisk, WritesToNoFileWithTwoNames) {
  const LogFolder folder;
  folder.write(u"other", "mine");
  std::filesystem::create_hard_link(folder.path(u"other"), folder.path(u"a.log"));
  EXPECT_EQ(folder.append(u"a.log", "one\n"), "it has more than one name");
  EXPECT_EQ(folder.read(u"other"), "mine");
}

TEST(ZpLogDisk, KnowsWhetherAFileIsInItsPlace) {
  const LogFolder folder;
  std::string fault;
  const auto file = ownLogDisk().open(folder.path(u"a.log").u16string(), fault);
  ASSERT_TRUE(file) << fault;
  EXPECT_TRUE(file->isInPlace());
  EXPECT_EQ(file->size(), 0U);
  EXPECT_EQ(file->append("one\n"), "");
  EXPECT_EQ(file->size(), 4U);
}

TEST(ZpLogDisk, MovesALogToItsBackup) {
  const LogFolder folder;
  folder.write(u"a.log", kNew);
  EXPECT_EQ(folder.move(u"a.log", u"a.bak"), "");
  EXPECT_EQ(folder.read(u"a.bak"), kNew);
  EXPECT_FALSE(std::filesystem::exists(folder.path(u"a.log")));
}

TEST(ZpLogDisk, ReplacesAnEarlierBackup) {
  const LogFolder folder;
  folder.write(u"a.log", kNew);
  folder.write(u"a.bak", kLog);
  EXPECT_EQ(folder.move(u"a.log", u"a.bak"), "");
  EXPECT_EQ(folder.read(u"a.bak"), kNew);
}

TEST(ZpLogDisk, ReplacesNothingThatIsNoLog) {
  const LogFolder folder;
  folder.write(u"a.log", kNew);
  for (const char* other : {"", "precious", "2026-11-21 diary", "\n2026-11-21 21:40:24.123 0 Host x\n"}) {
    folder.write(u"a.bak", other);
    EXPECT_EQ(folder.move(u"a.log", u"a.bak"), "what stands in its place is no log");
    EXPECT_EQ(folder.read(u"a.bak"), other);
    EXPECT_EQ(folder.read(u"a.log"), kNew);
  }
}

TEST(ZpLogDisk, MovesNothingThatIsNoLog) {
  const LogFolder folder;
  folder.write(u"photos.tar", "precious");
  EXPECT_EQ(folder.move(u"photos.tar", u"a.bak"), "it is no log");
  folder.write(u"a.bak", kLog);
  EXPECT_EQ(folder.move(u"photos.tar", u"a.bak"), "it is no log");
  EXPECT_EQ(folder.read(u"photos.tar"), "precious");
  EXPECT_EQ(folder.read(u"a.bak"), kLog);
}

TEST(ZpLogDisk, ReplacesNoFolderAndNoFileWithTwoNames) {
  const LogFolder folder;
  folder.write(u"a.log", kNew);
  std::filesystem::create_directory(folder.path(u"folder"));
  EXPECT_EQ(folder.move(u"a.log", u"folder"), "it is a folder");
  EXPECT_EQ(folder.move(u"a.log", u"none/a.bak"), "its folder is not there");
  folder.write(u"other", kLog);
  std::filesystem::create_hard_link(folder.path(u"other"), folder.path(u"a.bak"));
  EXPECT_EQ(folder.move(u"a.log", u"a.bak"), "it has more than one name");
  EXPECT_EQ(folder.read(u"a.log"), kNew);
  EXPECT_EQ(folder.read(u"other"), kLog);
}

}  // namespace
}  // namespace tessaly::zplogger
