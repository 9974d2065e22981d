// Tables and lists of a help file that are not as they should be, and what is read of them.

#include <gtest/gtest.h>

#include "tessaly/base/Text.h"
#include "tessaly/hosts/qt/help/HelpAddress.h"
#include "tessaly/hosts/qt/help/HelpTables.h"
#include "tessaly/hosts/qt/help/HelpText.h"
#include "tessaly/hosts/qt/help/PagePath.h"
#include "tests/hosts/qt/help/HelpSupport.h"

namespace tessaly::tests {
namespace {

using qt::SitemapEntry;
using namespace std::string_literals;

struct SitemapRow {
  const char* name;
  const char16_t* text;
  std::vector<SitemapEntry> entries;
};

const std::vector<SitemapRow>& sitemapRows() {
  static const std::vector<SitemapRow> rows{
      {"Empty", u"", {}},
      {"NoTags", u"Name = a", {}},
      {"OpenTag", u"<object type=\"text/sitemap\"", {}},
      {"OnlyAngles", u"<<<>>><><", {}},
      {"OtherObject",
       u"<object type=\"text/site properties\"><param name=\"Name\" value=\"a\"></object>",
       {}},
      {"NoTitle",
       u"<object type=\"text/sitemap\"><param name=\"Local\" value=\"a.html\"></object>",
       {{u"a.html", u"a.html", 0}}},
      {"NothingInIt", u"<object type=\"text/sitemap\"></object>", {}},
      {"NoPage",
       u"<object type=\"text/sitemap\"><param name=\"Name\" value=\"a\"></object>",
       {{u"a", u"", 0}}},
      {"NeverEnded", u"<object type=\"text/sitemap\"><param name=\"Name\" value=\"a\">", {{u"a", u"", 0}}},
      {"EndedByTheNext",
       u"<object type=text/sitemap><param name=name value=a><object type=text/sitemap><param name=name "
       u"value=b>",
       {{u"a", u"", 0}, {u"b", u"", 0}}},
      {"InAnyCase",
       u"<UL><OBJECT TYPE=\"Text/SiteMap\"><PARAM NAME=\"NAME\" VALUE=\"a\"></OBJECT>",
       {{u"a", u"", 0}}},
      {"ValueBeforeName",
       u"<object type=\"text/sitemap\"><param value=\"a\" name=\"Name\"></object>",
       {{u"a", u"", 0}}},
      {"SingleQuotes",
       u"<object type='text/sitemap'><param name='Name' value='a \"b\" > c'></object>",
       {{u"a \"b\" > c", u"", 0}}},
      {"QuoteNeverEnded",
       u"<object type=\"text/sitemap\"><param name=Name value='a><param name=Local value=b></object>",
       {{u"a", u"b", 0}}},
      {"ParameterOutside", u"<param name=\"Name\" value=\"a\"><object type=\"text/sitemap\"></object>", {}},
      {"MoreEndsThanStarts",
       u"</ul></ul><ul><object type=\"text/sitemap\"><param name=\"Name\" value=\"a\"></object>",
       {{u"a", u"", 0}}},
      {"Comment",
       u"<!-- <object type=\"text/sitemap\"><param name=\"Name\" value=\"a\"></object> --><ul>",
       {}},
      {"Entities",
       u"<object type=\"text/sitemap\"><param name=\"Name\" "
       u"value=\"&lt;&#228;&#x1F600;&amp;amp;&unknown;&#0;&#xD800;&#x110000;&\"></object>",
       {{u"<ä\U0001F600&amp;&unknown;&#0;&#xD800;&#x110000;&", u"", 0}}},
      {"SelfClosing",
       u"<object type=\"text/sitemap\"><param name=\"Name\" value=\"a\" /></object>",
       {{u"a", u"", 0}}},
  };
  return rows;
}

TEST(MalformedHelpTest, EachListIsReadAsFarAsItGoes) {
  for (const SitemapRow& row : sitemapRows()) {
    EXPECT_EQ(qt::sitemap(row.text), row.entries) << row.name;
  }
}

TEST(MalformedHelpTest, AListIsBoundedInDepthAndLength) {
  const String entry = u"<object type=text/sitemap><param name=name value=a>";
  String deep;
  for (int i = 0; i < 1000; ++i) deep += u"<ul>" + entry;
  const auto nested = qt::sitemap(deep);
  ASSERT_EQ(nested.size(), 1000U);
  EXPECT_EQ(nested.back().depth, qt::kDeepestEntry);
  String wide;
  for (std::size_t i = 0; i < qt::kMostEntries + 10; ++i) wide += entry;
  EXPECT_EQ(qt::sitemap(wide).size(), qt::kMostEntries);
}

TEST(MalformedHelpTest, WhatNeverEndsIsNotSearchedForAgainAndAgain) {
  String text;
  for (int i = 0; i < 100'000; ++i) text += u"<a '<!-- \"";
  EXPECT_TRUE(qt::sitemap(text).empty());
}

TEST(MalformedHelpTest, TheSystemTableIsReadAsFarAsItGoes) {
  EXPECT_EQ(qt::helpSystem("").names.title, "");
  EXPECT_EQ(qt::helpSystem("\3\0\0").names.title, "");
  const std::string sound = systemTable({systemEntry(2, "home.html\0"s), systemEntry(3, "Title\0"s)});
  for (std::size_t size = 0; size < sound.size(); ++size) {
    EXPECT_EQ(qt::helpSystem(sound.substr(0, size)).names.title, "") << size;
  }
  EXPECT_EQ(qt::helpSystem(sound).names.title, "Title");
  EXPECT_EQ(qt::helpSystem(systemTable({systemEntry(3, "No end")})).names.title, "No end");
  EXPECT_EQ(qt::helpSystem(systemTable({systemEntry(3, "")})).names.title, "");
  EXPECT_EQ(qt::helpSystem(systemTable({systemEntry(4, "\x19")})).language, 0x19);
  EXPECT_EQ(qt::helpSystem(systemTable({"\3\0\xFF\xFFTitle"s})).names.title, "");
}

TEST(MalformedHelpTest, AMapNumberThatLeadsNowhereHasNoPage) {
  const std::string strings = "\0a.html\0b.html"s;
  EXPECT_EQ(qt::pageOfNumber(aliasTable({{1, 1}, {2, 8}}), strings, 1), "a.html");
  EXPECT_EQ(qt::pageOfNumber(aliasTable({{1, 1}, {2, 8}}), strings, 2), "b.html");
  EXPECT_EQ(qt::pageOfNumber(aliasTable({{1, 500}}), strings, 1), std::nullopt);
  EXPECT_EQ(qt::pageOfNumber(aliasTable({{1, 0xFFFFFFFF}, {1, 1}}), strings, 1), "a.html");
  EXPECT_EQ(qt::pageOfNumber(aliasTable({{1, 1}}).substr(0, 11), strings, 1), std::nullopt);
  EXPECT_EQ(qt::pageOfNumber("", strings, 1), std::nullopt);
}

TEST(MalformedHelpTest, AWindowThatIsTooSmallOrCutTellsNothing) {
  const std::string strings = "\0main\0Title\0"s;
  EXPECT_EQ(qt::helpWindow(windowTable(196, {{8, 1}, {0x14, 6}}), strings, "main").title, "Title");
  EXPECT_EQ(qt::helpWindow(windowTable(196, {{8, 1}, {0x14, 6}}), strings, "other").title, "Title");
  EXPECT_EQ(qt::helpWindow(windowTable(16, {{8, 1}}), strings, "main").title, "");
  EXPECT_EQ(qt::helpWindow(windowTable(196, {{8, 1}, {0x14, 6}}).substr(0, 60), strings, "main").title, "");
  EXPECT_EQ(qt::helpWindow(windowTable(196, {{8, 1}, {0x14, 600}}), strings, "main").title, "");
  EXPECT_EQ(qt::helpWindow("", strings, "main").title, "");
}

TEST(MalformedHelpTest, TopicsThatPointToOneLongTextAreBounded) {
  std::string topics;
  for (int i = 0; i < 20'000; ++i) topics += Bytes().number(0).number(0).number(0).number(0).get();
  const auto pages = qt::titledPages(
      {topics, std::string(100'000, 'a'), std::string(12, '\0'), std::string(100, 'b')}, 1252);
  EXPECT_GT(pages.size(), 0U);
  EXPECT_LT(pages.size(), 4'000U);
}

TEST(MalformedHelpTest, AnyTextIsAnAddress) {
  using qt::HelpAddress;
  using qt::helpAddress;
  EXPECT_EQ(helpAddress(u"C:\\P\\Tessaly.chm::/Overview.html#a"),
            (HelpAddress{u"C:\\P\\Tessaly.chm", u"/Overview.html#a"}));
  EXPECT_EQ(helpAddress(u"/a::b/Tessaly.chm::/x::y.html"),
            (HelpAddress{u"/a::b/Tessaly.chm", u"/x::y.html"}));
  EXPECT_EQ(helpAddress(u"/p/Tessaly.chm"), (HelpAddress{u"/p/Tessaly.chm", u""}));
  EXPECT_EQ(helpAddress(u"/p/Tessaly.chm>main"), (HelpAddress{u"/p/Tessaly.chm", u""}));
  EXPECT_EQ(helpAddress(u"mk:@MSITStore:a.CHM::\\b.html"), (HelpAddress{u"a.CHM", u"\\b.html"}));
  EXPECT_EQ(helpAddress(u"MS-ITS:a.chm::b.html"), (HelpAddress{u"a.chm", u"b.html"}));
  EXPECT_EQ(helpAddress(u"\\Tessaly.chm::/.html"), (HelpAddress{u"\\Tessaly.chm", u"/.html"}));
  EXPECT_EQ(helpAddress(u"other.dat::/b.html"), (HelpAddress{u"other.dat", u"/b.html"}));
  EXPECT_EQ(helpAddress(u""), (HelpAddress{u"", u""}));
  EXPECT_EQ(helpAddress(u"::"), (HelpAddress{u"", u""}));
}

TEST(MalformedHelpTest, PathsEndAtTheRootAndEscapesThatAreNoneStay) {
  EXPECT_EQ(qt::tidyPath(u"/../..\\a/./b//c/../d"), u"a/b/d");
  EXPECT_EQ(qt::tidyPath(u".."), u"");
  EXPECT_EQ(qt::tidyPath(u"a/.../b"), u"a/.../b");
  EXPECT_EQ(qt::percentDecoded(u"a%20b%2"), u"a b%2");
  EXPECT_EQ(qt::percentDecoded(u"%D0%9E%zz%"), u"О%zz%");
  EXPECT_EQ(qt::percentDecoded(u"%FF"), u"\uFFFD");
}

TEST(MalformedHelpTest, TextIsUtf8OrItsMarksOrTheCodePages) {
  EXPECT_EQ(qt::helpText("\xD0\x9E", 1251), u"О");
  EXPECT_EQ(qt::helpText("\xCE", 1251), u"О");
  EXPECT_EQ(qt::helpText("\xEF\xBB\xBF\xD0\x9E", 1251), u"О");
  EXPECT_EQ(qt::helpText("\xFF\xFE\x1E\x04\x41", 1251), u"О");
  EXPECT_EQ(qt::declaredEncoding("<META content=\"text/html; Charset = x\">"), "");
  EXPECT_EQ(qt::declaredEncoding("<meta charset=\"UTF-8\">"), "utf-8");
  EXPECT_EQ(qt::declaredEncoding("charset=windows-1251"), "windows-1251");
  EXPECT_EQ(qt::declaredEncoding("charset="), "");
  EXPECT_EQ(qt::codePageOf("windows-1251"), 1251);
  EXPECT_EQ(qt::codePageOf("shift_jis"), 932);
  EXPECT_EQ(qt::codePageOf("koi8-r"), std::nullopt);
}

}  // namespace
}  // namespace tessaly::tests
