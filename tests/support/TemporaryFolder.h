#pragma once

#include <filesystem>
#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly::tests {

/// A new, empty folder that goes with the object, with all that was put in it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  const std::filesystem::path& path() const { return path_; }

  /// The path without a separator at its end.
  String text() const { return path_.u16string(); }

  /// Writes a file and gives its path.
  String write(std::u16string_view name, std::string_view bytes) const;

 private:
  std::filesystem::path path_;
};

}  // namespace tessaly::tests
