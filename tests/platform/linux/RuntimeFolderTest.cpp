// Where the channel's folder is, and which folder is refused.

#include "tessaly/platform/linux/RuntimeFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

#include "tests/platform/linux/ChannelSupport.h"

namespace tessaly::tests {
namespace {

using namespace platform;
using std::filesystem::path;

bool opens(const path& folder) { return openChannelFolder(folder).isOpen(); }

/// What the path is with this in the environment.
std::string pathWith(const char* runtime, const char* temporary) {
  setenv("XDG_RUNTIME_DIR", runtime, 1);
  setenv("TMPDIR", temporary, 1);
  return channelFolderPath();
}

class RuntimeFolderTest : public testing::Test {
 protected:
  /// Works with the environment of a process of its own.
  static void expectPath(const char* runtime, const char* temporary, const std::string& expected) {
    EXPECT_EQ(inProcess([&] { return pathWith(runtime, temporary) == expected ? 0 : 1; }), 0)
        << runtime << " and " << temporary << ": not " << expected;
  }

  OwnChannel channel_;
  std::string userName_ = "/tessaly-" + std::to_string(geteuid());
};

TEST_F(RuntimeFolderTest, ItIsInTheRuntimeFolderOfTheUser) {
  const std::string base = channel_.base();
  expectPath(base.c_str(), "/elsewhere", base + "/tessaly");
  expectPath((base + "//").c_str(), "/elsewhere", base + "/tessaly");
}

TEST_F(RuntimeFolderTest, WithoutARuntimeFolderItIsATemporaryOneWithTheUsersNumber) {
  const std::string base = channel_.base();
  for (const char* runtime : {"", "relative", "/nowhere/at/all", "/dev/null", "/"}) {
    if (geteuid() == 0 && std::string(runtime) == "/") continue;
    expectPath(runtime, base.c_str(), base + userName_);
    expectPath(runtime, (base + "/").c_str(), base + userName_);
    expectPath(runtime, "", "/tmp" + userName_);
    expectPath(runtime, "relative", "/tmp" + userName_);
  }
  EXPECT_EQ(inProcess([&] {
              unsetenv("XDG_RUNTIME_DIR");
              unsetenv("TMPDIR");
              return channelFolderPath() == "/tmp" + userName_ ? 0 : 1;
            }),
            0);
}

TEST_F(RuntimeFolderTest, ARuntimeFolderOfAnotherUserIsPassedOver) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can be another user";
  EXPECT_EQ(asNobody([&] {
              return pathWith(channel_.base().c_str(), "/elsewhere") == "/elsewhere/tessaly-65534" ? 0 : 1;
            }),
            0);
}

TEST_F(RuntimeFolderTest, ItIsMadeForTheOwnerAloneUnderEveryUmask) {
  for (const mode_t mask : {0000U, 0077U, 0777U}) {
    const mode_t before = umask(mask);
    EXPECT_TRUE(opens(channel_.folder()));
    umask(before);
    EXPECT_EQ(permissionsOf(channel_.folder()), 0700U) << std::oct << mask;
    std::filesystem::remove(channel_.folder());
  }
}

TEST_F(RuntimeFolderTest, AUserWithoutRightsGetsHisFolderUnderEveryUmask) {
  const path base = channel_.base() / "nobody's";
  std::filesystem::create_directory(base);
  chmod(channel_.base().c_str(), 0755);
  chmod(base.c_str(), 0777);
  EXPECT_EQ(asNobody([&] {
              umask(0777);
              return opens(base / "made") && opens(base / "made") ? 0 : 1;
            }),
            0);
}

TEST_F(RuntimeFolderTest, AFolderThatOthersHaveRightsInIsRefused) {
  std::filesystem::create_directory(channel_.folder());
  for (const mode_t mode : {0701U, 0750U, 0777U, 01777U}) {
    chmod(channel_.folder().c_str(), mode);
    EXPECT_FALSE(opens(channel_.folder())) << std::oct << mode;
    EXPECT_EQ(permissionsOf(channel_.folder()), mode) << "it was changed";
  }
}

TEST_F(RuntimeFolderTest, AFolderOfAnotherUserIsRefused) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can give folders away";
  std::filesystem::create_directory(channel_.folder());
  chmod(channel_.folder().c_str(), 0700);
  ASSERT_EQ(chown(channel_.folder().c_str(), 65534, 65534), 0);
  EXPECT_FALSE(opens(channel_.folder()));
  Long value = 0;
  EXPECT_FALSE(ownMessages().EnumWindows([](WindowHandle, Long&) -> Long { return 1; }, value));
  EXPECT_EQ(Window("x").handle(), 0);
}

TEST_F(RuntimeFolderTest, ALinkAndAFileAreRefused) {
  const path real = channel_.base() / "real";
  std::filesystem::create_directory(real);
  chmod(real.c_str(), 0700);
  EXPECT_TRUE(opens(real));
  std::filesystem::create_directory_symlink(real, channel_.folder());
  EXPECT_FALSE(opens(channel_.folder()));
  std::filesystem::remove(channel_.folder());
  static_cast<void>(Descriptor(creat(channel_.folder().c_str(), 0700)));
  EXPECT_FALSE(opens(channel_.folder()));
}

TEST_F(RuntimeFolderTest, AFolderThatCannotBeMadeIsNone) {
  EXPECT_FALSE(opens(channel_.base() / "missing" / "tessaly"));
}

}  // namespace
}  // namespace tessaly::tests
