#include "tessaly/forms/headless/SystemColours.h"

#include <array>
#include <cstdint>

namespace tessaly::headless {
namespace {

// As a surface's pixels have them, red first.
constexpr std::array<std::uint32_t, 31> kColours = {
    0xC8C8C8, 0x000000, 0x99B4D1, 0xBFCDDB, 0xF0F0F0, 0xFFFFFF, 0x646464, 0x000000,
    0x000000, 0x000000, 0xB4B4B4, 0xF4F7FC, 0xABABAB, 0x3399FF, 0xFFFFFF, 0xF0F0F0,
    0xA0A0A0, 0x6D6D6D, 0x000000, 0x000000, 0xFFFFFF, 0x696969, 0xE3E3E3, 0x000000,
    0xFFFFE1, 0x000000, 0x0066CC, 0xB9D1EA, 0xD7E4F2, 0x3399FF, 0xF0F0F0};

}  // namespace

OLE_COLOR systemColour(Long number) {
  const bool isKnown = number >= 0 && number < static_cast<Long>(kColours.size());
  return isKnown ? colourOf(kColours[static_cast<std::size_t>(number)]) : 0;
}

}  // namespace tessaly::headless
