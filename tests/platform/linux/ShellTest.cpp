#include "tessaly/platform/Shell.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>

#include "tessaly/platform/Ansi.h"
#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Locale.h"
#include "tests/contract/linux/OpenerOfTests.h"
#include "tests/support/Errors.h"

namespace tessaly::platform {
namespace {

using namespace shell_result;
using tests::errorOf;
using tests::OpenerOfTests;
using tests::SearchPath;

std::intptr_t openIn(const char* directory, const std::string& file) {
  return desktop().shell->ShellExecuteA(0, "open", file.c_str(), nullptr, directory, kShowNormal);
}

std::intptr_t open(const std::string& file) { return openIn(nullptr, file); }

TEST(LinuxShell, RaisesError453WhereNothingOpens) {
  const tests::TemporaryFolder empty;
  const SearchPath path(empty.path().c_str());
  EXPECT_EQ(errorOf([] { open("x"); }), 453);
}

TEST(LinuxShell, RaisesError453WhereTheOpenerIsNoProgram) {
  const tests::TemporaryFolder folder;
  const SearchPath path(folder.path().c_str());
  const std::filesystem::path opener = folder.path() / "xdg-open";
  std::ofstream(opener) << "#!/no/such/program\n";
  EXPECT_EQ(errorOf([] { open("x"); }), 453);
  std::filesystem::permissions(opener, std::filesystem::perms::owner_all);
  EXPECT_EQ(errorOf([] { open("x"); }), 453);
  std::filesystem::remove(opener);
  std::filesystem::create_directory(opener);
  EXPECT_EQ(errorOf([] { open("x"); }), 453);
}

TEST(LinuxShell, LooksForTheOpenerInWholePathsAlone) {
  OpenerOfTests opener;
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(opener.folder());
  for (const char* const folders : {"", ":", ".", "/no/such/folder:.::"}) {
    const SearchPath path(folders);
    EXPECT_EQ(errorOf([] { open("x"); }), 453) << folders;
  }
  std::filesystem::current_path(before);
  const std::string late = "/no/such/folder:" + opener.folder().string();
  const SearchPath path(late.c_str());
  EXPECT_EQ(open("x"), kSuccess);
  EXPECT_EQ(opener.next(), "x");
}

TEST(LinuxShell, TellsHowTheOpenerEnded) {
  OpenerOfTests opener;
  EXPECT_EQ(open("tessaly-code:0"), kSuccess);
  EXPECT_EQ(open("tessaly-code:1"), kFileNotFound);
  EXPECT_EQ(open("tessaly-code:2"), kFileNotFound);
  EXPECT_EQ(open("tessaly-code:3"), kNoAssociation);
  EXPECT_EQ(open("tessaly-code:4"), kNoAssociation);
  EXPECT_EQ(open("tessaly-code:127"), kNoAssociation);
  EXPECT_EQ(open("tessaly-killed:"), kNoAssociation);
}

TEST(LinuxShell, DoesNotWaitForAnOpenerThatStays) {
  OpenerOfTests opener;
  EXPECT_EQ(open("tessaly-held:"), kSuccess);
  EXPECT_EQ(opener.next(), "tessaly-held:");
  opener.release();
}

TEST(LinuxShell, OpensNothingForAnotherOperationOrNoFile) {
  const tests::TemporaryFolder empty;
  const SearchPath path(empty.path().c_str());
  EXPECT_EQ(desktop().shell->ShellExecuteA(0, "print", "x", nullptr, nullptr, 1), kNoAssociation);
  EXPECT_EQ(desktop().shell->ShellExecuteA(0, "open", nullptr, nullptr, nullptr, 1), kFileNotFound);
}

TEST(LinuxShell, GivesTheOpenerOneWordThatIsNoOption) {
  OpenerOfTests opener;
  using Words = std::vector<std::string>;
  for (const char* const text :
       {"", "a b", "a\"b'c", "%", "#", "..", "a\\b", "a\nb", "./x", "+x", "$(x)`y`"}) {
    open(text);
    EXPECT_EQ(opener.nextStart().words, (Words{"xdg-open", text}));
  }
  open("--help");
  EXPECT_EQ(opener.nextStart().words, (Words{"xdg-open", "./--help"}));
  open("-");
  EXPECT_EQ(opener.nextStart().words, (Words{"xdg-open", "./-"}));
}

TEST(LinuxShell, TakesALongTextAndFailsForOneThatIsTooLong) {
  OpenerOfTests opener;
  const std::string text = "http://host.example/" + std::string(30000, 'x');
  EXPECT_EQ(open(text), kSuccess);
  EXPECT_EQ(opener.next(), text);
  EXPECT_EQ(open(std::string(200000, 'x')), kOutOfMemory);
}

TEST(LinuxShell, ReadsTheTextInTheSystemsCodePage) {
  fake::Locale locale(1049, u",", 1251);
  const Override inForce(locale);
  OpenerOfTests opener;
  const String text = u"http://host.example/\u0416\u0443\u043A";
  open(toAnsi(text));
  EXPECT_EQ(opener.next(), "http://host.example/\u0416\u0443\u043A");
}

TEST(LinuxShell, OpensInTheFolderThatIsTold) {
  OpenerOfTests opener;
  open("x");
  EXPECT_EQ(opener.nextStart().folder, std::filesystem::current_path());
  EXPECT_EQ(openIn("/usr", "x"), kSuccess);
  EXPECT_EQ(opener.nextStart().folder, "/usr");
}

TEST(LinuxShell, GivesTheOpenerNothingOfTheHosts) {
  OpenerOfTests opener;
  int pipes[2] = {};
  ASSERT_EQ(pipe(pipes), 0);
  const auto before = std::signal(SIGUSR1, SIG_IGN);
  sigset_t blocked{};
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGUSR2);
  sigset_t usual{};
  pthread_sigmask(SIG_BLOCK, &blocked, &usual);
  open("x");
  const OpenerOfTests::Start start = opener.nextStart();
  EXPECT_EQ(start.descriptors, "0=/dev/null 1=/dev/null 2=/dev/null ");
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

volatile std::sig_atomic_t endsOfChildren = 0;

TEST(LinuxShell, LeavesTheHostNoChildAndTellsItOfNone) {
  OpenerOfTests opener;
  const auto before = std::signal(SIGCHLD, [](int /*number*/) { endsOfChildren = endsOfChildren + 1; });
  EXPECT_EQ(open("tessaly-code:2"), kFileNotFound);
  EXPECT_EQ(open("tessaly-held:"), kSuccess);
  opener.nextStart();
  opener.nextStart();
  opener.release();
  EXPECT_EQ(waitpid(-1, nullptr, __WALL | WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD);
  EXPECT_EQ(endsOfChildren, 0);
  std::signal(SIGCHLD, before);
}

TEST(LinuxShell, KnowsTheEndThoughTheHostIgnoresThoseOfItsChildren) {
  OpenerOfTests opener;
  const auto before = std::signal(SIGCHLD, SIG_IGN);
  EXPECT_EQ(open("tessaly-code:2"), kFileNotFound);
  std::signal(SIGCHLD, before);
}

}  // namespace
}  // namespace tessaly::platform
