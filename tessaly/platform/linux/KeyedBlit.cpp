#include "tessaly/platform/linux/KeyedBlit.h"

#include <algorithm>
#include <array>
#include <vector>

#include "tessaly/platform/ScaledAxis.h"
#include "tessaly/platform/linux/KeyedCopy.h"

namespace tessaly::platform {
namespace {

/// As many columns as are scaled at a time, so that none of it needs memory beyond the stack.
constexpr Long kColumnsAtATime = 2048;

std::uint32_t* pixelAt(const MemorySurface& surface, Long x, Long y) {
  return surface.pixels.get() + std::ptrdiff_t{y} * surface.width + x;
}

TargetRows targetRows(const KeyedBlit& blit, Long x, Long y) {
  return {pixelAt(blit.target, x, y), blit.target.width};
}

ScaledAxis columnsOf(const KeyedBlit& blit) {
  return {blit.targetArea.x, blit.targetArea.width, blit.sourceArea.width};
}

ScaledAxis rowsOf(const KeyedBlit& blit) {
  return {blit.targetArea.y, blit.targetArea.height, blit.sourceArea.height};
}

void copyUnscaled(const KeyedBlit& blit, SourceRows source, Span columns, Span rows) {
  source.first += rowsOf(blit).sourceOf(rows.first) * source.step + columnsOf(blit).sourceOf(columns.first);
  copyButKey(targetRows(blit, columns.first, rows.first), source, columns.size(), rows.size(), blit.key);
}

/// The first of these rows, and those behind it that show the same row of the source.
Span equalRows(const ScaledAxis& axis, Span rows) {
  const Long source = axis.sourceOf(rows.first);
  Span equal{rows.first, rows.first + 1};
  while (equal.last < rows.last && axis.sourceOf(equal.last) == source) ++equal.last;
  return equal;
}

void copyScaled(const KeyedBlit& blit, SourceRows source, Span columns, Span rows) {
  std::array<Long, kColumnsAtATime> map;
  std::array<std::uint32_t, kColumnsAtATime> line;
  for (Long i = 0; i < columns.size(); ++i) {
    map[static_cast<std::size_t>(i)] = columnsOf(blit).sourceOf(columns.first + i);
  }
  while (!rows.isEmpty()) {
    const Span equal = equalRows(rowsOf(blit), rows);
    const std::uint32_t* const row = source.first + rowsOf(blit).sourceOf(equal.first) * source.step;
    gatherColumns(line.data(), row, map.data(), columns.size());
    copyButKey(targetRows(blit, columns.first, equal.first), {line.data(), 0}, columns.size(), equal.size(),
               blit.key);
    rows.first = equal.last;
  }
}

void copy(const KeyedBlit& blit, SourceRows source) {
  const Span columns = columnsOf(blit).visible(blit.target.width);
  const Span rows = rowsOf(blit).visible(blit.target.height);
  if (columns.isEmpty() || rows.isEmpty()) return;
  if (blit.targetArea.width == blit.sourceArea.width && blit.targetArea.height == blit.sourceArea.height) {
    return copyUnscaled(blit, source, columns, rows);
  }
  for (Long first = columns.first; first < columns.last; first += kColumnsAtATime) {
    copyScaled(blit, source, {first, std::min(first + kColumnsAtATime, columns.last)}, rows);
  }
}

/// The source's area on its own.
std::vector<std::uint32_t> sourcePixels(const KeyedBlit& blit) {
  const auto [x, y, width, height] = blit.sourceArea;
  std::vector<std::uint32_t> pixels;
  pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  for (Long row = 0; row < height; ++row) {
    const std::uint32_t* const first = pixelAt(blit.source, x, y + row);
    pixels.insert(pixels.end(), first, first + width);
  }
  return pixels;
}

}  // namespace

void KeyedBlit::run() const {
  // What is copied within one surface is taken from it before any of it changes.
  if (&source == &target) {
    const std::vector<std::uint32_t> pixels = sourcePixels(*this);
    return copy(*this, {pixels.data(), sourceArea.width});
  }
  copy(*this, {pixelAt(source, sourceArea.x, sourceArea.y), source.width});
}

}  // namespace tessaly::platform
