// What `FillRect` must do in every body of the area Drawing, pixel by pixel.

#include <gtest/gtest.h>

#include "tests/contract/DrawingWorld.h"

namespace tessaly::tests {
namespace {

using platform::DrawingObject;

constexpr Long kFar = 0x3FFFFFFF;

class FillRectContract : public testing::TestWithParam<Body> {
 private:
  DrawingWorld world_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Body, FillRectContract, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

TEST_P(FillRectContract, FillsFromTheFirstSideToBeforeTheSecond) {
  const Canvas canvas(5, 4);
  const Brush brush(colourOf('a'));
  EXPECT_EQ(drawing().FillRect(canvas.surface(), {1, 1, 4, 3}, brush.get()), 1);
  EXPECT_EQ(canvas.text(), rows({".....", ".aaa.", ".aaa.", "....."}));
}

TEST_P(FillRectContract, FillsWithoutAFlagByte) {
  const Canvas canvas(4, 1);
  Long column = 0;
  for (const std::uint32_t flag : {0x00U, 0x01U, 0x02U, 0xFFU}) {
    const Brush brush(static_cast<Long>(flag << 24U | 0x030201U));
    EXPECT_EQ(drawing().FillRect(canvas.surface(), {column, 0, column + 1, 1}, brush.get()), 1);
    EXPECT_EQ(canvas.at(column, 0), 0x010203U) << flag;
    ++column;
  }
}

TEST_P(FillRectContract, FillsWithTheColoursAtTheEnds) {
  const Canvas canvas(2, 1);
  const Brush white(0xFFFFFF);
  const Brush black(0);
  drawing().FillRect(canvas.surface(), {0, 0, 2, 1}, white.get());
  drawing().FillRect(canvas.surface(), {1, 0, 2, 1}, black.get());
  EXPECT_EQ(canvas.text(), rows({"#."}));
}

struct FillRow {
  platform::PixelArea area;
  std::initializer_list<std::string_view> expected;
};

void expectFills(std::initializer_list<FillRow> table) {
  const Brush brush(colourOf('a'));
  for (const FillRow& row : table) {
    const Canvas canvas(5, 3);
    EXPECT_EQ(drawing().FillRect(canvas.surface(), row.area, brush.get()), 1);
    EXPECT_EQ(canvas.text(), rows(row.expected))
        << row.area.left << ", " << row.area.top << ", " << row.area.right << ", " << row.area.bottom;
  }
}

TEST_P(FillRectContract, CutsAFillOffAtEverySide) {
  expectFills({{{-2, 0, 2, 1}, {"aa...", ".....", "....."}},
               {{3, 0, 9, 1}, {"...aa", ".....", "....."}},
               {{1, -7, 2, 2}, {".a...", ".a...", "....."}},
               {{1, 2, 2, 9}, {".....", ".....", ".a..."}},
               {{-1, -1, 6, 4}, {"aaaaa", "aaaaa", "aaaaa"}},
               {{-kFar, -kFar, kFar, kFar}, {"aaaaa", "aaaaa", "aaaaa"}}});
}

TEST_P(FillRectContract, FillsNothingBesideTheSurface) {
  const std::initializer_list<std::string_view> kNothing = {".....", ".....", "....."};
  expectFills({{{5, 0, 9, 3}, kNothing},
               {{-4, 0, 0, 3}, kNothing},
               {{0, 3, 5, 8}, kNothing},
               {{0, -8, 5, 0}, kNothing},
               {{kFar - 1, 0, kFar, 3}, kNothing},
               {{-kFar, 0, 1 - kFar, 3}, kNothing}});
}

TEST_P(FillRectContract, FillsNothingWhereAnAreaIsEmpty) {
  const std::initializer_list<std::string_view> kNothing = {".....", ".....", "....."};
  expectFills({{{2, 1, 2, 2}, kNothing},
               {{2, 1, 3, 1}, kNothing},
               {{2, 1, 2, 1}, kNothing},
               {{2, 3, 2, 0}, kNothing}});
}

TEST_P(FillRectContract, FillsFromTheOtherSideWhereTheOrderIsWrong) {
  expectFills({{{3, 0, 1, 1}, {"..aa.", ".....", "....."}},
               {{1, 2, 2, 0}, {".....", ".a...", ".a..."}},
               {{3, 2, 1, 0}, {".....", "..aa.", "..aa."}},
               {{9, 0, 2, 1}, {"...aa", ".....", "....."}},
               {{2, 0, -3, 1}, {"aaa..", ".....", "....."}},
               {{0, 0, -1, 1}, {"a....", ".....", "....."}},
               {{-1, 0, -3, 1}, {".....", ".....", "....."}}});
}

TEST_P(FillRectContract, FillsNothingWithWhatIsNoBrush) {
  const Canvas canvas({"ab"});
  const DrawingObject deleted = drawing().CreateSolidBrush(0);
  EXPECT_TRUE(drawing().DeleteObject(deleted));
  for (const DrawingObject none :
       {DrawingObject{0}, DrawingObject{6}, DrawingObject{12'345}, DrawingObject{-1}, deleted}) {
    EXPECT_EQ(drawing().FillRect(canvas.surface(), {0, 0, 2, 1}, none), 0) << none;
  }
  EXPECT_EQ(canvas.text(), rows({"ab"}));
}

}  // namespace
}  // namespace tessaly::tests
