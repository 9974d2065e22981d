#include "tests/contract/PicturesTable.h"
#include "tests/support/pictures/BmpBytes.h"

namespace tessaly::tests {
namespace {

using namespace std::string_literals;

constexpr std::array<std::uint32_t, 4> kPlainMasks = {0xFF0000, 0xFF00, 0xFF, 0};
constexpr std::array<std::uint32_t, 4> kCoveringMasks = {0xFF0000, 0xFF00, 0xFF, 0xFF000000};
constexpr std::uint32_t kRuns8 = 1;
constexpr std::uint32_t kRuns4 = 2;
constexpr std::uint32_t kMasks = 3;

std::vector<std::uint32_t> palette(std::size_t count) {
  std::vector<std::uint32_t> colours;
  for (std::uint32_t i = 0; i < count; ++i) colours.push_back(i * 0x010102U);
  return colours;
}

std::uint32_t colour(std::uint32_t number) { return 0xFF000000 | number * 0x010102U; }

BmpBytes bmp(unsigned bits, Rows rows, std::size_t colours = 0) {
  BmpBytes bytes;
  bytes.bits = bits;
  bytes.rows = std::move(rows);
  bytes.palette = palette(colours);
  return bytes;
}

std::string topDown(BmpBytes bytes) {
  bytes.isTopDown = true;
  return bytes.file();
}

std::string masked(unsigned bits, Rows rows, std::uint32_t headerSize,
                   const std::array<std::uint32_t, 4>& masks) {
  BmpBytes bytes = bmp(bits, std::move(rows));
  bytes.headerSize = headerSize;
  bytes.compression = kMasks;
  bytes.masks = masks;
  return bytes.file();
}

std::string withHeader(BmpBytes bytes, std::uint32_t headerSize) {
  bytes.headerSize = headerSize;
  return bytes.file();
}

std::string runs(unsigned bits, std::uint32_t compression, const std::string& data) {
  BmpBytes bytes = bmp(bits, {{0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}}, std::size_t{1} << bits);
  bytes.compression = compression;
  bytes.data = data;
  return bytes.file();
}

/// Its palette ends with the third colour, but says that it is full.
std::string ofAShortPalette() {
  std::string file = bmp(8, {{0, 1, 3}}, 3).file();
  file.at(46) = 0;
  return file;
}

std::vector<PictureRow> plain() {
  const Rows twoByTwo = {{0x112233, 0x445566, 0x010203}, {0x778899, 0xAABBCC, 0x040506}};
  const std::vector<std::uint32_t> pixels = {0xFF112233, 0xFF445566, 0xFF010203,
                                             0xFF778899, 0xFFAABBCC, 0xFF040506};
  const BmpBytes full = bmp(32, {{0xFF112233, 0x80445566, 0x00010203}, {0x01778899, 0xAABBCC, 0x040506}});
  const BmpBytes eight = bmp(8, {{0, 1, 255}, {9, 8, 7}}, 256);
  const std::vector<std::uint32_t> eightPixels = {colour(0), colour(1), colour(255),
                                                  colour(9), colour(8), colour(7)};
  return {{"Of1Bit",
           bmp(1, {{0, 1, 1}, {1, 0, 0}}, 2).file(),
           3,
           {colour(0), colour(1), colour(1), colour(1), colour(0), colour(0)}},
          {"Of4Bits",
           bmp(4, {{0, 1, 15}, {9, 8, 7}}, 16).file(),
           3,
           {colour(0), colour(1), colour(15), colour(9), colour(8), colour(7)}},
          {"Of8Bits", eight.file(), 3, eightPixels},
          {"Of8BitsFromTheTop", topDown(eight), 3, eightPixels},
          {"Of24Bits", bmp(24, twoByTwo).file(), 3, pixels},
          {"Of24BitsFromTheTop", topDown(bmp(24, twoByTwo)), 3, pixels},
          {"Of32Bits", full.file(), 3, pixels},
          {"Of32BitsFromTheTop", topDown(full), 3, pixels},
          {"Of16Bits",
           bmp(16, {{0x7FFF, 0x001F, 0x03E0}, {0x7C00, 0, 0x4210}}).file(),
           3,
           {0xFFFFFFFF, 0xFF0000FF, 0xFF00FF00, 0xFFFF0000, 0xFF000000, 0xFF848484}}};
}

std::vector<PictureRow> bmpPalettes() {
  return {{"OfFewColours", bmp(8, {{0, 1, 2}}, 3).file(), 3, {colour(0), colour(1), colour(2)}},
          {"OfAColourThatIsMissing", bmp(8, {{0, 1, 9}}, 3).file(), 3, {colour(0), colour(1), 0xFF000000}},
          {"OfAShortPalette", ofAShortPalette(), 3, {colour(0), colour(1), 0xFF000000}},
          {"Of4BitsOfAColourThatIsMissing",
           bmp(4, {{0, 1, 9}}, 3).file(),
           3,
           {colour(0), colour(1), 0xFF000000}}};
}

std::vector<PictureRow> headers() {
  const Rows rows = {{0xFF112233, 0x80445566}};
  const std::vector<std::uint32_t> opaque = {0xFF112233, 0xFF445566};
  const std::vector<std::uint32_t> covering = {0xFF112233, 0x80445566};
  return {{"OfTheOldHeader", withHeader(bmp(24, {{0x112233, 0x445566}}), 12), 2, opaque},
          {"OfTheOldHeaderAnd8Bits",
           withHeader(bmp(8, {{0, 1, 255}}, 256), 12),
           3,
           {colour(0), colour(1), colour(255)}},
          {"OfTheOtherHeader", withHeader(bmp(24, {{0x112233, 0x445566}}), 64), 2, opaque},
          {"OfALongHeaderWithoutMasks", withHeader(bmp(32, rows), 124), 2, opaque},
          {"OfMasksBehindTheHeader", masked(32, rows, 40, kPlainMasks), 2, opaque},
          {"OfMasksInTheHeader", masked(32, rows, 52, kPlainMasks), 2, opaque},
          {"OfMasksInTheOtherOrder",
           masked(32, rows, 40, {0xFF, 0xFF00, 0xFF0000, 0}),
           2,
           {0xFF332211, 0xFF665544}},
          {"OfACoveringMask", masked(32, rows, 56, kCoveringMasks), 2, covering},
          {"OfACoveringMaskInHeader4", masked(32, rows, 108, kCoveringMasks), 2, covering},
          {"OfACoveringMaskInHeader5", masked(32, rows, 124, kCoveringMasks), 2, covering},
          {"OfClearPixels", masked(32, {{0x00112233, 0xFF445566}}, 108, kCoveringMasks), 2, {0, 0xFF445566}},
          {"OfMasksFor16Bits",
           masked(16, {{0xFFFF, 0x001F, 0x07E0, 0xF800}}, 40, {0xF800, 0x07E0, 0x1F, 0}),
           4,
           {0xFFFFFFFF, 0xFF0000FF, 0xFF00FF00, 0xFFFF0000}}};
}

/// From the bottom row on.
std::vector<PictureRow> runs() {
  const std::uint32_t c0 = colour(0);
  const std::uint32_t c1 = colour(1);
  const std::uint32_t c2 = colour(2);
  const std::uint32_t c3 = colour(3);
  return {{"OfRuns",
           runs(8, kRuns8, "\x04\x01\x01\x02\0\0\0\x03\x01\x02\x03\0\x02\x02\0\x01"s),
           5,
           {c1, c2, c3, c2, c2, c1, c1, c1, c1, c2}},
          {"OfRunsOf4Bits",
           runs(4, kRuns4, "\x05\x12\0\0\0\x05\x12\x31\x20\0\0\x01"s),
           5,
           {c1, c2, c3, c1, c2, c1, c2, c1, c2, c1}},
          {"OfRunsWithGaps",
           runs(8, kRuns8, "\0\x02\x01\0\x01\x03\0\x02\x01\x01\x01\x02\0\x01"s),
           5,
           {c0, c0, c0, c2, c0, c0, c3, c0, c0, c0}},
          {"OfRunsThatEndAtOnce", runs(8, kRuns8, "\0\x01"s), 5, {c0, c0, c0, c0, c0, c0, c0, c0, c0, c0}},
          {"OfRunsBeyondARow",
           runs(8, kRuns8, "\x09\x01\0\0\x05\x02\0\x01"s),
           5,
           {c2, c2, c2, c2, c2, c1, c1, c1, c1, c1}}};
}

}  // namespace

std::vector<PictureRow> bmpPictures() {
  std::vector<PictureRow> rows;
  for (const auto& part : {plain(), bmpPalettes(), headers(), runs()})
    rows.insert(rows.end(), part.begin(), part.end());
  return rows;
}

}  // namespace tessaly::tests
