// Blocks between processes: who sees what, and when one is gone.

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/resource.h>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <thread>

#include "tests/platform/linux/ChannelSupport.h"

namespace tessaly::tests {
namespace {

using namespace platform;

constexpr std::uint32_t kSize = 5000;
constexpr std::uint32_t kOtherSize = 10000;
constexpr const char* kName = "block of a test";

MappingHandle make(std::uint32_t size = kSize) {
  return ownSharedMemory().CreateFileMappingA(kReadWritePages | kCommittedPages, 0, size, kName);
}

MappingHandle open() { return ownSharedMemory().OpenFileMappingA(kViewWrite, kName); }

char* show(MappingHandle mapping, std::size_t size = kSize) {
  return static_cast<char*>(ownSharedMemory().MapViewOfFile(mapping, kViewWrite, size));
}

/// Whether there is a block that somebody has.
bool isThere() {
  const MappingHandle mapping = open();
  return mapping != 0 && ownSharedMemory().CloseHandle(mapping);
}

class SharedMemoryTest : public testing::Test {
 protected:
  void TearDown() override {
    EXPECT_FALSE(std::filesystem::exists(channel_.block(kName))) << "the block was left behind";
  }

  OwnChannel channel_;
};

TEST_F(SharedMemoryTest, TwoProcessesSeeTheSameBytes) {
  const MappingHandle mapping = make();
  char* view = show(mapping);
  ASSERT_NE(view, nullptr);
  std::string_view("from the parent").copy(view, kSize);
  EXPECT_EQ(inProcess([] {
              const MappingHandle own = open();
              char* seen = show(own);
              if (seen == nullptr || std::strcmp(seen, "from the parent") != 0) return 1;
              seen[kSize - 1] = 'x';
              return ownSharedMemory().UnmapViewOfFile(seen) && ownSharedMemory().CloseHandle(own) ? 0 : 2;
            }),
            0);
  EXPECT_EQ(view[kSize - 1], 'x');
  EXPECT_TRUE(ownSharedMemory().UnmapViewOfFile(view));
  EXPECT_TRUE(ownSharedMemory().CloseHandle(mapping));
  EXPECT_FALSE(isThere());
}

TEST_F(SharedMemoryTest, ABlockLivesAsLongAsAViewOfIt) {
  const MappingHandle mapping = make();
  char* view = show(mapping);
  char* other = show(mapping);
  EXPECT_TRUE(ownSharedMemory().CloseHandle(mapping));
  EXPECT_TRUE(isThere());
  EXPECT_TRUE(ownSharedMemory().UnmapViewOfFile(view));
  EXPECT_TRUE(isThere());
  EXPECT_TRUE(ownSharedMemory().UnmapViewOfFile(other));
  EXPECT_FALSE(isThere());
}

TEST_F(SharedMemoryTest, ABlockLivesAsLongAsAnotherProcessHasIt) {
  const Telling toHolder;
  const Telling toTest;
  const pid_t holder = start([&] {
    const MappingHandle mapping = make();
    show(mapping)[7] = 'h';
    toTest.tell(1);
    toHolder.hear();
    return ownSharedMemory().CloseHandle(mapping) ? 0 : 1;
  });
  toTest.hear();
  const MappingHandle mapping = open();
  ASSERT_NE(mapping, 0);
  EXPECT_TRUE(ownSharedMemory().CloseHandle(mapping));
  EXPECT_TRUE(isThere());
  const MappingHandle again = make();
  char* view = show(again);
  toHolder.tell(1);
  // It ends without having unmapped its view.
  EXPECT_EQ(endOf(holder), 0);
  EXPECT_EQ(view[7], 'h');
  EXPECT_TRUE(ownSharedMemory().CloseHandle(again));
  EXPECT_TRUE(isThere());
  EXPECT_TRUE(ownSharedMemory().UnmapViewOfFile(view));
}

pid_t startKilledHolder() {
  return start([] {
    show(make())[0] = 'k';
    return raise(SIGKILL);
  });
}

TEST_F(SharedMemoryTest, WhatAKilledHolderHasLeftIsEmptyToTheNextThatMakesIt) {
  ASSERT_EQ(endOf(startKilledHolder()), -SIGKILL);
  const MappingHandle mapping = make(kOtherSize);
  char* view = show(mapping, kOtherSize);
  ASSERT_NE(view, nullptr) << "it has the size that was asked for";
  EXPECT_EQ(view[0], 0);
  ownSharedMemory().UnmapViewOfFile(view);
  ownSharedMemory().CloseHandle(mapping);
}

TEST_F(SharedMemoryTest, WhatAKilledHolderHasLeftIsNoBlockToOpen) {
  ASSERT_EQ(endOf(startKilledHolder()), -SIGKILL);
  EXPECT_EQ(open(), 0);
}

/// TearDown looks whether anything is left.
TEST_F(SharedMemoryTest, AProgramThatEndsWithoutClosingLeavesNothing) {
  EXPECT_EQ(inProcess([]() -> int {
              const bool isShown = show(make()) != nullptr && make() != 0;
              std::exit(isShown ? 0 : 1);
            }),
            0);
}

TEST_F(SharedMemoryTest, ABlockOfAnotherSizeIsOpenedAsItIs) {
  const MappingHandle mapping = make(100);
  const MappingHandle larger = make(kSize);
  ASSERT_NE(larger, 0);
  EXPECT_EQ(show(larger, 101), nullptr);
  char* view = show(larger, 100);
  ASSERT_NE(view, nullptr);
  ownSharedMemory().UnmapViewOfFile(view);
  ownSharedMemory().CloseHandle(larger);
  ownSharedMemory().CloseHandle(mapping);
}

TEST_F(SharedMemoryTest, AViewForReadingCannotBeWritten) {
  const MappingHandle mapping = make();
  EXPECT_EQ(inProcess([&] {
              const rlimit noCore{0, 0};
              setrlimit(RLIMIT_CORE, &noCore);
              // A sanitizer would make a report of the signal, and exit.
              signal(SIGSEGV, [](int) { _exit(11); });
              void* view = ownSharedMemory().MapViewOfFile(mapping, kViewRead, kSize);
              *static_cast<volatile char*>(view) = 'x';
              return 0;
            }),
            11);
  ownSharedMemory().CloseHandle(mapping);
}

TEST_F(SharedMemoryTest, AForkedChildKeepsTheBlockAndTheParentsLockWithIt) {
  const MappingHandle mapping = make();
  char* view = show(mapping);
  const Telling toChild;
  const Telling toTest;
  const pid_t child = start([&] {
    toChild.hear();
    const bool wasThere = isThere();
    view[1] = 'c';
    ownSharedMemory().UnmapViewOfFile(view);
    ownSharedMemory().CloseHandle(mapping);
    toTest.tell(wasThere && !isThere() ? 0 : 1);
    return 0;
  });
  ownSharedMemory().UnmapViewOfFile(view);
  ownSharedMemory().CloseHandle(mapping);
  EXPECT_TRUE(isThere());
  toChild.tell(1);
  EXPECT_EQ(toTest.hear(), 0);
  EXPECT_EQ(endOf(child), 0);
}

TEST_F(SharedMemoryTest, AChildThatLetsGoLeavesTheParentsBlock) {
  const MappingHandle mapping = make();
  EXPECT_EQ(inProcess([&] { return ownSharedMemory().CloseHandle(mapping) ? 0 : 1; }), 0);
  EXPECT_TRUE(isThere());
  ownSharedMemory().CloseHandle(mapping);
}

TEST_F(SharedMemoryTest, AProcessMayForkWhileAThreadOpensAndCloses) {
  std::atomic<bool> isOver = false;
  std::thread other([&] {
    while (!isOver) ownSharedMemory().CloseHandle(make());
  });
  for (int i = 0; i < 50; ++i) {
    EXPECT_EQ(inProcess([] {
                const MappingHandle mapping = make();
                return mapping != 0 && ownSharedMemory().CloseHandle(mapping) ? 0 : 1;
              }),
              0);
  }
  isOver = true;
  other.join();
  // A child that had what the thread closed meanwhile may have ended as the last.
  ownSharedMemory().CloseHandle(make());
}

/// Takes the block again and again; each time what it writes must stay as long as it has the block.
int takeAndLeave(int number, int times) {
  for (int i = 0; i < times; ++i) {
    const MappingHandle mapping = i % 3 == 0 ? open() : make();
    if (mapping == 0 && i % 3 == 0) continue;
    char* view = show(mapping);
    if (view == nullptr) return 1;
    auto& own = reinterpret_cast<std::atomic<int>*>(view)[number];
    const int mine = number * times + i;
    own = mine;
    sched_yield();
    if (own != mine) return 2;
    ownSharedMemory().UnmapViewOfFile(view);
    ownSharedMemory().CloseHandle(mapping);
  }
  return 0;
}

TEST_F(SharedMemoryTest, ManyProcessesMayOpenAndCloseAtOnceAndTheLastLeavesNothing) {
  std::vector<pid_t> processes;
  processes.reserve(6);
  for (int number = 0; number < 6; ++number)
    processes.push_back(start([&] { return takeAndLeave(number, 2000); }));
  for (const pid_t process : processes) EXPECT_EQ(endOf(process), 0);
}

TEST_F(SharedMemoryTest, ManyProcessesMayBeKilledWhileOthersOpenAndClose) {
  const pid_t steady = start([] { return takeAndLeave(0, 4000); });
  for (int i = 0; i < 100; ++i) {
    const Telling told;
    const pid_t victim = start([&] {
      told.tell(1);
      return takeAndLeave(1, 1000000);
    });
    told.hear();
    kill(victim, SIGKILL);
    EXPECT_EQ(endOf(victim), -SIGKILL);
  }
  EXPECT_EQ(endOf(steady), 0);
  EXPECT_FALSE(isThere());
}

}  // namespace
}  // namespace tessaly::tests
