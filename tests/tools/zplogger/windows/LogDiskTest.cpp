// What log files may be on a disk of Windows.

#include <gtest/gtest.h>
#include <windows.h>

#include "tests/support/Platform.h"
#include "tests/tools/zplogger/Folder.h"

namespace tessaly::zplogger {
namespace {

using tests::LogFolder;

TEST(ZpLogDiskOnWindows, FollowsNoLink) {
  if (tests::underWine()) GTEST_SKIP() << "Wine makes links of the system below and does not show them";
  const LogFolder folder;
  std::filesystem::create_directory(folder.path(u"real"));
  folder.write(u"other", "mine");
  constexpr DWORD unprivileged = SYMBOLIC_LINK_FLAG_ALLOW_UNPRIVILEGED_CREATE;
  const bool hasLinks =
      CreateSymbolicLinkW(folder.path(u"link").c_str(), folder.path(u"real").c_str(),
                          SYMBOLIC_LINK_FLAG_DIRECTORY | unprivileged) != 0 &&
      CreateSymbolicLinkW(folder.path(u"a.log").c_str(), folder.path(u"other").c_str(), unprivileged) != 0;
  if (!hasLinks) GTEST_SKIP() << "the system makes no links for this user";
  EXPECT_EQ(folder.append(u"a.log", "one\n"), "it is a link");
  EXPECT_EQ(folder.append(u"link\\a.log", "one\n"), "there is a link in its path");
  EXPECT_EQ(folder.read(u"other"), "mine");
}

TEST(ZpLogDiskOnWindows, TakesLongPaths) {
  const LogFolder folder;
  std::filesystem::path path = folder.path(u"");
  for (int i = 0; i < 10; ++i) {
    path = path / std::string(40, 'x');
    std::filesystem::create_directory(L"\\\\?\\" + path.native());
  }
  std::string fault;
  const auto file = ownLogDisk().open((path / "a.log").u16string(), fault);
  EXPECT_TRUE(file) << fault;
}

TEST(ZpLogDiskOnWindows, LetsOthersReadAFileThatIsOpen) {
  const LogFolder folder;
  std::string fault;
  const auto file = ownLogDisk().open(folder.path(u"a.log").u16string(), fault);
  ASSERT_TRUE(file) << fault;
  EXPECT_EQ(file->append("one\n"), "");
  EXPECT_EQ(folder.read(u"a.log"), "one\n");
}

TEST(ZpLogDiskOnWindows, SaysThatAFileIsInUse) {
  const LogFolder folder;
  folder.write(u"a.log", "theirs");
  const HANDLE theirs =
      CreateFileW(folder.path(u"a.log").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(theirs, INVALID_HANDLE_VALUE);
  EXPECT_NE(folder.append(u"a.log", "one\n"), "");
  CloseHandle(theirs);
  EXPECT_EQ(folder.read(u"a.log"), "theirs");
}

}  // namespace
}  // namespace tessaly::zplogger
