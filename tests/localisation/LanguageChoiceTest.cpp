// Which language files the folder has, and which of them is in force.

#include <gtest/gtest.h>

#include <limits>

#include "tessaly/localisation/CResources.h"
#include "tests/support/Errors.h"
#include "tests/support/LanguageFolder.h"
#include "tests/support/Print.h"

namespace tessaly {
namespace {

using tests::document;
using tests::errorOf;
using tests::general;
using tests::shown;
using tests::text;

class LanguageChoiceTest : public testing::Test {
 protected:
  LanguageChoiceTest() {
    resources_.applicationGUID(u"G");
    resources_.resourcesPath(u"/texts");
  }

  /// A language file whose one text is the language's name.
  void put(std::u16string_view name, std::string_view lang, Long id) {
    folder_.put(name, document(general(lang, id) + text(1, lang)));
  }

  /// What a host sees of the choice: number, name, and the first text.
  std::string chosen() const {
    return std::to_string(resources_.lang()) + " " + shown(resources_.langName()) + " " +
           shown(resources_.res(0));
  }

  std::string list() {
    std::string result;
    for (Long i = 1; i <= resources_.numberOfLangs(); ++i) {
      result += shown(resources_.resLang(i)) + ":" + std::to_string(resources_.resLangID(i)) + " ";
    }
    return result;
  }

