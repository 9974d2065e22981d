#include <limits>

#include "tests/contract/PicturesTable.h"
#include "tests/support/pictures/BmpBytes.h"
#include "tests/support/pictures/Bytes.h"
#include "tests/support/pictures/GifBytes.h"
#include "tests/support/pictures/PngBytes.h"

namespace tessaly::tests {
namespace {

using namespace std::string_literals;

struct Malformed {
  const char* name;
  std::string bytes;
};

const std::string kPngMark = "\x89PNG\r\n\x1A\n";

/// The parts of a PNG as they stand, however wrong.
std::string pngOfParts(const std::string& header, const std::string& stream,
                       const std::string& between = "") {
  return kPngMark + pngChunk("IHDR", header) + between + pngChunk("IDAT", stream) + pngChunk("IEND", "");
}

std::string pngHeader(std::uint32_t width, std::uint32_t height, std::uint32_t depth = 8,
                      std::uint32_t colours = 6, std::uint32_t interlacing = 0) {
  return Bytes()
      .numberHighFirst(width)
      .numberHighFirst(height)
      .byte(depth)
      .byte(colours)
      .byte(0)
      .byte(0)
      .byte(interlacing)
      .get();
}

const std::string kRow = "\0\x11\x22\x33\xFF\x44\x55\x66\xFF"s;

std::string changed(std::string bytes, std::size_t at, char byte) {
  bytes.at(at) = byte;
  return bytes;
}

std::vector<Malformed> otherFiles() {
  return {
      {"Empty", ""},
      {"OneByte", "\x89"},
      {"TwoBytes", "BM"},
      {"Zeros", std::string(200, '\0')},
      {"Text", "A text that is no picture, though it is long enough to be one."},
      {"Svg", "<?xml version=\"1.0\"?><svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>"},
      {"SvgAlone", "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"></svg>"},
      {"Xpm", "/* XPM */\nstatic char *x[] = {\"1 1 1 1\", \"a c #FF0000\", \"a\"};"},
      {"Pnm", "P6\n1 1\n255\n\xFF\x11\x22"},
      {"Tiff", "II*\0\x08\0\0\0\0\0"s},
      {"Ani", "RIFF\x10\0\0\0ACONanih"s},
      {"WebP", "RIFF\x10\0\0\0WEBPVP8 "s},
      {"Tga", "\0\0\x02\0\0\0\0\0\0\0\0\0\x01\0\x01\0\x18\0\x11\x22\x33"s},
      {"Icns", "icns\0\0\0\x10"s},
      {"Cursor", changed(iconFile({{1, 1, 32, "x"}}), 2, 2)}};
}

std::vector<Malformed> pngs() {
  const std::string two = unpackedStream(kRow + kRow);
  const std::string sound = pngOfParts(pngHeader(2, 2), two);
  return {{"PngWithoutAHeader", kPngMark + pngChunk("IDAT", two) + pngChunk("IEND", "")},
          {"PngOfAShortHeader", pngOfParts("\0\0\0\x02\0\0\0\x02"s, two)},
          {"PngWithoutPixels", kPngMark + pngChunk("IHDR", pngHeader(2, 2)) + pngChunk("IEND", "")},
          {"PngOfNoPixels", pngOfParts(pngHeader(2, 2), "")},
          {"PngOfTooFewRows", pngOfParts(pngHeader(2, 2), unpackedStream(kRow))},
          {"PngOfHalfARow", pngOfParts(pngHeader(2, 2), unpackedStream(kRow + kRow.substr(0, 4)))},
          {"PngOfAStreamThatIsCut", pngOfParts(pngHeader(2, 2), two.substr(0, two.size() - 10))},
          {"PngOfAStreamThatIsNone", pngOfParts(pngHeader(2, 2), "this is not what a stream looks like")},
          {"PngOfAnUnknownFilter", pngOfParts(pngHeader(2, 2), unpackedStream(changed(kRow + kRow, 0, 9)))},
          {"PngOfNoWidth", pngOfParts(pngHeader(0, 2), two)},
          {"PngOfNoHeight", pngOfParts(pngHeader(2, 0), two)},
          {"PngOf7Bits", pngOfParts(pngHeader(2, 2, 7), two)},
          {"PngOfUnknownColours", pngOfParts(pngHeader(2, 2, 8, 5), two)},
          {"PngOfUnknownInterlacing", pngOfParts(pngHeader(2, 2, 8, 6, 9), two)},
          {"PngWithoutItsPalette", pngOfParts(pngHeader(1, 1, 8, 3), unpackedStream("\0\0"s))},
          {"PngOfTwoHeaders", pngOfParts(pngHeader(2, 2), two, pngChunk("IHDR", pngHeader(4, 4)))},
          {"PngOfAnUnknownChunk", pngOfParts(pngHeader(2, 2), two, pngChunk("ABCD", "x"))},
          {"PngOfADamagedHeader", changed(sound, 19, 1)},
          {"PngOfADamagedPixel", changed(sound, 60, 1)},
          {"PngOfAHugeChunk", changed(sound, 33, '\x7F')}};
}

BmpBytes smallBmp(unsigned bits = 24, Rows rows = {{0x112233, 0x445566}}) {
  BmpBytes bytes;
  bytes.bits = bits;
  bytes.rows = std::move(rows);
  return bytes;
}

std::string bmpOfSize(std::int32_t width, std::int32_t height) {
  BmpBytes bytes = smallBmp();
  bytes.width = width;
  bytes.height = height;
  return bytes.file();
}

std::string bmpOf(unsigned bits, std::uint32_t compression, const std::string& data = "",
                  bool isTopDown = false) {
  BmpBytes bytes = smallBmp(bits, {{0, 0}});
  bytes.compression = compression;
  bytes.data = data;
  bytes.isTopDown = isTopDown;
  return bytes.file();
}

std::vector<Malformed> bmps() {
  constexpr auto kLeastSide = std::numeric_limits<std::int32_t>::min();
  return {{"BmpOfNoRows", smallBmp(24, {}).file()},
          {"BmpOfNoColumns", smallBmp(24, {{}}).file()},
          {"BmpOfANegativeWidth", bmpOfSize(-2, 1)},
          {"BmpOfTheLeastHeight", bmpOfSize(2, kLeastSide)},
          {"BmpOfTheLeastWidth", bmpOfSize(kLeastSide, 1)},
          {"BmpOfMoreRowsThanItHas", bmpOfSize(2, 2)},
          {"BmpOfLongerRowsThanItHas", bmpOfSize(3, 1)},
          {"BmpOf2Bits", bmpOf(2, 0)},
          {"BmpOf0Bits", changed(bmpOf(24, 0), 28, 0)},
          {"BmpOfAnUnknownHeader", changed(bmpOf(24, 0), 14, 41)},
          {"BmpOfUnknownPacking", bmpOf(24, 4)},
          {"BmpOf256UnknownPackings", changed(bmpOf(24, 0), 31, 1)},
          {"BmpOfMasksFor24Bits", bmpOf(24, 3)},
          {"BmpOfRunsFor24Bits", bmpOf(24, 1, "\x02\x01\0\x01"s)},
          {"BmpOfRunsFromTheTop", bmpOf(8, 1, "\x02\x01\0\x01"s, true)},
          {"BmpOfRunsWithoutAnEnd", bmpOf(8, 1, "\x02\x01\0\0"s)},
          {"BmpOfRunsBeyondTheTop", bmpOf(8, 1, "\x02\x01\0\0\x02\x01\0\x01"s)},
          {"BmpOfRunsFarBeyondTheTop", bmpOf(8, 1, "\0\x02\0\xFF\x02\x01\0\x01"s)},
          {"BmpOfPixelsThatAreCut", bmpOf(8, 1, "\0\x08\x01\x02"s)},
          {"BmpOfAMoveThatIsCut", bmpOf(8, 1, "\0\x02\x01"s)},
          {"BmpOfPixelsInTheHeader", changed(bmpOf(24, 0), 10, 20)},
          {"BmpOfPixelsBehindTheEnd", changed(bmpOf(24, 0), 12, 1)}};
}

/// A screen and a frame of 2 by 1 with these codes, in blocks behind the number of their bits.
std::string gifOfCodes(const std::string& codes, std::uint32_t screen = 2, std::uint32_t width = 2,
                       bool hasPalette = true) {
  Bytes bytes;
  bytes.text("GIF89a").word(screen).word(1).byte(hasPalette ? 0x80 : 0).byte(0).byte(0);
  if (hasPalette) bytes.text("\x11\x22\x33\x44\x55\x66");
  return bytes.byte(0x2C).word(0).word(0).word(width).word(1).byte(0).text(codes).byte(0x3B).get();
}

/// A start, the pixels 0 and 1, the end.
const std::string kCodes = "\x02\x02\x44\x0A\0"s;

std::vector<Malformed> gifs() {
  return {{"GifOfNoScreen", gifOfCodes(kCodes, 0)},
          {"GifOfNoColumns", gifOfCodes(kCodes, 2, 0)},
          {"GifOfNoFrame", "GIF89a\x02\0\x01\0\0\0\0;"s},
          {"GifOfNoColours", gifOfCodes(kCodes, 2, 2, false)},
          {"GifOfNoCodes", gifOfCodes("\x02\0"s)},
          {"GifOfTooFewPixels", gifOfCodes("\x02\x02\x44\x01\0"s)},
          {"GifOfMorePixelsThanItHas", gifOfCodes(kCodes, 2, 3)},
          {"GifThatEndsAtOnce", gifOfCodes("\x02\x01\x2C\0"s)},
          {"GifOfACodeThatIsNone", gifOfCodes("\x02\x02\x3C\0\0"s)},
          {"GifOf0Bits", gifOfCodes(changed(kCodes, 0, 0))},
          {"GifOf9Bits", gifOfCodes(changed(kCodes, 0, 9))},
          {"GifOf200Bits", gifOfCodes(changed(kCodes, 0, '\xC8'))},
          {"GifOfAnUnknownBlock", changed(gifOfCodes(kCodes), 19, 'x')},
          {"GifWithoutAnEnd", gifOfCodes(kCodes).substr(0, gifOfCodes(kCodes).size() - 1)}};
}

std::size_t markAt(const std::string& jpeg, char mark) { return jpeg.find(std::string{'\xFF', mark}); }

std::string without(std::string jpeg, char mark) {
  for (std::size_t at = markAt(jpeg, mark); at != std::string::npos; at = markAt(jpeg, mark)) {
    const auto high = static_cast<unsigned char>(jpeg[at + 2]);
    const auto low = static_cast<unsigned char>(jpeg[at + 3]);
    jpeg.erase(at, 2U + (std::size_t{high} << 8U) + low);
  }
  return jpeg;
}

/// With another byte behind a mark.
std::string changedBehind(const std::string& jpeg, char mark, std::size_t offset, char byte) {
  return changed(jpeg, markAt(jpeg, mark) + offset, byte);
}

std::vector<Malformed> jpegs() {
  constexpr char kFrame = '\xC0';
  constexpr char kScan = '\xDA';
  const std::string sound = pictureBytes("baseline.jpg");
  const std::string scan = sound.substr(markAt(sound, kScan), sound.size() - markAt(sound, kScan) - 2);
  return {{"JpegMarkAlone", "\xFF\xD8\xFF"},
          {"JpegOfNothing", "\xFF\xD8\xFF\xD9"},
          {"JpegOfNoScan", sound.substr(0, markAt(sound, kScan)) + "\xFF\xD9"},
          {"JpegOfNoFrame", without(sound, kFrame)},
          {"JpegOfNoTables", without(sound, '\xDB')},
          {"JpegOfTwoFrames", sound.substr(0, markAt(sound, kScan)) + sound.substr(markAt(sound, kFrame))},
          {"JpegOfNoHeight", changedBehind(sound, kFrame, 6, 0)},
          {"JpegOfNoWidth", changedBehind(sound, kFrame, 8, 0)},
          {"JpegOf12Bits", changedBehind(sound, kFrame, 4, 12)},
          {"JpegOfTwoColours", changedBehind(sound, kFrame, 9, 2)},
          {"JpegOfALosslessFrame", changedBehind(sound, kFrame, 1, '\xC3')},
          {"JpegOfAnArithmeticFrame", changedBehind(sound, kFrame, 1, '\xC9')},
          {"JpegOfASegmentWithoutASize", changedBehind(sound, kFrame, 3, 0)},
          {"JpegWithoutAnEnd", sound.substr(0, sound.size() - 2)},
          {"JpegOfAStartWithin", sound.substr(0, 2) + sound},
          {"JpegOfTextWithin", sound.substr(0, 2) + "text" + sound.substr(2)}};
}

/// 5000 by 5000 in many scans, each of which goes over all of it.
std::string jpegOfManyScans() {
  std::string jpeg = pictureBytes("progressive.jpg");
  for (const std::size_t offset : {5U, 7U}) jpeg = changedBehind(jpeg, '\xC2', offset, '\x13');
  for (const std::size_t offset : {6U, 8U}) jpeg = changedBehind(jpeg, '\xC2', offset, '\x88');
  const std::string scans = jpeg.substr(markAt(jpeg, '\xDA'), jpeg.size() - markAt(jpeg, '\xDA') - 2);
  for (int time = 0; time < 3; ++time) jpeg.insert(jpeg.size() - 2, scans);
  return jpeg;
}

/// 65,535 by 65,535.
std::string hugeJpeg() {
  std::string jpeg = pictureBytes("baseline.jpg");
  for (const std::size_t offset : {5U, 6U, 7U, 8U}) jpeg = changedBehind(jpeg, '\xC0', offset, '\xFF');
  return jpeg;
}

std::string hugeGifFrame() {
  std::string bytes = gifOfCodes(kCodes);
  for (const std::size_t at : {24U, 25U, 26U, 27U}) bytes = changed(bytes, at, '\xFF');
  return bytes;
}

IconEntry iconEntry(const std::string& content) { return {1, 1, 32, content}; }

std::string bitmapInIcon(unsigned bits = 32) { return smallBmp(bits, {{0xFF112233}}).inIcon({{0}}); }

std::vector<Malformed> icons() {
  const std::string sound = iconFile({iconEntry(bitmapInIcon())});
  const std::string itself = changed(changed(iconFile({iconEntry("0123456789")}), 18, 0), 14, 32);
  return {{"IconOfNoEntry", iconFile({})},
          {"IconOfMoreEntriesThanItHas", changed(sound, 4, 9)},
          {"IconOf65535Entries", changed(changed(sound, 4, '\xFF'), 5, '\xFF')},
          {"IconOfNothing", iconFile({iconEntry("")})},
          {"IconOfText", iconFile({iconEntry("A text that is long enough for a header of a bitmap.")})},
          {"IconOfItself", itself},
          {"IconOfAnIcon", iconFile({iconEntry(sound)})},
          {"IconOfABmpFile", iconFile({iconEntry(smallBmp().file())})},
          {"IconOfAGif", iconFile({iconEntry(gifOfCodes(kCodes))})},
          {"IconOfAJpeg", iconFile({iconEntry(pictureBytes("baseline.jpg"))})},
          {"IconOfADamagedPng", iconFile({iconEntry("\x89PNG\r\n\x1A\nrather short")})},
          {"IconOfAnOddHeight", changed(sound, 22 + 8, 3)},
          {"IconFromTheTop", iconFile({iconEntry(changed(changed(bitmapInIcon(), 8, '\xFE'), 11, '\xFF'))})},
          {"IconOfRuns", changed(sound, 22 + 16, 1)},
          {"IconOf24BitsWithoutAMask", iconFile({iconEntry(smallBmp(24, {{0x112233}}).inIcon({}))})},
          {"IconBehindTheEnd", changed(sound, 20, 1)}};
}

}  // namespace

std::vector<PictureRow> malformedPictures() {
  std::vector<PictureRow> rows;
  for (const auto& part : {otherFiles(), pngs(), bmps(), gifs(), jpegs(), icons()}) {
    for (const auto& [name, bytes] : part) rows.push_back({name, bytes, 0, {}});
  }
  return rows;
}

std::vector<PictureRow> hugePictures() {
  constexpr std::uint32_t kSide = 100'000;
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  const std::string bitmap = bmpOfSize(kSide, kSide);
  const std::string pixels = unpackedStream(kRow);
  std::vector<PictureRow> rows;
  for (const auto& [name, bytes] : std::vector<Malformed>{
           {"Png", pngOfParts(pngHeader(kSide, kSide), pixels)},
           {"PngInterlaced", pngOfParts(pngHeader(kSide, kSide, 16, 6, 1), pixels)},
           {"PngOfTheMost", pngOfParts(pngHeader(kMost, kMost), pixels)},
           {"PngTooWide", pngOfParts(pngHeader(32'768, 1), unpackedStream(std::string(131'073, '\0')))},
           {"PngOfTooManyPixels", pngOfParts(pngHeader(8192, 4097), pixels)},
           {"Bmp", bitmap},
           {"BmpFromTheTop", bmpOfSize(kSide, -static_cast<std::int32_t>(kSide))},
           {"BmpOfTheMost", bmpOfSize(kMost, kMost)},
           {"BmpOfRuns", changed(changed(bitmap, 30, 1), 28, 8)},
           {"GifScreen", GifBytes{65'535, 65'535, {0x112233, 0x445566}, 0, {{0, 0, {{0}}}}}.file()},
           {"GifFrame", hugeGifFrame()},
           {"Jpeg", hugeJpeg()},
           {"JpegOfManyScans", jpegOfManyScans()},
           {"IconOfABitmap", iconFile({iconEntry(bitmap.substr(14))})},
           {"IconOfAPng", iconFile({iconEntry(pngOfParts(pngHeader(kSide, kSide), pixels))})},
           // Its number of pixels had been too large to count.
           {"IconOfAPngOfTheMost", iconFile({iconEntry(pngOfParts(pngHeader(~0U, ~0U), pixels))})}}) {
    rows.push_back({name, bytes, 0, {}});
  }
  return rows;
}

}  // namespace tessaly::tests
