// A host may let go of a link, or of its whole form, wherever the link calls it.

#include <gtest/gtest.h>

#include "tests/controls/LinkStage.h"

namespace tessaly::tests {
namespace {

using platform::fake::MessageBoxes;
using platform::fake::Shell;

class LinksThatGoTest : public testing::TestWithParam<bool> {
 protected:
  /// The form, or the link alone.
  void letGo() {
    if (GetParam()) {
      stage_.endForm();
    } else {
      stage_.form().remove(stage_.link());
    }
  }

  LinkStage stage_;
};

INSTANTIATE_TEST_SUITE_P(FormsAndLinks, LinksThatGoTest, testing::Bool(),
                         [](const auto& test) { return test.param ? "Form" : "Link"; });

TEST_P(LinksThatGoTest, InGoToURLAndTheURLIsStillOpened) {
  stage_.link().events.GoToURL = [&](String& URL, Boolean&) {
    letGo();
    URL += u"x";
  };
  stage_.press();
  ASSERT_EQ(stage_.shell.opened().size(), 1U);
  EXPECT_EQ(stage_.shell.opened().at(0).file, "https://host.example/x");
}

TEST_P(LinksThatGoTest, InGoToURLThatCancels) {
  stage_.link().events.GoToURL = [&](String&, Boolean& Cancel) {
    letGo();
    Cancel = True;
  };
  EXPECT_EQ(stage_.press(), Calls{});
}

TEST_P(LinksThatGoTest, InGoToURLThatRaises) {
  stage_.link().events.GoToURL = [&](String&, Boolean&) {
    letGo();
    throw RuntimeError(RuntimeError::Overflow);
  };
  EXPECT_EQ(stage_.press(), Calls{});
}

TEST_P(LinksThatGoTest, WhileTheShellOpens) {
  stage_.shell.onOpen([&](const Shell::Opened&) { letGo(); });
  const Calls calls = stage_.press();
  EXPECT_EQ(calls.front(), "Screen.MousePointer = 11");
  EXPECT_EQ(calls.back(), "Screen.MousePointer = 0");
}

TEST_P(LinksThatGoTest, WhileTheMessageIsShown) {
  stage_.shell.raise(RuntimeError::EntryPointNotFound);
  stage_.boxes.answer([&](const MessageBoxes::Box&) -> Long {
    letGo();
    return 1;
  });
  EXPECT_EQ(stage_.press().back(), "Screen.MousePointer = 0");
  EXPECT_EQ(stage_.boxes.boxes().size(), 1U);
}

TEST(LinksThatStay, MayGetAnotherHandlerInTheirEvent) {
  LinkStage stage;
  int calls = 0;
  URLLink& link = stage.link();
  link.events.GoToURL = [&, text = String(100, u'x')](String& URL, Boolean&) {
    link.events.GoToURL = nullptr;
    URL = text;
    ++calls;
  };
  stage.press();
  stage.press();
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(stage.shell.opened().at(0).file, std::string(100, 'x'));
}

TEST(LinksThatStay, MayBeClickedAgainInTheirEvent) {
  LinkStage stage;
  int depth = 0;
  stage.link().events.GoToURL = [&](String& URL, Boolean&) {
    URL = depth == 0 ? u"outer" : u"inner";
    if (depth++ == 0) stage.place().userControl().mouseDown(1, 0, {1, 1});
  };
  stage.press();
  ASSERT_EQ(stage.shell.opened().size(), 2U);
  EXPECT_EQ(stage.shell.opened().at(0).file, "inner");
  EXPECT_EQ(stage.shell.opened().at(1).file, "outer");
}

}  // namespace
}  // namespace tessaly::tests
