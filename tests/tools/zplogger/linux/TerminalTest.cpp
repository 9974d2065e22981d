// The program at a terminal.

#include <gtest/gtest.h>

#include <csignal>
#include <thread>

#include "tessaly/trace/ZPLoggerClient.h"
#include "tests/support/OwnRuntime.h"
#include "tests/tools/zplogger/Program.h"
#include "tests/tools/zplogger/linux/PseudoTerminal.h"

namespace tessaly::zplogger {
namespace {

using tests::kWaiting;
using tests::PseudoTerminal;

constexpr const char* kColouredText = "\x1b[38;2;128;0;0;48;2;255;255;255m report \x1b[0m";

std::vector<std::string> logger(const std::vector<std::string>& words = {}) {
  std::vector<std::string> result = {TESSALY_ZPLOGGER};
  result.insert(result.end(), words.begin(), words.end());
  return result;
}

/// A shell that tells where it waits for a line.
std::vector<std::string> shell() { return {"/bin/sh", "-i"}; }
std::vector<std::pair<std::string, std::string>> shellEnvironment() {
  return {{"PS1", "<ready>"}, {"ENV", ""}, {"ZPLOGGER", TESSALY_ZPLOGGER}};
}

class ZpTerminalTest : public testing::Test {
 public:
  ZpTerminalTest() { tests::useOwnRuntime(); }

  void connect() { client.Init(u"Host", u"", u""); }
  void send(const String& text, Long level = 0) { client.SendTrace(text, 0x80, 0xFFFFFF, level, True); }

