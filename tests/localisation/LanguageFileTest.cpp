// What a language file may look like and what is taken from it.

#include <gtest/gtest.h>

#include "tessaly/localisation/CResources.h"
#include "tests/support/LanguageFolder.h"
#include "tests/support/Print.h"

namespace tessaly {
namespace {

using tests::document;
using tests::general;
using tests::shown;
using tests::text;

class LanguageFileTest : public testing::Test {
 protected:
  LanguageFileTest() { resources_.applicationGUID(u"G"); }

  void load(std::string bytes) {
    folder_.put(u"file.xml", std::move(bytes));
    resources_.LoadXMLFile(tests::LanguageFolder::pathOf(u"file.xml"));
  }

  std::string res(Long n) const { return shown(resources_.res(n)); }
  static std::string builtIn(std::size_t n) { return shown(showcaseStrings[n]); }

  tests::LanguageFolder folder_;
  CResources resources_;
};

const std::string kFrench = general("Français", 1036);

TEST_F(LanguageFileTest, FillsTheCatalogueAndKeepsWhatTheFileLacks) {
  load(document(kFrench + text(1, "&amp;Annuler") + text(14, "Page %a1 sur %a2")));
  EXPECT_EQ(res(0), "&Annuler");
  EXPECT_EQ(shown(resources_.resWithArg(13, 3, 9)), "Page 3 sur 9");
  for (std::size_t n = 0; n < 175; ++n) {
    if (n != 0 && n != 13) {
      EXPECT_EQ(res(static_cast<Long>(n)), builtIn(n)) << n;
    }
  }
}

TEST_F(LanguageFileTest, AcceptsAHeaderAlone) {
  load(document(kFrench));
  for (std::size_t n = 0; n < 175; ++n) EXPECT_EQ(res(static_cast<Long>(n)), builtIn(n)) << n;
  EXPECT_EQ(resources_.reportFontName(), u"");
  EXPECT_EQ(resources_.gridFontName(), u"");
  EXPECT_EQ(resources_.mailFontName(), u"");
  EXPECT_EQ(resources_.gridFontSize(), 0);
}

TEST_F(LanguageFileTest, TakesTheFonts) {
  load(document(kFrench + "<FONTS><PRINTFONTNAME>Arial</PRINTFONTNAME><GRIDFONTNAME>Tahoma</GRIDFONTNAME>"
                          "<GRIDFONTSIZE>9</GRIDFONTSIZE><MAILFONTNAME>Courier New</MAILFONTNAME></FONTS>"));
  EXPECT_EQ(shown(resources_.reportFontName()), "Arial");
  EXPECT_EQ(shown(resources_.gridFontName()), "Tahoma");
  EXPECT_EQ(resources_.gridFontSize(), 9);
  EXPECT_EQ(shown(resources_.mailFontName()), "Courier New");
}

TEST_F(LanguageFileTest, TakesNumbersFromOneToOneHundredAndSeventyFive) {
  load(document(kFrench + text(0, "zero") + text(1, "first") + text(175, "last") + text(176, "beyond") +
                text(-1, "below")));
  EXPECT_EQ(res(0), "first");
  EXPECT_EQ(res(174), "last");
  for (std::size_t n = 1; n < 174; ++n) EXPECT_EQ(res(static_cast<Long>(n)), builtIn(n)) << n;
}

TEST_F(LanguageFileTest, CannotBlankASlot) {
  load(document(kFrench + text(1, "") + text(2, "  \n ") + "<STRING><ID>3</ID></STRING>" + text(4, "Oui")));
  EXPECT_EQ(res(0), builtIn(0));
  EXPECT_EQ(res(1), builtIn(1));
  EXPECT_EQ(res(2), builtIn(2));
  EXPECT_EQ(res(3), "Oui");
}

TEST_F(LanguageFileTest, DropsATextWithoutANumber) {
  load(document(kFrench + "<STRING><VALUE>lost</VALUE></STRING><STRING/>" + text(1, "found")));
  EXPECT_EQ(res(0), "found");
}

TEST_F(LanguageFileTest, LetsTheLaterOfTwoWin) {
  load(document(kFrench + text(7, "first") + text(7, "second")));
  EXPECT_EQ(res(6), "second");
  load(document(kFrench + text(7, "first") + text(7, "")));
  EXPECT_EQ(res(6), "first");
}

TEST_F(LanguageFileTest, LetsTheLastOfRepeatedFieldsCount) {
  load(document(kFrench + "<STRING><ID>1</ID><ID>2</ID><VALUE>x</VALUE><VALUE>y</VALUE></STRING>"));
  EXPECT_EQ(res(0), builtIn(0));
  EXPECT_EQ(res(1), "y");
}

TEST_F(LanguageFileTest, TakesFieldsInAnyOrder) {
  load(
      document("<STRING><VALUE>early</VALUE><ID>1</ID></STRING><FONTS><GRIDFONTSIZE>8</GRIDFONTSIZE></FONTS>"
               "<GENERAL><LANGID>1036</LANGID><LANG>F</LANG><GUID>G</GUID></GENERAL>"));
  EXPECT_EQ(res(0), "early");
  EXPECT_EQ(resources_.gridFontSize(), 8);
}

TEST_F(LanguageFileTest, TakesNamesInAnyCaseAndWithAPrefix) {
  load(
      "<x:any xmlns:x='urn:x'><x:general><guid>G</guid><Lang>F</Lang><x:langId>1036</x:langId></x:general>"
      "<Fonts><gridfontname>Tahoma</gridfontname></Fonts><string><id>1</id><x:Value>un</x:Value></string></"
      "x:any>");
  EXPECT_EQ(res(0), "un");
  EXPECT_EQ(shown(resources_.gridFontName()), "Tahoma");
}

TEST_F(LanguageFileTest, TakesOnlyAToZForLettersWithAnotherCase) {
  load(document(kFrench + "<\xC5\xBFTRING><ID>1</ID><VALUE>x</VALUE></\xC5\xBFTRING>"
                          "<STR\xC4\xB1NG><ID>1</ID><VALUE>x</VALUE></STR\xC4\xB1NG>"));
  EXPECT_EQ(res(0), builtIn(0));
}

TEST_F(LanguageFileTest, SeesNoAttributes) {
  load("<L><GENERAL GUID='G' LANG='F' LANGID='1036'/><STRING ID='1' VALUE='x'/></L>");
  EXPECT_EQ(res(0), builtIn(0));
  load(document(kFrench + "<STRING ID='1' VALUE='x'/><FONTS GRIDFONTNAME='Tahoma'/>"));
  EXPECT_EQ(res(0), builtIn(0));
  EXPECT_EQ(resources_.gridFontName(), u"");
}

TEST_F(LanguageFileTest, FindsSectionsAtAnyDepth) {
  load(document("<a><b><c>" + kFrench + "</c></b></a><d><FONTS><GRIDFONTNAME>T</GRIDFONTNAME></FONTS>" +
                "<e><f>" + text(1, "deep") + "</f></e></d>"));
  EXPECT_EQ(res(0), "deep");
  EXPECT_EQ(shown(resources_.gridFontName()), "T");
}

TEST_F(LanguageFileTest, FindsSectionsWithinSections) {
  load(document("<STRING>" + kFrench + "<ID>1</ID><VALUE>outer</VALUE>" + text(2, "inner") + "</STRING>"));
  EXPECT_EQ(res(0), "outer");
  EXPECT_EQ(res(1), "inner");
}

TEST_F(LanguageFileTest, TakesFieldsOnlyFromDirectChildren) {
  load(document(kFrench + "<STRING><x><ID>1</ID><VALUE>lost</VALUE></x></STRING>"));
  EXPECT_EQ(res(0), builtIn(0));
}

TEST_F(LanguageFileTest, DoesNotSeeASectionThatIsTheRoot) {
  load(general("Français", 1036));
  EXPECT_EQ(res(0), builtIn(0));
  load("<STRING>" + kFrench + "<ID>1</ID><VALUE>root</VALUE></STRING>");
  EXPECT_EQ(res(0), builtIn(0));
}

TEST_F(LanguageFileTest, MergesSectionsFieldByField) {
  load(document(general("First", 1036) + "<GENERAL><LANG>Second</LANG></GENERAL>" +
                "<FONTS><GRIDFONTNAME>A</GRIDFONTNAME><MAILFONTNAME>M</MAILFONTNAME></FONTS>"
                "<FONTS><GRIDFONTNAME>B</GRIDFONTNAME></FONTS>"));
  EXPECT_EQ(shown(resources_.gridFontName()), "B");
  EXPECT_EQ(shown(resources_.mailFontName()), "M");
}

TEST_F(LanguageFileTest, StepsOverCommentsInstructionsAndText) {
  load(document("stray<!-- c -->" + kFrench +
                "<?p d?>more<STRING>x<!-- c --><ID>1</ID>y<VALUE>un<!-- c -->e</VALUE></STRING>"));
  EXPECT_EQ(res(0), "une");
}

TEST_F(LanguageFileTest, TakesAnInstructionOfAFieldsNameForTheField) {
  load(document("<GENERAL><GUID>G</GUID><?LANG Français?><LANGID>1036</LANGID></GENERAL>" + text(1, "un")));
  EXPECT_EQ(res(0), "un");
}

TEST_F(LanguageFileTest, KeepsBlanksInsideATextAndThoseOfCData) {
  load(document(kFrench + text(1, "  a  b  ") + text(2, "<![CDATA[ c ]]>") + text(3, "&lt;&amp;&gt;")));
  EXPECT_EQ(res(0), "a  b");
  EXPECT_EQ(res(1), " c ");
  EXPECT_EQ(res(2), "<&>");
}

TEST_F(LanguageFileTest, ReadsNumbersInTheirOtherForms) {
  load(document(
      "<GENERAL><GUID>G</GUID><LANG>F</LANG><LANGID> 1036.2 </LANGID></GENERAL>"
      "<STRING><ID>+1</ID><VALUE>a</VALUE></STRING><STRING><ID>2.5</ID><VALUE>b</VALUE></STRING>"
      "<STRING><ID>0.3e1</ID><VALUE>c</VALUE></STRING><STRING><ID>3.5</ID><VALUE>d</VALUE></STRING>"));
  EXPECT_EQ(res(0), "a");
  EXPECT_EQ(res(1), "b");
  EXPECT_EQ(res(2), "c");
  EXPECT_EQ(res(3), "d");
}

TEST_F(LanguageFileTest, TakesThePointAndTheUsersSeparator) {
  tests::LanguageFolder french(1036, u",");
  french.put(
      u"file.xml",
      document(kFrench +
               "<STRING><ID>1,2</ID><VALUE>a</VALUE></STRING><STRING><ID>2.2</ID><VALUE>b</VALUE></STRING>"));
  resources_.LoadXMLFile(tests::LanguageFolder::pathOf(u"file.xml"));
  EXPECT_EQ(res(0), "a");
  EXPECT_EQ(res(1), "b");
}

TEST_F(LanguageFileTest, ComparesTheGuidToTheLetter) {
  for (const char* guid : {"g", " G", "G2", "{G}", ""}) {
    load(document(general("F", 1036, std::string("<![CDATA[") + guid + "]]>") + text(1, "x")));
    EXPECT_EQ(res(0), builtIn(0)) << guid;
  }
}

TEST_F(LanguageFileTest, TakesFilesWithoutAGuidWhereTheHostHasNone) {
  CResources resources;
  folder_.put(u"without.xml",
              document("<GENERAL><LANG>F</LANG><LANGID>1036</LANGID></GENERAL>" + text(1, "without")));
  folder_.put(u"with.xml", document(kFrench + text(1, "with")));
  resources.LoadXMLFile(tests::LanguageFolder::pathOf(u"without.xml"));
  EXPECT_EQ(shown(resources.res(0)), "without");
  resources.LoadXMLFile(tests::LanguageFolder::pathOf(u"with.xml"));
  EXPECT_EQ(shown(resources.res(0)), builtIn(0));
}

TEST_F(LanguageFileTest, TakesANegativeLanguageNumber) {
  load(document(general("F", -5) + text(1, "x")));
  EXPECT_EQ(res(0), "x");
}

TEST_F(LanguageFileTest, LeavesNothingOfTheLanguageBefore) {
  load(document(kFrench + text(1, "Annuler") + "<FONTS><GRIDFONTNAME>T</GRIDFONTNAME></FONTS>"));
  load(document(general("Deutsch", 1031) + text(2, "Gut")));
  EXPECT_EQ(res(0), builtIn(0));
  EXPECT_EQ(res(1), "Gut");
  EXPECT_EQ(resources_.gridFontName(), u"");
}

TEST_F(LanguageFileTest, ChangesNeitherLangNorTheListWhetherTheReadSucceedsOrFails) {
  folder_.put(u"chosen.xml", document(kFrench + text(1, "chosen")));
  resources_.resourcesPath(u"/texts");
  resources_.lang(1036);
  const std::string files[] = {document(general("Deutsch", 1031) + text(1, "loaded")), "<broken",
                               document(general("Deutsch", 1031, "other")),
                               document(general("Deutsch", 1031) + "<STRING><ID>x</ID></STRING>")};
  for (const std::string& file : files) {
    load(file);
    EXPECT_NE(res(0), "chosen");
    EXPECT_EQ(resources_.lang(), 1036);
    EXPECT_EQ(shown(resources_.langName()), "Français");
    EXPECT_EQ(resources_.numberOfLangs(), 1);
  }
  resources_.LoadXMLFile(u"/texts/missing.xml");
  EXPECT_EQ(res(0), builtIn(0));
  EXPECT_EQ(resources_.lang(), 1036);
  EXPECT_EQ(shown(resources_.langName()), "Français");
}

TEST_F(LanguageFileTest, DoesNotLookForOtherFiles) {
  load(document(kFrench));
  const std::vector<std::string> once = {"createDocument", "async false",     "validateOnParse false",
                                         "load",           "documentElement", "release"};
  EXPECT_EQ(folder_.xml.calls(), once);
}

}  // namespace
}  // namespace tessaly
