#include "tests/contract/PicturesTable.h"
#include "tests/support/pictures/PngBytes.h"

namespace tessaly::tests {
namespace {

using namespace std::string_literals;

/// Four colours, red first.
const std::string kPaletteBytes = "\x11\x22\x33\x44\x55\x66\x77\x88\x99\xAA\xBB\xCC";

std::string png(PngColours colours, unsigned depth, WideRows rows, const std::string& palette = "",
                const std::string& transparency = "", bool isInterlaced = false) {
  PngBytes bytes;
  bytes.colours = colours;
  bytes.depth = depth;
  bytes.isInterlaced = isInterlaced;
  bytes.rows = std::move(rows);
  bytes.palette = palette;
  bytes.transparency = transparency;
  return bytes.file();
}

std::vector<PictureRow> colours() {
  using enum PngColours;
  return {{"Rgba",
           png(Rgba, 8, {{0x112233FF, 0x44556680}, {0x778899FE, 0xAABBCC01}}),
           2,
           {0xFF112233, 0x80445566, 0xFE778899, 0x01AABBCC}},
          {"RgbaClear", png(Rgba, 8, {{0x11223300, 0xFFFFFF00}}), 2, {0, 0}},
          {"RgbaOf16Bits",
           png(Rgba, 16, {{0x111122223333FFFF, 0x4444555566668080}}),
           2,
           {0xFF112233, 0x80445566}},
          {"Rgb",
           png(Rgb, 8, {{0x112233, 0x445566}, {0x778899, 0xAABBCC}}),
           2,
           {0xFF112233, 0xFF445566, 0xFF778899, 0xFFAABBCC}},
          {"RgbOf16Bits", png(Rgb, 16, {{0x111122223333, 0x444455556666}}), 2, {0xFF112233, 0xFF445566}},
          {"RgbWithAClearColour",
           png(Rgb, 8, {{0x112233, 0x445566}}, "", "\0\x44\0\x55\0\x66"s),
           2,
           {0xFF112233, 0}},
          {"GreyAlpha", png(GreyAlpha, 8, {{0x11FF, 0x2280, 0x3300}}), 3, {0xFF111111, 0x80222222, 0}},
          {"GreyAlphaOf16Bits", png(GreyAlpha, 16, {{0x1111FFFF, 0x22228080}}), 2, {0xFF111111, 0x80222222}}};
}

std::vector<PictureRow> greys() {
  using enum PngColours;
  return {
      {"Grey", png(Grey, 8, {{0, 0x80}, {0xFF, 0x12}}), 2, {0xFF000000, 0xFF808080, 0xFFFFFFFF, 0xFF121212}},
      {"GreyOf1Bit",
       png(Grey, 1, {{0, 1, 1}, {1, 0, 0}}),
       3,
       {0xFF000000, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFF000000, 0xFF000000}},
      {"GreyOf2Bits", png(Grey, 2, {{0, 1, 2, 3}}), 4, {0xFF000000, 0xFF555555, 0xFFAAAAAA, 0xFFFFFFFF}},
      {"GreyOf4Bits", png(Grey, 4, {{0, 1, 8, 15}}), 4, {0xFF000000, 0xFF111111, 0xFF888888, 0xFFFFFFFF}},
      {"GreyOf16Bits", png(Grey, 16, {{0, 0x8080, 0xFFFF}}), 3, {0xFF000000, 0xFF808080, 0xFFFFFFFF}},
      {"GreyWithAClearOne", png(Grey, 8, {{0, 0x80, 0xFF}}, "", "\0\x80"s), 3, {0xFF000000, 0, 0xFFFFFFFF}},
      {"GreyOf1BitWithAClearOne", png(Grey, 1, {{0, 1}}, "", "\0\1"s), 2, {0xFF000000, 0}}};
}

std::vector<PictureRow> pngPalettes() {
  using enum PngColours;
  const std::vector<std::uint32_t> all = {0xFF112233, 0xFF445566, 0xFF778899, 0xFFAABBCC};
  return {{"PaletteOf8Bits", png(Palette, 8, {{0, 1, 2, 3}}, kPaletteBytes), 4, all},
          {"PaletteOf4Bits", png(Palette, 4, {{0, 1, 2, 3}}, kPaletteBytes), 4, all},
          {"PaletteOf2Bits", png(Palette, 2, {{0, 1, 2, 3}}, kPaletteBytes), 4, all},
          {"PaletteOf1Bit",
           png(Palette, 1, {{0, 1, 1}}, kPaletteBytes.substr(0, 6)),
           3,
           {0xFF112233, 0xFF445566, 0xFF445566}},
          {"PaletteWithClearColours",
           png(Palette, 8, {{0, 1, 2, 3}}, kPaletteBytes, "\0\x80"s),
           4,
           {0, 0x80445566, 0xFF778899, 0xFFAABBCC}}};
}

/// Nine by nine, so that each pass has rows of several pixels but for those that have none.
WideRows manyPixels() {
  WideRows rows(9);
  for (std::uint64_t y = 0; y < 9; ++y) {
    for (std::uint64_t x = 0; x < 9; ++x) rows[y].push_back((y * 20) << 24U | (x * 20) << 16U | 0x7FFF);
  }
  return rows;
}

std::vector<std::uint32_t> asPixels(const WideRows& rows) {
  std::vector<std::uint32_t> pixels;
  for (const auto& row : rows) {
    for (const std::uint64_t pixel : row)
      pixels.push_back(static_cast<std::uint32_t>((pixel & 0xFF) << 24U | pixel >> 8U));
  }
  return pixels;
}

std::vector<PictureRow> interlaced() {
  using enum PngColours;
  return {{"Interlaced", png(Rgba, 8, manyPixels(), "", "", true), 9, asPixels(manyPixels())},
          {"InterlacedPalette",
           png(Palette, 4, {{0, 1, 2}, {3, 2, 1}}, kPaletteBytes, "", true),
           3,
           {0xFF112233, 0xFF445566, 0xFF778899, 0xFFAABBCC, 0xFF778899, 0xFF445566}},
          {"InterlacedPixel", png(Rgb, 8, {{0x112233}}, "", "", true), 1, {0xFF112233}}};
}

/// Chunks that tell something, but nothing of the pixels.
std::vector<PictureRow> chunksAside() {
  PngBytes bytes;
  bytes.rows = {{0x80808080}};
  bytes.more = pngChunk("gAMA", "\0\0\x27\x10"s) + pngChunk("tEXt", "Title\0x"s) +
               pngChunk("pHYs", "broken") + pngChunk("iCCP", "x\0\0garbage"s) +
               pngChunk("zTXt", "x\0\0garbage"s) + pngChunk("acTL", "\0\0\0\2\0\0\0\0"s);
  return {{"ChunksAside", bytes.file(), 1, {0x80808080}}};
}

}  // namespace

std::vector<PictureRow> pngPictures() {
  std::vector<PictureRow> rows;
  for (const auto& part : {colours(), greys(), pngPalettes(), interlaced(), chunksAside()}) {
    rows.insert(rows.end(), part.begin(), part.end());
  }
  return rows;
}

}  // namespace tessaly::tests
