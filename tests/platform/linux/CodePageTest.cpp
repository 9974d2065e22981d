#include "tessaly/platform/linux/CodePage.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "tests/support/Print.h"

namespace tessaly::platform {
namespace {

TEST(CodePages, ReplaceNothingByWhatMerelyLooksAlike) {
  EXPECT_EQ(CodePage::of(1251).bytesOf(u"é"), "?");
  EXPECT_EQ(CodePage::of(1252).bytesOf(u"Ａā∞≤"), "????");
  EXPECT_EQ(CodePage::of(932).bytesOf(u"é¥\xA0"), "???");
  EXPECT_EQ(CodePage::of(1253).bytesOf(u"ª"), "?");
  EXPECT_EQ(CodePage::of(932).bytesOf(u"\xF86F"), "?");
}

TEST(CodePages, WriteThePairThatWindowsWritesWhereSeveralStandForOneCharacter) {
  const CodePage& japanese = CodePage::of(932);
  const struct {
    const char* bytes;
    const char* written;
    const char* text;
  } rows[] = {{"\x87\x90", "\x81\xE0", "≒"}, {"\xFA\x5B", "\x81\xE6", "∵"},  {"\xFA\x59", "\x87\x82", "№"},
              {"\xEE\xEF", "\xFA\x40", "ⅰ"}, {"\xED\x40", "\xFA\x5C", "纊"}, {"\xEE\xF9", "\x81\xCA", "￢"}};
  for (const auto& row : rows) {
    EXPECT_EQ(tests::shown(japanese.textOf(row.bytes)), row.text);
    EXPECT_EQ(japanese.bytesOf(japanese.textOf(row.bytes)), row.written) << row.text;
  }
}

/// The sums are those of Windows's own tables without its replacements.
TEST(CodePages, HaveTheCodesOfWindows) {
  const struct {
    Long page;
    std::uint32_t sum;
  } rows[] = {{874, 0x42DEB326},  {932, 0xDCC2FF57},  {936, 0xC47244DD},  {949, 0xDEEBB3BA},
              {950, 0x0CD795D0},  {1250, 0xDFEE5EB8}, {1251, 0x009EDB72}, {1252, 0x39F810D0},
              {1253, 0xD45A7618}, {1254, 0x2384EAB6}, {1255, 0x717C9332}, {1256, 0x62B80578},
              {1257, 0x6670DD2E}, {1258, 0x6A147D50}};
  for (const auto& row : rows) {
    std::uint32_t sum = 0;
    for (unsigned unit = 0; unit < 0x10000; ++unit) {
      for (const char byte : CodePage::of(row.page).bytesOf(String(1, static_cast<char16_t>(unit))))
        sum = sum * 31 + static_cast<unsigned char>(byte);
    }
    EXPECT_EQ(sum, row.sum) << row.page;
  }
}

TEST(CodePages, AreMadeOnce) {
  EXPECT_EQ(&CodePage::of(949), &CodePage::of(949));
  EXPECT_NE(&CodePage::of(949), &CodePage::of(950));
  EXPECT_EQ(&CodePage::of(12345), &CodePage::of(1252));
}

TEST(CodePages, ServeSeveralThreadsFromTheFirstNeed) {
  std::vector<std::thread> threads;
  threads.reserve(4);
  while (threads.size() < 4) {
    threads.emplace_back([] {
      for (const Long page : {936, 1254, 1256}) EXPECT_EQ(CodePage::of(page).textOf("\x80"), u"\x20AC");
    });
  }
  for (std::thread& thread : threads) thread.join();
}

}  // namespace
}  // namespace tessaly::platform
