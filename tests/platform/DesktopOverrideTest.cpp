#include <gtest/gtest.h>

#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Drawing.h"
#include "tessaly/platform/fake/HtmlHelp.h"
#include "tessaly/platform/fake/MessageBoxes.h"
#include "tessaly/platform/fake/Pictures.h"
#include "tessaly/platform/fake/Shell.h"
#include "tests/support/Errors.h"

namespace tessaly::platform {
namespace {

TEST(DesktopOverrides, PutADrawingInPlaceForAScope) {
  Drawing* const own = desktop().drawing;
  Pictures* const pictures = desktop().pictures;
  fake::Drawing drawing;
  {
    const Override override(drawing);
    EXPECT_EQ(desktop().drawing, &drawing);
    EXPECT_EQ(desktop().pictures, pictures);
  }
  EXPECT_EQ(desktop().drawing, own);
}

TEST(DesktopOverrides, PutPicturesInPlaceForAScope) {
  Pictures* const own = desktop().pictures;
  Drawing* const drawing = desktop().drawing;
  fake::Pictures pictures;
  {
    const Override override(pictures);
    EXPECT_EQ(desktop().pictures, &pictures);
    EXPECT_EQ(desktop().drawing, drawing);
  }
  EXPECT_EQ(desktop().pictures, own);
}

TEST(DesktopOverrides, PutHelpBoxesAndShellInPlaceForAScope) {
  const Desktop own = desktop();
  fake::HtmlHelp help;
  fake::MessageBoxes boxes;
  fake::Shell shell;
  {
    const Override helpInForce(help);
    EXPECT_EQ(desktop().htmlHelp, &help);
    const Override boxesInForce(boxes);
    EXPECT_EQ(desktop().messageBoxes, &boxes);
    const Override shellInForce(shell);
    EXPECT_EQ(desktop().shell, &shell);
    EXPECT_EQ(desktop().drawing, own.drawing);
  }
  EXPECT_EQ(desktop().htmlHelp, own.htmlHelp);
  EXPECT_EQ(desktop().messageBoxes, own.messageBoxes);
  EXPECT_EQ(desktop().shell, own.shell);
}

TEST(DesktopOverrides, NestAndEndInTheReverseOfTheirOrder) {
  Drawing* const own = desktop().drawing;
  fake::Drawing outer;
  fake::Drawing inner;
  const Override outerInForce(outer);
  {
    const Override innerInForce(inner);
    EXPECT_EQ(desktop().drawing, &inner);
  }
  EXPECT_EQ(desktop().drawing, &outer);
  EXPECT_NE(desktop().drawing, own);
}

TEST(FakePictures, KnowTheFilesThatATestHasPut) {
  fake::Pictures pictures;
  const PicturePixels red{1, 1, {0xFFFF0000}};
  const PicturePixels blue{2, 1, {0xFF0000FF, 0xFF0000FF}};
  EXPECT_EQ(pictures.decode("picture"), std::nullopt);
  pictures.put("picture", red);
  EXPECT_EQ(pictures.decode("picture"), red);
  pictures.put("picture", blue);
  EXPECT_EQ(pictures.decode("picture"), blue);
  EXPECT_EQ(pictures.decode("another"), std::nullopt);
}

TEST(FakePictures, FailWhenTheyAreTold) {
  fake::Pictures pictures;
  const PicturePixels red{1, 1, {0xFFFF0000}};
  const std::string png = pictures.encodePng(red);
  EXPECT_EQ(pictures.decode(png), red);
  pictures.put("picture", red);
  pictures.failDecode();
  EXPECT_EQ(pictures.decode(png), std::nullopt);
  EXPECT_EQ(pictures.decode("picture"), std::nullopt);
  pictures.failEncode();
  EXPECT_EQ(pictures.encodePng(red), "");
  const std::vector<std::string> expected = {"encodePng", "decode", "decode", "decode", "encodePng"};
  EXPECT_EQ(pictures.calls(), expected);
}

TEST(FakeDrawings, RecordTheirCalls) {
  fake::Drawing drawing;
  const DeviceContext surface = drawing.createSurface(2, 2);
  const DrawingObject brush = drawing.CreateSolidBrush(0x123456);
  const DrawingObject before = drawing.SelectObject(surface, brush);
  drawing.FillRect(surface, {0, 0, 1, 1}, brush);
  drawing.TransparentBlt(surface, 0, 0, 1, 1, surface, 1, 1, 1, 1, 0);
  drawing.SelectObject(surface, before);
  EXPECT_EQ(drawing.surfaces(), 1U);
  EXPECT_EQ(drawing.brushes(), 1U);
  drawing.DeleteObject(brush);
  drawing.deleteSurface(surface);
  const std::vector<std::string> expected = {"createSurface", "CreateSolidBrush", "SelectObject",
                                             "FillRect",      "TransparentBlt",   "SelectObject",
                                             "DeleteObject",  "deleteSurface"};
  EXPECT_EQ(drawing.calls(), expected);
  EXPECT_EQ(drawing.surfaces() + drawing.brushes(), 0U);
  drawing.forgetCalls();
  EXPECT_TRUE(drawing.calls().empty());
}

TEST(FakeDrawings, FailByName) {
  fake::Drawing drawing;
  const DeviceContext surface = drawing.createSurface(1, 1);
  const DrawingObject brush = drawing.CreateSolidBrush(0xFFFFFF);
  for (const char* call :
       {"createSurface", "CreateSolidBrush", "SelectObject", "FillRect", "TransparentBlt", "DeleteObject"}) {
    drawing.fail(call);
  }
  EXPECT_EQ(drawing.createSurface(1, 1), 0);
  EXPECT_EQ(drawing.CreateSolidBrush(0), 0);
  EXPECT_EQ(drawing.SelectObject(surface, brush), 0);
  EXPECT_EQ(drawing.FillRect(surface, {0, 0, 1, 1}, brush), 0);
  EXPECT_FALSE(drawing.TransparentBlt(surface, 0, 0, 1, 1, surface, 0, 0, 1, 1, 5));
  EXPECT_FALSE(drawing.DeleteObject(brush));
  EXPECT_EQ(drawing.pixels(surface).pixels[0], 0U);
  drawing.mend("FillRect");
  EXPECT_EQ(drawing.FillRect(surface, {0, 0, 1, 1}, brush), 1);
  EXPECT_EQ(drawing.pixels(surface).pixels[0], 0xFFFFFFU);
}

TEST(FakeHelp, RecordsWhatIsAskedAndAnswersAsTold) {
  fake::HtmlHelp help;
  EXPECT_EQ(help.HtmlHelpA(3, "a.chm", 15, -7), 1);
  help.answer(0x5000);
  EXPECT_EQ(help.HtmlHelpA(0, nullptr, 18, 0), 0x5000);
  EXPECT_TRUE(help.SetWindowPos(0x5000, kTopMost, 1, 2, 3, 4, 11));
  help.failSetWindowPos();
  EXPECT_FALSE(help.SetWindowPos(1, 0, 0, 0, 0, 0, 0));
  const std::vector<fake::HtmlHelp::Shown> shown = {{3, "a.chm", 15, -7}, {0, "", 18, 0}};
  EXPECT_EQ(help.shown(), shown);
  const std::vector<fake::HtmlHelp::Placed> placed = {{0x5000, -1, 1, 2, 3, 4, 11}, {1, 0, 0, 0, 0, 0, 0}};
  EXPECT_EQ(help.placed(), placed);
  const std::vector<std::string> calls = {"HtmlHelpA", "HtmlHelpA", "SetWindowPos", "SetWindowPos"};
  EXPECT_EQ(help.calls(), calls);
}

TEST(FakeBoxes, ArePressedAndAnsweredByATest) {
  fake::MessageBoxes boxes;
  boxes.press(7);
  EXPECT_EQ(boxes.MessageBoxW(0, u"prompt", u"title", 4), 7);
  String seen;
  boxes.answer([&seen](const fake::MessageBoxes::Box& box) -> Long {
    seen = box.text;
    return 6;
  });
  EXPECT_EQ(boxes.MessageBoxW(0, u"another", nullptr, 4), 6);
  EXPECT_EQ(seen, u"another");
  const std::vector<fake::MessageBoxes::Box> expected = {{0, u"prompt", u"title", 4},
                                                         {0, u"another", u"", 4}};
  EXPECT_EQ(boxes.boxes(), expected);
  EXPECT_EQ(boxes.GetActiveWindow(), 0);
  boxes.activate(9);
  EXPECT_EQ(boxes.GetActiveWindow(), 9);
  const std::vector<std::string> calls = {"MessageBoxW", "MessageBoxW", "GetActiveWindow", "GetActiveWindow"};
  EXPECT_EQ(boxes.calls(), calls);
}

TEST(FakeShells, RecordWhatIsOpenedAndAnswerOrFailAsTold) {
  fake::Shell shell;
  EXPECT_EQ(shell.ShellExecuteA(5, "open", "a b", nullptr, nullptr, 1), shell_result::kSuccess);
  shell.answer(31);
  EXPECT_EQ(shell.ShellExecuteA(0, nullptr, nullptr, "p", "d", 0), 31);
  std::size_t seen = 0;
  shell.onOpen([&](const fake::Shell::Opened& /*call*/) { seen = shell.opened().size(); });
  shell.raise(453);
  EXPECT_EQ(tests::errorOf([&] { shell.ShellExecuteA(0, "open", "c", nullptr, nullptr, 1); }), 453);
  EXPECT_EQ(seen, 3U);
  using Text = std::optional<std::string>;
  const std::vector<fake::Shell::Opened> expected = {{5, Text("open"), Text("a b"), {}, {}, 1},
                                                     {0, {}, {}, Text("p"), Text("d"), 0},
                                                     {0, Text("open"), Text("c"), {}, {}, 1}};
  EXPECT_EQ(shell.opened(), expected);
}

TEST(FakeShells, AnswerAsThePlatformsDoWhereNothingElseIsTold) {
  fake::Shell shell;
  const auto open = [&](const char* operation, const char* file) {
    return shell.ShellExecuteA(0, operation, file, nullptr, nullptr, 1);
  };
  EXPECT_EQ(open("OPEN", "a"), shell_result::kSuccess);
  for (const char* const operation : {"", "ope", "opens", "print"})
    EXPECT_EQ(open(operation, "a"), shell_result::kNoAssociation) << operation;
  EXPECT_EQ(open("open", nullptr), shell_result::kFileNotFound);
  shell.answer("a", 5);
  EXPECT_EQ(open("open", "a"), 5);
  EXPECT_EQ(open("open", "ab"), shell_result::kSuccess);
  shell.answer(8);
  EXPECT_EQ(open("open", "a"), 8);
}

}  // namespace
}  // namespace tessaly::platform
