// The texts that the window begins with: names of menus, directions, and words of the command line.

#include <gtest/gtest.h>

#include "examples/showcase/Host.h"
#include "examples/showcase/window/Names.h"
#include "examples/showcase/window/Options.h"

namespace showcase::tests {
namespace {

using tessaly::String;

TEST(WindowNamesTest, ANameHasNoMarksOfAMenu) {
  EXPECT_EQ(nameOf(u"&Print..."), u"Print");
  EXPECT_EQ(nameOf(u"印刷(&P)..."), u"印刷");
  EXPECT_EQ(nameOf(u"Search && find"), u"Search & find");
  EXPECT_EQ(nameOf(u"(&P)"), u"");
  EXPECT_EQ(nameOf(u"..."), u"");
  EXPECT_EQ(nameOf(u""), u"");
}

TEST(WindowNamesTest, TheDirectionIsThatOfThePrimaryLanguage) {
  EXPECT_TRUE(isWrittenFromRight(1025));
  EXPECT_TRUE(isWrittenFromRight(2049));  // Iraq
  EXPECT_TRUE(isWrittenFromRight(1037));  // Hebrew
  EXPECT_FALSE(isWrittenFromRight(kBuiltInEnglish));
  EXPECT_FALSE(isWrittenFromRight(1049));
}

TEST(WindowOptionsTest, APictureAndALanguageAreTaken) {
  const Options none = optionsOf({});
  EXPECT_TRUE(none.fault.empty() && none.picture.empty() && !none.language);
  const Options both = optionsOf({u"--language", u"1031", u"--picture", u"window.png"});
  EXPECT_EQ(both.fault, u"");
  EXPECT_EQ(both.language, 1031);
  EXPECT_EQ(both.picture, u"window.png");
}

TEST(WindowOptionsTest, HelpIsAWishAndNoFault) {
  EXPECT_TRUE(optionsOf({u"--help"}).isHelpWanted);
  EXPECT_EQ(optionsOf({u"--help"}).fault, u"");
  EXPECT_FALSE(optionsOf({}).isHelpWanted);
}

TEST(WindowOptionsTest, WhatIsWrongIsTold) {
  EXPECT_EQ(optionsOf({u"help"}).fault, u"\"help\" is none of its arguments.");
  EXPECT_EQ(optionsOf({u"--picture"}).fault, u"--picture needs a word behind it.");
  EXPECT_EQ(optionsOf({u"--picture", u""}).fault, u"--picture needs the name of a file.");
  for (const char16_t* number :
       {u"", u"x", u"1031x", u" 1031", u"-1031", u"0", u"4294968327", u"1e3", u"１０３１"}) {
    EXPECT_EQ(optionsOf({u"--language", number}).fault,
              u"\"" + String(number) + u"\" is no number of a language.");
  }
}

}  // namespace
}  // namespace showcase::tests
