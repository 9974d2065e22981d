// The program whose streams are closed, full or left alone.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>

#include "tessaly/trace/ZPLoggerClient.h"
#include "tests/support/OwnRuntime.h"
#include "tests/support/Process.h"
#include "tests/tools/zplogger/Program.h"
#include "tools/support/linux/Descriptor.h"

namespace tessaly::zplogger {
namespace {

using tests::kWaiting;
using tests::Process;
using tests::ProcessOptions;

/// A shell that runs commands with "$ZPLOGGER" in them; errors come with the output.
class Shell : public Process {
 public:
  explicit Shell(const std::string& commands) : Process("/bin/sh", {"-c", commands}, options()) {}

  std::string rest() {
    std::string text;
    while (auto line = readLine()) text += *line + '\n';
    return text;
  }

 private:
  static ProcessOptions options() {
    ProcessOptions result;
    result.environment = {{"ZPLOGGER", TESSALY_ZPLOGGER}};
    result.joinErrors = true;
    return result;
  }
};

/// A terminal that is no session's.
struct Terminal {
  Terminal() {
    int ends[2] = {-1, -1};
    EXPECT_EQ(openpty(&ends[0], &ends[1], nullptr, nullptr, nullptr), 0);
    user = tools::Descriptor(ends[0]);
    program = tools::Descriptor(ends[1]);
    fcntl(ends[0], F_SETFD, FD_CLOEXEC);
    fcntl(ends[1], F_SETFD, FD_CLOEXEC);
  }

  std::string name() const { return ttyname(program.number()); }

