#include "tools/zplogger/Logger.h"

#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"
#include "tests/tools/zplogger/Stage.h"

namespace tessaly::zplogger {
namespace {

using Lines = std::vector<std::string>;

class ZpLoggerTest : public testing::Test {
 public:
  /// An absolute path on either platform.
  static String path(std::u16string_view name) {
    return (std::filesystem::temp_directory_path() / name).u16string();
  }

  static ClientRecord host() { return {u"Host", path(u"host.log"), path(u"host.bak")}; }
  static std::string shownPath(std::u16string_view name) { return toUtf8(path(name)); }

  static TraceRecord line(std::u16string_view text, std::uint8_t level = 0) {
    return {0, 0xFFFFFF, true, level, String(text)};
  }

  tests::StoppedClock clock;
  tests::MemoryDisk disk;
  View view{Filter()};
  LogFiles files{disk, 1000, [this](std::string notice) { view.tell(std::move(notice)); }};
  Logger logger{view, &files, clock};
};

TEST_F(ZpLoggerTest, BringsLinesIntoTheFileAndToTheView) {
  logger.addClient({458, 42}, host());
  logger.trace({458, 42}, line(u"Start", 2));
  logger.deleteClient({458, 42});
  EXPECT_EQ(disk.at(shownPath(u"host.log")), "2026-11-21 21:40:24.123 2 Host Start\n");
  EXPECT_EQ(tests::rest(view),
            (Lines{"# Host (process 42) is here; its lines go to " + shownPath(u"host.log"), "Host/42: Start",
                   "# Host (process 42) has left"}));
}

TEST_F(ZpLoggerTest, HasALineInItsFileWhenTheClientGoesOn) {
  logger.addClient({458, 42}, host());
  view.pause(true);
  logger.trace({458, 42}, line(u"Start"));
  EXPECT_EQ(disk.at(shownPath(u"host.log")), "2026-11-21 21:40:24.123 0 Host Start\n");
}

TEST_F(ZpLoggerTest, WritesAllLinesWhateverIsShown) {
  view.setFilter(Filter(3, u"nothing has this"));
  logger.addClient({458, 0}, host());
  logger.trace({458, 0}, line(u"one", 0));
  logger.trace({458, 0}, line(u"two", 3));
  EXPECT_EQ(disk.at(shownPath(u"host.log")),
            "2026-11-21 21:40:24.123 0 Host one\n2026-11-21 21:40:24.123 3 Host two\n");
  EXPECT_EQ(tests::rest(view), Lines{"# Host is here; its lines go to " + shownPath(u"host.log")});
}

TEST_F(ZpLoggerTest, TellsClientsOfOneIdApartByTheirProcesses) {
  logger.addClient({458, 1}, {u"One", path(u"one.log"), u""});
  logger.addClient({458, 2}, {u"Two", path(u"two.log"), u""});
  logger.trace({458, 1}, line(u"a"));
  logger.trace({458, 2}, line(u"b"));
  EXPECT_EQ(disk.at(shownPath(u"one.log")), "2026-11-21 21:40:24.123 0 One a\n");
  EXPECT_EQ(disk.at(shownPath(u"two.log")), "2026-11-21 21:40:24.123 0 Two b\n");
}

TEST_F(ZpLoggerTest, GivesALineToTheLastClientOfItsIdWhereProcessesAreNotTold) {
  logger.addClient({458, 0}, {u"One", path(u"one.log"), u""});
  logger.addClient({458, 0}, {u"Two", path(u"two.log"), u""});
  logger.trace({458, 0}, line(u"a"));
  EXPECT_FALSE(disk.has(shownPath(u"one.log")));
  EXPECT_EQ(disk.at(shownPath(u"two.log")), "2026-11-21 21:40:24.123 0 Two a\n");
}

TEST_F(ZpLoggerTest, ShowsALineOfAnUnknownSenderByItsId) {
  logger.trace({458, 7}, line(u"a"));
  logger.addClient({459, 7}, {u"", u"", u""});
  logger.trace({459, 7}, line(u"b"));
  EXPECT_EQ(tests::rest(view), (Lines{"1CA/7: a", "# 1CB (process 7) is here", "1CB/7: b"}));
  EXPECT_EQ(disk.openings, 0);
}

TEST_F(ZpLoggerTest, TellsOfAClientOnceHoweverOftenItComes) {
  for (int i = 0; i < 3; ++i) logger.addClient({458, 1}, {u"One", u"", u""});
  logger.addClient({458, 1}, {u"Two", u"", u""});
  logger.deleteClient({458, 3});
  EXPECT_EQ(tests::rest(view), (Lines{"# One (process 1) is here", "# Two (process 1) is here"}));
}

TEST_F(ZpLoggerTest, TellsOfALogFileThatIsNoPathAtOnce) {
  logger.addClient({458, 0}, {u"Host", u"host.log", u""});
  logger.trace({458, 0}, line(u"a"));
  EXPECT_EQ(disk.openings, 0);
  EXPECT_EQ(tests::rest(view),
            (Lines{"# Host is here", "# can't write to \"host.log\": it is no absolute path", "Host/0: a"}));
}

TEST_F(ZpLoggerTest, WritesNoFilesWhereItIsTold) {
  Logger silent(view, nullptr, clock);
  silent.addClient({458, 0}, host());
  silent.trace({458, 0}, line(u"a"));
  EXPECT_EQ(disk.openings, 0);
  EXPECT_EQ(tests::rest(view), (Lines{"# Host is here", "Host/0: a"}));
}

TEST_F(ZpLoggerTest, TellsAFaultOnceForAClient) {
  for (int i = 0; i < 3; ++i) logger.fault({458, 1}, "its block of memory can't be opened");
  logger.fault({458, 2}, "its block of memory can't be opened");
  EXPECT_EQ(tests::rest(view), (Lines{"# 1CA (process 1): its block of memory can't be opened",
                                      "# 1CA (process 2): its block of memory can't be opened"}));
}

TEST(ZpClients, ForgetTheOneThatWasSilentForTheLongestTime) {
  Clients clients;
  for (std::uint32_t i = 0; i < Clients::kMost; ++i) EXPECT_TRUE(clients.add({458, i + 1}, {u"a", u"", u""}));
  EXPECT_NE(clients.find({458, 1}), nullptr);
  EXPECT_TRUE(clients.add({458, 0}, {u"a", u"", u""}));
  EXPECT_NE(clients.find({458, 1}), nullptr);
  EXPECT_EQ(clients.find({458, 2}), nullptr);
  EXPECT_TRUE(clients.remove({458, 1}));
  EXPECT_FALSE(clients.remove({458, 1}));
}

}  // namespace
}  // namespace tessaly::zplogger
