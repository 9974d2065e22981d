// From the switch in the settings to the logger's files, with the programs that users have.

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "tessaly/base/Text.h"
#include "tessaly/settings/CRegistry.h"
#include "tests/support/OwnRuntime.h"
#include "tests/support/OwnSettings.h"
#include "tests/support/Process.h"
#include "tests/support/TemporaryFolder.h"

namespace tessaly::tests {
namespace {

using Lines = std::vector<std::string>;

constexpr Long kMachine = 0;

std::string utf8Of(const std::filesystem::path& path) { return toUtf8(path.u16string()); }

Lines linesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  Lines lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

/// A line of a log file without its time.
std::string withoutTime(const std::string& line) {
  return line.substr(std::min<std::size_t>(24, line.size()));
}

class WholeRoadTest : public testing::Test {
 protected:
  WholeRoadTest() {
    useOwnSettings();
    useOwnRuntime();
    settings_.root(kMachine);
    settings_.rootPath(u"SOFTWARE\\BRAMWELD SYSTEM\\Tessaly");
  }

  /// The tool writes what it shows and what it says.
  static std::unique_ptr<Process> startTool(const Lines& arguments) {
    ProcessOptions joined;
    joined.joinErrors = true;
    auto tool = std::make_unique<Process>(TESSALY_ZPLOGGER, arguments, joined);
    EXPECT_EQ(tool->readLine(), "zplogger: waiting for clients as \"ZPLogger server\"");
    return tool;
  }

  static std::string answer(Process& process, const std::string& line) {
    EXPECT_TRUE(process.write(line + '\n'));
    return process.readLine().value_or("nothing");
  }

  /// Has the tool end, and gives what it has still written.
  static Lines endOf(Process& tool) {
    EXPECT_TRUE(tool.terminate());
    Lines lines;
    while (auto line = tool.readLine()) lines.push_back(*line);
    EXPECT_EQ(tool.wait(), 0);
    return lines;
  }

  std::filesystem::path file(const char* name) const { return folder_.path() / name; }

  TemporaryFolder folder_;
  CRegistry settings_;
};

/// Puts the switch into the machine's settings for a test, and takes it out again.
class WholeRoadOfAHostTest : public WholeRoadTest {
 protected:
  WholeRoadOfAHostTest() {
    settings_.SetLong(u"Logger", 1);
    settings_.SetString(u"Path", folder_.text());
  }
  ~WholeRoadOfAHostTest() override {
    settings_.SetLong(u"Logger", switchBefore_);
    settings_.SetString(u"Path", pathBefore_);
  }

  bool isSwitchedOn() const { return settings_.GetBool(u"Logger", False) != 0; }

