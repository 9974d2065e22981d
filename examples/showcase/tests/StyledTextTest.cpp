#include "examples/showcase/StyledText.h"

#include <gtest/gtest.h>

#include "tessaly/base/Text.h"

namespace showcase {
namespace {

/// A text with what is underlined in brackets.
std::string shown(const StyledText& text) {
  tessaly::String result;
  for (const Span& span : text)
    result += span.style == Style::Underlined ? u"[" + span.text + u"]" : span.text;
  return tessaly::toUtf8(result);
}

TEST(Caption, TheLetterBehindTheMarkIsUnderlined) {
  EXPECT_EQ(shown(caption(u"&Cancel")), "[C]ancel");
  EXPECT_EQ(shown(caption(u"E&xit")), "E[x]it");
  EXPECT_EQ(shown(caption(u"開く(&O)...")), "開く([O])...");
}

TEST(Caption, ATextWithoutAMarkIsLeftAsItIs) {
  EXPECT_EQ(shown(caption(u"Open")), "Open");
  EXPECT_EQ(shown(caption(u"")), "");
}

TEST(Caption, ADoubledMarkIsOneToBeSeen) { EXPECT_EQ(shown(caption(u"Print && &mail")), "Print & [m]ail"); }

TEST(Caption, AMarkWithNothingBehindItIsSeen) { EXPECT_EQ(shown(caption(u"Save &")), "Save &"); }

TEST(Caption, ALetterOfTwoUnitsIsKeptWhole) { EXPECT_EQ(shown(caption(u"a&\U0001D400b")), "a[\U0001D400]b"); }

TEST(InItsDirection, OnlyTextFromRightToLeftIsSetApart) {
  EXPECT_EQ(shown(inItsDirection(styled(u"Open"))), "Open");
  EXPECT_EQ(shown(inItsDirection(caption(u"3 &ملف"))), "\u20673 [م]لف\u2069");
}

}  // namespace
}  // namespace showcase
