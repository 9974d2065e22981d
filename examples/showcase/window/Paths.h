#pragma once

#include <filesystem>

#include "tessaly/base/Text.h"

namespace showcase {

/// A text as a path; what is no text in it becomes U+FFFD, since a path would refuse it.
inline std::filesystem::path pathOf(const tessaly::String& text) {
  return tessaly::fromUtf8(tessaly::toUtf8(text));
}

}  // namespace showcase
