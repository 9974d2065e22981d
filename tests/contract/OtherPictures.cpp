#include <fstream>
#include <iterator>

#include "tests/contract/PicturesTable.h"
#include "tests/support/pictures/BmpBytes.h"
#include "tests/support/pictures/Bytes.h"
#include "tests/support/pictures/GifBytes.h"
#include "tests/support/pictures/PngBytes.h"

namespace tessaly::tests {
namespace {

using namespace std::string_literals;

constexpr std::uint32_t kA = 0xFF112233;
constexpr std::uint32_t kB = 0xFF445566;
constexpr std::uint32_t kC = 0xFF778899;
constexpr std::uint32_t kD = 0xFFAABBCC;
const std::vector<std::uint32_t> kPalette = {0x112233, 0x445566, 0x778899, 0xAABBCC};

std::string gif(std::uint32_t width, std::uint32_t height, std::vector<GifFrame> frames) {
  return GifBytes{width, height, kPalette, 1, std::move(frames)}.file();
}

GifFrame frame(std::uint32_t x, std::uint32_t y, Rows rows, int transparent = -1) {
  GifFrame frame;
  frame.x = x;
  frame.y = y;
  frame.rows = std::move(rows);
  frame.transparent = transparent;
  return frame;
}

GifFrame interlacedFrame(Rows rows) {
  GifFrame whole = frame(0, 0, std::move(rows));
  whole.isInterlaced = true;
  return whole;
}

/// A picture whose palette's number of bits is a byte less than its codes need.
std::string gifOfTwoColours() {
  return GifBytes{3, 1, {0x112233, 0x445566}, 0, {frame(0, 0, {{0, 1, 1}})}}.file();
}

/// More pixels than the table has codes.
std::string longGif(bool fillsTable) {
  Rows rows(100);
  for (std::uint32_t y = 0; y < 100; ++y) rows[y].assign(50, y % 4);
  GifFrame whole = frame(0, 0, std::move(rows));
  whole.fillsTable = fillsTable;
  return gif(50, 100, {whole});
}

std::vector<std::uint32_t> longPixels() {
  std::vector<std::uint32_t> pixels;
  for (std::uint32_t y = 0; y < 100; ++y) pixels.insert(pixels.end(), 50, 0xFF000000 | kPalette[y % 4]);
  return pixels;
}

/// Grey beside white, 8 by 8 each, with a restart between the two.
std::string jpegOfRestarts() {
  Bytes bytes;
  bytes.text("\xFF\xD8\xFF\xDB\0\x43\0"s + std::string(64, 8));
  bytes.text("\xFF\xC0\0\x0B\x08\0\x08\0\x10\x01\x01\x11\0"s);
  // Of the first values' codes 0 is a difference of 0 and 10 one of 7 bits; of the others' 0 is the end.
  bytes.text("\xFF\xC4\0\x15\0\x01\x01"s).zeros(14).text("\0\x07"s);
  bytes.text("\xFF\xC4\0\x14\x10\x01"s).zeros(15).byte(0);
  bytes.text("\xFF\xDD\0\x04\0\x01\xFF\xDA\0\x08\x01\x01\0\0\x3F\0"s);
  return bytes.text("\x3F\xFF\xD0\xBF\xBF\xFF\xD9").get();
}

std::vector<std::uint32_t> greyBesideWhite() {
  std::vector<std::uint32_t> pixels;
  for (int y = 0; y < 8; ++y) {
    pixels.insert(pixels.end(), 8, 0xFF808080);
    pixels.insert(pixels.end(), 8, 0xFFFFFFFF);
  }
  return pixels;
}

IconEntry entry(unsigned bits, Rows rows, const Rows& mask, std::vector<std::uint32_t> palette = {}) {
  IconEntry entry;
  entry.width = static_cast<std::uint32_t>(rows[0].size());
  entry.height = static_cast<std::uint32_t>(rows.size());
  entry.bits = bits;
  BmpBytes bytes;
  bytes.bits = bits;
  bytes.rows = std::move(rows);
  bytes.palette = std::move(palette);
  entry.content = bytes.inIcon(mask);
  return entry;
}

IconEntry pngEntry() {
  PngBytes png;
  png.rows = {{0x112233FF, 0x44556680, 0}};
  return {3, 1, 32, png.file()};
}

const Rows kMask = {{0, 1}, {1, 0}};

/// A palette of 16 that says that it is one of 17.
IconEntry entryOfTooManyColours(Rows rows) {
  std::vector<std::uint32_t> palette = kPalette;
  palette.resize(16);
  IconEntry made = entry(4, std::move(rows), kMask, palette);
  made.content.at(32) = 17;
  return made;
}

IconEntry smallEntry(unsigned bits) {
  return bits == 24 ? entry(24, {{0x112233, 0x445566}, {0x778899, 0xAABBCC}}, kMask)
                    : entry(bits, {{1, 1}, {1, 1}}, kMask, kPalette);
}

}  // namespace

std::vector<PictureRow> gifPictures() {
  return {
      {"Gif", gif(4, 2, {frame(0, 0, {{0, 1, 2, 3}, {3, 2, 1, 0}})}), 4, {kA, kB, kC, kD, kD, kC, kB, kA}},
      {"GifWithAClearColour", gif(4, 1, {frame(0, 0, {{0, 1, 2, 3}}, 2)}), 4, {kA, kB, 0, kD}},
      {"GifOfASmallerFrame", gif(4, 3, {frame(1, 1, {{0, 2}})}), 4, {0, 0, 0, 0, 0, kA, kC, 0, 0, 0, 0, 0}},
      {"GifOfASmallerFrameWithAClearColour",
       gif(4, 2, {frame(1, 1, {{0, 2}}, 2)}),
       4,
       {0, 0, 0, 0, 0, kA, 0, 0}},
      {"GifOfAFrameBeyondItsScreen", gif(3, 2, {frame(2, 1, {{0, 1}, {2, 3}})}), 3, {0, 0, 0, 0, 0, kA}},
      {"GifOfALargerFrame", gif(2, 1, {frame(0, 0, {{0, 1, 2}, {3, 2, 1}})}), 2, {kA, kB}},
      {"GifOfAFrameBesideItsScreen", gif(2, 1, {frame(2, 1, {{0, 1}, {2, 3}})}), 2, {0, 0}},
      {"GifOfSeveralFrames", gif(2, 1, {frame(0, 0, {{0, 1}}), frame(0, 0, {{2, 3}})}), 2, {kA, kB}},
      {"GifWithRowsOutOfOrder",
       gif(1, 9, {interlacedFrame({{0}, {1}, {2}, {3}, {0}, {1}, {2}, {3}, {0}})}),
       1,
       {kA, kB, kC, kD, kA, kB, kC, kD, kA}},
      {"GifOfTwoColours", gifOfTwoColours(), 3, {kA, kB, kB}},
      {"GifOfManyPixels", longGif(false), 50, longPixels()},
      {"GifOfAFullTable", longGif(true), 50, longPixels()}};
}

std::vector<PictureRow> jpegPictures() {
  std::vector<std::uint32_t> redAndBlue;
  for (int y = 0; y < 16; ++y) {
    redAndBlue.insert(redAndBlue.end(), 16, 0xFFFF0000);
    redAndBlue.insert(redAndBlue.end(), 16, 0xFF0000FF);
  }
  std::vector<std::uint32_t> greyAndWhite(64, 0xFF808080);
  greyAndWhite.insert(greyAndWhite.end(), 64, 0xFFFFFFFF);
  return {{"Jpeg", pictureBytes("baseline.jpg"), 32, redAndBlue, 4},
          {"JpegProgressive", pictureBytes("progressive.jpg"), 32, redAndBlue, 4},
          {"JpegGrey", pictureBytes("grey.jpg"), 8, greyAndWhite, 4},
          {"JpegOfRestarts", jpegOfRestarts(), 16, greyBesideWhite(), 4}};
}

std::vector<PictureRow> iconPictures() {
  const Rows numbers = {{0, 1}, {2, 3}};
  const Rows covering = {{0xFF112233, 0x80445566}, {0x00778899, 0x01AABBCC}};
  const Rows clear = {{0x112233, 0x445566}, {0x778899, 0xAABBCC}};
  return {
      {"IconOf1Bit", iconFile({entry(1, {{0, 1}, {1, 1}}, kMask, {0x112233, 0x445566})}), 2, {kA, 0, 0, kB}},
      {"IconOf4Bits", iconFile({entry(4, numbers, kMask, kPalette)}), 2, {kA, 0, 0, kD}},
      {"IconOfTooManyColours", iconFile({entryOfTooManyColours(numbers)}), 2, {kA, 0, 0, kD}},
      {"IconOf8Bits", iconFile({entry(8, numbers, kMask, kPalette)}), 2, {kA, 0, 0, kD}},
      {"IconOf24Bits", iconFile({smallEntry(24)}), 2, {kA, 0, 0, kD}},
      {"IconThatCovers", iconFile({entry(32, covering, kMask)}), 2, {kA, 0x80445566, 0, 0x01AABBCC}},
      {"IconThatCoversWithoutAMask", iconFile({entry(32, covering, {})}), 2, {kA, 0x80445566, 0, 0x01AABBCC}},
      {"IconOf32BitsThatCoverNothing", iconFile({entry(32, clear, kMask)}), 2, {kA, 0, 0, kD}},
      {"IconOfAPng", iconFile({pngEntry()}), 3, {kA, 0x80445566, 0}},
      {"IconTakesTheLargest",
       iconFile({smallEntry(24), pngEntry(), entry(4, {{3}}, {{0}}, kPalette)}),
       2,
       {kA, 0, 0, kD}},
      {"IconTakesTheLargestLast", iconFile({pngEntry(), smallEntry(24)}), 2, {kA, 0, 0, kD}},
      {"IconTakesTheMostColours",
       iconFile({smallEntry(4), smallEntry(24), smallEntry(8)}),
       2,
       {kA, 0, 0, kD}},
      {"IconOfWideRows",
       iconFile({entry(1, Rows(1, std::vector<std::uint32_t>(33, 1)),
                       Rows(1, std::vector<std::uint32_t>(33, 0)), {0, 0x112233})}),
       33, std::vector<std::uint32_t>(33, kA)}};
}

std::string pictureBytes(const std::string& name) {
  std::ifstream file("tests/pictures/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace tessaly::tests
