// What `TransparentBlt` must do in every body of the area Drawing, pixel by pixel.

#include <gtest/gtest.h>

#include <limits>

#include "tests/contract/DrawingWorld.h"
#include "tests/support/Platform.h"

namespace tessaly::tests {
namespace {

constexpr Long kMostLong = std::numeric_limits<Long>::max();
constexpr Long kLeastLong = std::numeric_limits<Long>::min();

class TransparentBltContract : public testing::TestWithParam<Body> {
 protected:
  bool isExcusedUnderWine() const { return GetParam() == Body::Own && underWine(); }

 private:
  DrawingWorld world_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Body, TransparentBltContract, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

struct CopyRow {
  Area to;
  Area from;
  std::initializer_list<std::string_view> expected;
};

/// From a picture of 4 by 3 to a black surface of 6 by 4.
void expectCopies(std::initializer_list<CopyRow> table) {
  const Canvas source({"ab-d", "e-gh", "-jkl"});
  for (const CopyRow& row : table) {
    const Canvas target(6, 4);
    EXPECT_TRUE(copy(target, row.to, source, row.from)) << row.to << " from " << row.from;
    EXPECT_EQ(target.text(), rows(row.expected)) << row.to << " from " << row.from;
  }
}

TEST_P(TransparentBltContract, CopiesAllButTheKey) {
  const Canvas source({"ab-d", "e-gh"});
  const Canvas target({"zzzzz", "zzzzz", "zzzzz"});
  EXPECT_TRUE(copy(target, {1, 0, 4, 2}, source, {0, 0, 4, 2}));
  EXPECT_EQ(target.text(), rows({"zabzd", "zezgh", "zzzzz"}));
  EXPECT_EQ(source.text(), rows({"ab-d", "e-gh"}));
}

TEST_P(TransparentBltContract, CutsOffAtEverySideOfTheTarget) {
  constexpr Area kAll{0, 0, 4, 3};
  expectCopies({{{-2, 0, 4, 3}, kAll, {".d....", "gh....", "kl....", "......"}},
                {{4, 0, 4, 3}, kAll, {"....ab", "....e.", ".....j", "......"}},
                {{1, -1, 4, 3}, kAll, {".e.gh.", "..jkl.", "......", "......"}},
                {{1, 2, 4, 3}, kAll, {"......", "......", ".ab.d.", ".e.gh."}},
                {{-3, -2, 4, 3}, kAll, {"l.....", "......", "......", "......"}},
                {{5, 3, 4, 3}, kAll, {"......", "......", "......", ".....a"}}});
}

TEST_P(TransparentBltContract, CopiesNothingBesideTheTarget) {
  constexpr Area kAll{0, 0, 4, 3};
  const std::initializer_list<std::string_view> kNothing = {"......", "......", "......", "......"};
  expectCopies({{{6, 0, 4, 3}, kAll, kNothing},
                {{-4, 0, 4, 3}, kAll, kNothing},
                {{0, 4, 4, 3}, kAll, kNothing},
                {{0, -3, 4, 3}, kAll, kNothing},
                {{1'000'000, 0, 4, 3}, kAll, kNothing},
                {{0, -1'000'000, 4, 3}, kAll, kNothing}});
}

TEST_P(TransparentBltContract, CopiesNothingFarAway) {
  constexpr Area kAll{0, 0, 4, 3};
  const std::initializer_list<std::string_view> kNothing = {"......", "......", "......", "......"};
  expectCopies({{{kMostLong, 0, 4, 3}, kAll, kNothing},
                {{0, kMostLong, 4, 3}, kAll, kNothing},
                {{kLeastLong, 0, 4, 3}, kAll, kNothing},
                {{0, kLeastLong, 4, 3}, kAll, kNothing},
                {{kMostLong, kLeastLong, 8, 6}, kAll, kNothing}});
}

TEST_P(TransparentBltContract, CopiesAPartOfTheSource) {
  expectCopies({{{0, 0, 2, 2}, {1, 1, 2, 2}, {".g....", "jk....", "......", "......"}},
                {{1, 1, 1, 1}, {3, 2, 1, 1}, {"......", ".l....", "......", "......"}},
                {{4, 3, 3, 2}, {1, 0, 3, 2}, {"......", "......", "......", "....b."}}});
}

TEST_P(TransparentBltContract, GrowsByTheNearestPixel) {
  expectCopies({{{0, 0, 6, 4}, {0, 0, 2, 2}, {"aaabbb", "aaabbb", "eee...", "eee..."}},
                {{0, 0, 5, 3}, {0, 0, 4, 3}, {"aab.d.", "ee.gh.", "..jkl.", "......"}},
                {{1, 1, 5, 2}, {0, 0, 3, 1}, {"......", ".aabb.", ".aabb.", "......"}},
                {{0, 0, 1, 4}, {3, 0, 1, 3}, {"d.....", "d.....", "h.....", "l....."}},
                {{0, 0, 6, 1}, {0, 0, 4, 1}, {"aab..d", "......", "......", "......"}}});
}

TEST_P(TransparentBltContract, CutsOffWhatItHasScaled) {
  expectCopies({{{-3, -2, 8, 6}, {0, 0, 4, 3}, {".gghh.", ".gghh.", "jkkll.", "jkkll."}},
                {{3, 2, 8, 6}, {0, 0, 4, 3}, {"......", "......", "...aab", "...aab"}},
                {{-5, -1, 11, 5}, {0, 0, 4, 3}, {"b...dd", ".ggghh", ".ggghh", "jkkkll"}}});
}

TEST_P(TransparentBltContract, ShrinksByTheNearestPixel) {
  expectCopies({{{0, 0, 2, 2}, {0, 0, 4, 3}, {"a.....", "eg....", "......", "......"}},
                {{0, 0, 3, 2}, {0, 0, 4, 3}, {"ab....", "e.g...", "......", "......"}},
                {{1, 1, 1, 1}, {0, 0, 4, 3}, {"......", ".a....", "......", "......"}},
                {{-1, 0, 2, 3}, {0, 0, 4, 3}, {"......", "g.....", "k.....", "......"}},
                {{0, 0, 6, 1}, {0, 0, 4, 3}, {"aab..d", "......", "......", "......"}},
                {{0, 0, 2, 4}, {0, 0, 4, 3}, {"a.....", "a.....", "eg....", ".k...."}}});
}

TEST_P(TransparentBltContract, ScalesToWhatIsFarLargerThanTheTarget) {
  expectCopies({{{0, 0, 100'000, 100'000}, {0, 0, 4, 3}, {"aaaaaa", "aaaaaa", "aaaaaa", "aaaaaa"}},
                {{-2, -1, kMostLong, kMostLong}, {1, 1, 1, 1}, {"......", "......", "......", "......"}},
                {{1, 2, kMostLong, kMostLong}, {0, 0, 1, 1}, {"......", "......", ".aaaaa", ".aaaaa"}},
                {{kLeastLong, kLeastLong, kMostLong, kMostLong},
                 {0, 0, 1, 1},
                 {"......", "......", "......", "......"}},
                {{2 - kMostLong, 0, kMostLong, 4}, {0, 0, 4, 1}, {"dd....", "dd....", "dd....", "dd...."}},
                {{-1'500'000'000, 0, kMostLong, 3}, {0, 0, 4, 3}, {"......", "gggggg", "kkkkkk", "......"}}});
}

TEST_P(TransparentBltContract, ScalesTheWidestSurfaces) {
  const Canvas source({"ab-"});
  const Canvas target(9000, 1);
  EXPECT_TRUE(copy(target, {0, 0, 9000, 1}, source, {0, 0, 3, 1}));
  for (const Long x : {0, 2047, 2048, 2999}) EXPECT_EQ(target.at(x, 0), pixelOf('a')) << x;
  for (const Long x : {3000, 4095, 4096, 5999}) EXPECT_EQ(target.at(x, 0), pixelOf('b')) << x;
  for (const Long x : {6000, 8191, 8192, 8999}) EXPECT_EQ(target.at(x, 0), pixelOf('.')) << x;
}

TEST_P(TransparentBltContract, CopiesNothingWhereASizeIsBelowOne) {
  const Canvas source({"ab", "cd"});
  const Canvas target({"zz", "zz"});
  for (const Long size : {0, -1, -2, kLeastLong}) {
    EXPECT_FALSE(copy(target, {0, 0, size, 2}, source, {0, 0, 2, 2})) << size;
    EXPECT_FALSE(copy(target, {0, 0, 2, size}, source, {0, 0, 2, 2})) << size;
    EXPECT_FALSE(copy(target, {0, 0, 2, 2}, source, {0, 0, size, 2})) << size;
    EXPECT_FALSE(copy(target, {0, 0, 2, 2}, source, {0, 0, 2, size})) << size;
    EXPECT_FALSE(copy(target, {1, 1, size, size}, source, {1, 1, size, size})) << size;
  }
  EXPECT_EQ(target.text(), rows({"zz", "zz"}));
}

TEST_P(TransparentBltContract, CopiesNothingWhereAnAreaLeavesTheSource) {
  const Canvas source({"abc", "def"});
  const Canvas target({"zzz", "zzz"});
  for (const Area& from :
       {Area{-1, 0, 2, 2}, Area{0, -1, 2, 2}, Area{2, 0, 2, 2}, Area{0, 1, 2, 2}, Area{3, 0, 1, 1},
        Area{0, 2, 1, 1}, Area{-1, -1, 5, 4}, Area{0, 0, 4, 2}, Area{kMostLong, 0, 1, 1},
        Area{1, 0, kMostLong, 1}, Area{0, 1, 1, kMostLong}, Area{kLeastLong, 0, kMostLong, 1}}) {
    EXPECT_FALSE(copy(target, {0, 0, 2, 2}, source, from)) << from;
  }
  EXPECT_EQ(target.text(), rows({"zzz", "zzz"}));
}

TEST_P(TransparentBltContract, TakesTheKeyExactly) {
  const Canvas source(7, 1);
  const std::uint32_t pixels[] = {0x102030, 0x112030, 0x0F2030, 0x102130, 0x101F30, 0x102031, 0x10202F};
  for (Long x = 0; x < 7; ++x) source.at(x, 0) = pixels[x];
  const Canvas target(7, 1);
  EXPECT_TRUE(copy(target, {0, 0, 7, 1}, source, {0, 0, 7, 1}, 0x302010));
  EXPECT_EQ(target.at(0, 0), 0U);
  for (Long x = 1; x < 7; ++x) EXPECT_EQ(target.at(x, 0), pixels[x]) << x;
}

TEST_P(TransparentBltContract, LooksAtTheKeysLowBytesAlone) {
  const Canvas source({"a-"});
  for (const std::uint32_t flag : {0x01U, 0x02U, 0x80U, 0xFFU}) {
    const Canvas target({"zz"});
    EXPECT_TRUE(copy(target, {0, 0, 2, 1}, source, {0, 0, 2, 1}, static_cast<Long>(flag << 24U) | kKey));
    EXPECT_EQ(target.text(), rows({"az"})) << flag;
  }
}

TEST_P(TransparentBltContract, TheKeyMayBeBlackOrWhite) {
  const Canvas source({"a.#"});
  const Canvas first({"zzz"});
  EXPECT_TRUE(copy(first, {0, 0, 3, 1}, source, {0, 0, 3, 1}, 0));
  EXPECT_EQ(first.text(), rows({"az#"}));
  const Canvas second({"zzz"});
  EXPECT_TRUE(copy(second, {0, 0, 3, 1}, source, {0, 0, 3, 1}, 0xFFFFFF));
  EXPECT_EQ(second.text(), rows({"a.z"}));
}

TEST_P(TransparentBltContract, LeavesTheTopByteZero) {
  const Canvas source({"ab"});
  source.at(0, 0) |= 0xAB000000U;
  const Canvas target(4, 1);
  EXPECT_TRUE(copy(target, {0, 0, 2, 1}, source, {0, 0, 2, 1}));
  EXPECT_TRUE(copy(target, {2, 0, 2, 1}, source, {0, 0, 1, 1}));
  EXPECT_EQ(target.text(), rows({"abaa"}));
}

TEST_P(TransparentBltContract, DoesNotCompareTheTopByte) {
  if (isExcusedUnderWine()) GTEST_SKIP() << "Wine: compares it";
  const Canvas source({"-a"});
  source.at(0, 0) |= 0x01000000U;
  const Canvas target({"zz"});
  EXPECT_TRUE(copy(target, {0, 0, 2, 1}, source, {0, 0, 2, 1}));
  EXPECT_EQ(target.text(), rows({"za"}));
}

TEST_P(TransparentBltContract, TakesTheSourceBeforeAnythingChanges) {
  for (Long y = -2; y <= 2; ++y) {
    for (Long x = -2; x <= 2; ++x) {
      const Canvas both({".......", ".......", "..ab-..", "..d-f..", "..ghi..", ".......", "......."});
      const Canvas source({"ab-", "d-f", "ghi"});
      const Canvas expected({".......", ".......", "..ab-..", "..d-f..", "..ghi..", ".......", "......."});
      EXPECT_TRUE(copy(both, {2 + x, 2 + y, 3, 3}, both, {2, 2, 3, 3}));
      EXPECT_TRUE(copy(expected, {2 + x, 2 + y, 3, 3}, source, {0, 0, 3, 3}));
      EXPECT_EQ(both.text(), expected.text()) << x << ", " << y;
    }
  }
}

TEST_P(TransparentBltContract, TakesTheSourceBeforeItGrowsOverItself) {
  const Canvas canvas({"ab-...", "def...", "......", "......"});
  EXPECT_TRUE(copy(canvas, {0, 0, 6, 4}, canvas, {0, 0, 3, 2}));
  EXPECT_EQ(canvas.text(), rows({"aabb..", "aabb..", "ddeeff", "ddeeff"}));
  const Canvas other({"......", "...abc", "...def"});
  EXPECT_TRUE(copy(other, {1, 0, 5, 3}, other, {3, 1, 3, 2}));
  EXPECT_EQ(other.text(), rows({".aabbc", ".aabbc", ".ddeef"}));
}

TEST_P(TransparentBltContract, CopiesWithinOneSurfaceToWhereItIsCutOff) {
  const Canvas canvas({"abcd", "efgh"});
  EXPECT_TRUE(copy(canvas, {2, 1, 4, 2}, canvas, {0, 0, 4, 2}));
  EXPECT_EQ(canvas.text(), rows({"abcd", "efab"}));
  EXPECT_TRUE(copy(canvas, {-3, -1, 4, 2}, canvas, {0, 0, 4, 2}));
  EXPECT_EQ(canvas.text(), rows({"bbcd", "efab"}));
}

}  // namespace
}  // namespace tessaly::tests
