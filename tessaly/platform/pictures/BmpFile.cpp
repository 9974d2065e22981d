#include "tessaly/platform/pictures/Dib.h"

#include <algorithm>
#include "tessaly/platform/pictures/PictureFile.h"

namespace tessaly::platform {
namespace {

constexpr std::size_t kOffsetOfPixels = 10;

bool isPackedByRuns(const DibHeader& header) {
  return header.packing == DibPacking::Runs8 || header.packing == DibPacking::Runs4;
}

/// A plain bitmap of one byte a pixel.
std::optional<std::string> fileOfRuns(DibHeader header, const ByteView& dib, const ByteView& pixels) {
  const std::optional<std::string> rows = unpackedRuns(pixels, header);
  if (!rows) return {};
  header.packing = DibPacking::None;
  header.bits = 8;
  return bmpFile(header, dib, *rows);
}

std::optional<std::string> plainFile(const DibHeader& header, const ByteView& dib, const ByteView& pixels) {
  if (isPackedByRuns(header)) return fileOfRuns(header, dib, pixels);
  const auto size = static_cast<std::size_t>(header.rowSize() * header.height);
  if (!pixels.has(0, size)) return {};
  return bmpFile(header, dib, pixels.part(0, size));
}

}  // namespace

std::optional<PictureFile> bmpPicture(std::string_view bytes) {
  const ByteView file(bytes);
  const ByteView dib(file.from(kBmpFileHeader));
  std::optional<DibHeader> header = dibHeader(dib);
  if (!header || !isPictureSize(header->width, header->height)) return {};
  const std::size_t offset = file.number(kOffsetOfPixels);
  if (offset < kBmpFileHeader + header->size || offset > file.size()) return {};
  // A palette may be shorter than it says, and ends where the pixels begin.
  header->colours = std::min(header->colours, (offset - kBmpFileHeader - header->size) / header->colourSize);
  std::optional<std::string> plain = plainFile(*header, dib, ByteView(file.from(offset)));
  if (!plain) return {};
  return PictureFile{PictureFormat::Bmp, std::move(*plain), static_cast<Long>(header->width),
                     static_cast<Long>(header->height)};
}

}  // namespace tessaly::platform
