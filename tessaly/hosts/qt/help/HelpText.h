#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly::qt {

/// Text of an archive: what has a mark of UTF-8 or UTF-16, or is UTF-8 throughout, is that; all else is in
/// the code page.
String helpText(std::string_view bytes, Long codePage);

/// The name of the encoding that a page's head declares, in lower case; empty where there is none.
std::string declaredEncoding(std::string_view page);

/// The code page of an encoding's name; nothing where Windows has it in none of a system's pages.
std::optional<Long> codePageOf(std::string_view encoding);

}  // namespace tessaly::qt
