// By which titles the logger's window is found.

#include <gtest/gtest.h>

#include <string>

#include "tests/trace/LoggerOfTests.h"
#include "tests/trace/ZPLoggerClientPeer.h"

namespace tessaly::tests {
namespace {

bool isFound(const std::string& title) {
  Machine machine;
  NotingLogger logger(machine, title.c_str());
  ZPLoggerClient client;
  client.Init(u"", u"", u"");
  return ZPLoggerClientPeer::loggerWindow(client) == logger.window();
}

TEST(SearchTest, FindsTheTitleAndWhateverFollowsIt) {
  for (const char* title : {"ZPLogger server", "ZPLogger servers", "ZPLogger server 2.1 (running)",
                            "ZPLogger server\t", "ZPLogger server   ", "ZPLogger server\xE9\x93\xFA"})
    EXPECT_TRUE(isFound(title)) << title;
}

TEST(SearchTest, LeavesOutSpacesAtTheFrontAndNothingElse) {
  EXPECT_TRUE(isFound(" ZPLogger server"));
  EXPECT_TRUE(isFound("      ZPLogger server x"));
  EXPECT_FALSE(isFound("\tZPLogger server"));
  EXPECT_FALSE(isFound("x ZPLogger server"));
  EXPECT_FALSE(isFound("\xA0ZPLogger server"));
}

TEST(SearchTest, PassesOverTitlesThatAreShorterOrInAnotherCase) {
  for (const char* title : {"", " ", "ZPLogger", "ZPLogger serve", "ZPLogger serve ", "zplogger server",
                            "ZPLogger Server", "ZPLOGGER SERVER", "ZPLogger  server", "ZPLoggerserver"})
    EXPECT_FALSE(isFound(title)) << title;
}

TEST(SearchTest, LooksAtTheFirstThousandBytesOfATitle) {
  EXPECT_TRUE(isFound("ZPLogger server" + std::string(5000, 'x')));
  // A buffer of 1000 has room for 999 and a NUL.
  EXPECT_TRUE(isFound(std::string(984, ' ') + "ZPLogger server"));
  EXPECT_FALSE(isFound(std::string(985, ' ') + "ZPLogger server"));
}

TEST(SearchTest, GoesOnUntilItFindsOneAndNotFurther) {
  Machine machine;
  NotingLogger older(machine);
  NotingLogger logger(machine);
  NotingLogger other(machine, "Editor");
  ZPLoggerClient client;
  client.Init(u"", u"", u"");
  EXPECT_EQ(ZPLoggerClientPeer::loggerWindow(client), logger.window());
  EXPECT_EQ(machine.count("GetWindowTextA"), 2U);
}

TEST(SearchTest, ASearchThatFindsNothingForgetsWhatAnEarlierOneFound) {
  Machine machine;
  ZPLoggerClient client;
  {
    NotingLogger logger(machine);
    client.Init(u"", u"", u"");
    EXPECT_TRUE(client.Connected());
  }
  client.SendTrace(u"lost", 0, 0, 0, True);
  EXPECT_FALSE(client.Connected());
}

}  // namespace
}  // namespace tessaly::tests
