#pragma once

#include <string_view>
#include <vector>

#include "tessaly/base/Types.h"

namespace tessaly::qt {

/// A page of an archive, and the place on it where an anchor stands.
struct PageReference {
  String page;
  String anchor;

  bool operator==(const PageReference&) const = default;
};

/// The path with slashes alone, without ".", ".." and empty parts, and without a slash before it. What would
/// lead out of the root ends there.
String tidyPath(std::u16string_view path);

/// "%20" and the like as the characters that they stand for, in UTF-8; what is none of them stays.
String percentDecoded(std::u16string_view text);

/// The ways to read the text of a reference to a page, the likeliest first: a '#' may begin the anchor or
/// belong to the name, and so may a '?', a '>' and a '%'.
std::vector<PageReference> readings(std::u16string_view reference);

}  // namespace tessaly::qt
