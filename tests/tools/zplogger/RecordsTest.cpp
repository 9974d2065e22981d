#include "tests/tools/zplogger/Records.h"

#include <gtest/gtest.h>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Locale.h"
#include "tests/support/Print.h"

namespace tessaly::zplogger {
namespace {

using tests::block;
using tests::clientBytes;
using tests::number;
using tests::shown;
using tests::traceBytes;

class ZpRecordsTest : public testing::Test {
 private:
  platform::fake::Locale locale_{1033, u".", 1252};
  platform::Override localeInForce_{locale_};
};

TEST_F(ZpRecordsTest, OfATraceHaveColoursFlagLevelAndText) {
  const auto record = readTraceRecord(block(std::string("\0\0\0\0\xFF\xFF\xFF\0\1\0\5\0\0\0Start", 19)));
  ASSERT_TRUE(record);
  EXPECT_EQ(*record, (TraceRecord{0, 0xFFFFFF, true, 0, u"Start"}));
  const auto other = readTraceRecord(block(traceBytes("\xC4rger", 255, 0x80, 0xFF000000)));
  ASSERT_TRUE(other);
  EXPECT_EQ(*other, (TraceRecord{0x80, 0xFF000000, true, 255, u"Ärger"}));
}

TEST_F(ZpRecordsTest, OfAClientHaveThreeTexts) {
  const auto record = readClientRecord(block(clientBytes("Host", "C:\\L\\Host.log", "C:\\L\\Host.bak")));
  ASSERT_TRUE(record);
  EXPECT_EQ(*record, (ClientRecord{u"Host", u"C:\\L\\Host.log", u"C:\\L\\Host.bak"}));
  const auto empty = readClientRecord(block(clientBytes("", "", "")));
  ASSERT_TRUE(empty);
  EXPECT_EQ(*empty, ClientRecord{});
}

TEST_F(ZpRecordsTest, FillTheBlockToItsLastByte) {
  const std::string longest(kBlockSize - 14, 'x');
  const auto trace = readTraceRecord(block(traceBytes(longest)));
  ASSERT_TRUE(trace);
  EXPECT_EQ(trace->text.size(), longest.size());
  const auto client = readClientRecord(block(clientBytes("a", "b", std::string(kBlockSize - 14, 'x'))));
  ASSERT_TRUE(client);
  EXPECT_EQ(client->backupFile.size(), kBlockSize - 14);
}

TEST_F(ZpRecordsTest, OfATraceThatDoNotFitAreNone) {
  const std::string head = number(0) + number(0) + std::string(2, '\0');
  const std::pair<const char*, std::string> rows[] = {
      {"one byte too long", block(head + number(kBlockSize - 13))},
      {"the longest there is", block(head + number(0xFFFFFFFF))},
      {"a sum that wraps around", block(head + number(0xFFFFFFFF - 13))},
      {"negative as a signed number", block(head + number(0x80000000))},
      {"all ones", block("", '\xFF')},
      {"nothing", ""},
      {"cut in a colour", std::string(3, '\0')},
      {"cut before the flag", number(0) + number(0)},
      {"cut in the length", head + "\x01"},
      {"cut in the text", head + number(5) + "four"},
      {"more bytes than a block has", block(head + number(kBlockSize - 13)) + "x"},
  };
  for (const auto& [name, bytes] : rows) EXPECT_FALSE(readTraceRecord(bytes)) << name;
}

TEST_F(ZpRecordsTest, OfAClientThatDoNotFitAreNone) {
  const std::pair<const char*, std::string> rows[] = {
      {"a name that is too long", block(number(kBlockSize - 3))},
      {"a log file that is too long", block(number(0) + number(kBlockSize - 7))},
      {"a backup file that is too long", block(number(0) + number(0) + number(kBlockSize - 11))},
      {"no room for a second length", block(number(kBlockSize - 5))},
      {"no room for a third length", block(number(0) + number(kBlockSize - 9))},
      {"lengths whose sum wraps around", block(number(0xFFFFFFFC) + number(4) + number(0))},
      {"all ones", block("", '\xFF')},
      {"nothing", ""},
      {"cut in the last text", number(0) + number(0) + number(2) + "x"},
  };
  for (const auto& [name, bytes] : rows) EXPECT_FALSE(readClientRecord(bytes)) << name;
}

TEST_F(ZpRecordsTest, OfZerosAreEmpty) {
  const std::string zeros(kBlockSize, '\0');
  EXPECT_EQ(readTraceRecord(zeros), TraceRecord{});
  EXPECT_EQ(readClientRecord(zeros), ClientRecord{});
}

TEST_F(ZpRecordsTest, KeepNulsAndControlCharacters) {
  const auto record = readTraceRecord(block(traceBytes(std::string_view("a\0\x1b[2J\n", 7))));
  ASSERT_TRUE(record);
  EXPECT_EQ(record->text, String(u"a\0\x1B[2J\n", 7));
}

// A client counts characters where the text has two bytes for each, so the second half stays behind.
TEST(ZpRecordsOfDoubleBytePages, MayEndWithinACharacter) {
  platform::fake::Locale locale(1041, u".", 932);
  const platform::Override localeInForce(locale);
  const auto whole = readTraceRecord(block(traceBytes("\x93\xFA\x96\x7B")));
  ASSERT_TRUE(whole);
  EXPECT_EQ(shown(whole->text), shown(u"日本"));
  const auto cut = readTraceRecord(block(traceBytes("\x93\xFA\x96")));
  ASSERT_TRUE(cut);
  EXPECT_EQ(shown(cut->text.substr(0, 1)), shown(u"日"));
  EXPECT_EQ(cut->text.size(), 2U);
}

}  // namespace
}  // namespace tessaly::zplogger
