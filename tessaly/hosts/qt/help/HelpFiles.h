#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tessaly/base/Types.h"

namespace tessaly::qt {

/// The files of a help archive, as pages name them: in any case, with slashes either way, with or without a
/// slash before them, with "." and ".." in between.
struct HelpFiles {
  virtual ~HelpFiles() = default;

  virtual bool has(std::u16string_view name) const = 0;

  /// All bytes; nothing where there is no such file, or it is damaged.
  virtual std::optional<std::string> read(std::u16string_view name) const = 0;

  /// The names as they stand in the archive, without a slash before them.
  virtual std::vector<String> names() const = 0;
};

}  // namespace tessaly::qt
