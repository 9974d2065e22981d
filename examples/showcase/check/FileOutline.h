#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "tessaly/base/Types.h"

namespace showcase {

/// What a language file says, as it is written there, as far as a catalogue reads it. A catalogue keeps
/// silent about what it does not take; this is for telling a translator why.
struct FileOutline {
  /// What decides whether a file is taken; a later GENERAL section has no say in it.
  struct Header {
    std::optional<tessaly::String> guid;
    std::optional<tessaly::String> lang;
    std::optional<tessaly::String> langId;
  };
  struct Entry {
    std::optional<tessaly::Long> id;
    tessaly::String value;
  };
  struct Field {
    tessaly::String name;
    tessaly::String text;
  };

  bool wellFormed = false;
  bool hasGeneral = false;
  bool headerIsWhole = false;
  Header header;
  std::vector<Entry> strings;

  /// The first number that is none to every user: there reading ends.
  std::optional<Field> end;
};

FileOutline outlineOf(std::u16string_view path);

/// The number that a text holds, or nothing where it is no number to every user.
std::optional<tessaly::Long> numberIn(const tessaly::String& text);

}  // namespace showcase
