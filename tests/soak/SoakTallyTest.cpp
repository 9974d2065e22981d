#include "tests/soak/SoakTally.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>

#include "tests/soak/SoakLine.h"

namespace tessaly::soak {
namespace {

std::string logLine(const std::string& text) { return "2026-01-02 03:04:05.678 0 soak " + text; }
std::string logLine(unsigned client, std::uint64_t number) { return logLine(lineText({client, number})); }

TEST(SoakTally, AllLinesInOrderArePerfect) {
  SoakTally tally({2, 1});
  tally.add(0, logLine(0, 1));
  tally.add(0, logLine(0, 2));
  tally.add(1, logLine(1, 1));
  EXPECT_TRUE(tally.isPerfect());
}

TEST(SoakTally, AnotherClientsLineExplainsAMissingOne) {
  SoakTally tally({2, 1});
  tally.add(0, logLine(0, 1));
  tally.add(0, logLine(1, 1));
  tally.add(1, logLine(1, 1));
  EXPECT_TRUE(tally.isExplained());
  EXPECT_FALSE(tally.isPerfect());
  std::ostringstream out;
  tally.print(out);
  EXPECT_NE(out.str().find("lines doubled: they stand in several                   1  100.0000 %"),
            std::string::npos)
      << out.str();
}

TEST(SoakTally, PartsOfSeveralLinesExplainAMissingOne) {
  SoakTally tally({1, 1});
  tally.add(0, logLine(lineText({0, 1}).substr(0, 30) + lineText({1, 1}).substr(30)));
  tally.add(1, logLine(1, 1));
  EXPECT_TRUE(tally.isExplained());
  EXPECT_FALSE(tally.isPerfect());
}

TEST(SoakTally, AMessageThatNeverCameIsNotExplained) {
  SoakTally tally({2});
  tally.add(0, logLine(0, 1));
  EXPECT_FALSE(tally.isExplained());
}

TEST(SoakTally, AMessageThatCameTwiceIsNotExplained) {
  SoakTally tally({1});
  tally.add(0, logLine(0, 1));
  tally.add(0, logLine(0, 1));
  EXPECT_FALSE(tally.isExplained());
}

TEST(SoakTally, LinesInAnotherOrderAreNotExplained) {
  SoakTally tally({2});
  tally.add(0, logLine(0, 2));
  tally.add(0, logLine(0, 1));
  EXPECT_FALSE(tally.isExplained());
}

TEST(SoakTally, ALineThatNobodyHasSentIsNotExplained) {
  SoakTally tally({1, 1});
  tally.add(0, logLine(1, 2));
  tally.add(1, logLine(1, 1));
  EXPECT_FALSE(tally.isExplained());
}

TEST(SoakLine, EveryLineIsKnownAgainAndNoneIsTooLong) {
  std::size_t longest = 0;
  for (std::uint64_t number = 1; number <= 5000; ++number) {
    const std::string text = lineText({2, number});
    longest = std::max(longest, text.size());
    EXPECT_EQ(wholeLine(text), (LineId{2, number}));
  }
  EXPECT_EQ(longest, kLongest);
}

TEST(SoakLine, AChangedByteIsSeen) {
  for (std::size_t n = 0; n < lineText({1, 7}).size(); ++n) {
    std::string text = lineText({1, 7});
    text[n] = text[n] == '9' ? '8' : '9';
    EXPECT_EQ(wholeLine(text), std::nullopt) << n;
  }
}

TEST(SoakLine, ALineThatIsCutOrGoesOnIsSeen) {
  const std::string text = lineText({1, 7});
  EXPECT_EQ(wholeLine(text.substr(0, text.size() - 1)), std::nullopt);
  EXPECT_EQ(wholeLine(text + "A"), std::nullopt);
  EXPECT_EQ(wholeLine(text.substr(0, 10)), std::nullopt);
  EXPECT_EQ(wholeLine(""), std::nullopt);
}

}  // namespace
}  // namespace tessaly::soak
