// Systems without the viewer of help, or with one that is not what it should be.

#include <gtest/gtest.h>

#include "tessaly/controls/URLLink.h"
#include "tessaly/dialogs/CHelp.h"
#include "tessaly/forms/headless/Form.h"
#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/MessageBoxes.h"
#include "tessaly/platform/windows/HtmlHelpBody.h"
#include "tessaly/platform/windows/ShellBody.h"
#include "tests/support/Errors.h"

namespace tessaly::platform {
namespace {

/// A library that is missing, and one that lacks the function.
class MissingLibraries : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Libraries, MissingLibraries, testing::Values("tessaly-none.dll", "kernel32.dll"),
                         [](const auto& test) { return test.index == 0 ? "Missing" : "Lacking"; });

TEST_P(MissingLibraries, OfHelpLeaveTheCallWithoutAWindow) {
  WindowsHtmlHelp help(GetParam());
  for (int call = 0; call < 2; ++call) {
    EXPECT_EQ(help.HtmlHelpA(0, "a.chm::/Overview.html", help_command::kDisplayTopic, 0), 0);
    EXPECT_EQ(help.HtmlHelpA(0, "0", help_command::kCloseAll, 0), 0);
  }
}

TEST_P(MissingLibraries, OfHelpAreNotReportedToAHost) {
  WindowsHtmlHelp viewer(GetParam());
  const Override inForce(viewer);
  CHelp help;
  EXPECT_NO_THROW(help.ShowTopic(0, u"Overview", u"a", True, True));
  EXPECT_NO_THROW(help.ShowTopicByMap(0, 7));
  EXPECT_NO_THROW(help.DisplayIndex(0));
  EXPECT_NO_THROW(help.CloseHelp());
}

TEST_P(MissingLibraries, OfTheShellRaiseError453) {
  WindowsShell shell(GetParam());
  for (int call = 0; call < 2; ++call)
    EXPECT_EQ(tests::errorOf([&] { shell.ShellExecuteA(0, "open", "x", nullptr, nullptr, 1); }), 453);
}

TEST_P(MissingLibraries, OfTheShellHaveALinkSayThatItCannotBeLoaded) {
  WindowsShell shell(GetParam());
  fake::MessageBoxes boxes;
  const Override shellInForce(shell);
  const Override boxesInForce(boxes);
  headless::Form form;
  form.add<URLLink>({0, 0, 60, 20}).URL(u"x");
  form.movePointer({10, 10});
  form.press();
  ASSERT_EQ(boxes.boxes().size(), 1U);
  EXPECT_EQ(boxes.boxes()[0].text, u"Unable to load 'x' : Entry point not found (Error 453)");
}

TEST(LateFunctions, AreFoundWhereTheyAre) {
  LateFunction<DWORD WINAPI()> found("kernel32.dll", "GetCurrentProcessId");
  ASSERT_NE(found.get(), nullptr);
  EXPECT_EQ(found.get()(), GetCurrentProcessId());
}

}  // namespace
}  // namespace tessaly::platform
