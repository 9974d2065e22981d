#pragma once

#include <string>
#include <string_view>

namespace tessaly::zplogger {

/// Makes keys of the bytes that a terminal sends: characters in UTF-8, whose bytes may come apart. What it
/// sends for arrows and the like is left out; an Escape that stands alone is one.
class KeyDecoder {
 public:
  /// Takes what has come at once.
  std::u32string take(std::string_view bytes);

 private:
  std::string cut_;
};

}  // namespace tessaly::zplogger
