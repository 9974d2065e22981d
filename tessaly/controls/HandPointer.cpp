#include "tessaly/controls/HandPointer.h"

#include <array>
#include <string_view>

namespace tessaly {
namespace {

constexpr Long kSide = 32;
constexpr PixelPoint kTip{13, 5};

/// Where the drawing lies in the picture.
constexpr PixelPoint kCorner{8, 5};

/// '#' is black, 'o' white, and what is neither is clear.
constexpr std::array<std::string_view, 19> kHand{
    "     ##         ",  //
    "    #oo#        ",  //
    "    #oo#        ",  //
    "    #oo#        ",  //
    "    #oo#        ",  //
    "    #oo###      ",  //
    "    #oo#oo###   ",  //
    "    #oo#oo#oo## ",  //
    " ## #oo#oo#oo#o#",  //
    "#oo##oooooooooo#",  //
    "#ooo#oooooooooo#",  //
    " #oo#oooooooooo#",  //
    "  #oooooooooooo#",  //
    "  #oooooooooooo#",  //
    "   #oooooooooo# ",  //
    "   #oooooooooo# ",  //
    "    #oooooooo#  ",  //
    "    #oooooooo#  ",  //
    "    ##########  ",
};

std::uint32_t pixelOfLetter(char letter) {
  switch (letter) {
    case '#':
      return 0xFF000000;
    case 'o':
      return 0xFFFFFFFF;
    default:
      return 0;
  }
}

MouseIcon drawnHand() {
  std::vector<std::uint32_t> pixels(std::size_t{kSide} * kSide);
  std::size_t row = kCorner.y;
  for (const std::string_view line : kHand) {
    std::size_t at = row++ * kSide + kCorner.x;
    for (const char letter : line) pixels[at++] = pixelOfLetter(letter);
  }
  return {std::make_shared<const Picture>(PixelSize{kSide, kSide}, std::move(pixels)), kTip};
}

}  // namespace

const MouseIcon& handPointer() {
  static const MouseIcon hand = drawnHand();
  return hand;
}

}  // namespace tessaly
