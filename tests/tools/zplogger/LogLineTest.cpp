#include "tools/zplogger/LogLine.h"

#include <gtest/gtest.h>

namespace tessaly::zplogger {
namespace {

constexpr LocalTime kTime{2026, 11, 21, 21, 40, 24, 123};

std::string lineInFile(std::u16string_view text) {
  return logLine(kTime, {0, 0, true, 2, String(text)}, u"Host");
}

TEST(ZpLogLine, HasTimeLevelClientAndText) {
  EXPECT_EQ(lineInFile(u"Start"), "2026-11-21 21:40:24.123 2 Host Start\n");
  EXPECT_EQ(logLine({2026, 1, 2, 3, 4, 5, 6}, {0, 0, true, 255, u"日本"}, u"Ä"),
            "2026-01-02 03:04:05.006 255 Ä 日本\n");
  EXPECT_EQ(lineInFile(u""), "2026-11-21 21:40:24.123 2 Host \n");
}

TEST(ZpLogLine, IsOneLineWhateverTheRecordHas) {
  EXPECT_EQ(lineInFile(u"a\nb\r\n\x1B[31m\x2028"),
            "2026-11-21 21:40:24.123 2 Host a\\u000Ab\\u000D\\u000A\\u001B[31m\\u2028\n");
  EXPECT_EQ(logLine(kTime, {}, u"a\nb"), "2026-11-21 21:40:24.123 0 a\\u000Ab \n");
}

TEST(ZpLogLine, IsKnownByItsTime) {
  EXPECT_TRUE(beginsAsLog(lineInFile(u"x")));
  EXPECT_TRUE(beginsAsLog("2026-11-21 21:40:24.123 "));
  for (const char* other :
       {"", "x", "2026-11-21 21:40:24.123", "2026-11-21T21:40:24.123 0 Host x",
        "2026-11-21 21:40:24,123 0 Host x", " 2026-11-21 21:40:24.123 0", "20x6-11-21 21:40:24.123 0 Host"})
    EXPECT_FALSE(beginsAsLog(other)) << other;
}

}  // namespace
}  // namespace tessaly::zplogger
