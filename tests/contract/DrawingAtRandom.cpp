// Thousands of calls by chance, always the same ones: the platform's body draws what the stand-in draws,
// which goes the plain way.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Drawing.h"

namespace tessaly::tests {
namespace {

using platform::DeviceContext;
using platform::DrawingObject;
using platform::PixelView;

/// One surface in each of the two bodies, drawn on in the same way.
struct Pair {
  DeviceContext own;
  DeviceContext plain;
};

class DrawingAtRandom : public testing::Test {
 protected:
  static constexpr int kCases = 8000;

  void SetUp() override {
    for (Long i = 0; i < 6; ++i) surfaces_.push_back(makeSurface(chance(1, 40), chance(1, 30)));
    // Wider than what is scaled at a time.
    surfaces_.push_back(makeSurface(5000, 2));
  }

  void TearDown() override {
    for (const Pair& pair : surfaces_) {
      own_.deleteSurface(pair.own);
      plain_.deleteSurface(pair.plain);
    }
  }

  Long chance(Long least, Long most) { return std::uniform_int_distribution<Long>(least, most)(chance_); }
  const Pair& anySurface() { return surfaces_[static_cast<std::size_t>(chance(0, 6))]; }

  /// One of few, so that the key is met.
  Long anyColour() { return chance(0, 3) * 0x010101; }

  Pair makeSurface(Long width, Long height) {
    const Pair pair{own_.createSurface(width, height), plain_.createSurface(width, height)};
    const PixelView own = own_.pixels(pair.own);
    const PixelView plain = plain_.pixels(pair.plain);
    for (std::ptrdiff_t i = 0; i < std::ptrdiff_t{width} * height; ++i) {
      own.pixels[i] = plain.pixels[i] = static_cast<std::uint32_t>(anyColour());
    }
    return pair;
  }

  /// The same call on both; false where they differ in what they give.
  bool copy(const Pair& target, const Pair& source) {
    const Long width = chance(-2, 60);
    const Long height = chance(-2, 40);
    const bool isScaled = chance(0, 1) == 1;
    const Long sourceWidth = isScaled ? chance(-1, 60) : width;
    const Long sourceHeight = isScaled ? chance(-1, 40) : height;
    const Long x = chance(-50, 50);
    const Long y = chance(-40, 40);
    const Long sourceX = chance(-1, 20);
    const Long sourceY = chance(-1, 15);
    const Long key = anyColour();
    const auto draw = [&](platform::Drawing& drawing, DeviceContext to, DeviceContext from) {
      return drawing.TransparentBlt(to, x, y, width, height, from, sourceX, sourceY, sourceWidth,
                                    sourceHeight, key);
    };
    return draw(own_, target.own, source.own) == draw(plain_, target.plain, source.plain);
  }

  bool fill(const Pair& target) {
    const platform::PixelArea area{chance(-50, 50), chance(-50, 50), chance(-50, 50), chance(-50, 50)};
    const Long colour = anyColour();
    const auto draw = [&](platform::Drawing& drawing, DeviceContext to) {
      const DrawingObject brush = drawing.CreateSolidBrush(colour);
      const Long result = drawing.FillRect(to, area, brush);
      return drawing.DeleteObject(brush) && result == 1;
    };
    return draw(own_, target.own) && draw(plain_, target.plain);
  }

  bool areEqual(const Pair& pair) {
    const PixelView own = own_.pixels(pair.own);
    const PixelView plain = plain_.pixels(pair.plain);
    return std::equal(own.pixels, own.pixels + std::ptrdiff_t{own.width} * own.height, plain.pixels,
                      plain.pixels + std::ptrdiff_t{plain.width} * plain.height);
  }

 private:
  platform::Drawing& own_ = *platform::desktop().drawing;
  platform::fake::Drawing plain_;
  std::mt19937 chance_{20'240'131};
  std::vector<Pair> surfaces_;
};

TEST_F(DrawingAtRandom, IsTheSameInBothBodies) {
  for (int i = 0; i < kCases; ++i) {
    const Pair& target = anySurface();
    ASSERT_TRUE(chance(0, 9) == 0 ? fill(target) : copy(target, anySurface())) << "case " << i;
    ASSERT_TRUE(areEqual(target)) << "case " << i;
  }
}

}  // namespace
}  // namespace tessaly::tests
