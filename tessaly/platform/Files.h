#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tessaly/base/Types.h"

namespace tessaly::platform {

/// Files and folders, by paths in wide text. Paths become the platform's own form here.
/// No call throws but for want of memory; any thread may call.
struct Files {
  virtual ~Files() = default;

  /// What stands between a folder and a name: a backslash or a slash.
  virtual char16_t separator() = 0;

  /// All bytes of a file, or nothing where it is missing, no file, over 2 GiB, or not to be read.
  virtual std::optional<std::string> read(std::u16string_view path) = 0;

  /// Whether a file opens for reading: not where it is missing, a folder, or not to be read.
  virtual bool opens(std::u16string_view path) = 0;

  /// The names in a folder that end as told, in any case, sorted by their upper-cased form. Normal files
  /// only, links followed; what is hidden, a leading dot included, is left out. A folder that can't be listed
  /// is empty.
  virtual std::vector<String> list(std::u16string_view folder, std::u16string_view ending) = 0;
};

}  // namespace tessaly::platform
