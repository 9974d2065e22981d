// The files that blocks are: names, modes, and what is refused.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tests/platform/linux/ChannelSupport.h"

namespace tessaly::tests {
namespace {

using namespace platform;
using std::filesystem::path;

MappingHandle makeBlock(const char* name) {
  return ownSharedMemory().CreateFileMappingA(kReadWritePages, 0, 64, name);
}

class SharedMemoryFilesTest : public testing::Test {
 protected:
  path file(std::string_view name = "block") const { return channel_.block(name); }

  void TearDown() override { std::filesystem::remove_all(file()); }

  bool isRefused() const {
    return makeBlock("block") == 0 && ownSharedMemory().OpenFileMappingA(kViewRead, "block") == 0;
  }

  void writeFile(mode_t mode) const {
    const Descriptor made(::open(file().c_str(), O_RDWR | O_CREAT | O_CLOEXEC, mode));
    fchmod(made.get(), mode);
    ASSERT_EQ(write(made.get(), "foreign", 7), 7);
  }

  OwnChannel channel_;
};

TEST_F(SharedMemoryFilesTest, ABlockIsAFileOfTheDocumentedName) {
  const MappingHandle mapping = makeBlock("block");
  EXPECT_TRUE(std::filesystem::is_regular_file(file()));
  EXPECT_EQ(std::filesystem::file_size(file()), 64U);
  ownSharedMemory().CloseHandle(mapping);
  EXPECT_FALSE(std::filesystem::exists(file()));
}

TEST_F(SharedMemoryFilesTest, TheOwnerAloneHasRightsUnderEveryUmask) {
  for (const mode_t mask : {0000U, 0077U, 0277U, 0777U}) {
    const mode_t before = umask(mask);
    const MappingHandle mapping = makeBlock("block");
    umask(before);
    EXPECT_EQ(permissionsOf(file()), 0600U) << std::oct << mask;
    EXPECT_TRUE(ownSharedMemory().CloseHandle(mapping));
  }
}

constexpr int kCannotMount = 77;

/// Runs work in a process whose shared memory is its own.
int withOwnSharedMemory(const char* options, const std::function<int()>& work) {
  return inProcess([&] {
    const bool isMounted = unshare(CLONE_NEWNS) == 0 &&
                           mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                           mount("tmpfs", "/dev/shm", "tmpfs", 0, options) == 0;
    return isMounted ? work() : kCannotMount;
  });
}

int openUnderAnUmaskThatTakesEverything() {
  umask(0777);
  const MappingHandle mapping = makeBlock("block");
  const MappingHandle again = ownSharedMemory().OpenFileMappingA(kViewWrite, "block");
  if (mapping == 0 || again == 0) return 1;
  return ownSharedMemory().CloseHandle(mapping) && ownSharedMemory().CloseHandle(again) ? 0 : 2;
}

TEST_F(SharedMemoryFilesTest, AUserWithoutRightsOpensHisOwnBlockUnderEveryUmask) {
  const int end =
      withOwnSharedMemory("mode=1777", [] { return asNobody(openUnderAnUmaskThatTakesEverything); });
  if (end == kCannotMount) GTEST_SKIP() << "only root can mount";
  EXPECT_EQ(end, 0);
}

TEST_F(SharedMemoryFilesTest, WithoutMemoryForAllOfItThereIsNoBlock) {
  const int end = withOwnSharedMemory("size=65536", [] {
    SharedMemory& memory = ownSharedMemory();
    if (memory.CreateFileMappingA(kReadWritePages, 0, 65537, "block") != 0) return 1;
    if (!namesIn("/dev/shm").empty()) return 2;
    return memory.CreateFileMappingA(kReadWritePages, 0, 65536, "block") != 0 ? 0 : 3;
  });
  if (end == kCannotMount) GTEST_SKIP() << "only root can mount";
  EXPECT_EQ(end, 0);
}

TEST_F(SharedMemoryFilesTest, AnotherUserCannotOpenTheFile) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can be another user";
  const MappingHandle mapping = makeBlock("block");
  const path there = file();
  EXPECT_EQ(asNobody([&] { return ::open(there.c_str(), O_RDONLY | O_CLOEXEC) < 0 ? errno : 0; }), EACCES);
  EXPECT_EQ(asNobody([&] { return ::open(there.c_str(), O_RDWR | O_CLOEXEC) < 0 ? errno : 0; }), EACCES);
  EXPECT_EQ(asNobody([] { return ownSharedMemory().OpenFileMappingA(kViewRead, "block") == 0 ? 0 : 1; }), 0);
  ownSharedMemory().CloseHandle(mapping);
}

TEST_F(SharedMemoryFilesTest, AFileOfAnotherUserIsRefusedAndStays) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can give files away";
  writeFile(0666);
  ASSERT_EQ(chown(file().c_str(), 65534, 65534), 0);
  EXPECT_TRUE(isRefused());
  EXPECT_EQ(std::filesystem::file_size(file()), 7U);
}

