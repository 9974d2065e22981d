// The program as another one starts it, without a terminal.

#include <gtest/gtest.h>

#include "tessaly/trace/ZPLoggerClient.h"
#include "tests/support/OwnRuntime.h"
#include "tests/support/Process.h"
#include "tests/tools/zplogger/Program.h"

namespace tessaly::zplogger {
namespace {

using tests::kWaiting;
using tests::Process;
using tests::ProcessOptions;

struct ZpProgramTest : testing::Test {
  ZpProgramTest() { tests::useOwnRuntime(); }

  static ProcessOptions joined() {
    ProcessOptions options;
    options.joinErrors = true;
    return options;
  }

  /// Has it show a line.
  static void expectRunning(Process& program) {
    ZPLoggerClient client;
    client.Init(u"Host", u"", u"");
    ASSERT_TRUE(client.Connected());
    String text = u"line";
    client.SendTrace(text, 0, 0xFFFFFF, 0, True);
    EXPECT_TRUE(program.readLine().value_or("").starts_with("zplogger: Host"));
    EXPECT_TRUE(program.readLine().value_or("").ends_with("  0  line"));
  }

  static std::string rest(Process& program) {
    std::string text;
    while (auto line = program.readLine()) text += *line + '\n';
    return text;
  }
};

TEST_F(ZpProgramTest, TellsThatItWaitsAndRunsUntilItIsAskedToEnd) {
  Process program(TESSALY_ZPLOGGER, {}, joined());
  EXPECT_EQ(program.readLine(), kWaiting);
  EXPECT_TRUE(program.terminate());
  EXPECT_EQ(program.wait(), 0);
}

TEST_F(ZpProgramTest, RunsWithoutAnInput) {
  Process program(TESSALY_ZPLOGGER, {}, joined());
  program.closeInput();
  EXPECT_EQ(program.readLine(), kWaiting);
  expectRunning(program);
  EXPECT_TRUE(program.terminate());
  EXPECT_EQ(program.wait(), 0);
}

TEST_F(ZpProgramTest, TakesNoKeysWithoutATerminal) {
  Process program(TESSALY_ZPLOGGER, {}, joined());
  program.write("q\n");
  EXPECT_EQ(program.readLine(), kWaiting);
  expectRunning(program);
  EXPECT_TRUE(program.terminate());
  EXPECT_EQ(program.wait(), 0);
}

TEST_F(ZpProgramTest, TellsOfAnotherLogger) {
  Process first(TESSALY_ZPLOGGER, {}, joined());
  EXPECT_EQ(first.readLine(), kWaiting);
  Process second(TESSALY_ZPLOGGER, {}, joined());
  EXPECT_EQ(second.readLine(), kWaiting);
  EXPECT_EQ(second.readLine(),
            "zplogger: another logger runs already; clients take the one that the system shows them first");
}

TEST_F(ZpProgramTest, EndsWithTheCodeThatItTells) {
  Process help(TESSALY_ZPLOGGER, {"--help"});
  EXPECT_EQ(help.readLine(), "zplogger shows the lines that programs trace, and writes them into log files.");
  EXPECT_NE(rest(help).find("--max-size"), std::string::npos);
  EXPECT_EQ(help.wait(), 0);
  Process version(TESSALY_ZPLOGGER, {"--version"});
  EXPECT_TRUE(version.readLine().value_or("").starts_with("zplogger 0."));
  EXPECT_EQ(version.wait(), 0);
  Process wrong(TESSALY_ZPLOGGER, {"--level", "grün"}, joined());
  EXPECT_EQ(wrong.readLine(), "zplogger: \"grün\" is no level; levels are 0 to 255");
  EXPECT_EQ(wrong.wait(), 2);
}

}  // namespace
}  // namespace tessaly::zplogger
