// What a click on a link does, step by step.

#include <gtest/gtest.h>

#include <new>

#include "tests/controls/LinkStage.h"

namespace tessaly::tests {
namespace {

using platform::fake::MessageBoxes;
using platform::fake::Shell;

const Calls kOpened{"Screen.MousePointer = 11", "ShellExecuteA https://host.example/",
                    "Screen.MousePointer = 0"};

class LinkClickTest : public testing::Test {
 protected:
  LinkStage stage_;
  URLLink& link_ = stage_.link();
};

TEST_F(LinkClickTest, HandsTheURLToTheShellUnderAnHourglass) {
  EXPECT_EQ(stage_.press(), kOpened);
  EXPECT_EQ(stage_.form().screen().MousePointer(), 0);
}

TEST_F(LinkClickTest, TellsTheShellTheWindowAndNothingMore) {
  stage_.press();
  const std::vector<Shell::Opened> expected{
      {stage_.place().userControl().hWnd(), "open", "https://host.example/", std::nullopt, std::nullopt, 1}};
  EXPECT_EQ(stage_.shell.opened(), expected);
  EXPECT_NE(stage_.shell.opened().at(0).owner, 0);
}

TEST_F(LinkClickTest, CountsWithTheLeftButtonAmongOthers) {
  for (const MouseState buttons : {MouseState{3}, MouseState{5}, MouseState{7}}) {
    EXPECT_EQ(stage_.callsOf([&] { stage_.place().userControl().mouseDown(buttons, 0, {1, 1}); }), kOpened);
  }
}

TEST_F(LinkClickTest, OfAnotherButtonOpensNothingButTakesThePointer) {
  bool raised = false;
  link_.events.GoToURL = [&](String&, Boolean&) { raised = true; };
  stage_.form().screen().MousePointer(2);
  EXPECT_EQ(stage_.press(2), (Calls{"Screen.MousePointer = 0"}));
  EXPECT_EQ(stage_.press(4), (Calls{"Screen.MousePointer = 0"}));
  EXPECT_FALSE(raised);
}

TEST_F(LinkClickTest, IsShownToTheHostFirst) {
  String seen;
  Boolean cancelSeen = True;
  link_.events.GoToURL = [&](String& URL, Boolean& Cancel) {
    seen = URL;
    cancelSeen = Cancel;
    stage_.log().note("GoToURL");
  };
  Calls expected{"GoToURL"};
  expected.insert(expected.end(), kOpened.begin(), kOpened.end());
  EXPECT_EQ(stage_.press(), expected);
  EXPECT_EQ(seen, u"https://host.example/");
  EXPECT_EQ(cancelSeen, False);
}

TEST_F(LinkClickTest, IsCancelledByTheHostWithThePointerAsItIs) {
  stage_.form().screen().MousePointer(2);
  for (const Boolean cancelled : {True, Boolean(1), Boolean(-5)}) {
    link_.events.GoToURL = [=](String& URL, Boolean& Cancel) {
      URL = u"other";
      Cancel = cancelled;
    };
    EXPECT_EQ(stage_.press(), Calls{});
  }
  EXPECT_EQ(stage_.form().screen().MousePointer(), 2);
}

TEST_F(LinkClickTest, OpensWhatTheHostPutsInItsPlaceThisOnce) {
  link_.ShowToolTip(True);
  link_.events.GoToURL = [](String& URL, Boolean&) { URL = u"other"; };
  EXPECT_EQ(stage_.press().at(1), "ShellExecuteA other");
  EXPECT_EQ(link_.URL(), u"https://host.example/");
  EXPECT_EQ(stage_.place().toolTip(), u"https://host.example/");
  link_.events.GoToURL = nullptr;
  EXPECT_EQ(stage_.press(), kOpened);
}

TEST_F(LinkClickTest, OpensTheURLOfItsBeginningThoughTheHostAssignsAnother) {
  link_.events.GoToURL = [&](String&, Boolean&) { link_.URL(u"other"); };
  const Calls calls = stage_.press();
  EXPECT_EQ(calls.at(calls.size() - 2), "ShellExecuteA https://host.example/");
  EXPECT_EQ(link_.URL(), u"other");
}

TEST_F(LinkClickTest, OpensAnEmptyURLToo) {
  link_.URL(u"");
  EXPECT_EQ(stage_.press(), (Calls{"Screen.MousePointer = 11", "ShellExecuteA ", "Screen.MousePointer = 0"}));
}

TEST_F(LinkClickTest, DoesNotLookAtTheShellsResult) {
  for (const std::intptr_t result : {0, 2, 5, 31, 32, 33, -1}) {
    stage_.shell.answer(result);
    EXPECT_EQ(stage_.press(), kOpened) << result;
  }
}

TEST_F(LinkClickTest, HandsOnURLsOfAnyKind) {
  for (const char* const url : {"a b", "\"a\" 'b'", "100%20%", "#x", "..\\..\\b", "../b", "C:\\a b.txt",
                                "-x --y", "a;b&c|d", "$(x)`y`", "a\nb"}) {
    link_.URL(fromUtf8(url));
    stage_.press();
    EXPECT_EQ(stage_.shell.opened().back().file, url);
  }
}

TEST_F(LinkClickTest, HandsOnALongURL) {
  link_.URL(String(30000, u'x'));
  stage_.press();
  EXPECT_EQ(stage_.shell.opened().back().file, std::string(30000, 'x'));
}

TEST_F(LinkClickTest, HandsOnOtherScriptsInTheSystemsCodePage) {
  link_.URL(u"Caf\u00E9 \u65E5");
  stage_.press();
  EXPECT_EQ(stage_.shell.opened().back().file, "Caf\xE9 ?");
  platform::fake::Locale russian(1049, u",", 1251);
  const platform::Override inForce(russian);
  link_.URL(u"\u0416\u0443\u043A");
  stage_.press();
  EXPECT_EQ(stage_.shell.opened().back().file, "\xC6\xF3\xEA");
}

TEST_F(LinkClickTest, TellsOfACallThatFailsAsSuchAndGivesThePointerBack) {
  stage_.shell.raise(RuntimeError::EntryPointNotFound);
  const std::string message = "Unable to load 'https://host.example/' : Entry point not found (Error 453)";
  EXPECT_EQ(stage_.press(), (Calls{"Screen.MousePointer = 11", "ShellExecuteA https://host.example/",
                                   "MessageBoxW " + message, "Screen.MousePointer = 0"}));
  const std::vector<MessageBoxes::Box> expected{{0, fromUtf8(message), u"Tessaly", 0x10}};
  EXPECT_EQ(stage_.boxes.boxes(), expected);
  EXPECT_TRUE(stage_.form().errors().empty());
}

TEST_F(LinkClickTest, TellsOfTheURLThatTheHostHasPutInItsPlace) {
  stage_.shell.raise(RuntimeError::OutOfMemory);
  link_.events.GoToURL = [](String& URL, Boolean&) { URL = u"\u65E5 'x'"; };
  stage_.press();
  EXPECT_EQ(stage_.boxes.boxes().at(0).text, u"Unable to load '\u65E5 'x'' : Out of memory (Error 7)");
}

TEST_F(LinkClickTest, TellsOfAPointerThatFails) {
  stage_.log().fail("Screen.MousePointer = 11", RuntimeError::InvalidPropertyValue);
  const Calls calls = stage_.press();
  ASSERT_EQ(calls.size(), 3U);
  EXPECT_EQ(calls.at(1),
            "MessageBoxW Unable to load 'https://host.example/' : Invalid property value (Error 380)");
  EXPECT_EQ(calls.back(), "Screen.MousePointer = 0");
}

TEST_F(LinkClickTest, TellsOfWantOfMemory) {
  stage_.shell.onOpen([](const Shell::Opened&) { throw std::bad_alloc(); });
  EXPECT_EQ(stage_.press().at(1),
            "MessageBoxW Unable to load 'https://host.example/' : Out of memory (Error 7)");
}

TEST_F(LinkClickTest, GivesThePointerBackThoughNoBoxCanBeShown) {
  stage_.shell.raise(RuntimeError::EntryPointNotFound);
  stage_.boxes.press(0);
  EXPECT_EQ(stage_.press().back(), "Screen.MousePointer = 0");
}

TEST_F(LinkClickTest, GivesThePointerBackThoughTheBoxFails) {
  stage_.shell.raise(RuntimeError::EntryPointNotFound);
  stage_.boxes.answer([](const MessageBoxes::Box&) -> Long { throw RuntimeError(RuntimeError::Overflow); });
  EXPECT_EQ(stage_.press().back(), "Screen.MousePointer = 0");
}

TEST_F(LinkClickTest, IsEndedByAnErrorOfTheHost) {
  link_.events.GoToURL = [](String&, Boolean&) { throw RuntimeError(RuntimeError::Overflow); };
  EXPECT_EQ(stage_.press(), Calls{});
  ASSERT_EQ(stage_.form().errors().size(), 1U);
  EXPECT_EQ(stage_.form().errors().back().number(), RuntimeError::Overflow);
}

TEST_F(LinkClickTest, IsThePressAndNotTheReleaseOrAMove) {
  stage_.form().movePointer({30, 40});
  stage_.form().press();
  stage_.take();
  stage_.form().movePointer({35, 40});
  stage_.form().release();
  stage_.form().movePointer({500, 500});
  EXPECT_EQ(stage_.take(), Calls{});
}

TEST_F(LinkClickTest, CountsToTheControlsEdgeAndNotBeyond) {
  const auto pressAt = [&](PixelPoint point) {
    stage_.form().movePointer(point);
    stage_.form().press();
    stage_.form().release();
    return stage_.take();
  };
  EXPECT_EQ(pressAt({10, 20}), kOpened);
  EXPECT_EQ(pressAt({109, 59}), kOpened);
  EXPECT_EQ(pressAt({110, 59}), Calls{});
  EXPECT_EQ(pressAt({9, 20}), Calls{});
}

}  // namespace
}  // namespace tessaly::tests