TEST_F(SharedMemoryFilesTest, AFileThatOthersHaveRightsInIsRefusedAndStays) {
  for (const mode_t mode : {0640U, 0602U, 0666U}) {
    writeFile(mode);
    EXPECT_TRUE(isRefused()) << std::oct << mode;
    EXPECT_EQ(std::filesystem::file_size(file()), 7U);
  }
}

TEST_F(SharedMemoryFilesTest, ALinkIsNotFollowed) {
  const path target = channel_.base() / "target";
  const Descriptor made(creat(target.c_str(), 0600));
  std::filesystem::create_symlink(target, file());
  EXPECT_TRUE(isRefused());
  std::filesystem::remove(file());
  std::filesystem::create_symlink("/nowhere/at/all", file());
  EXPECT_TRUE(isRefused());
}

TEST_F(SharedMemoryFilesTest, AFileWithASecondNameIsRefusedAndStays) {
  writeFile(0600);
  const path other = file("block, its other name");
  std::filesystem::create_hard_link(file(), other);
  EXPECT_TRUE(isRefused());
  EXPECT_EQ(std::filesystem::file_size(other), 7U);
  std::filesystem::remove(other);
}

TEST_F(SharedMemoryFilesTest, WhatIsNoFileIsRefused) {
  std::filesystem::create_directory(file());
  EXPECT_TRUE(isRefused());
  std::filesystem::remove(file());
  ASSERT_EQ(mkfifo(file().c_str(), 0600), 0);
  EXPECT_TRUE(isRefused());
}

TEST_F(SharedMemoryFilesTest, AnEmptyFileThatAKilledProcessHasLeftIsTaken) {
  const Descriptor made(creat(file().c_str(), 0600));
  EXPECT_EQ(ownSharedMemory().OpenFileMappingA(kViewRead, "block"), 0);
  const Descriptor again(creat(file().c_str(), 0600));
  const MappingHandle mapping = makeBlock("block");
  EXPECT_NE(mapping, 0);
  EXPECT_TRUE(ownSharedMemory().CloseHandle(mapping));
}

TEST_F(SharedMemoryFilesTest, NamesThatNoFileHasAreRefused) {
  EXPECT_EQ(makeBlock(""), 0);
  EXPECT_EQ(makeBlock(nullptr), 0);
  EXPECT_EQ(makeBlock("a/b"), 0);
  EXPECT_EQ(makeBlock("/"), 0);
  EXPECT_EQ(makeBlock("../x"), 0);
  EXPECT_EQ(makeBlock(std::string(255, 'x').c_str()), 0);
  const std::string longest(255 - file("").filename().string().size(), 'x');
  const MappingHandle mapping = makeBlock(longest.c_str());
  EXPECT_NE(mapping, 0);
  EXPECT_TRUE(ownSharedMemory().CloseHandle(mapping));
}

TEST_F(SharedMemoryFilesTest, AnotherFolderIsAnotherBlock) {
  const MappingHandle mapping = makeBlock("block");
  const OwnChannel other;
  EXPECT_EQ(ownSharedMemory().OpenFileMappingA(kViewRead, "block"), 0);
  ownSharedMemory().CloseHandle(mapping);
  EXPECT_FALSE(std::filesystem::exists(file())) << "it goes by the name that it was made with";
}

TEST_F(SharedMemoryFilesTest, NoProgramThatIsStartedGetsADescriptor) {
  const auto before = inheritedDescriptors();
  const MappingHandle mapping = makeBlock("block");
  void* view = ownSharedMemory().MapViewOfFile(mapping, kViewWrite, 64);
  EXPECT_EQ(inheritedDescriptors(), before);
  ownSharedMemory().UnmapViewOfFile(view);
  ownSharedMemory().CloseHandle(mapping);
}

}  // namespace
}  // namespace tessaly::tests
