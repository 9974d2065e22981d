// What stands in the block when a message is sent, byte for byte.

#include <gtest/gtest.h>

#include <limits>

#include "tessaly/platform/fake/Locale.h"
#include "tests/support/Errors.h"
#include "tests/trace/LoggerOfTests.h"
#include "tests/trace/ZPLoggerClientPeer.h"

namespace tessaly::tests {
namespace {

using namespace std::string_literals;

constexpr std::size_t kRoomForText = 4986;

std::string number(std::uint32_t value) {
  return {static_cast<char>(value), static_cast<char>(value >> 8), static_cast<char>(value >> 16),
          static_cast<char>(value >> 24)};
}

std::string text(std::string_view bytes) {
  return number(static_cast<std::uint32_t>(bytes.size())) + std::string(bytes);
}

class RecordsTest : public testing::Test {
 protected:
  RecordsTest() { client_.Init(u"Host", u"C:\\L\\Host.log", u"C:\\L\\Host.bak"); }

  /// The bytes of the block that a line makes.
  std::string sent(std::u16string_view line, std::size_t size) {
    client_.SendTrace(line, 0, 0xFFFFFF, 0, True);
    return std::string(logger_.lastBlock(size));
  }

  /// The bytes of a line's text, and the length that is told for it.
  void expectText(std::u16string_view line, const std::string& bytes) {
    EXPECT_EQ(sent(line, 14 + bytes.size()).substr(10), text(bytes));
  }

