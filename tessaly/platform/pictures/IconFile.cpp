#include "tessaly/platform/pictures/Dib.h"
#include "tessaly/platform/pictures/PictureFile.h"

namespace tessaly::platform {
namespace {

constexpr std::size_t kDirectory = 6;
constexpr std::size_t kEntry = 16;

struct Entry {
  std::string_view content;
  std::uint64_t pixels = 0;
  std::uint32_t bits = 0;

  bool isBetterThan(const Entry& other) const {
    return pixels != other.pixels ? pixels > other.pixels : bits > other.bits;
  }
};

/// Of any size that a file can tell.
std::uint64_t pixelCount(std::int64_t width, std::int64_t height) {
  return width > 0 && height > 0 ? static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(height) : 0;
}

bool isPng(std::string_view content) { return content.starts_with(kPngMark); }

/// An icon's bitmap is twice as high as its picture: the mask counts.
std::optional<DibHeader> pictureHeader(std::string_view content) {
  std::optional<DibHeader> header = dibHeader(ByteView(content));
  if (!header || header->packing != DibPacking::None || header->isTopDown || header->height % 2 != 0)
    return {};
  header->height /= 2;
  return header;
}

/// What it says of itself counts, not what the directory says of it. One that is none has no pixels.
Entry entryOf(std::string_view content) {
  if (isPng(content)) {
    const ByteView png(content);
    return {content, pixelCount(png.numberHighFirst(16), png.numberHighFirst(20)), 32};
  }
  const auto header = pictureHeader(content);
  return header ? Entry{content, pixelCount(header->width, header->height), header->bits}
                : Entry{content, 0, 0};
}

/// Nothing where one of them is cut off.
std::optional<Entry> bestEntry(const ByteView& file) {
  std::optional<Entry> best;
  for (std::size_t i = 0; i < file.word(4); ++i) {
    const std::size_t at = kDirectory + i * kEntry;
    const std::size_t size = file.number(at + 8);
    const std::size_t offset = file.number(at + 12);
    if (!file.has(at, kEntry) || !file.has(offset, size)) return {};
    const Entry entry = entryOf(file.part(offset, size));
    if (!best || entry.isBetterThan(*best)) best = entry;
  }
  return best;
}

std::optional<PictureFile> bitmapPicture(std::string_view content) {
  const ByteView dib(content);
  auto header = pictureHeader(content);
  if (!header || !isPictureSize(header->width, header->height)) return {};
  const auto rowsSize = static_cast<std::size_t>(header->rowSize() * header->height);
  const auto maskSize = static_cast<std::size_t>((header->width + 31) / 32 * 4 * header->height);
  const std::size_t start = header->paletteEnd();
  const bool covers = header->bits == 32;
  // Where each pixel tells how much it covers the mask may be left out.
  if (!dib.has(start, rowsSize) || !(covers || dib.has(start + rowsSize, maskSize))) return {};
  if (covers) {
    header->packing = DibPacking::Masks;
    header->masks = {0xFF0000, 0xFF00, 0xFF, 0xFF000000};
  }
  return PictureFile{PictureFormat::Bmp,
                     bmpFile(*header, dib, dib.part(start, rowsSize)),
                     static_cast<Long>(header->width),
                     static_cast<Long>(header->height),
                     {},
                     std::string(dib.part(start + rowsSize, maskSize)),
                     covers};
}

}  // namespace

std::optional<PictureFile> iconPicture(std::string_view bytes) {
  const std::optional<Entry> entry = bestEntry(ByteView(bytes));
  if (!entry) return {};
  return isPng(entry->content) ? pngPicture(entry->content) : bitmapPicture(entry->content);
}

}  // namespace tessaly::platform
