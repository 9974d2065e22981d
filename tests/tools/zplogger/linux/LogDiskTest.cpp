// What log files may be on a disk of Linux.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "tessaly/base/Text.h"
#include "tests/tools/zplogger/Folder.h"

namespace tessaly::zplogger {
namespace {

using std::filesystem::create_directory;
using std::filesystem::create_directory_symlink;
using std::filesystem::create_symlink;
using tests::LogFolder;

constexpr const char* kNewLine = "2026-11-21 22:36:18.645 0 Host new\n";

struct stat statusOf(const std::filesystem::path& path) {
  struct stat status = {};
  EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
  return status;
}

TEST(ZpLogDiskOnLinux, MakesFilesForTheUserAlone) {
  const LogFolder folder;
  const mode_t before = umask(0);
  EXPECT_EQ(folder.append(u"a.log", "one\n"), "");
  umask(before);
  EXPECT_EQ(statusOf(folder.path(u"a.log")).st_mode & 07777, 0600U);
}

TEST(ZpLogDiskOnLinux, FollowsNoLinkAtTheEnd) {
  const LogFolder folder;
  folder.write(u"other", "mine");
  create_symlink(folder.path(u"other"), folder.path(u"a.log"));
  create_symlink(folder.path(u"none"), folder.path(u"b.log"));
  EXPECT_EQ(folder.append(u"a.log", "one\n"), "it is a link");
  EXPECT_EQ(folder.append(u"b.log", "one\n"), "it is a link");
  EXPECT_EQ(folder.read(u"other"), "mine");
  EXPECT_FALSE(std::filesystem::exists(folder.path(u"none")));
}

TEST(ZpLogDiskOnLinux, FollowsNoLinkOnTheWay) {
  const LogFolder folder;
  create_directory(folder.path(u"real"));
  create_directory(folder.path(u"real/inner"));
  create_directory_symlink(folder.path(u"real"), folder.path(u"link"));
  EXPECT_EQ(folder.append(u"link/a.log", "one\n"), "there is a link in its path");
  EXPECT_EQ(folder.append(u"link/inner/a.log", "one\n"), "there is a link in its path");
  EXPECT_TRUE(std::filesystem::is_empty(folder.path(u"real/inner")));
  EXPECT_EQ(folder.append(u"real/inner/a.log", "one\n"), "");
}

TEST(ZpLogDiskOnLinux, FollowsNoLinkOfABackup) {
  const LogFolder folder;
  folder.write(u"a.log", kNewLine);
  folder.write(u"other", "2026-11-21 21:40:24.123 0 Host x\n");
  create_symlink(folder.path(u"other"), folder.path(u"a.bak"));
  create_directory_symlink(folder.path(u""), folder.path(u"link"));
  EXPECT_EQ(folder.move(u"a.log", u"a.bak"), "it is a link");
  EXPECT_EQ(folder.move(u"a.log", u"link/b.bak"), "there is a link in its path");
  EXPECT_EQ(folder.read(u"a.log"), kNewLine);
}

TEST(ZpLogDiskOnLinux, OpensNoPipeAndNoDevice) {
  const LogFolder folder;
  ASSERT_EQ(mkfifo(folder.path(u"a.log").c_str(), 0600), 0);
  EXPECT_EQ(folder.append(u"a.log", "one\n"), "it is no normal file");
  std::string fault;
  EXPECT_FALSE(ownLogDisk().open(u"/dev/null", fault));
  EXPECT_EQ(fault, "it is no normal file");
  EXPECT_FALSE(ownLogDisk().open(u"/dev/stdout", fault));
  EXPECT_EQ(fault, "it is a link");
}

TEST(ZpLogDiskOnLinux, WritesToNoSwitchOfTheSystem) {
  std::string fault;
  EXPECT_FALSE(ownLogDisk().open(u"/proc/sys/kernel/hostname", fault));
  EXPECT_EQ(fault, "it is the system's own");
  const String own = fromUtf8("/proc/" + std::to_string(getpid()) + "/comm");
  EXPECT_FALSE(ownLogDisk().open(own, fault));
  EXPECT_EQ(fault, "it is the system's own");
}

TEST(ZpLogDiskOnLinux, WritesToNoFileOfAnotherUser) {
  const LogFolder folder;
  folder.write(u"a.log", "theirs");
  if (chown(folder.path(u"a.log").c_str(), 12345, static_cast<gid_t>(-1)) != 0)
    GTEST_SKIP() << "only root can give files away";
  EXPECT_EQ(folder.append(u"a.log", "one\n"), "it belongs to another user");
}

TEST(ZpLogDiskOnLinux, SaysWhatIsInTheWay) {
  const LogFolder folder;
  folder.write(u"file", "x");
  EXPECT_EQ(folder.append(u"file/a.log", "one\n"), "Not a directory");
  EXPECT_EQ(folder.append(String(300, u'x'), "one\n"), "File name too long");
}

TEST(ZpLogDiskOnLinux, NoticesWhereAFileOrItsFolderHasGone) {
  const LogFolder folder;
  create_directory(folder.path(u"logs"));
  std::string fault;
  const String path = folder.path(u"logs/a.log").u16string();
  auto file = ownLogDisk().open(path, fault);
  ASSERT_TRUE(file) << fault;
  std::filesystem::rename(folder.path(u"logs/a.log"), folder.path(u"logs/a.old"));
  EXPECT_FALSE(file->isInPlace());
  folder.write(u"logs/a.log", "another");
  EXPECT_FALSE(file->isInPlace());
  file = ownLogDisk().open(path, fault);
  EXPECT_TRUE(file->isInPlace());
  std::filesystem::rename(folder.path(u"logs"), folder.path(u"old"));
  EXPECT_FALSE(file->isInPlace());
}

TEST(ZpLogDiskOnLinux, SaysThatThereIsNoRoom) {
  const LogFolder folder;
  std::string fault;
  const auto file = ownLogDisk().open(folder.path(u"a.log").u16string(), fault);
  ASSERT_TRUE(file) << fault;
  rlimit before = {};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit small = {6, before.rlim_max};
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &small);
  const std::string first = file->append("one\n");
  const std::string cut = file->append("two\n");
  const std::string none = file->append("three\n");
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(first, "");
  EXPECT_EQ(cut, "the disk is full");
  EXPECT_EQ(none, "File too large");
  EXPECT_EQ(folder.read(u"a.log"), "one\ntw");
}

}  // namespace
}  // namespace tessaly::zplogger