  Machine machine_;
  platform::fake::Locale locale_{1033, u"."};
  platform::Override localeInForce_{locale_};
  NotingLogger logger_{machine_};
  ZPLoggerClient client_;
};

TEST_F(RecordsTest, AClientTellsItsNameAndItsFilesWithoutGaps) {
  ASSERT_EQ(logger_.order(), "Add");
  EXPECT_EQ(logger_.lastBlock(42), "\x04\0\0\0Host\x0D\0\0\0C:\\L\\Host.log\x0D\0\0\0C:\\L\\Host.bak"s);
  EXPECT_EQ(logger_.lastBlock(kBlockSize).substr(42), std::string(kBlockSize - 42, '\0'));
}

TEST_F(RecordsTest, ALineIsItsColoursItsFlagItsLevelAndItsText) {
  client_.SendTrace(u"Start", 0, 0xFFFFFF, 0, True);
  EXPECT_EQ(logger_.order(), "Add Trace");
  EXPECT_EQ(logger_.lastBlock(19), "\0\0\0\0\xFF\xFF\xFF\0\x01\0\x05\0\0\0Start"s);
}

TEST_F(RecordsTest, WhatLiesBehindARecordIsLeftFromEarlierOnes) {
  EXPECT_EQ(sent(u"Start", 42).substr(19), "st.log\x0D\0\0\0C:\\L\\Host.bak"s);
}

TEST_F(RecordsTest, MessagesCarryTheClientsNumberAndNothingElse) {
  client_.SendTrace(u"x", 0, 0, 0, True);
  for (const NotingLogger::Note& note : logger_.notes()) {
    EXPECT_EQ(note.wParam, 0U);
    EXPECT_EQ(note.lParam, 458);
  }
}

TEST_F(RecordsTest, NumbersHaveTheirLowByteFirst) {
  client_.SendTrace(u"", 0x11223344, std::numeric_limits<Long>::min() + 0x55, 0x66, True);
  EXPECT_EQ(logger_.lastBlock(10), "\x44\x33\x22\x11\x55\0\0\x80\x01\x66"s);
}

TEST_F(RecordsTest, AnEmptyTextGivesFourteenBytes) {
  const std::string before(machine_.memory.bytes(kBlockName).substr(14));
  EXPECT_EQ(sent(u"", 14), "\0\0\0\0\xFF\xFF\xFF\0\x01\0\0\0\0\0"s);
  EXPECT_EQ(machine_.memory.bytes(kBlockName).substr(14), before);
}

TEST_F(RecordsTest, AnEmptyFileIsItsLengthAlone) {
  NotingLogger other(machine_);
  ZPLoggerClient client;
  client.Init(u"Host", u"/l", u"");
  EXPECT_EQ(other.lastBlock(18), "\x04\0\0\0Host\x02\0\0\0/l\0\0\0\0"s);
}

TEST_F(RecordsTest, AnyFlagButZeroArrivesAsOne) {
  const std::pair<std::int64_t, char> rows[] = {{0, 0}, {1, 1}, {-1, 1}, {2, 1}, {0x10000, 0}, {0x10001, 1}};
  for (const auto& [flag, byte] : rows) {
    client_.SendTrace(u"x", 0, 0, 0, Boolean(flag));
    EXPECT_EQ(logger_.lastBlock(9).back(), byte) << flag;
  }
}

TEST_F(RecordsTest, EveryLevelOfAByteArrives) {
  for (const Long level : {0, 1, 127, 128, 255}) {
    client_.SendTrace(u"x", 0, 0, level, True);
    EXPECT_EQ(static_cast<unsigned char>(logger_.lastBlock(10).back()), level);
  }
}

/// The error comes while the record is half written: colours and flag stand in the block already.
TEST_F(RecordsTest, ALevelThatIsNoByteRaisesAnErrorAndSendsNothing) {
  for (const Long level :
       {256, -1, 257, std::numeric_limits<Long>::max(), std::numeric_limits<Long>::min()}) {
    client_.SendTrace(u"before", 1, 1, 7, False);
    const std::size_t messages = logger_.notes().size();
    EXPECT_EQ(errorOf([&] { client_.SendTrace(u"x", 2, 3, level, True); }), RuntimeError::Overflow) << level;
    EXPECT_EQ(logger_.notes().size(), messages);
    EXPECT_EQ(machine_.memory.bytes(kBlockName).substr(0, 20),
              "\x02\0\0\0\x03\0\0\0\x01\x07\x06\0\0\0before"s);
  }
  EXPECT_EQ(sent(u"after", 19).substr(10), text("after"));
}

TEST_F(RecordsTest, ANulInATextIsACharacterLikeAnyOther) { expectText(u"a\0b"s, "a\0b"s); }

TEST_F(RecordsTest, ACharacterThatThePageLacksArrivesAsItsSubstitute) {
  expectText(u"\xE9\x20AC", "\xE9\x80");
  expectText(u"a\x65E5\x672C z", "a?? z");
}

TEST_F(RecordsTest, ATextThatFillsTheBlockIsWhole) {
  const std::string line(kRoomForText, 'x');
  EXPECT_EQ(sent(String(kRoomForText, u'x'), kBlockSize).substr(10), text(line));
}

TEST_F(RecordsTest, ATextThatDoesNotFitIsCutAndItsLengthWithIt) {
  for (const std::size_t size :
       {kRoomForText + 1, std::size_t{5000}, std::size_t{5001}, std::size_t{1'000'000}}) {
    String line(size, u'x');
    line[kRoomForText - 1] = u'y';
    EXPECT_EQ(sent(line, kBlockSize).substr(10), text(std::string(kRoomForText - 1, 'x') + 'y')) << size;
  }
}

TEST_F(RecordsTest, AClientWhoseTextsDoNotFitIsCutFromTheEnd) {
  const std::string full(4988, 'n');
  NotingLogger other(machine_);
  ZPLoggerClient client;
  client.Init(String(6000, u'n'), u"log", u"bak");
  EXPECT_EQ(other.lastBlock(kBlockSize), text(full) + text("") + text(""));
}

TEST_F(RecordsTest, AClientsLastTextIsCutToTheRoomThatIsLeft) {
  NotingLogger other(machine_);
  ZPLoggerClient client;
  client.Init(String(4000, u'n'), String(900, u'l'), String(900, u'b'));
  EXPECT_EQ(other.lastBlock(kBlockSize),
            text(std::string(4000, 'n')) + text(std::string(900, 'l')) + text(std::string(88, 'b')));
}

TEST_F(RecordsTest, TextsThatJustFitAreWhole) {
  NotingLogger other(machine_);
  ZPLoggerClient client;
  client.Init(String(4000, u'n'), String(900, u'l'), String(88, u'b'));
  EXPECT_EQ(other.lastBlock(kBlockSize),
            text(std::string(4000, 'n')) + text(std::string(900, 'l')) + text(std::string(88, 'b')));
}

/// A page and a text in it: what arrives is as many bytes as the text has characters.
struct PageRow {
  Long page;
  const char16_t* text;
  const char* bytes;
};

class CodePagesOfRecordsTest : public testing::TestWithParam<PageRow> {};

constexpr PageRow kPages[] = {
    {874, u"ก ไทย", "\xA1 \xE4\xB7\xC2"},
    {932, u"日本", "\x93\xFA"},
    {932, u"a日b", "a\x93\xFA"},
    {932, u"ｱｲ", "\xB1\xB2"},
    {936, u"中文字", "\xD6\xD0\xCE"},
    {949, u"한국", "\xC7\xD1"},
    {950, u"中文", "\xA4\xA4"},
    {1250, u"łódź", "\xB3\xF3\x64\x9F"},
    {1251, u"Привет", "\xCF\xF0\xE8\xE2\xE5\xF2"},
    {1252, u"Größe €", "Gr\xF6\xDF\x65 \x80"},
    {1253, u"Γειά", "\xC3\xE5\xE9\xDC"},
    {1254, u"ışık", "\xFD\xFE\xFD\x6B"},
    {1255, u"שלום", "\xF9\xEC\xE5\xED"},
    {1256, u"سلام", "\xD3\xE1\xC7\xE3"},
    {1257, u"žąsis", "\xFE\xE0sis"},
    {1258, u"₫ đ", "\xFE \xF0"},
    {65001, u"é€", "\xC3\xA9"},
};

INSTANTIATE_TEST_SUITE_P(Page, CodePagesOfRecordsTest, testing::ValuesIn(kPages), [](const auto& tested) {
  return std::to_string(tested.param.page) + "_" + std::to_string(tested.index);
});

TEST_P(CodePagesOfRecordsTest, ALineArrivesInItsPage) {
  const PageRow& row = GetParam();
  platform::fake::Locale locale(1033, u".", row.page);
  const platform::Override localeInForce(locale);
  Machine machine;
  NotingLogger logger(machine);
  ZPLoggerClient client;
  client.Init(row.text, u"", u"");
  EXPECT_EQ(logger.lastBlock(4 + std::string(row.bytes).size()), text(row.bytes));
  client.SendTrace(row.text, 0, 0, 0, True);
  EXPECT_EQ(logger.lastBlock(14 + std::string(row.bytes).size()).substr(10), text(row.bytes));
}

TEST_P(CodePagesOfRecordsTest, ALongLineStaysWithinTheBlock) {
  const PageRow& row = GetParam();
  platform::fake::Locale locale(1033, u".", row.page);
  const platform::Override localeInForce(locale);
  Machine machine;
  NotingLogger logger(machine);
  ZPLoggerClient client;
  client.Init(u"", u"", u"");
  String line;
  while (line.size() < 2 * kBlockSize) line += row.text;
  client.SendTrace(line, 0, 0, 0, True);
  EXPECT_EQ(logger.lastBlock(14).substr(10), number(kRoomForText));
}

}  // namespace
}  // namespace tessaly::tests
