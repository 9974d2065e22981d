// Help archives as files: sound ones, and whatever else comes by that name.

#include <gtest/gtest.h>

#include <algorithm>

#include "tessaly/base/Text.h"
#include "tessaly/hosts/qt/help/HelpArchive.h"
#include "tessaly/hosts/qt/help/HelpBook.h"
#include "tests/hosts/qt/help/HelpSupport.h"

namespace tessaly::tests {
namespace {

using qt::HelpArchive;
using qt::HelpBook;

std::string guideBytes() { return helpFileBytes("guide.chm"); }

/// Reads all that can be read; how many files there were.
std::size_t readAll(const HelpArchive& archive) {
  std::size_t count = 0;
  for (const String& name : archive.names()) count += archive.read(name) ? 1 : 0;
  return count;
}

/// Whatever the bytes are, they come to an end without harm.
void useAsArchive(std::string bytes) {
  const auto archive = HelpArchive::of(std::move(bytes));
  if (!archive) return;
  readAll(*archive);
  const HelpBook book(archive);
  book.findNumber(100);
}

TEST(HelpArchiveTest, GivesEachFileAsItWent) {
  const auto archive = HelpArchive::of(guideBytes());
  ASSERT_NE(archive, nullptr);
  for (const char* const name : {"Overview.html", "Settings.html", "parts/Deep.html", "parts/With blank.html",
                                 "Russian.html", "Japanese.html", "pictures/diagram.png", "guide.hhc"}) {
    const auto bytes = archive->read(fromUtf8(name));
    ASSERT_TRUE(bytes) << name;
    EXPECT_EQ(*bytes, helpFileBytes("guide/" + std::string(name))) << name;
  }
}

TEST(HelpArchiveTest, FindsNamesInAnyCaseWithSlashesEitherWay) {
  const auto archive = HelpArchive::of(guideBytes());
  ASSERT_NE(archive, nullptr);
  for (const char16_t* const name : {u"overview.HTML", u"/Overview.html", u"PARTS\\..\\Overview.html",
                                     u"./Overview.html", u"../../Overview.html", u"//Overview.html"}) {
    EXPECT_TRUE(archive->has(name)) << toUtf8(name);
  }
  EXPECT_FALSE(archive->has(u"Overview"));
  EXPECT_FALSE(archive->has(u""));
  EXPECT_FALSE(archive->read(u"Missing.html"));
}

TEST(HelpArchiveTest, ReadsOneWhoseSecondIdentifierIsRight) {
  std::string bytes = guideBytes();
  ASSERT_EQ(bytes.at(0x28), '\x10');
  bytes[0x28] = '\x11';
  EXPECT_NE(HelpArchive::of(bytes), nullptr);
}

TEST(HelpArchiveTest, TakesNoOtherFileForAnArchive) {
  using namespace std::string_literals;
  EXPECT_EQ(HelpArchive::of(""), nullptr);
  EXPECT_EQ(HelpArchive::of("ITSF"), nullptr);
  EXPECT_EQ(HelpArchive::of(std::string(5000, '\0')), nullptr);
  EXPECT_EQ(HelpArchive::of("<html><body>A page</body></html>"), nullptr);
  EXPECT_EQ(HelpArchive::of("MZ"s + std::string(500, '\x90')), nullptr);
  EXPECT_EQ(HelpArchive::of("ITSF\x03\0\0\0\x60\0\0\0"s + std::string(100, '\xFF')), nullptr);
}

TEST(HelpArchiveTest, ACutArchiveHarmsNothing) {
  const std::string whole = guideBytes();
  for (std::size_t size = 0; size < whole.size(); size += 397) useAsArchive(whole.substr(0, size));
}

TEST(HelpArchiveTest, AnyDamagedByteHarmsNothing) {
  const std::string whole = guideBytes();
  for (std::size_t at = 0; at < whole.size(); at += at < 500 ? 5 : 211) {
    for (const char value : {'\xFF', static_cast<char>(whole[at] + 1)}) {
      std::string damaged = whole;
      damaged[at] = value;
      useAsArchive(std::move(damaged));
    }
  }
}

/// A file whose bytes can't be unpacked leaves those that can.
TEST(HelpArchiveTest, DamageOfOneFileLeavesTheOthersReadable) {
  const auto sound = HelpArchive::of(guideBytes());
  ASSERT_NE(sound, nullptr);
  std::string bytes = guideBytes();
  std::fill(bytes.end() - 2000, bytes.end() - 1000, '\xFF');
  const auto archive = HelpArchive::of(bytes);
  ASSERT_NE(archive, nullptr);
  EXPECT_EQ(archive->names(), sound->names());
  EXPECT_LT(readAll(*archive), readAll(*sound));
  EXPECT_EQ(archive->read(u"#SYSTEM"), sound->read(u"#SYSTEM"));
}

TEST(HelpArchiveTest, LengthsBeyondTheArchiveCostNothing) {
  // The header's length of the directory, and of each of its chunks.
  for (const std::size_t at : {std::size_t{0x50}, std::size_t{0x88}, std::size_t{0xA0}}) {
    std::string bytes = guideBytes();
    for (std::size_t i = 0; i < 4; ++i) bytes.at(at + i) = '\x7F';
    useAsArchive(std::move(bytes));
  }
  SUCCEED();
}

}  // namespace
}  // namespace tessaly::tests
