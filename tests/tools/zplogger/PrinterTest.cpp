#include "tools/zplogger/Printer.h"

#include <gtest/gtest.h>

#include <optional>
#include <thread>

#include "tests/support/Gate.h"
#include "tests/support/Print.h"
#include "tests/tools/zplogger/Stage.h"
#include "tools/zplogger/Columns.h"

namespace tessaly::zplogger {
namespace {

using tests::lineOf;
using tests::shown;

struct TextOutput final : Output {
  Written write(std::string_view bytes) override {
    if (result == Written::Done) text += bytes;
    if (awaited && text.find(*awaited) != std::string::npos) {
      awaited.reset();
      arrived.open();
    }
    return result;
  }
  std::size_t columns() override { return width; }
  bool hasTrueColour() override { return false; }

  std::string text;
  std::size_t width = 0;

  /// What is waited for.
  std::optional<std::string> awaited;
  tests::Gate arrived;
  Written result = Written::Done;
};

struct ZpPrinterTest : testing::Test {
  /// Prints all that waits.
  Written print(Colours colours = {}) {
    view.finish();
    return Printer(view, out, errors, colours).run();
  }

  View view{Filter()};
  TextOutput out;
  TextOutput errors;
};

TEST(ZpLineFormat, IsPlainWithoutColours) {
  LineFormat format(false);
  EXPECT_EQ(format.line(lineOf(u"Start", 2)), "21:40:24.123  Host            2  Start\n");
  Line line = lineOf(u"");
  line.process = 4242;
  EXPECT_EQ(format.line(line), "21:40:24.123  Host[4242]      0\n");
  EXPECT_EQ(format.missed({123}), "… 123 lines were not shown\n");
  EXPECT_EQ(format.missed({1}), "… 1 line was not shown\n");
  EXPECT_EQ(format.notice({"hello"}), "zplogger: hello\n");
}

TEST(ZpLineFormat, GivesTheTextAloneItsTwoColours) {
  LineFormat format(true);
  Line line = lineOf(u"Start", 2);
  line.process = 42;
  line.record.foreColor = 0x00030201;
  line.record.backColor = 0xFF80FF00;
  EXPECT_EQ(format.line(line),
            "\x1b[2m21:40:24.123\x1b[0m  Host\x1b[2m[42]\x1b[0m        2 "
            "\x1b[38;2;1;2;3;48;2;0;255;128m Start \x1b[0m\n");
  EXPECT_EQ(format.line(lineOf(u"")), "\x1b[2m21:40:24.123\x1b[0m  Host          \x1b[2m  0\x1b[0m\n");
}

TEST(ZpLineFormat, ShowsWhatATerminalWouldObey) {
  LineFormat format(false);
  Line line = lineOf(u"a\x1B[2Jb\nc");
  line.client = u"\x9BX\r";
  EXPECT_EQ(format.line(line), "21:40:24.123  \\u009BX\\u000D    0  a\\u001B[2Jb\\u000Ac\n");
}

TEST(ZpLineFormat, KeepsColumnsBelowOneAnother) {
  LineFormat format(false);
  Line line = lineOf(u"x");
  line.client = u"日本語クライアント";
  EXPECT_EQ(format.line(line), "21:40:24.123  日本語クライアント    0  x\n");
  EXPECT_EQ(format.line(lineOf(u"x")), "21:40:24.123  Host                  0  x\n");
  line.client = String(100, u'y');
  line.process = 7;
  EXPECT_EQ(format.line(line), "21:40:24.123  " + std::string(24, 'y') + "…[7]    0  x\n");
}

TEST(ZpColumns, AreTwoForWideCharactersAndNoneForMarks) {
  EXPECT_EQ(columnsOf(u""), 0U);
  EXPECT_EQ(columnsOf(u"aé"), 2U);
  EXPECT_EQ(columnsOf(u"e\x301"), 1U);
  EXPECT_EQ(columnsOf(u"日本"), 4U);
  EXPECT_EQ(columnsOf(u"\xD83D\xDE00"), 2U);
  EXPECT_EQ(columnsOf(u"\xD83D"), 1U);
  EXPECT_EQ(shown(fitting(u"日本", 4)), shown(u"日本"));
  EXPECT_EQ(shown(fitting(u"日本語", 4)), shown(u"日…"));
  EXPECT_EQ(fitting(u"abc", 0), u"");
}

TEST_F(ZpPrinterTest, SendsLinesToTheOutputAndNoticesToTheErrors) {
  view.tell("waiting");
  view.show(lineOf(u"one"));
  view.show(lineOf(u"two"));
  EXPECT_EQ(print(), Written::Done);
  EXPECT_EQ(out.text, "21:40:24.123  Host            0  one\n21:40:24.123  Host            0  two\n");
  EXPECT_EQ(errors.text, "zplogger: waiting\n");
}

TEST_F(ZpPrinterTest, EndsWhereTheReaderHasGone) {
  view.show(lineOf(u"one"));
  out.result = Written::ReaderGone;
  EXPECT_EQ(print(), Written::ReaderGone);
}

TEST_F(ZpPrinterTest, GoesOnWhereNobodyReadsItsErrors) {
  errors.result = Written::ReaderGone;
  view.tell("waiting");
  view.show(lineOf(u"one"));
  EXPECT_EQ(print(), Written::Done);
  EXPECT_EQ(out.text, "21:40:24.123  Host            0  one\n");
}

TEST_F(ZpPrinterTest, DrawsAStatusWhileLinesAreHeldAndTakesItAway) {
  errors.width = 80;
  errors.awaited = "/abc";
  view.pause(true);
  view.show(lineOf(u"one"));
  std::thread printing([this] { Printer(view, out, errors, {}).run(); });
  view.ask(u"abc");
  errors.arrived.pass();
  errors.awaited = "-- paused, 1 line waits; space goes on --";
  view.ask(std::nullopt);
  errors.arrived.pass();
  view.pause(false);
  view.finish();
  printing.join();
  EXPECT_TRUE(errors.text.ends_with("/abc\r\x1b[K-- paused, 1 line waits; space goes on --\r\x1b[K"));
  EXPECT_EQ(out.text, "21:40:24.123  Host            0  one\n");
}

TEST_F(ZpPrinterTest, DrawsAStatusNoWiderThanTheTerminal) {
  errors.width = 12;
  errors.awaited = "-- paused;…";
  view.pause(true);
  std::thread printing([this] { Printer(view, out, errors, {}).run(); });
  errors.arrived.pass();
  errors.awaited = "/efghijklmn";
  view.ask(u"abcdefghijklmn");
  errors.arrived.pass();
  view.finish();
  printing.join();
  EXPECT_TRUE(errors.text.ends_with("\r\x1b[K")) << errors.text;
}

TEST_F(ZpPrinterTest, DrawsNothingWhereOneColumnIsAll) {
  errors.width = 1;
  view.ask(u"abc");
  view.answer("printed");
  errors.awaited = "printed";
  std::thread printing([this] { Printer(view, out, errors, {}).run(); });
  errors.arrived.pass();
  view.finish();
  printing.join();
  EXPECT_EQ(errors.text.find('/'), std::string::npos) << errors.text;
}

TEST_F(ZpPrinterTest, DrawsNoStatusWhereThereIsNoTerminal) {
  view.pause(true);
  view.answer("printed");
  errors.awaited = "printed";
  std::thread printing([this] { Printer(view, out, errors, {}).run(); });
  errors.arrived.pass();
  view.finish();
  printing.join();
  EXPECT_EQ(errors.text, "zplogger: printed\n");
}

}  // namespace
}  // namespace tessaly::zplogger
