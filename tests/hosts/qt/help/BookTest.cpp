// Help files as their readers see them: title, contents, index and pages.

#include <gtest/gtest.h>

#include "tessaly/hosts/qt/help/HelpArchive.h"
#include "tessaly/hosts/qt/help/HelpBook.h"
#include "tests/hosts/qt/help/HelpSupport.h"

namespace tessaly::tests {
namespace {

using qt::HelpArchive;
using qt::HelpBook;
using qt::PageReference;
using qt::SitemapEntry;
using namespace std::string_literals;

HelpBook guide() { return HelpBook(HelpArchive::of(helpFileBytes("guide.chm"))); }

TEST(HelpBookTest, HasTheTitleAndTheHomePageOfItsArchive) {
  const HelpBook book = guide();
  EXPECT_EQ(book.title(), u"Report Browser Guide");
  EXPECT_EQ(book.home(), (PageReference{u"Overview.html", u""}));
  EXPECT_EQ(book.codePage(), 1252);
}

TEST(HelpBookTest, HasContentsInTheirOrder) {
  const std::vector<SitemapEntry> expected{{u"Overview", u"Overview.html", 0},
                                           {u"Working with reports & folders", u"", 0},
                                           {u"Settings", u"Settings.html", 1},
                                           {u"The folder", u"Settings.html#folder", 2},
                                           {u"The language", u"Settings.html#language", 2},
                                           {u"A page in a folder", u"parts/Deep.html", 1},
                                           {u"A blank in the name", u"parts/With blank.html", 1},
                                           {u"Other languages", u"", 0},
                                           {u"Обзор", u"Russian.html", 1},
                                           {u"概要", u"Japanese.html", 1},
                                           {u"نظرة عامة", u"Arabic.html", 1}};
  std::vector<SitemapEntry> contents = guide().contents();
  for (SitemapEntry& entry : contents) {
    for (char16_t& unit : entry.page) unit = unit == u'\\' ? u'/' : unit;
  }
  EXPECT_EQ(contents, expected);
}

TEST(HelpBookTest, HasALineForEachPageOfAKeyword) {
  const std::vector<SitemapEntry> expected{{u"folder", u"", 0},
                                           {u"The folder", u"Settings.html#folder", 1},
                                           {u"A page in a folder", u"parts/Deep.html", 1},
                                           {u"language", u"Settings.html#language", 0},
                                           {u"Japanese", u"Japanese.html", 1},
                                           {u"Russian", u"Russian.html", 1},
                                           {u"settings", u"Settings.html", 0}};
  EXPECT_EQ(guide().index(), expected);
}

TEST(HelpBookTest, FindsTheMapNumbersOfACompilerThatWritesWholePaths) {
  const HelpBook book = guide();
  EXPECT_EQ(book.findNumber(100), (PageReference{u"Overview.html", u""}));
  EXPECT_EQ(book.findNumber(200), (PageReference{u"Settings.html", u""}));
  EXPECT_EQ(book.findNumber(300), (PageReference{u"parts/Deep.html", u""}));
  EXPECT_EQ(book.findNumber(0), std::nullopt);
  EXPECT_EQ(book.findNumber(-1), std::nullopt);
}

TEST(HelpBookTest, FindsPagesAsCallersAndLinksNameThem) {
  const HelpBook book = guide();
  EXPECT_EQ(book.find(u"/Overview.html"), (PageReference{u"Overview.html", u""}));
  EXPECT_EQ(book.find(u"settings.HTML#language"), (PageReference{u"settings.HTML", u"language"}));
  EXPECT_EQ(book.find(u"parts\\With%20blank.html"), (PageReference{u"parts/With blank.html", u""}));
  EXPECT_EQ(book.find(u"parts/../Overview.html#a#b"), (PageReference{u"Overview.html", u"a#b"}));
  EXPECT_EQ(book.find(u"Overview.html?from=here#a"), (PageReference{u"Overview.html", u"a"}));
  EXPECT_EQ(book.find(u"Overview.html>main"), (PageReference{u"Overview.html", u""}));
  EXPECT_EQ(book.find(u"Overview"), std::nullopt);
  EXPECT_EQ(book.find(u""), std::nullopt);
  EXPECT_EQ(book.find(u"/.html"), std::nullopt);
  EXPECT_EQ(book.find(String(30'000, u'#')), std::nullopt);
}

TEST(HelpBookTest, FindsPagesWhoseNamesHaveWhatElseEndsAName) {
  const HelpBook book(helpFiles({{u"C#.html", ""}, {u"100%25.html", ""}, {u"why?.html", ""}}));
  EXPECT_EQ(book.find(u"C#.html"), (PageReference{u"C#.html", u""}));
  EXPECT_EQ(book.find(u"C#.html#top"), (PageReference{u"C#.html", u"top"}));
  EXPECT_EQ(book.find(u"100%25.html"), (PageReference{u"100%25.html", u""}));
  EXPECT_EQ(book.find(u"100%2525.html"), (PageReference{u"100%25.html", u""}));
  EXPECT_EQ(book.find(u"why?.html"), (PageReference{u"why?.html", u""}));
}

TEST(HelpBookTest, ReadsTablesInTheCodePageOfTheArchivesLanguage) {
  const HelpBook book(helpFiles({{u"#SYSTEM", systemTable({systemEntry(3, "\xCE\xE1\xE7\xEE\xF0\0"s),
                                                           systemEntry(4, "\x19\x04\0\0"s)})}}));
  EXPECT_EQ(book.codePage(), 1251);
  EXPECT_EQ(book.title(), u"Обзор");
}

TEST(HelpBookTest, WhereTheSystemTableIsSilentTheWindowTells) {
  const HelpBook book(helpFiles({{u"#SYSTEM", systemTable({systemEntry(5, "w\0"s)})},
                                 {u"#STRINGS", "\0w\0Title\0start.html\0"s},
                                 {u"#WINDOWS", windowTable(196, {{8, 1}, {0x14, 3}, {0x68, 9}})},
                                 {u"start.html", "A page"}}));
  EXPECT_EQ(book.title(), u"Title");
  EXPECT_EQ(book.home(), (PageReference{u"start.html", u""}));
}

TEST(HelpBookTest, WithoutListsTheTopicsAreTheContentsAndSortedTheIndex) {
  const std::string topics = Bytes().number(0).number(1).number(0).number(0).get() +
                             Bytes().number(0).number(7).number(12).number(0).get();
  const std::string urls =
      Bytes().number(0).number(0).number(1).get() + Bytes().number(0).number(1).number(16).get();
  const HelpBook book(helpFiles(
      {{u"#TOPICS", topics},
       {u"#STRINGS", "\0zebra\0ant\0"s},
       {u"#URLTBL", urls},
       {u"#URLSTR", "\0"s + std::string(8, '\0') + "z.html\0"s + std::string(8, '\0') + "a.html\0"s},
       {u"a.html", ""},
       {u"z.html", ""}}));
  EXPECT_EQ(book.contents(), (std::vector<SitemapEntry>{{u"zebra", u"z.html", 0}, {u"ant", u"a.html", 0}}));
  EXPECT_EQ(book.index(), (std::vector<SitemapEntry>{{u"ant", u"a.html", 0}, {u"zebra", u"z.html", 0}}));
  EXPECT_EQ(book.home(), (PageReference{u"z.html", u""}));
}

TEST(HelpBookTest, WithoutATableTheMapNumbersComeFromTheFilesThatItIsMadeOf) {
  const HelpBook book(
      helpFiles({{u"map.h", "#define IDH_A 100\r\n#define IDH_B 0x2A\r\n#define IDH_C -1\r\n"},
                 {u"alias.ali", "; aliases\r\nIDH_A = a.html ; the first\r\nIDH_B=b.html\r\nIDH_C=c.html#x"},
                 {u"a.html", ""},
                 {u"b.html", ""},
                 {u"c.html", ""}}));
  EXPECT_EQ(book.findNumber(100), (PageReference{u"a.html", u""}));
  EXPECT_EQ(book.findNumber(42), (PageReference{u"b.html", u""}));
  EXPECT_EQ(book.findNumber(-1), (PageReference{u"c.html", u"x"}));
  EXPECT_EQ(book.findNumber(7), std::nullopt);
}

TEST(HelpBookTest, WithoutAnyTableItBeginsWithAUsualPage) {
  EXPECT_EQ(HelpBook(helpFiles({{u"a.html", ""}, {u"index.htm", ""}})).home(),
            (PageReference{u"index.htm", u""}));
  EXPECT_EQ(HelpBook(helpFiles({{u"b.html", ""}, {u"a.html", ""}})).home(), (PageReference{u"a.html", u""}));
  EXPECT_EQ(HelpBook(helpFiles({})).home(), std::nullopt);
}

}  // namespace
}  // namespace tessaly::tests
