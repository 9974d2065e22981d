// What the tool in the window does, without a window: by the buttons of a form without a display.

#include <gtest/gtest.h>

#include <algorithm>

#include "examples/showcase/Host.h"
#include "examples/showcase/tests/FakeWindow.h"
#include "examples/showcase/window/Names.h"
#include "examples/showcase/window/Options.h"
#include "examples/showcase/window/Road.h"
#include "tessaly/base/Text.h"

namespace showcase::tests {
namespace {

using tessaly::Long;
using tessaly::String;

constexpr Long kArabic = 1025;
constexpr Long kRussian = 1049;

/// The catalogue in a language, before anybody speaks with it.
class Catalogue {
 public:
  explicit Catalogue(Long language) {
    start(resources);
    resources.lang(language);
  }

  tessaly::CResources resources;
};

class WindowTest : public testing::Test {
 protected:
  explicit WindowTest(Long language = kBuiltInEnglish) : catalogue_(language) {}

  void press(Tool tool) { window_.press(reports_.button(tool)); }
  bool isEnabled(Tool tool) const { return reports_.button(tool).enabled() != 0; }
  tessaly::PictureReference shown(Tool tool) { return window_.form.placeOf(reports_.button(tool)).picture(); }
  bool looksAs(Tool tool, const tessaly::PictureReference& before) {
    return std::ranges::equal(shown(tool)->pixels(), before->pixels());
  }

  /// Which events came, each with its button's name and what it brought.
  std::string happened() const {
    std::string lines;
    for (const Event& event : window_.events) {
      lines += tessaly::toUtf8(event.cells[1] + u" " + event.cells[2]);
      if (!event.isMinor) lines += tessaly::toUtf8(u": " + event.cells[3]);
      lines += '\n';
    }
    return lines;
  }

