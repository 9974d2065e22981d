// A logger that was written in another language, from docs/formats.md alone: what the page tells is what is
// done.

#include <gtest/gtest.h>

#include "tests/support/OwnRuntime.h"
#include "tests/support/Process.h"

namespace tessaly::tests {
namespace {

class PythonLoggerTest : public testing::Test {
 protected:
  PythonLoggerTest() { useOwnRuntime(); }

  static std::string answer(Process& process, const std::string& line) {
    EXPECT_TRUE(process.write(line + '\n'));
    return process.readLine().value_or("nothing");
  }

  static Process startLogger(const std::string& codec = "cp1252") {
    return Process("/usr/bin/env", {"python3", "tests/trace/linux/logger.py", codec});
  }
};

TEST_F(PythonLoggerTest, HearsAClientAndItsLines) {
  Process logger = startLogger();
  ASSERT_EQ(logger.readLine(), "ready");
  Process client("tests-trace-client");
  EXPECT_EQ(answer(client, "init Größe|/l/host.log|/l/host.bak"), "ready yes");
  EXPECT_EQ(logger.readLine(), "add Größe|/l/host.log|/l/host.bak");
  EXPECT_TRUE(answer(client, "send 2 Übergröße €").starts_with("sent"));
  EXPECT_EQ(logger.readLine(), "trace 2 1 00000000 00FFFFFF Übergröße €");
  EXPECT_EQ(answer(client, "send 256 never"), "error 6");
  EXPECT_TRUE(answer(client, "send 255 " + std::string(6000, 'x')).starts_with("sent"));
  EXPECT_EQ(logger.readLine(), "trace 255 1 00000000 00FFFFFF " + std::string(4986, 'x'));
}

TEST_F(PythonLoggerTest, ReadsTheCodePageOfTheUser) {
  Process logger = startLogger("cp932");
  ASSERT_EQ(logger.readLine(), "ready");
  const ProcessOptions japanese{{{"LC_ALL", "ja_JP.UTF-8"}}, false};
  Process client("tests-trace-client", {}, japanese);
  EXPECT_EQ(answer(client, "init Host||"), "ready yes");
  EXPECT_EQ(logger.readLine(), "add Host||");
  EXPECT_TRUE(answer(client, "send 0 日本ab").starts_with("sent"));
  EXPECT_EQ(logger.readLine(), "trace 0 1 00000000 00FFFFFF 日本");
}

TEST_F(PythonLoggerTest, ServesTwoClientsAndAsManyLinesAsTheySend) {
  constexpr int lines = 200;
  Process logger = startLogger();
  ASSERT_EQ(logger.readLine(), "ready");
  Process one("tests-trace-client");
  Process two("tests-trace-client");
  EXPECT_EQ(answer(one, "init One||"), "ready yes");
  EXPECT_EQ(answer(two, "init Two||"), "ready yes");
  EXPECT_EQ(logger.readLine(), "add One||");
  EXPECT_EQ(logger.readLine(), "add Two||");
  for (Process* client : {&one, &two}) client->write("many " + std::to_string(lines) + " line\n");
  for (int i = 0; i < 2 * lines; ++i) {
    const auto line = logger.readLine();
    ASSERT_TRUE(line && line->starts_with("trace 0 ")) << line.value_or("nothing");
  }
}

TEST_F(PythonLoggerTest, ItsEndIsNoticedAndItsSuccessorFound) {
  Process client("tests-trace-client");
  {
    Process logger = startLogger();
    ASSERT_EQ(logger.readLine(), "ready");
    EXPECT_EQ(answer(client, "init Host||"), "ready yes");
    logger.closeInput();
    EXPECT_EQ(logger.wait(), 0);
  }
  EXPECT_TRUE(answer(client, "send 0 lost").starts_with("sent"));
  EXPECT_EQ(answer(client, "connected"), "no");
  Process logger = startLogger();
  ASSERT_EQ(logger.readLine(), "ready");
  EXPECT_TRUE(answer(client, "send 0 heard").starts_with("sent"));
  EXPECT_EQ(logger.readLine(), "add Host||");
  EXPECT_EQ(logger.readLine(), "trace 0 1 00000000 00FFFFFF heard");
}

TEST_F(PythonLoggerTest, AKilledOneIsNeverFound) {
  Process client("tests-trace-client");
  {
    Process logger = startLogger();
    ASSERT_EQ(logger.readLine(), "ready");
    logger.kill();
    logger.wait();
  }
  EXPECT_EQ(answer(client, "init Host||"), "ready no");
}

}  // namespace
}  // namespace tessaly::tests
