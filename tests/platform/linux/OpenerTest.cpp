// What the opener gets of the host's process, and the host of the opener's.

#include "tessaly/platform/linux/Opener.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <pthread.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <utility>
#include <vector>

#include "tests/contract/linux/OpenerOfTests.h"
#include "tests/support/linux/Forked.h"

namespace tessaly::platform {
namespace {

using tests::OpenerOfTests;

Opened run(const std::string& file) {
  return runOpener(openerPath().value(), file, nullptr, std::chrono::minutes(1));
}

Opened runAtOnce(const std::string& file) {
  return runOpener(openerPath().value(), file, nullptr, std::chrono::nanoseconds(0));
}

constexpr const char* kOnlyNowhere = "0=/dev/null 1=/dev/null 2=/dev/null ";

/// What a process ends with that could not refuse calls.
constexpr int kCannotRefuse = 99;

/// From now on the filter judges the calls of this process and of those that it starts; false where the
/// system does not let itself be told so.
bool judgeCalls(std::vector<sock_filter> filter) {
  const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
  return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

/// From now on these calls of the system fail, as on a kernel that does not have them.
bool refuse(const std::vector<unsigned>& calls) {
  std::vector<sock_filter> filter{BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
  for (const unsigned call : calls) {
    filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1));
    filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOSYS));
  }
  filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
  return judgeCalls(std::move(filter));
}

/// From now on nothing is opened for reading and writing at once, as "/dev/null" is where it is there.
bool refuseToOpenForBoth() {
  return judgeCalls({BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
                     BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat, 0, 3),
                     BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[2])),
                     BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, O_RDWR, 0, 1),
                     BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOENT),
                     BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)});
}

/// Leaves this process no room for another descriptor.
void useUpDescriptors() {
  const rlimit few{64, 64};
  setrlimit(RLIMIT_NOFILE, &few);
  while (dup(STDERR_FILENO) >= 0) continue;
}

class OpenerWithoutCalls : public testing::TestWithParam<std::vector<unsigned>> {};

INSTANTIATE_TEST_SUITE_P(Calls, OpenerWithoutCalls,
                         testing::Values(std::vector<unsigned>{}, std::vector<unsigned>{SYS_close_range},
                                         std::vector<unsigned>{SYS_close_range, SYS_getdents64}),
                         [](const auto& test) { return "Without" + std::to_string(test.param.size()); });

TEST_P(OpenerWithoutCalls, GetsNoneOfTheHostsDescriptors) {
  OpenerOfTests opener;
  const int code = tests::inProcess([] {
    useUpDescriptors();
    if (!refuse(GetParam())) return kCannotRefuse;
    run("x");
    return 0;
  });
  if (code == kCannotRefuse) GTEST_SKIP() << "the system refuses no calls here";
  const OpenerOfTests::Start start = opener.nextStart();
  EXPECT_EQ(start.descriptors, kOnlyNowhere);
  EXPECT_EQ(start.descriptorsOfStarter, kOnlyNowhere);
}

// It had the host's output and errors.
TEST(LinuxOpener, GetsNoDescriptorAtAllWhereNowhereIsMissing) {
  OpenerOfTests opener;
  const int code = tests::inProcess([] {
    if (!refuseToOpenForBoth()) return kCannotRefuse;
    run("x");
    return 0;
  });
  if (code == kCannotRefuse) GTEST_SKIP() << "the system refuses no calls here";
  const OpenerOfTests::Start start = opener.nextStart();
  EXPECT_EQ(start.descriptors, "");
  EXPECT_EQ(start.descriptorsOfStarter, "");
}

TEST(LinuxOpener, GivesTheOpenerNothingOfTheHosts) {
  OpenerOfTests opener;
  int pipes[2] = {};
  ASSERT_EQ(pipe(pipes), 0);
  const auto before = std::signal(SIGUSR1, SIG_IGN);
  sigset_t blocked{};
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGUSR2);
  sigset_t usual{};
  pthread_sigmask(SIG_BLOCK, &blocked, &usual);
  run("x");
  const OpenerOfTests::Start start = opener.nextStart();
  EXPECT_EQ(start.descriptors, kOnlyNowhere);
  EXPECT_EQ(start.blockedSignals, "0000000000000000");
  EXPECT_EQ(start.ignoredSignals, "0000000000000000");
  EXPECT_TRUE(start.leadsItsSession);
  sigset_t still{};
  pthread_sigmask(SIG_SETMASK, &usual, &still);
  EXPECT_EQ(sigismember(&still, SIGUSR2), 1);
  EXPECT_EQ(sigismember(&still, SIGTERM), 0);
  std::signal(SIGUSR1, before);
  close(pipes[0]);
  close(pipes[1]);
}

// The process in between had them as long as it waited, so a pipe that the host closed did not end.
TEST(LinuxOpener, KeepsNothingOfTheHostsOpenWhileItIsWaitedFor) {
  OpenerOfTests opener;
  int pipes[2] = {};
  ASSERT_EQ(pipe(pipes), 0);
  run("x");
  EXPECT_EQ(opener.nextStart().descriptorsOfStarter, kOnlyNowhere);
  close(pipes[0]);
  close(pipes[1]);
}

volatile std::sig_atomic_t endsOfChildren = 0;

TEST(LinuxOpener, LeavesTheHostNoChildAndTellsItOfNone) {
  OpenerOfTests opener;
  const auto before = std::signal(SIGCHLD, [](int /*number*/) { endsOfChildren = endsOfChildren + 1; });
  EXPECT_EQ(run("tessaly-code:2").code, 2);
  EXPECT_EQ(runAtOnce("tessaly-held:").how, Opening::GoesOn);
  opener.nextStart();
  opener.nextStart();
  opener.release();
  EXPECT_EQ(waitpid(-1, nullptr, __WALL | WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD);
  EXPECT_EQ(endsOfChildren, 0);
  std::signal(SIGCHLD, before);
}

TEST(LinuxOpener, LeavesOneThatStaysToAHostWhoAdoptsOrphans) {
  OpenerOfTests opener;
  const int code = tests::inProcess([&] {
    prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0);
    runAtOnce("tessaly-held:");
    opener.nextStart();
    opener.release();
    return waitpid(-1, nullptr, 0) > 0 ? 0 : 1;
  });
  EXPECT_EQ(code, 0);
}

TEST(LinuxOpener, KnowsTheEndThoughTheHostIgnoresThoseOfItsChildren) {
  OpenerOfTests opener;
  const auto before = std::signal(SIGCHLD, SIG_IGN);
  EXPECT_EQ(run("tessaly-code:2").code, 2);
  std::signal(SIGCHLD, before);
}

/// Opens something on a thread that somebody has just cancelled: how it went.
void* openCancelled(void* /*unused*/) {
  static Opened opened;
  pthread_cancel(pthread_self());
  opened = runOpener(*openerPath(), "tessaly-code:2", nullptr, std::chrono::minutes(1));
  return &opened;
}

TEST(LinuxOpener, IsRunToItsEndByAThreadThatIsCancelledMeanwhile) {
  OpenerOfTests opener;
  pthread_t thread{};
  ASSERT_EQ(pthread_create(&thread, nullptr, openCancelled, nullptr), 0);
  void* opened = nullptr;
  pthread_join(thread, &opened);
  ASSERT_NE(opened, PTHREAD_CANCELED);
  EXPECT_EQ(static_cast<Opened*>(opened)->code, 2);
}

}  // namespace
}  // namespace tessaly::platform
