#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tessaly::qt {

/// The files in the bytes of a .chm archive, by libmspack, in memory alone. An archive is outside input:
/// whatever is wrong in it gives no files, or none of the bytes asked for. No call throws but for want of
/// memory.
class ArchiveReader {
 public:
  /// The most bytes of one file; a larger one is not read.
  static constexpr std::uint64_t kLargestFile = std::uint64_t{64} << 20U;

  explicit ArchiveReader(std::string bytes);

  /// The names of the files, as bytes, in the archive's own order; nothing where it can't be read.
  std::optional<std::vector<std::string>> names() const;

  /// The bytes of the file with this place among the names; nothing where they are damaged or too many.
  std::optional<std::string> read(std::size_t place) const;

 private:
  std::string bytes_;
};

}  // namespace tessaly::qt
