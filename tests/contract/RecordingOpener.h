#pragma once

#include <cstddef>
#include <memory>
#include <string>

namespace tessaly::tests {

/// Stands in the place of the programs that open the user's files, and keeps what it is given.
class RecordingOpener {
 public:
  static std::unique_ptr<RecordingOpener> make();

  RecordingOpener() = default;
  RecordingOpener(const RecordingOpener&) = delete;
  RecordingOpener& operator=(const RecordingOpener&) = delete;
  virtual ~RecordingOpener() = default;

  /// What addresses begin with that it opens, up to the ':'.
  virtual std::string scheme() const = 0;

  /// How long an address may be at least that is opened.
  virtual std::size_t sureLength() const = 0;

  /// Waits until something has been opened: what it was, in UTF-8.
  virtual std::string next() = 0;
};

/// An address that nobody opens, and a file that is not there.
inline constexpr const char* kAddressOfNobody = "tessaly-nobody:x";
inline constexpr const char* kMissingFile = "/tessaly/missing.html";

}  // namespace tessaly::tests