  tests::LanguageFolder folder_{1036};
  CResources resources_;
};

const std::string kBuiltIn = "2057 English &Cancel";

TEST_F(LanguageChoiceTest, ListsTheFilesOfTheApplicationInTheOrderOfTheFolder) {
  put(u"C.xml", "Third", 3);
  put(u"a.xml", "First", 1);
  put(u"b.XML", "Second", 2);
  folder_.put(u"foreign.xml", document(general("Foreign", 4, "other")));
  folder_.put(u"nameless.xml", document(general("", 5)));
  folder_.put(u"numberless.xml", document(general("None", 0)));
  folder_.put(u"readme.txt", "no language file");
  EXPECT_EQ(list(), "First:1 Second:2 Third:3 ");
}

TEST_F(LanguageChoiceTest, ListsABrokenFileWithoutNameAndNumber) {
  put(u"a.xml", "First", 1);
  folder_.put(u"b.xml", "<broken");
  folder_.files.put(u"/texts/c.xml", "x");
  folder_.files.failRead(u"/texts/c.xml");
  EXPECT_EQ(list(), "First:1 :0 :0 ");
}

TEST_F(LanguageChoiceTest, GivesNothingForAPositionOutsideTheList) {
  put(u"a.xml", "First", 1);
  for (const Long position : {0, 2, -1, std::numeric_limits<Long>::max(), std::numeric_limits<Long>::min()}) {
    EXPECT_EQ(resources_.resLang(position), u"") << position;
    EXPECT_EQ(resources_.resLangID(position), 0) << position;
  }
}

TEST_F(LanguageChoiceTest, LooksForFilesAtTheFirstQuestion) {
  put(u"a.xml", "First", 1);
  EXPECT_EQ(CResources().resLang(1), u"");
  EXPECT_EQ(shown(resources_.resLang(1)), "First");
  CResources another;
  another.applicationGUID(u"G");
  another.resourcesPath(u"/texts");
  EXPECT_EQ(another.resLangID(1), 1);
}

TEST_F(LanguageChoiceTest, LooksForFilesOnce) {
  put(u"a.xml", "First", 1);
  EXPECT_EQ(resources_.numberOfLangs(), 1);
  put(u"b.xml", "Second", 2);
  resources_.resourcesPath(u"/elsewhere");
  resources_.applicationGUID(u"other");
  EXPECT_EQ(list(), "First:1 ");
}

TEST_F(LanguageChoiceTest, LooksForFilesOnceEvenWhereTheListingFails) {
  put(u"a.xml", "First", 1);
  platform::fake::Files failing;
  failing.failList();
  {
    const platform::Override override(failing);
    EXPECT_EQ(resources_.numberOfLangs(), 0);
  }
  EXPECT_EQ(resources_.numberOfLangs(), 0);
}

TEST_F(LanguageChoiceTest, TakesAFolderWithOrWithoutASeparatorAtItsEnd) {
  put(u"a.xml", "First", 1);
  resources_.resourcesPath(u"/texts" + String(1, folder_.files.separator()));
  EXPECT_EQ(list(), "First:1 ");
  resources_.lang(1);
  EXPECT_EQ(chosen(), "1 First First");
}

TEST_F(LanguageChoiceTest, TakesAnEmptyFolderForTheRoot) {
  folder_.files.put(u"/a.xml", document(general("Root", 7) + text(1, "root")));
  resources_.resourcesPath(u"");
  resources_.lang(7);
  EXPECT_EQ(chosen(), "7 Root root");
}

TEST_F(LanguageChoiceTest, JoinsFolderAndNameByThePlatformsSeparator) {
  platform::fake::Files windows(u'\\');
  windows.put(u"C:\\texts\\a.xml", document(general("First", 1) + text(1, "un")));
  const platform::Override override(windows);
  CResources resources;
  resources.applicationGUID(u"G");
  resources.resourcesPath(u"C:\\texts");
  resources.lang(1);
  EXPECT_EQ(shown(resources.res(0)), "un");
}

TEST_F(LanguageChoiceTest, ChoosesByNumber) {
  put(u"a.xml", "French", 1036);
  put(u"b.xml", "German", 1031);
  resources_.lang(1031);
  EXPECT_EQ(chosen(), "1031 German German");
  resources_.lang(1036);
  EXPECT_EQ(chosen(), "1036 French French");
}

TEST_F(LanguageChoiceTest, FallsBackToBuiltInEnglishWithoutFiles) {
  for (const Long id : {2057, 1036, -1, 1, std::numeric_limits<Long>::min()}) {
    resources_.lang(id);
    EXPECT_EQ(chosen(), kBuiltIn) << id;
  }
}

TEST_F(LanguageChoiceTest, FallsBackToTheFileOfEnglishButKeepsTheNumberAskedFor) {
  put(u"english.xml", "English (file)", 2057);
  resources_.lang(1036);
  EXPECT_EQ(chosen(), "1036 English (file) English (file)");
}

TEST_F(LanguageChoiceTest, ComparesTheNumberExactly) {
  put(u"a.xml", "French", 1036);
  resources_.lang(3084);
  EXPECT_EQ(chosen(), kBuiltIn);
}

TEST_F(LanguageChoiceTest, KeepsTheFontsOfTheLastFileOverBuiltInTexts) {
  folder_.put(u"a.xml", document(general("French", 1036) + "<FONTS><GRIDFONTNAME>T</GRIDFONTNAME></FONTS>"));
  resources_.lang(1036);
  resources_.lang(1031);
  EXPECT_EQ(chosen(), kBuiltIn);
  EXPECT_EQ(shown(resources_.gridFontName()), "T");
}

TEST_F(LanguageChoiceTest, UsesTheFirstOfTwoFilesWithOneNumber) {
  put(u"a.xml", "First", 1036);
  put(u"b.xml", "Second", 1036);
  EXPECT_EQ(list(), "First:1036 Second:1036 ");
  resources_.lang(1036);
  EXPECT_EQ(chosen(), "1036 First First");
}

TEST_F(LanguageChoiceTest, ReadsTheFileAgainAtEachChoice) {
  put(u"a.xml", "French", 1036);
  resources_.lang(1036);
  folder_.put(u"a.xml", document(general("French", 1036) + text(1, "changed")));
  resources_.lang(1036);
  EXPECT_EQ(chosen(), "1036 French changed");
}

TEST_F(LanguageChoiceTest, KeepsNumberAndNameWhereTheChosenFileIsGone) {
  put(u"a.xml", "French", 1036);
  EXPECT_EQ(resources_.numberOfLangs(), 1);
  folder_.files.remove(u"/texts/a.xml");
  resources_.lang(1036);
  EXPECT_EQ(chosen(), "1036 French &Cancel");
}

TEST_F(LanguageChoiceTest, FollowsTheUsersLocale) {
  put(u"a.xml", "German", 1031);
  put(u"b.xml", "French", 1036);
  resources_.SetDefaultLang();
  EXPECT_EQ(chosen(), "1036 French French");
}

TEST_F(LanguageChoiceTest, FollowsTheUsersPrimaryLanguage) {
  put(u"a.xml", "German", 1031);
  put(u"b.xml", "French of Belgium", 2060);
  put(u"c.xml", "French of Canada", 3084);
  resources_.lang(0);
  EXPECT_EQ(chosen(), "2060 French of Belgium French of Belgium");
}

TEST_F(LanguageChoiceTest, GoesOnToEnglishWithoutTheUsersLanguage) {
  put(u"a.xml", "German", 1031);
  resources_.AutomaticTranslation();
  EXPECT_EQ(chosen(), kBuiltIn);
}

TEST_F(LanguageChoiceTest, GoesOnToTheFileOfEnglishUnderTheMaskedNumber) {
  put(u"a.xml", "German", 1031);
  put(u"b.xml", "English (file)", 2057);
  resources_.AutomaticTranslation();
  EXPECT_EQ(chosen(), "12 English (file) English (file)");
}

TEST_F(LanguageChoiceTest, SelectsByNumberOrRelation) {
  put(u"a.xml", "French", 1036);
  resources_.SetLangOrCountry(1036);
  EXPECT_EQ(chosen(), "1036 French French");
  CResources canadian;
  canadian.applicationGUID(u"G");
  canadian.resourcesPath(u"/texts");
  canadian.SetLangOrCountry(3084);
  EXPECT_EQ(canadian.lang(), 1036);
  EXPECT_EQ(shown(canadian.res(0)), "French");
}

TEST_F(LanguageChoiceTest, ChangesNothingWhereNoFileFits) {
  put(u"a.xml", "French", 1036);
  resources_.SetLangOrCountry(1036);
  resources_.SetLangOrCountry(1031);
  EXPECT_EQ(chosen(), "1036 French French");
  CResources untouched;
  untouched.SetLangOrCountry(1031);
  EXPECT_EQ(untouched.lang(), 0);
  EXPECT_EQ(untouched.res(0), u"");
}

TEST_F(LanguageChoiceTest, ShowsStringNumbersForANegativeNumber) {
  put(u"a.xml", "French", 1036);
  resources_.SetLangOrCountry(-1036);
  EXPECT_EQ(chosen(), "1036 French French[1]");
  resources_.lang(1036);
  EXPECT_EQ(chosen(), "1036 French French[1]");
  resources_.SetLangOrCountry(1036);
  EXPECT_EQ(chosen(), "1036 French French");
}

TEST_F(LanguageChoiceTest, TurnsStringNumbersOnAndOffAlsoWhereNoFileFits) {
  put(u"a.xml", "French", 1036);
  resources_.lang(1036);
  resources_.SetLangOrCountry(-1031);
  EXPECT_EQ(chosen(), "1036 French French[1]");
  resources_.SetLangOrCountry(0);
  EXPECT_EQ(chosen(), "1036 French French");
}

TEST_F(LanguageChoiceTest, RaisesErrorSixForTheNumberThatHasNoPositive) {
  EXPECT_EQ(errorOf([&] { resources_.SetLangOrCountry(std::numeric_limits<Long>::min()); }), 6);
}

TEST_F(LanguageChoiceTest, TakesZeroForTheLocaleWhereABrokenFileIsListed) {
  folder_.put(u"a.xml", "<broken");
  put(u"b.xml", "French", 1036);
  resources_.SetLangOrCountry(0);
  EXPECT_EQ(chosen(), "1036 French French");
}

/// A locale without a primary language would send the choice round and round.
class NeutralLocaleTest : public LanguageChoiceTest {
 protected:
  platform::fake::Locale neutral_{0x1000, u"."};
  platform::Override neutralInForce_{neutral_};
};

TEST_F(NeutralLocaleTest, EndsAtTheBuiltInTexts) {
  resources_.SetDefaultLang();
  EXPECT_EQ(chosen(), kBuiltIn);
  resources_.AutomaticTranslation();
  EXPECT_EQ(chosen(), kBuiltIn);
}

TEST_F(NeutralLocaleTest, EndsAtTheFileOfEnglishUnderNumberZero) {
  put(u"a.xml", "English (file)", 2057);
  resources_.SetDefaultLang();
  EXPECT_EQ(chosen(), "0 English (file) English (file)");
}

TEST_F(NeutralLocaleTest, DoesNotTakeABrokenFileForItsLanguage) {
  folder_.put(u"a.xml", "<broken");
  put(u"b.xml", "English (file)", 2057);
  resources_.SetDefaultLang();
  EXPECT_EQ(chosen(), "0 English (file) English (file)");
  resources_.SetLangOrCountry(0);
  EXPECT_EQ(chosen(), "0 English (file) English (file)");
}

TEST_F(NeutralLocaleTest, TakesAFileOfItsExactNumber) {
  put(u"a.xml", "Own", 0x1000);
  resources_.SetDefaultLang();
  EXPECT_EQ(chosen(), "4096 Own Own");
}

}  // namespace
}  // namespace tessaly
