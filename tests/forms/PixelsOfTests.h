#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tessaly/forms/Picture.h"

namespace tessaly::tests {

/// A picture of one row for each text, a pixel for each letter: red, green, blue, white, black; a dot covers
/// nothing.
inline PictureReference pictured(const std::vector<std::string_view>& rows) {
  std::vector<std::uint32_t> pixels;
  for (const std::string_view row : rows) {
    for (const char letter : row) {
      switch (letter) {
        case 'r':
          pixels.push_back(0xFFFF0000);
          break;
        case 'g':
          pixels.push_back(0xFF00FF00);
          break;
        case 'b':
          pixels.push_back(0xFF0000FF);
          break;
        case 'w':
          pixels.push_back(0xFFFFFFFF);
          break;
        case 'k':
          pixels.push_back(0xFF000000);
          break;
        default:
          pixels.push_back(0);
          break;
      }
    }
  }
  const PixelSize size{static_cast<Long>(rows.front().size()), static_cast<Long>(rows.size())};
  return std::make_shared<const Picture>(size, std::move(pixels));
}

/// The way back; a colour that has no letter is '?'.
inline std::vector<std::string> shownRows(const Picture& picture) {
  std::vector<std::string> rows;
  for (std::size_t i = 0; i < picture.pixels().size(); ++i) {
    if (i % static_cast<std::size_t>(picture.size().width) == 0) rows.emplace_back();
    switch (picture.pixels()[i]) {
      case 0xFFFF0000:
        rows.back() += 'r';
        break;
      case 0xFF00FF00:
        rows.back() += 'g';
        break;
      case 0xFF0000FF:
        rows.back() += 'b';
        break;
      case 0xFFFFFFFF:
        rows.back() += 'w';
        break;
      case 0xFF000000:
        rows.back() += 'k';
        break;
      case 0:
        rows.back() += '.';
        break;
      default:
        rows.back() += '?';
        break;
    }
  }
  return rows;
}

using Rows = std::vector<std::string>;

inline constexpr Long kRed = 0x0000FF;
inline constexpr Long kGreen = 0x00FF00;
inline constexpr Long kBlue = 0xFF0000;
inline constexpr Long kWhite = 0xFFFFFF;

}  // namespace tessaly::tests