  tools::Descriptor user;
  tools::Descriptor program;
};

/// The program with any descriptor as its output.
pid_t startWith(int output) {
  const pid_t process = fork();
  if (process == 0) {
    dup2(output, STDOUT_FILENO);
    execl(TESSALY_ZPLOGGER, TESSALY_ZPLOGGER, nullptr);
    _exit(127);
  }
  return process;
}

int codeOf(pid_t process) {
  int status = 0;
  waitpid(process, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class ZpStreamsTest : public testing::Test {
 public:
  ZpStreamsTest() { tests::useOwnRuntime(); }

  void connect() {
    client.Init(u"Host", u"", u"");
    EXPECT_TRUE(client.Connected());
  }
  void send(const String& text) { client.SendTrace(text, 0, 0xFFFFFF, 0, True); }

  ZPLoggerClient client;
};

TEST_F(ZpStreamsTest, PrintsWhatWaitsBeforeItEnds) {
  Shell program("exec \"$ZPLOGGER\"");
  EXPECT_EQ(program.readLine(), kWaiting);
  connect();
  for (int i = 0; i < 5000; ++i) send(u"line");
  EXPECT_TRUE(program.terminate());
  const std::string shown = program.rest();
  EXPECT_EQ(std::count(shown.begin(), shown.end(), '\n'), 5001);
  EXPECT_EQ(program.wait(), 0);
}

TEST_F(ZpStreamsTest, EndsQuietlyWhereItsReaderHasGone) {
  Shell program("{ \"$ZPLOGGER\"; echo code $? >&2; } | true");
  EXPECT_EQ(program.readLine(), kWaiting);
  EXPECT_EQ(program.readLine(), "code 1");
}

TEST_F(ZpStreamsTest, EndsWhereNobodyIsAtTheOtherEndOfASocket) {
  std::array<int, 2> ends{};
  ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()), 0);
  close(ends[0]);
  const pid_t process = startWith(ends[1]);
  close(ends[1]);
  EXPECT_EQ(codeOf(process), 1);
}

TEST_F(ZpStreamsTest, EndsAsAskedWhereTheTerminalOfItsOutputGoes) {
  Terminal terminal;
  Shell program("exec \"$ZPLOGGER\" >" + terminal.name());
  EXPECT_EQ(program.readLine(), kWaiting);
  terminal.user = tools::Descriptor();
  EXPECT_EQ(program.wait(), 0);
}

TEST_F(ZpStreamsTest, WaitsForRoomAlsoWhereTheOutputDoesNot) {
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
  fcntl(ends[1], F_SETFL, O_NONBLOCK);
  const pid_t process = startWith(ends[1]);
  close(ends[1]);
  while (!client.Connected()) client.Init(u"Host", u"", u"");
  for (int i = 0; i < 5000; ++i) send(u"line");
  kill(process, SIGTERM);
  std::ptrdiff_t lines = 0;
  std::array<char, 4096> bytes{};
  for (ssize_t count = 0; (count = read(ends[0], bytes.data(), bytes.size())) > 0;)
    lines += std::count(bytes.begin(), bytes.begin() + count, '\n');
  close(ends[0]);
  EXPECT_EQ(lines, 5000);
  EXPECT_EQ(codeOf(process), 0);
}

TEST_F(ZpStreamsTest, LeavesTheTerminalOfAnotherSessionAlone) {
  const Terminal terminal;
  Shell program("exec \"$ZPLOGGER\" <" + terminal.name());
  EXPECT_EQ(program.readLine(), kWaiting);
  termios mode = {};
  ASSERT_EQ(tcgetattr(terminal.program.number(), &mode), 0);
  EXPECT_NE(mode.c_lflag & ICANON, 0U);
  EXPECT_NE(mode.c_lflag & ECHO, 0U);
}

TEST_F(ZpStreamsTest, SaysThatItCanNotWrite) {
  Shell program("\"$ZPLOGGER\" >/dev/full; echo code $?");
  EXPECT_EQ(program.readLine(), kWaiting);
  connect();
  EXPECT_TRUE(program.readLine().value_or("").starts_with("zplogger: Host (process "));
  send(u"line");
  EXPECT_EQ(program.readLine(), "zplogger: can't write the output");
  EXPECT_EQ(program.readLine(), "code 1");
}

TEST_F(ZpStreamsTest, RunsWithoutAnInput) {
  Shell noInput("exec \"$ZPLOGGER\" <&-");
  EXPECT_EQ(noInput.readLine(), kWaiting);
  connect();
  send(u"line");
  noInput.readLine();
  EXPECT_TRUE(noInput.readLine().value_or("").ends_with("  0  line"));
  EXPECT_TRUE(noInput.terminate());
  EXPECT_EQ(noInput.wait(), 0);
}

TEST_F(ZpStreamsTest, RunsWithoutAnOutput) {
  Shell noOutput("exec \"$ZPLOGGER\" >&-");
  EXPECT_EQ(noOutput.readLine(), kWaiting);
  connect();
  EXPECT_TRUE(noOutput.readLine().value_or("").starts_with("zplogger: Host (process "));
  send(u"line");
  // What it says of another client comes behind the line.
  ZPLoggerClient other;
  other.Init(u"Other", u"", u"");
  EXPECT_TRUE(noOutput.readLine().value_or("").starts_with("zplogger: Other (process "));
  EXPECT_TRUE(noOutput.terminate());
  EXPECT_EQ(noOutput.wait(), 0);
}

TEST_F(ZpStreamsTest, RunsWithoutItsErrors) {
  Shell program("exec \"$ZPLOGGER\" 2>&-");
  // It says nothing of its own, so a line is what tells that it runs.
  while (!client.Connected()) client.Init(u"Host", u"", u"");
  send(u"line");
  EXPECT_TRUE(program.readLine().value_or("").ends_with("  0  line"));
  EXPECT_TRUE(program.terminate());
  EXPECT_EQ(program.wait(), 0);
}

TEST_F(ZpStreamsTest, SaysThatClientsCanNotFindIt) {
  // A folder of loggers that others may write to is not used.
  Shell program(
      "folder=$(mktemp -d); mkdir -m 777 $folder/tessaly; XDG_RUNTIME_DIR=$folder \"$ZPLOGGER\"; echo code "
      "$?; "
      "rm -r $folder");
  EXPECT_EQ(program.readLine(), "zplogger: can't make the window \"ZPLogger server\"");
  EXPECT_EQ(program.readLine(), "code 1");
}

TEST_F(ZpStreamsTest, IgnoresTheSignalsThatItWasStartedToIgnore) {
  Shell program("trap '' INT HUP; exec \"$ZPLOGGER\" </dev/null");
  EXPECT_EQ(program.readLine(), kWaiting);
  Shell("kill -INT " + std::to_string(program.id()) + "; kill -HUP " + std::to_string(program.id())).wait();
  connect();
  send(u"line");
  program.readLine();
  EXPECT_TRUE(program.readLine().value_or("").ends_with("  0  line"));
  EXPECT_TRUE(program.terminate());
  EXPECT_EQ(program.wait(), 0);
}

}  // namespace
}  // namespace tessaly::zplogger
