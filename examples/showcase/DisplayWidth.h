#pragma once

#include <string_view>

namespace showcase {

/// How many columns of a terminal a text takes: two for a wide East Asian character, none for combining
/// marks and format characters, one for any other.
int displayWidth(std::u16string_view text);

}  // namespace showcase
