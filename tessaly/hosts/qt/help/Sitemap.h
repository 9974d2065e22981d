#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "tessaly/base/Types.h"

namespace tessaly::qt {

/// A line of contents or of an index: its title, how deep it stands, and the reference of its page, empty for
/// one that has none.
struct SitemapEntry {
  String title;
  String page;
  int depth = 0;

  bool operator==(const SitemapEntry&) const = default;
};

/// Bounds of what is read: whatever is deeper stands at the deepest, and what is more is left out.
inline constexpr int kDeepestEntry = 32;
inline constexpr std::size_t kMostEntries = 50'000;

/// The lines of a contents or an index file, in their order. One with several pages has a line for each below
/// it. Whatever is not put together as it should be is read as far as it goes.
std::vector<SitemapEntry> sitemap(std::u16string_view text);

}  // namespace tessaly::qt
