// What a body of the area Pictures must do, whichever it is.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <thread>

#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Pictures.h"
#include "tests/contract/PicturesTable.h"
#include "tests/support/World.h"

namespace tessaly::tests {
namespace {

using platform::PicturePixels;

/// The body that a contract runs on, in force as long as the world lives.
class PicturesWorld {
 public:
  explicit PicturesWorld(Body body) {
    if (body == Body::Fake) inForce_.emplace(fake_);
  }

 private:
  platform::fake::Pictures fake_;
  std::optional<platform::Override> inForce_;
};

std::optional<PicturePixels> decode(std::string_view bytes) {
  return platform::desktop().pictures->decode(bytes);
}
std::string encode(const PicturePixels& picture) { return platform::desktop().pictures->encodePng(picture); }

bool isNear(std::uint32_t pixel, std::uint32_t expected, int tolerance) {
  for (unsigned shift = 0; shift < 32; shift += 8) {
    const int difference =
        static_cast<int>(pixel >> shift & 0xFFU) - static_cast<int>(expected >> shift & 0xFFU);
    if (std::abs(difference) > tolerance) return false;
  }
  return true;
}

void expectPicture(const std::optional<PicturePixels>& picture, const PictureRow& row) {
  ASSERT_TRUE(picture.has_value());
  EXPECT_EQ(picture->width, row.width);
  EXPECT_EQ(picture->height, static_cast<Long>(row.pixels.size()) / row.width);
  ASSERT_EQ(picture->pixels.size(), row.pixels.size());
  for (std::size_t i = 0; i < row.pixels.size(); ++i) {
    EXPECT_TRUE(isNear(picture->pixels[i], row.pixels[i], row.tolerance))
        << i << ": " << std::hex << picture->pixels[i] << " is not " << row.pixels[i];
  }
}

/// Files of one kind.
struct Group {
  std::string name;
  std::vector<PictureRow> rows;
};

void PrintTo(const Group& group, std::ostream* out) { *out << group.name; }

std::vector<Group> soundFiles() {
  return {{"Png", pngPictures()},
          {"Bmp", bmpPictures()},
          {"Gif", gifPictures()},
          {"Jpeg", jpegPictures()},
          {"Icon", iconPictures()}};
}

std::vector<Group> brokenFiles() { return {{"Malformed", malformedPictures()}, {"Huge", hugePictures()}}; }

using Case = std::tuple<Body, Group>;

class PictureFiles : public testing::TestWithParam<Case> {
 protected:
  const std::vector<PictureRow>& rows() const { return std::get<1>(GetParam()).rows; }

