#include "tools/zplogger/View.h"

#include <gtest/gtest.h>

#include "tests/tools/zplogger/Stage.h"

namespace tessaly::zplogger {
namespace {

using tests::lineOf;
using tests::rest;
using Lines = std::vector<std::string>;

TEST(ZpView, ShowsWhatComesInItsOrder) {
  View view{Filter()};
  view.show(lineOf(u"one"));
  view.tell("notice");
  view.show(lineOf(u"two"));
  EXPECT_EQ(rest(view), (Lines{"Host/0: one", "# notice", "Host/0: two"}));
}

TEST(ZpView, TakesLinesOfALevelAndAbove) {
  View view{Filter(2)};
  for (const int level : {0, 1, 2, 255}) view.show(lineOf(u"level", static_cast<std::uint8_t>(level)));
  EXPECT_EQ(rest(view).size(), 2U);
}

TEST(ZpView, TakesLinesThatHaveATextInAnyCase) {
  View view{Filter(0, u"äBc")};
  view.show(lineOf(u"xÄbCx"));
  view.show(lineOf(u"abc"));
  view.show(lineOf(u""));
  EXPECT_EQ(rest(view), (Lines{"Host/0: xÄbCx"}));
}

TEST(ZpView, HoldsLinesWhilePausedAndGoesOn) {
  View view{Filter()};
  view.pause(true);
  view.show(lineOf(u"one"));
  view.answer("at once");
  View::Work work = view.next();
  ASSERT_EQ(work.entries.size(), 1U);
  EXPECT_EQ(std::get<Notice>(work.entries[0]).text, "at once");
  EXPECT_TRUE(work.status.isPaused);
  EXPECT_EQ(work.status.waiting, 1U);
  view.pause(false);
  work = view.next();
  ASSERT_EQ(work.entries.size(), 1U);
  EXPECT_FALSE(work.status.isHeld());
}

TEST(ZpView, HoldsLinesWhileATextIsAskedFor) {
  View view{Filter()};
  view.ask(u"abc");
  view.show(lineOf(u"one"));
  EXPECT_EQ(view.next().status.typed, u"abc");
  view.ask(std::nullopt);
  EXPECT_EQ(view.next().entries.size(), 1U);
}

TEST(ZpView, FiltersAlsoWhatWaits) {
  View view{Filter()};
  view.pause(true);
  view.show(lineOf(u"one", 0));
  view.show(lineOf(u"two", 5));
  view.setFilter(Filter(5));
  EXPECT_EQ(rest(view), Lines{"Host/0: two"});
}

TEST(ZpView, CountsLinesWithoutRoomWhereTheyWouldHaveStood) {
  View view{Filter()};
  view.pause(true);
  for (std::size_t i = 0; i < LineQueue::kMost + 123; ++i) view.show(lineOf(u"x"));
  EXPECT_EQ(view.next().status.waiting, LineQueue::kMost + 123);
  view.pause(false);
  EXPECT_FALSE(view.next().entries.empty());
  view.show(lineOf(u"later"));
  const Lines lines = rest(view);
  ASSERT_GT(lines.size(), 2U);
  EXPECT_EQ(lines[lines.size() - 2], "123 missed");
  EXPECT_EQ(lines.back(), "Host/0: later");
}

TEST(ZpView, TellsOfLinesWithoutRoomAtTheEndToo) {
  View view{Filter()};
  for (std::size_t i = 0; i < LineQueue::kMost + 1; ++i) view.show(lineOf(u"x"));
  const Lines lines = rest(view);
  EXPECT_EQ(lines.size(), LineQueue::kMost + 1);
  EXPECT_EQ(lines.back(), "1 missed");
}

TEST(ZpView, KeepsItsRoomForLinesThatAreShown) {
  View view{Filter(1)};
  view.pause(true);
  for (std::size_t i = 0; i < LineQueue::kMost + 1; ++i) view.show(lineOf(u"x", 0));
  view.show(lineOf(u"seen", 1));
  EXPECT_EQ(rest(view), Lines{"Host/0: seen"});
}

TEST(ZpView, GivesWhatWaitsWhenItIsFinishedThoughPaused) {
  View view{Filter()};
  view.pause(true);
  view.show(lineOf(u"one"));
  EXPECT_EQ(rest(view), Lines{"Host/0: one"});
}

TEST(ZpFilter, SaysWhatIsShown) {
  EXPECT_EQ(Filter().inWords(), "lines of every level");
  EXPECT_EQ(Filter(2).inWords(), "lines of level 2 and above");
  EXPECT_EQ(Filter(0, u"a\x1B").inWords(), "lines of every level with \"a\\u001B\"");
}

}  // namespace
}  // namespace tessaly::zplogger