 private:
  Long switchBefore_ = settings_.GetLong(u"Logger", 0);
  String pathBefore_ = settings_.GetString(u"Path", u"");
};

TEST_F(WholeRoadOfAHostTest, LinesAreShownAndStandInTheLogFileAndItsBackup) {
  if (!isSwitchedOn()) GTEST_SKIP() << "the machine's settings can't be written by this user";
  const auto tool = startTool({"--max-size", "200"});
  Process host("tests-trace-client");
  EXPECT_EQ(answer(host, "start"), "started yes");
  for (int i = 1; i <= 6; ++i)
    EXPECT_TRUE(
        answer(host, "trace " + std::to_string(i) + " line " + std::to_string(i)).starts_with("sent"));
  const Lines backup = linesOf(file("TessalySupport.bak"));
  const Lines log = linesOf(file("TessalySupport.log"));
  // 24 bytes of time, "1 TessalySupport line 1" and a line end: four of them fit.
  ASSERT_EQ(backup.size(), 4U);
  ASSERT_EQ(log.size(), 2U);
  EXPECT_EQ(withoutTime(backup[0]), "1 TessalySupport line 1");
  EXPECT_EQ(withoutTime(log[1]), "6 TessalySupport line 6");
  Lines shown = endOf(*tool);
  ASSERT_FALSE(shown.empty());
  EXPECT_NE(shown.front().find("TessalySupport"), std::string::npos);
  EXPECT_TRUE(shown.back().ends_with("  line 6")) << shown.back();
}

TEST_F(WholeRoadOfAHostTest, WithoutALoggerTheHostStaysSilentToItsEnd) {
  if (!isSwitchedOn()) GTEST_SKIP() << "the machine's settings can't be written by this user";
  Process host("tests-trace-client");
  EXPECT_EQ(answer(host, "start"), "started no");
  const auto tool = startTool({});
  EXPECT_TRUE(answer(host, "trace 0 lost").starts_with("sent"));
  EXPECT_EQ(answer(host, "connected"), "no");
  EXPECT_EQ(answer(host, "start"), "started no");
  EXPECT_EQ(endOf(*tool), Lines{});
}

TEST_F(WholeRoadOfAHostTest, WithTheSwitchOffNothingStarts) {
  settings_.SetLong(u"Logger", 0);
  const auto tool = startTool({});
  Process host("tests-trace-client");
  EXPECT_EQ(answer(host, "start"), "started none");
  EXPECT_TRUE(answer(host, "trace 256 off").starts_with("sent"));
  EXPECT_EQ(endOf(*tool), Lines{});
}

TEST_F(WholeRoadTest, AHundredThousandLinesOfAClientAreInTheFileWholeAndInOrder) {
  constexpr std::size_t count = 100'000;
  const auto tool = startTool({"--level", "255", "--max-size", "1G"});
  Process client("tests-trace-client");
  const std::string init = "init Host|" + utf8Of(file("host.log")) + "|";
  EXPECT_EQ(answer(client, init), "ready yes");
  EXPECT_TRUE(answer(client, "many " + std::to_string(count) + " a line").starts_with("sent"));
  const Lines lines = linesOf(file("host.log"));
  ASSERT_EQ(lines.size(), count);
  for (std::size_t i = 0; i < count; ++i)
    ASSERT_EQ(withoutTime(lines[i]), "0 Host a line " + std::to_string(i + 1));
  endOf(*tool);
}

TEST_F(WholeRoadTest, ClientsOfTwoProcessesWriteToTheirFiles) {
  const auto tool = startTool({});
  Process one("tests-trace-client");
  Process two("tests-trace-client");
  EXPECT_EQ(answer(one, "init One|" + utf8Of(file("one.log")) + "|"), "ready yes");
  EXPECT_TRUE(answer(one, "send 0 of one").starts_with("sent"));
  EXPECT_EQ(answer(two, "init Two|" + utf8Of(file("two.log")) + "|"), "ready yes");
  EXPECT_TRUE(answer(two, "send 3 of two").starts_with("sent"));
  ASSERT_EQ(linesOf(file("one.log")).size(), 1U);
  ASSERT_EQ(linesOf(file("two.log")).size(), 1U);
  EXPECT_EQ(withoutTime(linesOf(file("one.log"))[0]), "0 One of one");
  EXPECT_EQ(withoutTime(linesOf(file("two.log"))[0]), "3 Two of two");
}

TEST_F(WholeRoadTest, AToolThatIsKilledAndStartedAgainGoesOnWithTheFile) {
  auto tool = startTool({});
  Process client("tests-trace-client");
  EXPECT_EQ(answer(client, "init Host|" + utf8Of(file("host.log")) + "|"), "ready yes");
  EXPECT_TRUE(answer(client, "send 0 before").starts_with("sent"));
  tool->kill();
  tool->wait();
  EXPECT_TRUE(answer(client, "send 0 lost").starts_with("sent"));
  tool = startTool({});
  EXPECT_TRUE(answer(client, "send 0 after").starts_with("sent"));
  const Lines lines = linesOf(file("host.log"));
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(withoutTime(lines[0]), "0 Host before");
  EXPECT_EQ(withoutTime(lines[1]), "0 Host after");
}

TEST_F(WholeRoadTest, AFileThatMayNotBeWrittenIsToldAndLeft) {
  const auto tool = startTool({});
  Process client("tests-trace-client");
  EXPECT_EQ(answer(client, "init Host|relative.log|"), "ready yes");
  EXPECT_TRUE(answer(client, "send 0 shown all the same").starts_with("sent"));
  EXPECT_FALSE(std::filesystem::exists("relative.log"));
  const Lines shown = endOf(*tool);
  ASSERT_GE(shown.size(), 2U);
  EXPECT_NE(shown[1].find("can't write to \"relative.log\""), std::string::npos) << shown[1];
  EXPECT_TRUE(shown.back().ends_with("shown all the same"));
}

}  // namespace
}  // namespace tessaly::tests
