// Pictures and the files that they come from.

#include "tessaly/forms/Picture.h"

#include <gtest/gtest.h>

#include <utility>

#include "tessaly/platform/Desktop.h"
#include "tests/forms/PixelsOfTests.h"
#include "tests/support/Errors.h"
#include "tests/support/World.h"

namespace tessaly::tests {
namespace {

TEST(PictureTest, NoNameIsAnEmptyPicture) {
  const PictureReference picture = LoadPicture(u"");
  ASSERT_NE(picture, nullptr);
  EXPECT_TRUE(picture->isEmpty());
  EXPECT_EQ(picture->size(), PixelSize{});
  EXPECT_NE(LoadPicture(u""), picture);
}

TEST(PictureTest, AFileIsLoadedByItsName) {
  const auto world = World::make(Body::Own);
  const auto picture = pictured({"rg", "b."});
  const String name = world->put(u"button.png", pngOf(*picture));
  EXPECT_EQ(shownRows(*LoadPicture(name)), (Rows{"rg", "b."}));
}

TEST(PictureTest, AFileThatIsNotThereIsError53AndAnotherKindOfFileIs481) {
  const auto world = World::make(Body::Own);
  const String text = world->put(u"text.png", "This is no picture.");
  EXPECT_EQ(errorOf([&] { LoadPicture(world->folder() + u"/none.png"); }), RuntimeError::FileNotFound);
  EXPECT_EQ(errorOf([&] { LoadPicture(text); }), RuntimeError::InvalidPicture);
  EXPECT_EQ(errorOf([&] { LoadPicture(world->put(u"empty.png", "")); }), RuntimeError::InvalidPicture);
}

TEST(PictureTest, APngThatIsCutOffIsError481) {
  const std::string bytes = pngOf(*pictured({"rgb", "bgr", "rrr"}));
  EXPECT_EQ(errorOf([&] { pictureFromBytes(std::string_view(bytes).substr(0, bytes.size() / 2)); }),
            RuntimeError::InvalidPicture);
}

TEST(PictureTest, WhatCoversLessThanHalfCoversNothing) {
  const Picture picture({2, 2}, {0x7FFFFFFF, 0x80000000, 0x00FFFFFF, 0xFF000000});
  EXPECT_EQ(std::vector(picture.pixels().begin(), picture.pixels().end()),
            (std::vector<std::uint32_t>{0, 0x80000000, 0, 0xFF000000}));
  EXPECT_FALSE(picture.isOpaque());
  EXPECT_TRUE(pictured({"rgb"})->isOpaque());
}

TEST(PictureTest, KnowsWhetherItsPixelsCoverWhollyOrNotAtAll) {
  EXPECT_TRUE(Picture({2, 1}, {0x7FFFFFFF, 0xFF000000}).isCutOut());
  EXPECT_FALSE(Picture({2, 1}, {0xFE000000, 0xFF000000}).isCutOut());
  EXPECT_FALSE(Picture({2, 1}, {0x80000000, 0}).isCutOut());
  EXPECT_TRUE(Picture({1, 1}, {0xFF123456}).isCutOut());
  EXPECT_FALSE(Picture({1, 1}, {0xFE123456}).isOpaque());
}

TEST(PictureTest, APngGivesTheSamePixels) {
  const Picture picture({3, 2}, {0xFF010203, 0x80FF00FE, 0xFE102030, 0, 0xC0FFFFFF, 0xFF000000});
  const PictureReference again = pictureFromBytes(pngOf(picture));
  EXPECT_EQ(again->size(), picture.size());
  EXPECT_EQ(std::vector(again->pixels().begin(), again->pixels().end()),
            std::vector(picture.pixels().begin(), picture.pixels().end()));
}

TEST(PictureTest, ThereIsNoPngOfAnEmptyPictureOrOfOneTooLargeToBeReadAgain) {
  EXPECT_EQ(errorOf([] { pngOf(Picture()); }), RuntimeError::InvalidPicture);
  const Picture wide({32768, 1}, std::vector<std::uint32_t>(32768));
  EXPECT_EQ(errorOf([&] { pngOf(wide); }), RuntimeError::InvalidPicture);
}

TEST(PictureTest, HasAsManyPixelsAsItsSizeSays) {
  using Pixels = std::vector<std::uint32_t>;
  for (const auto& [size, count] : std::vector<std::pair<PixelSize, std::size_t>>{{{2, 2}, 3},
                                                                                  {{2, 2}, 5},
                                                                                  {{0, 0}, 0},
                                                                                  {{-2, -2}, 4},
                                                                                  {{0, 4}, 4},
                                                                                  {{4, 0}, 4},
                                                                                  {{65536, 65536}, 0}}) {
    EXPECT_EQ(errorOf([&, s = size, c = count] { Picture(s, Pixels(c)); }), RuntimeError::InvalidPicture);
  }
}

}  // namespace
}  // namespace tessaly::tests
