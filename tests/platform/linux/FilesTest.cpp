// What only Linux has: names that are no UTF-8, names that differ in case alone, links, pipes and
// permissions.

#include "tessaly/platform/Files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "tessaly/platform/Core.h"
#include "tests/support/TemporaryFolder.h"

namespace tessaly::platform {
namespace {

using Names = std::vector<String>;

class LinuxFilesTest : public testing::Test {
 protected:
  Names listed() { return core().files->list(folder_.text(), u".xml"); }

  tests::TemporaryFolder folder_;
};

TEST_F(LinuxFilesTest, ListsAndReadsNamesThatAreNoUtf8) {
  std::ofstream(folder_.path() / "fran\xE7.xml") << "x";
  ASSERT_EQ(listed(), Names{u"fran\xDCE7.xml"});
  EXPECT_EQ(core().files->read(folder_.text() + u"/" + listed()[0]), "x");
}

TEST_F(LinuxFilesTest, TellsNamesThatDifferInCaseApart) {
  folder_.write(u"a.xml", "small");
  folder_.write(u"A.XML", "large");
  ASSERT_EQ(listed(), (Names{u"A.XML", u"a.xml"}));
  EXPECT_EQ(core().files->read(folder_.text() + u"/a.xml"), "small");
  EXPECT_EQ(core().files->read(folder_.text() + u"/A.XML"), "large");
}

TEST_F(LinuxFilesTest, FollowsLinksToFilesAlone) {
  folder_.write(u"target.txt", "x");
  std::filesystem::create_directory(folder_.path() / "folder.xml");
  std::filesystem::create_symlink("target.txt", folder_.path() / "link.xml");
  std::filesystem::create_symlink("missing", folder_.path() / "broken.xml");
  std::filesystem::create_directory_symlink("folder.xml", folder_.path() / "to-folder.xml");
  std::filesystem::create_symlink("circle.xml", folder_.path() / "circle.xml");
  EXPECT_EQ(listed(), Names{u"link.xml"});
  EXPECT_EQ(core().files->read(folder_.text() + u"/link.xml"), "x");
}

TEST_F(LinuxFilesTest, NeitherListsNorWaitsForPipesAndDevices) {
  ASSERT_EQ(mkfifo((folder_.path() / "pipe.xml").c_str(), 0600), 0);
  EXPECT_TRUE(listed().empty());
  EXPECT_EQ(core().files->read(folder_.text() + u"/pipe.xml"), std::nullopt);
  EXPECT_EQ(core().files->read(u"/dev/zero"), std::nullopt);
  EXPECT_FALSE(core().files->opens(folder_.text() + u"/pipe.xml"));
  EXPECT_FALSE(core().files->opens(u"/dev/zero"));
}

TEST_F(LinuxFilesTest, ReadsNothingWithoutPermission) {
  if (geteuid() == 0) GTEST_SKIP() << "nothing is forbidden to root";
  folder_.write(u"secret.xml", "x");
  std::filesystem::permissions(folder_.path() / "secret.xml", std::filesystem::perms::none);
  EXPECT_EQ(core().files->read(folder_.text() + u"/secret.xml"), std::nullopt);
  EXPECT_FALSE(core().files->opens(folder_.text() + u"/secret.xml"));
  EXPECT_EQ(listed(), Names{u"secret.xml"});
  std::filesystem::permissions(folder_.path(), std::filesystem::perms::none);
  EXPECT_TRUE(listed().empty());
  std::filesystem::permissions(folder_.path(), std::filesystem::perms::owner_all);
}

TEST_F(LinuxFilesTest, TakesAnEmptyFolderForTheRoot) {
  EXPECT_EQ(core().files->list(u"", u"").size(), core().files->list(u"/", u"").size());
}

}  // namespace
}  // namespace tessaly::platform
