#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tessaly/base/Types.h"
#include "tessaly/hosts/qt/help/Sitemap.h"

/// The tables that a compiler of help files puts into an archive, in its binary forms. Each is outside input:
/// what is cut off or leads nowhere is as if it were not there.
namespace tessaly::qt {

/// What an archive tells of itself, as bytes in its code page; empty where it does not.
struct HelpNames {
  std::string title{};
  std::string home{};
  std::string contents{};
  std::string index{};

  /// Those of the other where this one has none.
  void fillUp(const HelpNames& other);
};

/// "#SYSTEM".
struct HelpSystem {
  HelpNames names{};
  std::string window{};
  /// The language of its texts; 0 where it is not told.
  Long language = 0;
};
HelpSystem helpSystem(std::string_view table);

/// "#WINDOWS" with "#STRINGS": what the window of a name shows, or the first one where there is none.
HelpNames helpWindow(std::string_view windows, std::string_view strings, std::string_view name);

/// "#IVB" with "#STRINGS": the page of a map number, as bytes.
std::optional<std::string> pageOfNumber(std::string_view aliases, std::string_view strings, Long number);

/// The tables that tell a page's title.
struct TopicTables {
  std::string topics;      ///< "#TOPICS"
  std::string strings;     ///< "#STRINGS"
  std::string urlTable;    ///< "#URLTBL"
  std::string urlStrings;  ///< "#URLSTR"
};

/// All pages that have a title, in the order of the tables; the texts are in the code page.
std::vector<SitemapEntry> titledPages(const TopicTables& tables, Long codePage);

}  // namespace tessaly::qt
