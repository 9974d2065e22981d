#pragma once

#include <optional>
#include <string_view>

#include "tessaly/platform/Registry.h"

namespace tessaly::reg {

/// A key as people name it: one of the five predefined keys, and a path below it.
struct KeyName {
  platform::RegistryKey root = 0;
  String path;
};

/// Takes long and short names of the predefined keys in any case; nothing where the text begins with none.
std::optional<KeyName> keyNamed(std::u16string_view text);

/// The long name of a predefined key, such as HKEY_CURRENT_USER.
std::u16string_view longName(platform::RegistryKey root);

/// Whether a text is a word of ASCII letters and signs, in any case.
bool isWord(std::u16string_view text, std::u16string_view word);

}  // namespace tessaly::reg
