// Qt's images and the library's pictures are one another, pixel by pixel.

#include "tessaly/hosts/qt/Pictures.h"

#include <gtest/gtest.h>
#include <algorithm>

#include "tests/controls/Figures.h"

namespace tessaly::tests {
namespace {

using qt::toImage;
using qt::toPicture;
using qt::toPixmap;

TEST(QtPicturesTest, APictureComesBackAsItWas) {
  const PictureReference picture = ring({31, 17}, 60);
  for (const PictureReference& again : {toPicture(toImage(picture)), toPicture(toPixmap(picture))}) {
    ASSERT_EQ(again->size(), picture->size());
    EXPECT_TRUE(std::equal(again->pixels().begin(), again->pixels().end(), picture->pixels().begin()));
  }
}

TEST(QtPicturesTest, NothingIsAnEmptyPictureAndTheWayBack) {
  EXPECT_TRUE(toPicture(QImage())->isEmpty());
  EXPECT_TRUE(toPicture(QPixmap())->isEmpty());
  EXPECT_TRUE(toImage(nullptr).isNull());
  EXPECT_TRUE(toImage(std::make_shared<const Picture>()).isNull());
}

TEST(QtPicturesTest, APixelThatCoversLessThanHalfCoversNothing) {
  QImage image(3, 1, QImage::Format_ARGB32);
  image.setPixel(0, 0, qRgba(1, 2, 3, 127));
  image.setPixel(1, 0, qRgba(1, 2, 3, 128));
  image.setPixel(2, 0, qRgba(1, 2, 3, 255));
  const PictureReference picture = toPicture(image);
  EXPECT_EQ(std::vector<std::uint32_t>(picture->pixels().begin(), picture->pixels().end()),
            (std::vector<std::uint32_t>{0, 0x80010203, 0xFF010203}));
  EXPECT_FALSE(picture->isOpaque());
  EXPECT_EQ(toImage(picture).pixel(1, 0), qRgba(1, 2, 3, 128));
}

TEST(QtPicturesTest, ImagesOfEveryFormatComeInWithTheirColours) {
  const QImage whole = toImage(plain({5, 3}, 0xC08040));
  for (const QImage::Format format : {QImage::Format_RGB888, QImage::Format_ARGB32_Premultiplied,
                                      QImage::Format_RGBA8888, QImage::Format_Indexed8}) {
    EXPECT_EQ(toPicture(whole.convertToFormat(format))->pixels()[14], 0xFF4080C0U) << format;
  }
}

TEST(QtPicturesTest, ColoursThatAreMultipliedByTheirCoverComeInAsTheyAre) {
  for (const int cover : {0, 100, 128, 200, 255}) {
    QImage image(2, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, qRgba(0, 0, 0, 255));
    image.setPixel(1, 0, qRgba(255, 0, 255, cover));
    const QRgb wanted = cover < 128 ? 0 : qRgba(255, 0, 255, cover);
    const PictureReference picture = toPicture(image.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    EXPECT_EQ(picture->pixels()[0], qRgba(0, 0, 0, 255)) << cover;
    EXPECT_EQ(picture->pixels()[1], wanted) << cover;
  }
}

TEST(QtPicturesTest, AnImageForDenseScreensComesInLogicalPixels) {
  QImage dense = toImage(slope({8, 6}, 9)).scaled(16, 12);
  dense.setDevicePixelRatio(2);
  const PictureReference picture = toPicture(dense);
  ASSERT_EQ(picture->size(), (PixelSize{8, 6}));
  EXPECT_TRUE(
      std::equal(picture->pixels().begin(), picture->pixels().end(), slope({8, 6}, 9)->pixels().begin()));
}

}  // namespace
}  // namespace tessaly::tests
