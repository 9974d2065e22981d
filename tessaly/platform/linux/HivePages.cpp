#include "tessaly/platform/linux/HivePages.h"

#include <algorithm>
#include <optional>
#include <string>

namespace tessaly::platform {
namespace {

constexpr std::size_t kPageSize = 4096;
constexpr std::size_t kFileHeader = 100;
constexpr unsigned char kInteriorIndex = 2;
constexpr unsigned char kLeafIndex = 10;
constexpr std::size_t kLargestPayload = 4 << 20;
constexpr std::size_t kMostColumns = 8;

/// Reads on through bytes; what would be behind their end is nothing.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) {}

  std::optional<std::string_view> take(std::size_t count) {
    if (count > bytes_.size()) return std::nullopt;
    const std::string_view taken = bytes_.substr(0, count);
    bytes_.remove_prefix(count);
    return taken;
  }

  std::optional<std::uint64_t> number(std::size_t count) {
    const auto taken = take(count);
    if (!taken) return std::nullopt;
    std::uint64_t number = 0;
    for (const char byte : *taken) number = number << 8 | static_cast<unsigned char>(byte);
    return number;
  }

  /// Seven bits a byte, the highest first; the ninth byte has eight.
  std::optional<std::uint64_t> varint() {
    std::uint64_t number = 0;
    for (int count = 1; count <= 9; ++count) {
      const auto byte = this->number(1);
      if (!byte) return std::nullopt;
      if (count == 9) return number << 8 | *byte;
      number = number << 7 | (*byte & 0x7F);
      if (*byte < 0x80) return number;
    }
    return std::nullopt;
  }

  std::size_t left() const { return bytes_.size(); }

 private:
  std::string_view bytes_;
};

std::string_view pageAt(std::string_view file, std::uint64_t number) {
  if (number == 0 || number > file.size() / kPageSize) return {};
  return file.substr((number - 1) * kPageSize, kPageSize);
}

/// How much of a payload stands in its cell; the rest is in overflow pages.
std::size_t localSize(std::size_t payload) {
  constexpr std::size_t most = (kPageSize - 12) * 64 / 255 - 23;
  constexpr std::size_t least = (kPageSize - 12) * 32 / 255 - 23;
  if (payload <= most) return payload;
  const std::size_t wanted = least + (payload - least) % (kPageSize - 4);
  return wanted <= most ? wanted : least;
}

/// `budget` is what may still be read: a sound file has no more in its cells than it is large.
std::optional<std::string> payloadOf(std::string_view file, Reader cell, std::size_t& budget) {
  const auto size = cell.varint();
  if (!size || *size > kLargestPayload || *size > budget) return std::nullopt;
  budget -= *size;
  const auto local = cell.take(localSize(*size));
  if (!local) return std::nullopt;
  std::string payload(*local);
  std::uint64_t next = payload.size() < *size ? cell.number(4).value_or(0) : 0;
  while (payload.size() < *size) {
    Reader page(pageAt(file, next));
    const auto following = page.number(4);
    if (!following) return std::nullopt;
    payload += page.take(std::min(page.left(), *size - payload.size())).value_or(std::string_view());
    next = *following;
  }
  return payload;
}

std::int64_t extended(std::uint64_t number, std::size_t size) {
  const auto shift = 64 - 8 * static_cast<int>(size);
  return static_cast<std::int64_t>(number << shift) >> shift;
}

std::optional<PageColumn> columnOf(std::uint64_t type, Reader& body) {
  constexpr std::size_t sizes[] = {0, 1, 2, 3, 4, 6, 8};
  if (type >= 1 && type <= 6) {
    const auto number = body.number(sizes[type]);
    return number ? std::optional(PageColumn{extended(*number, sizes[type]), {}, false}) : std::nullopt;
  }
  if (type == 8 || type == 9) return PageColumn{static_cast<std::int64_t>(type - 8), {}, false};
  if (type < 12) return std::nullopt;
  const auto bytes = body.take((type - 12) / 2);
  return bytes ? std::optional(PageColumn{0, *bytes, type % 2 != 0}) : std::nullopt;
}

std::vector<PageColumn> columnsOf(std::string_view payload) {
  Reader whole(payload);
  const auto headerSize = whole.varint();
  const std::size_t sizeItself = payload.size() - whole.left();
  if (!headerSize || *headerSize < sizeItself || *headerSize > payload.size()) return {};
  Reader header(payload.substr(sizeItself, *headerSize - sizeItself));
  Reader body(payload.substr(*headerSize));
  std::vector<PageColumn> columns;
  while (header.left() > 0) {
    const auto type = header.varint();
    const auto column = type && columns.size() < kMostColumns ? columnOf(*type, body) : std::nullopt;
    if (!column) return {};
    columns.push_back(*column);
  }
  return columns;
}

/// The cells that a page tells of, and none where it is no page of an index.
std::vector<Reader> cellsOf(std::string_view page, std::size_t start) {
  Reader header(page.substr(start));
  const std::uint64_t kind = header.number(1).value_or(0);
  const bool isIndex = kind == kLeafIndex || kind == kInteriorIndex;
  if (!isIndex) return {};
  header.take(2);
  const std::uint64_t count = header.number(2).value_or(0);
  header.take(kind == kLeafIndex ? 3 : 7);
  std::vector<Reader> cells;
  for (std::uint64_t i = 0; i < count; ++i) {
    const auto place = header.number(2);
    if (!place) break;
    Reader cell(page.substr(std::min<std::size_t>(*place, page.size())));
    if (kind == kInteriorIndex) cell.take(4);
    cells.push_back(cell);
  }
  return cells;
}

}  // namespace

void forEachRow(std::string_view file, const std::function<void(const std::vector<PageColumn>&)>& found) {
  std::size_t budget = 2 * file.size();
  for (std::uint64_t number = 1; number <= file.size() / kPageSize; ++number) {
    for (const Reader& cell : cellsOf(pageAt(file, number), number == 1 ? kFileHeader : 0)) {
      const auto payload = payloadOf(file, cell, budget);
      if (payload) found(columnsOf(*payload));
    }
  }
}

}  // namespace tessaly::platform