  ZPLoggerClient client;
};

TEST_F(ZpTerminalTest, TakesKeysSinglyAndPutsTheModeBack) {
  PseudoTerminal terminal(logger());
  terminal.readUntil(kWaiting);
  EXPECT_FALSE(terminal.takesLines());
  EXPECT_FALSE(terminal.showsKeys());
  terminal.type("+");
  terminal.readUntil("zplogger: shows lines of level 1 and above");
  terminal.type("?");
  terminal.readUntil("q ends");
  terminal.type("q");
  EXPECT_EQ(terminal.wait(), 0);
  EXPECT_TRUE(terminal.takesLines());
  EXPECT_TRUE(terminal.showsKeys());
}

TEST_F(ZpTerminalTest, PutsTheModeBackWhateverSignalEndsIt) {
  for (const int number : {SIGTERM, SIGINT, SIGHUP, SIGQUIT}) {
    PseudoTerminal terminal(logger());
    terminal.readUntil(kWaiting);
    terminal.signal(number);
    EXPECT_EQ(terminal.wait(), 0);
    EXPECT_TRUE(terminal.takesLines()) << number;
  }
}

TEST_F(ZpTerminalTest, EndsByCtrlCAlsoWhileATextIsAskedFor) {
  PseudoTerminal terminal(logger());
  terminal.readUntil(kWaiting);
  terminal.type("/some\x03");
  EXPECT_EQ(terminal.wait(), 0);
  EXPECT_TRUE(terminal.takesLines());
}

TEST_F(ZpTerminalTest, EndsWhereTheTerminalGoes) {
  PseudoTerminal terminal(logger());
  terminal.readUntil(kWaiting);
  terminal.hangUp();
  EXPECT_EQ(terminal.wait(), 0);
}

TEST_F(ZpTerminalTest, EndsAsAskedWhereTheTerminalGoesWhileLinesWait) {
  PseudoTerminal terminal(logger({"--color", "never"}));
  terminal.readUntil(kWaiting);
  connect();
  terminal.type(" ");
  terminal.readUntil("-- paused");
  send(u"during");
  terminal.readUntil("1 line waits");
  terminal.hangUp();
  EXPECT_EQ(terminal.wait(), 0);
}

TEST_F(ZpTerminalTest, TakesKeysSinglyAgainAfterAnyStop) {
  PseudoTerminal terminal(logger());
  terminal.readUntil(kWaiting);
  terminal.signal(SIGSTOP);
  terminal.waitForStop();
  terminal.takeLines();
  EXPECT_TRUE(terminal.takesLines());
  terminal.signal(SIGCONT);
  // Typed when it runs again: keys before that would wait for the end of a line.
  while (terminal.takesLines()) std::this_thread::yield();
  terminal.type("?");
  terminal.readUntil("q ends");
  terminal.type("q");
  EXPECT_EQ(terminal.wait(), 0);
  EXPECT_TRUE(terminal.takesLines());
}

TEST_F(ZpTerminalTest, PausesWithoutHoldingAClient) {
  PseudoTerminal terminal(logger({"--color", "never"}));
  terminal.readUntil(kWaiting);
  connect();
  send(u"before");
  terminal.readUntil("before");
  terminal.type(" ");
  terminal.readUntil("-- paused; space goes on --");
  send(u"during");
  const std::string held = terminal.readUntil("-- paused, 1 line waits; space goes on --");
  EXPECT_EQ(held.find("during"), std::string::npos);
  terminal.type(" ");
  terminal.readUntil("\r\x1b[K");
  terminal.readUntil("during");
}

TEST_F(ZpTerminalTest, AsksForATextThatLinesMustHave) {
  PseudoTerminal terminal(logger({"--color", "never"}));
  terminal.readUntil(kWaiting);
  connect();
  terminal.type("/");
  terminal.readUntil("/");
  terminal.type("wän\xC3");
  terminal.type("\xA4");
  terminal.readUntil("/wänä");
  terminal.type("\x7F\x7Fnt\r");
  terminal.readUntil("shows lines of every level with \"wänt\"");
  send(u"unwanted not");
  send(u"WÄNTED");
  const std::string shown = terminal.readUntil("WÄNTED");
  EXPECT_EQ(shown.find("unwanted"), std::string::npos);
}

TEST_F(ZpTerminalTest, HasColoursOnlyWhereTheTerminalHasThemAll) {
  using Variables = std::vector<std::pair<std::string, std::string>>;
  const std::pair<Variables, bool> rows[] = {
      {{{"TERM", "xterm"}, {"COLORTERM", "truecolor"}, {"NO_COLOR", ""}}, true},
      {{{"TERM", "xterm"}, {"COLORTERM", "24bit"}, {"NO_COLOR", ""}}, true},
      {{{"TERM", "xterm"}, {"COLORTERM", ""}, {"NO_COLOR", ""}}, false},
      {{{"TERM", "xterm"}, {"COLORTERM", "truecolor"}, {"NO_COLOR", "1"}}, false},
      {{{"TERM", "dumb"}, {"COLORTERM", "truecolor"}, {"NO_COLOR", ""}}, false},
  };
  for (const auto& [variables, hasColours] : rows) {
    PseudoTerminal terminal(logger(), variables);
    terminal.readUntil(kWaiting);
    ZPLoggerClient host;
    host.Init(u"Host", u"", u"");
    String text = u"report";
    host.SendTrace(text, 0x80, 0xFFFFFF, 2, True);
    std::string shown = terminal.readUntil("report");
    shown += terminal.readUntil("\n");
    EXPECT_EQ(shown.find(kColouredText) != std::string::npos, hasColours) << shown;
    EXPECT_EQ(shown.find('\x1b') != std::string::npos, hasColours) << shown;
  }
}

TEST_F(ZpTerminalTest, HasColoursWhereTheyAreAskedFor) {
  PseudoTerminal terminal(logger({"--color=always"}), {{"COLORTERM", ""}});
  terminal.readUntil(kWaiting);
  connect();
  send(u"report");
  terminal.readUntil(kColouredText);
}

// A terminal that the user has stopped takes nothing, and the queue behind it is full soon.
TEST_F(ZpTerminalTest, HoldsNoClientWhileItIsStoppedAndStillEnds) {
  PseudoTerminal terminal(logger({"--color", "never"}));
  terminal.readUntil(kWaiting);
  connect();
  terminal.type("\x13");
  const String line(200, u'x');
  for (int i = 0; i < 12'000; ++i) send(line);
  EXPECT_TRUE(client.Connected());
  terminal.signal(SIGTERM);
  EXPECT_EQ(terminal.wait(), 0);
  EXPECT_TRUE(terminal.takesLines());
}

TEST_F(ZpTerminalTest, StopsByCtrlZAndGoesOnInTheForeground) {
  PseudoTerminal terminal(shell(), shellEnvironment());
  terminal.readUntil("<ready>");
  terminal.type("\"$ZPLOGGER\"\n");
  terminal.readUntil(kWaiting);
  EXPECT_FALSE(terminal.showsKeys());
  terminal.type("\x1A");
  terminal.readUntil("Stopped");
  terminal.readUntil("<ready>");
  EXPECT_TRUE(terminal.showsKeys());
  terminal.type("fg\n");
  terminal.readUntil("ZPLOGGER");
  terminal.type("?");
  terminal.readUntil("q ends");
  EXPECT_FALSE(terminal.showsKeys());
  terminal.type("q");
  terminal.readUntil("<ready>");
  EXPECT_TRUE(terminal.showsKeys());
}

TEST_F(ZpTerminalTest, NeitherReadsKeysNorIsStoppedInTheBackground) {
  PseudoTerminal terminal(shell(), shellEnvironment());
  terminal.readUntil("<ready>");
  terminal.type("stty tostop\n");
  terminal.readUntil("<ready>");
  terminal.type("\"$ZPLOGGER\" &\n");
  terminal.readUntil(kWaiting);
  EXPECT_TRUE(terminal.showsKeys());
  terminal.type("echo a$((20+3))q\n");
  terminal.readUntil("a23q");
  connect();
  send(u"behind");
  terminal.readUntil("behind");
  terminal.type("fg\n");
  terminal.readUntil("ZPLOGGER");
  terminal.type("?");
  terminal.readUntil("q ends");
  terminal.type("q");
  terminal.readUntil("<ready>");
}

}  // namespace
}  // namespace tessaly::zplogger
