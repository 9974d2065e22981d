#include "tests/contract/DrawingWorld.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace tessaly::tests {
namespace {

constexpr std::string_view kLetters = ".-#abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";

std::string shown(std::uint32_t pixel) {
  const auto* const letter =
      std::find_if(kLetters.begin(), kLetters.end(), [=](char each) { return pixelOf(each) == pixel; });
  if (letter != kLetters.end()) return {*letter};
  char number[16];
  std::snprintf(number, sizeof number, "{%08X}", pixel);
  return number;
}

}  // namespace

std::uint32_t pixelOf(char letter) {
  switch (letter) {
    case '.':
      return 0;
    case '-':
      return 0xFF00FF;
    case '#':
      return 0xFFFFFF;
    default:
      return 0x010305U * static_cast<unsigned char>(letter);
  }
}

Long colourOf(char letter) {
  const std::uint32_t pixel = pixelOf(letter);
  return static_cast<Long>((pixel & 0xFFU) << 16U | (pixel & 0xFF00U) | pixel >> 16U);
}

Canvas::Canvas(Long width, Long height) : surface_(drawing().createSurface(width, height)) {
  EXPECT_NE(surface_, 0) << width << " by " << height;
}

Canvas::Canvas(std::initializer_list<std::string_view> lines)
    : Canvas(static_cast<Long>(lines.begin()->size()), static_cast<Long>(lines.size())) {
  std::uint32_t* pixel = view().pixels;
  for (const std::string_view line : lines) pixel = std::transform(line.begin(), line.end(), pixel, pixelOf);
}

std::uint32_t& Canvas::at(Long x, Long y) const {
  const platform::PixelView shown = view();
  return shown.pixels[std::ptrdiff_t{y} * shown.width + x];
}

std::string Canvas::text() const {
  std::string text;
  const platform::PixelView all = view();
  for (Long y = 0; y < all.height; ++y) {
    for (Long x = 0; x < all.width; ++x) text += shown(all.pixels[std::ptrdiff_t{y} * all.width + x]);
    text += '\n';
  }
  return text;
}

std::string rows(std::initializer_list<std::string_view> lines) {
  std::string text;
  for (const std::string_view line : lines) text += std::string(line) + '\n';
  return text;
}

}  // namespace tessaly::tests