  Catalogue catalogue_;
  FakeWindow window_;
  Reports reports_{window_, catalogue_.resources, [] { return String(u"12:34:56"); }};
};

class ArabicWindowTest : public WindowTest {
 protected:
  ArabicWindowTest() : WindowTest(kArabic) {}
};

class RussianWindowTest : public WindowTest {
 protected:
  RussianWindowTest() : WindowTest(kRussian) {}
};

TEST_F(WindowTest, TheFirstSightIsAReportWithNothingToSave) {
  EXPECT_EQ(window_.title, u"Sales.rep - Tessaly Reports");
  EXPECT_EQ(window_.status, (std::array<String, 3>{u"Ready", u"Page 1 of 9", u"Zoom: 100%"}));
  EXPECT_EQ(window_.headings, (std::array<String, 4>{u"Time", u"Name", u"Type", u"Comment"}));
  EXPECT_FALSE(window_.isRightToLeft);
  EXPECT_EQ(window_.gaps, 4);
  EXPECT_FALSE(isEnabled(Tool::Save));
  EXPECT_FALSE(isEnabled(Tool::Back));
  EXPECT_TRUE(isEnabled(Tool::On));
  EXPECT_TRUE(window_.events.empty());
}

TEST_F(WindowTest, AClickIsListedWithItsTimeAndWhatCameOfIt) {
  press(Tool::Find);
  ASSERT_EQ(window_.events.size(), 2U);
  EXPECT_TRUE(window_.events[0].isMinor);
  EXPECT_EQ(window_.events[0].cells, (std::array<String, 4>{u"12:34:56", u"Find", u"OnButtonSelected", u""}));
  EXPECT_FALSE(window_.events[1].isMinor);
  EXPECT_EQ(window_.events[1].cells, (std::array<String, 4>{u"12:34:56", u"Find", u"OnButtonClick",
                                                            u"The text \"bonus\" was not found."}));
  EXPECT_EQ(window_.status[0], u"The text \"bonus\" was not found.");
}

TEST_F(WindowTest, APointerThatRestsIsListed) {
  window_.point(reports_.button(Tool::Print));
  window_.form.advance(1000);
  EXPECT_EQ(happened(), "Print OnButtonSelected\nPrint OnButtonSelectedTiming\n");
}

TEST_F(WindowTest, EveryButtonDoesWhatItsNameSays) {
  for (const Tool tool : {Tool::New, Tool::Open, Tool::Print, Tool::Mail, Tool::On, Tool::Back, Tool::Smaller,
                          Tool::Larger, Tool::Filter, Tool::Filter, Tool::Save}) {
    press(tool);
  }
  EXPECT_EQ(happened(),
            "New report OnButtonSelected\nNew report OnButtonClick: Untitled\n"
            "Open OnButtonSelected\nOpen OnButtonClick: Page 1 of 9\n"
            "Print OnButtonSelected\nPrint OnButtonClick: Printing page 1 of 9\n"
            "Send by mail OnButtonSelected\n"
            "Send by mail OnButtonClick: The message was sent to sales@example.com.\n"
            "Next page OnButtonSelected\nNext page OnButtonClick: Page 2 of 9\n"
            "Previous page OnButtonSelected\nPrevious page OnButtonClick: Page 1 of 9\n"
            "Zoom out OnButtonSelected\nZoom out OnButtonClick: Zoom: 90%\n"
            "Zoom in OnButtonSelected\nZoom in OnButtonClick: Zoom: 100%\n"
            "Filter OnButtonSelected\nFilter OnButtonClick: 12 of 240 rows selected\n"
            "Filter OnButtonClick: 240 rows\n"
            "Save OnButtonSelected\nSave OnButtonClick: Done\n");
  EXPECT_TRUE(window_.form.errors().empty());
}

TEST_F(WindowTest, SavingIsThereAsLongAsThereIsSomethingToSave) {
  const auto before = shown(Tool::Save);
  press(Tool::New);
  EXPECT_TRUE(isEnabled(Tool::Save));
  EXPECT_FALSE(looksAs(Tool::Save, before));
  EXPECT_EQ(window_.title, u"Untitled* - Tessaly Reports");
  press(Tool::Save);
  EXPECT_FALSE(isEnabled(Tool::Save));
  EXPECT_EQ(window_.title, u"Sales.rep - Tessaly Reports");
  window_.point(reports_.button(Tool::Print));
  window_.form.advance(50);
  EXPECT_TRUE(looksAs(Tool::Save, before));
}

TEST_F(WindowTest, TheMailButtonCountsUpToNine) {
  std::vector<tessaly::PictureReference> seen = {shown(Tool::Mail)};
  for (int times = 1; times <= 10; ++times) {
    press(Tool::Mail);
    window_.point(reports_.button(Tool::Print));
    window_.form.advance(50);
    EXPECT_EQ(looksAs(Tool::Mail, seen.back()), times == 10) << times;
    seen.push_back(shown(Tool::Mail));
  }
}

TEST_F(WindowTest, AFilterThatIsOnIsSeen) {
  press(Tool::Filter);
  EXPECT_NE(reports_.button(Tool::Filter).backcolor(), kToolBarColour);
  press(Tool::Filter);
  EXPECT_EQ(reports_.button(Tool::Filter).backcolor(), kToolBarColour);
}

TEST_F(WindowTest, AHeldButtonTurnsThePagesUntilTheLast) {
  window_.hold(reports_.button(Tool::On));
  window_.form.advance(10000);
  window_.release(reports_.button(Tool::On));
  EXPECT_EQ(window_.status[1], u"Page 9 of 9");
  EXPECT_FALSE(isEnabled(Tool::On));
  EXPECT_TRUE(isEnabled(Tool::Back));
  EXPECT_EQ(window_.events.size(), 1U + 8U + 1U);  // selected, eight pages, and a second of rest between them
}

TEST_F(WindowTest, ThePictureIsHeldBetweenItsLeastAndItsMostSize) {
  window_.hold(reports_.button(Tool::Smaller));
  window_.form.advance(10000);
  window_.release(reports_.button(Tool::Smaller));
  EXPECT_EQ(window_.status[2], u"Zoom: 50%");
  EXPECT_FALSE(isEnabled(Tool::Smaller));
  window_.hold(reports_.button(Tool::Larger));
  window_.form.advance(10000);
  window_.release(reports_.button(Tool::Larger));
  EXPECT_EQ(window_.status[2], u"Zoom: 200%");
  EXPECT_FALSE(isEnabled(Tool::Larger));
  EXPECT_TRUE(isEnabled(Tool::Smaller));
}

TEST_F(WindowTest, TheRoadEndsOnAPageThatItHasTurnedTo) {
  walk(window_, reports_);
  EXPECT_EQ(window_.status, (std::array<String, 3>{u"Page 5 of 9", u"Page 5 of 9", u"Zoom: 110%"}));
  EXPECT_TRUE(reports_.report().isFiltered());
  EXPECT_EQ(reports_.report().timesSent(), 2);
  EXPECT_EQ(window_.events.size(), reports_.events().size());
}

TEST_F(RussianWindowTest, AllTextsAreOfTheLanguage) {
  const auto& resources = catalogue_.resources;
  EXPECT_EQ(window_.headings[0], resources.res(TimeHeading));
  EXPECT_EQ(window_.status[0], resources.res(Ready));
  EXPECT_EQ(window_.listFont, resources.gridFontName());
  EXPECT_EQ(window_.listFontSize, resources.gridFontSize());
  Catalogue english(kBuiltInEnglish);
  for (Long place = 0; place < kTools; ++place) {
    const Tool tool = static_cast<Tool>(place);
    const String& name = window_.names[&reports_.button(tool)];
    EXPECT_EQ(name, nameOf(resources.res(slotOf(tool))));
    EXPECT_NE(name, nameOf(english.resources.res(slotOf(tool)))) << place;
  }
  press(Tool::Mail);
  EXPECT_EQ(window_.events.back().cells[3], resources.resWithArg(MessageSentTo, u"sales@example.com", u""));
}

TEST_F(ArabicWindowTest, AllBeginsAtTheRightAndArrowsPointTheOtherWay) {
  EXPECT_TRUE(window_.isRightToLeft);
  const ToolPictures pictures;
  const auto isPicture = [&](Tool tool, Tool picture) {
    return std::ranges::equal(reports_.button(tool).Picture()->pixels(),
                              pictures.tool(static_cast<Long>(picture))->pixels());
  };
  EXPECT_TRUE(isPicture(Tool::Back, Tool::On));
  EXPECT_TRUE(isPicture(Tool::On, Tool::Back));
  EXPECT_TRUE(isPicture(Tool::Print, Tool::Print));
}

TEST(WindowNamesTest, ANameHasNoMarksOfAMenu) {
  EXPECT_EQ(nameOf(u"&Print..."), u"Print");
  EXPECT_EQ(nameOf(u"印刷(&P)..."), u"印刷");
  EXPECT_EQ(nameOf(u"Search && find"), u"Search & find");
  EXPECT_EQ(nameOf(u"(&P)"), u"");
  EXPECT_EQ(nameOf(u"..."), u"");
  EXPECT_EQ(nameOf(u""), u"");
}

TEST(WindowNamesTest, TheDirectionIsThatOfThePrimaryLanguage) {
  EXPECT_TRUE(isWrittenFromRight(kArabic));
  EXPECT_TRUE(isWrittenFromRight(2049));  // Iraq
  EXPECT_TRUE(isWrittenFromRight(1037));  // Hebrew
  EXPECT_FALSE(isWrittenFromRight(kBuiltInEnglish));
  EXPECT_FALSE(isWrittenFromRight(kRussian));
}

TEST(WindowOptionsTest, APictureAndALanguageAreTaken) {
  const Options none = optionsOf({});
  EXPECT_TRUE(none.fault.empty() && none.picture.empty() && !none.language);
  const Options both = optionsOf({u"--language", u"1031", u"--picture", u"window.png"});
  EXPECT_EQ(both.fault, u"");
  EXPECT_EQ(both.language, 1031);
  EXPECT_EQ(both.picture, u"window.png");
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
