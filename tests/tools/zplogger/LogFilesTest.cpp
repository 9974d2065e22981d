#include "tools/zplogger/LogFiles.h"

#include <gtest/gtest.h>

#include "tests/tools/zplogger/Stage.h"

namespace tessaly::zplogger {
namespace {

LogPath at(const std::string& path) { return {fromUtf8(path), fromUtf8(path), {}}; }

class ZpLogFilesTest : public testing::Test {
 public:
  void write(const std::string& log, const std::string& line, const std::string& backup = "/bak",
             std::int64_t ticks = 0) {
    files.write(at(log), backup.empty() ? LogPath{} : at(backup), line, ticks);
  }

  tests::MemoryDisk disk;
  std::vector<std::string> told;
  LogFiles files{disk, 20, [this](std::string notice) { told.push_back(std::move(notice)); }};
};

TEST_F(ZpLogFilesTest, TakeEachLineByOneWrite) {
  write("/log", "one\n");
  write("/log", "two\n");
  EXPECT_EQ(disk.at("/log"), "one\ntwo\n");
  EXPECT_EQ(disk.writes, 2);
  EXPECT_EQ(disk.openings, 1);
}

TEST_F(ZpLogFilesTest, AreNoneForAClientThatNamesNone) {
  files.write({}, at("/bak"), "one\n", 0);
  files.write({{}, {}, "it is no absolute path"}, at("/bak"), "one\n", 0);
  EXPECT_EQ(disk.openings, 0);
  EXPECT_TRUE(told.empty());
}

TEST_F(ZpLogFilesTest, AreMovedBeforeTheyGrowPastTheSize) {
  write("/log", "123456789\n");
  write("/log", "123456789\n");
  EXPECT_FALSE(disk.has("/bak"));
  write("/log", "x\n");
  EXPECT_EQ(disk.at("/bak"), "123456789\n123456789\n");
  EXPECT_EQ(disk.at("/log"), "x\n");
  write("/log", "123456789123456789\n");
  EXPECT_EQ(disk.at("/bak"), "x\n");
  EXPECT_EQ(disk.at("/log"), "123456789123456789\n");
  EXPECT_TRUE(told.empty());
}

TEST_F(ZpLogFilesTest, TakeALineThatIsLongerThanTheSize) {
  const std::string line(100, 'x');
  write("/log", line);
  EXPECT_EQ(disk.at("/log"), line);
  EXPECT_EQ(disk.moves, 0);
  write("/log", line);
  EXPECT_EQ(disk.at("/log"), line);
  EXPECT_EQ(disk.at("/bak"), line);
}

TEST_F(ZpLogFilesTest, CountWhatStoodInThemBefore) {
  disk.at("/log") = "1234567890123456789\n";
  write("/log", "x\n");
  EXPECT_EQ(disk.at("/log"), "x\n");
  EXPECT_EQ(disk.at("/bak"), "1234567890123456789\n");
}

TEST_F(ZpLogFilesTest, GoOnGrowingWithoutABackup) {
  for (int i = 0; i < 10; ++i) write("/log", "123456789\n", "");
  EXPECT_EQ(disk.at("/log").size(), 100U);
  EXPECT_EQ(disk.moves, 0);
  EXPECT_TRUE(told.empty());
}

TEST_F(ZpLogFilesTest, GoOnGrowingWhereTheBackupIsTheSameFile) {
  for (int i = 0; i < 10; ++i) write("/log", "123456789\n", "/log");
  EXPECT_EQ(disk.at("/log").size(), 100U);
  EXPECT_EQ(disk.moves, 0);
  EXPECT_EQ(told, std::vector<std::string>{
                      "can't move /log to its backup: it is the same file; it goes on growing"});
}

TEST_F(ZpLogFilesTest, GoOnGrowingWhereTheBackupIsRefused) {
  disk.moveFault = "what stands in its place is no log";
  for (int i = 0; i < 10; ++i) write("/log", "123456789\n");
  EXPECT_EQ(disk.at("/log").size(), 100U);
  EXPECT_EQ(told,
            std::vector<std::string>{
                "can't move /log to its backup: what stands in its place is no log; it goes on growing"});
  // Tried again with each 20 bytes more, not with each line.
  EXPECT_EQ(disk.moves, 4);
  disk.moveFault.clear();
  for (int i = 0; i < 2; ++i) write("/log", "123456789\n");
  EXPECT_TRUE(disk.has("/bak"));
  EXPECT_LE(disk.at("/log").size(), 20U);
}

TEST_F(ZpLogFilesTest, GoOnGrowingWhereTheBackupIsALogOfAClient) {
  write("/b", "123456789\n");
  for (int i = 0; i < 3; ++i) write("/a", "123456789\n", "/b");
  EXPECT_EQ(disk.moves, 0);
  EXPECT_EQ(disk.at("/a").size(), 30U);
  write("/b", "x\n");
  EXPECT_EQ(disk.at("/b"), "123456789\nx\n");
  EXPECT_EQ(told, std::vector<std::string>{
                      "can't move /a to its backup: it is a client's log file; it goes on growing"});
}

TEST_F(ZpLogFilesTest, GoOnGrowingWhereTheBackupIsNoPath) {
  for (int i = 0; i < 5; ++i) files.write(at("/log"), {{}, {}, "it is no absolute path"}, "123456789\n", 0);
  EXPECT_EQ(disk.at("/log").size(), 50U);
  EXPECT_EQ(told, std::vector<std::string>{
                      "can't move /log to its backup: it is no absolute path; it goes on growing"});
}

TEST_F(ZpLogFilesTest, AreSharedByClientsThatNameOne) {
  files.write({u"/Log", u"/LOG", {}}, at("/bak"), "one\n", 0);
  files.write({u"/log", u"/LOG", {}}, at("/bak"), "two\n", 0);
  EXPECT_EQ(disk.at("/Log"), "one\ntwo\n");
  EXPECT_EQ(disk.openings, 1);
}

TEST_F(ZpLogFilesTest, AreOpenUpToABound) {
  for (int round = 0; round < 2; ++round) {
    for (std::size_t i = 0; i < LogFiles::kMostOpen + 1; ++i) write("/log" + std::to_string(i), "x\n");
  }
  EXPECT_EQ(disk.mostOpenFiles, LogFiles::kMostOpen);
  for (std::size_t i = 0; i < LogFiles::kMostOpen + 1; ++i)
    EXPECT_EQ(disk.at("/log" + std::to_string(i)), "x\nx\n");
}

TEST_F(ZpLogFilesTest, TellARefusalOnceAndLookAgainEverySecond) {
  disk.openFault = "it is a link";
  for (std::int64_t ticks = 0; ticks < 3000; ticks += 100) write("/log", "x\n", "/bak", ticks);
  EXPECT_EQ(disk.openings, 3);
  EXPECT_EQ(told, std::vector<std::string>{"can't write to /log: it is a link"});
  disk.openFault = "its folder is not there";
  write("/log", "x\n", "/bak", 3000);
  EXPECT_EQ(told.back(), "can't write to /log: its folder is not there");
  disk.openFault.clear();
  write("/log", "y\n", "/bak", 4000);
  EXPECT_EQ(disk.at("/log"), "y\n");
  EXPECT_EQ(told.size(), 2U);
}

TEST_F(ZpLogFilesTest, TellAFullDiskOnceAndGoOnWhenThereIsRoom) {
  write("/log", "one\n");
  disk.writeFault = "no space left";
  write("/log", "two\n");
  write("/log", "three\n");
  EXPECT_EQ(told, std::vector<std::string>{"can't write to /log: no space left"});
  disk.writeFault.clear();
  write("/log", "four\n");
  EXPECT_EQ(disk.at("/log"), "one\nfour\n");
}

TEST_F(ZpLogFilesTest, BeginANewLineBehindATornOne) {
  disk.writeFault = "no space left";
  disk.tornAt = 2;
  write("/log", "one\n");
  disk.writeFault.clear();
  write("/log", "two\n");
  write("/log", "three\n");
  EXPECT_EQ(disk.at("/log"), "on\ntwo\nthree\n");
}

TEST_F(ZpLogFilesTest, KnowATornLineAlsoWhereTheyAreOpenedAgain) {
  disk.writeFault = "no space left";
  disk.tornAt = 2;
  write("/log", "one\n");
  disk.writeFault.clear();
  for (std::size_t i = 0; i < LogFiles::kMostOpen; ++i) write("/other" + std::to_string(i), "x\n");
  write("/log", "two\n");
  EXPECT_EQ(disk.at("/log"), "on\ntwo\n");
}

TEST_F(ZpLogFilesTest, BeginAFileThatIsAnotherWithoutAnEmptyLine) {
  disk.writeFault = "no space left";
  disk.tornAt = 2;
  write("/log", "one\n");
  disk.writeFault.clear();
  disk.remove("/log");
  write("/log", "two\n", "/bak", 1000);
  EXPECT_EQ(disk.at("/log"), "two\n");
}

TEST_F(ZpLogFilesTest, AreMadeAnewWithinASecondWhereTheyWereTakenAway) {
  write("/log", "one\n", "/bak", 0);
  disk.remove("/log");
  write("/log", "two\n", "/bak", 999);
  EXPECT_FALSE(disk.has("/log"));
  write("/log", "three\n", "/bak", 1000);
  EXPECT_EQ(disk.at("/log"), "three\n");
}

TEST_F(ZpLogFilesTest, ShowTheirNamesAndNoOrders) {
  disk.openFault = "it is a link";
  write("/a\x1b[2J", "x\n");
  EXPECT_EQ(told, std::vector<std::string>{"can't write to /a\\u001B[2J: it is a link"});
}

}  // namespace
}  // namespace tessaly::zplogger