 private:
  PicturesWorld world_{std::get<0>(GetParam())};
};

class BrokenPictureFiles : public PictureFiles {};

std::string nameOfCase(const testing::TestParamInfo<Case>& info) {
  return testing::PrintToString(std::get<0>(info.param)) + std::get<1>(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(Sound, PictureFiles,
                         testing::Combine(testing::Values(Body::Own, Body::Fake),
                                          testing::ValuesIn(soundFiles())),
                         nameOfCase);
INSTANTIATE_TEST_SUITE_P(Broken, BrokenPictureFiles,
                         testing::Combine(testing::Values(Body::Own, Body::Fake),
                                          testing::ValuesIn(brokenFiles())),
                         nameOfCase);

TEST_P(PictureFiles, ShowTheirPicture) {
  for (const PictureRow& row : rows()) {
    SCOPED_TRACE(row.name);
    expectPicture(decode(row.bytes), row);
  }
}

TEST_P(PictureFiles, ShowTheirPictureWhateverStandsBehindIt) {
  for (const PictureRow& row : rows()) {
    SCOPED_TRACE(row.name);
    expectPicture(decode(row.bytes + "GIF89a and more" + row.bytes), row);
  }
}

TEST_P(PictureFiles, ShowNothingWhereTheyAreCutOff) {
  for (const PictureRow& row : rows()) {
    for (std::size_t size = 0; size < row.bytes.size(); ++size) {
      EXPECT_FALSE(decode(std::string_view(row.bytes).substr(0, size))) << row.name << " of " << size;
    }
  }
}

/// A header's bytes all, of what comes behind them a few.
std::size_t next(std::size_t at) { return at < 100 ? at + 1 : at + 11; }

TEST_P(PictureFiles, ShowAPictureOrNothingWhereAByteIsAnother) {
  for (const PictureRow& row : rows()) {
    std::string bytes = row.bytes;
    for (std::size_t i = 0; i < bytes.size(); i = next(i)) {
      bytes[i] = static_cast<char>(~bytes[i]);
      const auto picture = decode(bytes);
      const auto pixels = picture ? std::int64_t{picture->width} * picture->height : 0;
      EXPECT_EQ(picture ? picture->pixels.size() : 0, static_cast<std::size_t>(pixels))
          << row.name << " at " << i;
      bytes[i] = row.bytes[i];
    }
  }
}

TEST_P(BrokenPictureFiles, ShowNothing) {
  for (const PictureRow& row : rows()) EXPECT_FALSE(decode(row.bytes)) << row.name;
}

class PicturesContract : public testing::TestWithParam<Body> {
 private:
  PicturesWorld world_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Body, PicturesContract, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

TEST_P(PicturesContract, APictureComesBackFromItsPng) {
  PicturePixels picture{16, 16, {}};
  for (std::uint32_t i = 0; i < 256; ++i)
    picture.pixels.push_back(std::max(i, 1U) << 24U | i * 0x010305U % 0x1000000U);
  const std::string png = encode(picture);
  EXPECT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1A\n");
  EXPECT_EQ(decode(png), picture);
}

TEST_P(PicturesContract, APixelComesBackFromItsPng) {
  for (const std::uint32_t pixel : {0xFF000000U, 0xFFFFFFFFU, 0xFF112233U, 0x01FFFFFFU, 0x80FF00FFU, 0U}) {
    const PicturePixels picture{1, 1, {pixel}};
    EXPECT_EQ(decode(encode(picture)), picture) << std::hex << pixel;
  }
}

TEST_P(PicturesContract, AColourThatCoversNothingIsLost) {
  const auto picture = decode(encode({2, 1, {0x00112233, 0xFF112233}}));
  EXPECT_EQ(picture, (PicturePixels{2, 1, {0, 0xFF112233}}));
}

TEST_P(PicturesContract, TheLongestSidesComeBackFromTheirPng) {
  const PicturePixels wide{platform::kLongestPictureSide, 1, std::vector<std::uint32_t>(32'767, 0xFF112233)};
  const PicturePixels high{1, platform::kLongestPictureSide, std::vector<std::uint32_t>(32'767, 0x80445566)};
  EXPECT_EQ(decode(encode(wide)), wide);
  EXPECT_EQ(decode(encode(high)), high);
}

TEST_P(PicturesContract, NoPngIsMadeOfNoPicture) {
  EXPECT_EQ(encode({}), "");
  EXPECT_EQ(encode({0, 1, {}}), "");
  EXPECT_EQ(encode({1, 0, {}}), "");
  EXPECT_EQ(encode({-1, -1, {0}}), "");
}

TEST_P(PicturesContract, NoPngIsMadeOfOtherThanItsPixels) {
  EXPECT_EQ(encode({2, 1, {0}}), "");
  EXPECT_EQ(encode({1, 1, {0, 0}}), "");
  EXPECT_EQ(encode({32'768, 1, std::vector<std::uint32_t>(32'768)}), "");
}

TEST_P(PicturesContract, TakesFilesOfAMegabyteAndMore) {
  PicturePixels picture{700, 600, {}};
  std::uint32_t chance = 1;
  for (int i = 0; i < 420'000; ++i) {
    chance = chance * 1'664'525U + 1'013'904'223U;
    picture.pixels.push_back(0xFF000000U | chance >> 8U);
  }
  const std::string png = encode(picture);
  EXPECT_GT(png.size(), 1'000'000U);
  EXPECT_EQ(decode(png), picture);
}

TEST(Pictures, AreDecodedOnAnyThread) {
  const std::string png = encode({2, 1, {0xFF112233, 0x80445566}});
  std::vector<std::thread> threads;
  std::vector<int> sound(4);
  threads.reserve(sound.size());
  for (int& count : sound) {
    threads.emplace_back([&png, &count] {
      for (int i = 0; i < 100; ++i)
        count += decode(png) == PicturePixels{2, 1, {0xFF112233, 0x80445566}} ? 1 : 0;
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(sound, std::vector<int>(4, 100));
}

}  // namespace
}  // namespace tessaly::tests
