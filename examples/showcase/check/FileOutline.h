#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "tessaly/base/Types.h"

namespace showcase {

/// What a language file says, as it is written there. A catalogue keeps silent about what it does not take;
/// this is for telling a translator why.
struct FileOutline {
  struct Entry {
    std::optional<tessaly::String> id;
    tessaly::String value;
  };

  bool wellFormed = false;
  bool hasGeneral = false;
  std::optional<tessaly::String> version;
  std::optional<tessaly::String> guid;
  std::optional<tessaly::String> lang;
  std::optional<tessaly::String> langId;
  std::optional<tessaly::String> gridFontSize;
  std::vector<Entry> strings;
};

FileOutline outlineOf(std::u16string_view path);

/// The number that a text holds, or nothing where it is no number to every user.
std::optional<tessaly::Long> numberIn(const std::optional<tessaly::String>& text);

}  // namespace showcase
