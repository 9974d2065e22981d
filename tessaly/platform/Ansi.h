#pragma once

#include <string>
#include <string_view>

#include "tessaly/base/Export.h"
#include "tessaly/base/Types.h"

/// Text as the platform calls take and give it that end in A: in the system's code page, as the locale in
/// force has it. ASCII is the same in every such page and asks no locale.
namespace tessaly::platform {

/// Bytes and units below it are ASCII.
constexpr unsigned kFirstNotAscii = 0x80;

bool isAscii(std::string_view text);

TESSALY_API std::string toAnsi(std::u16string_view text);
TESSALY_API String fromAnsi(std::string_view text);

/// Whether a unit's one or more bytes, read as a signed 16-bit number, are negative: a lead byte of 0x80 or
/// more and another behind it. A single byte is 0 to 255.
bool isNegativeAnsi(char16_t unit);

/// Whether the code page may have such a character at all, which none of Windows's one-byte pages has.
bool mayHaveNegativeAnsi();

}  // namespace tessaly::platform
