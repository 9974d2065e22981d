#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tessaly/base/Types.h"
#include "tools/tessaly-reg/LineError.h"

/// The bytes of .reg files.
namespace tessaly::reg {

/// Turns a file's bytes into text: UTF-16 by its byte-order mark; UTF-8 with a mark or without; a file of the
/// old form without a mark is in the code page of 8-bit text. Gives what is wrong, or nothing.
std::optional<LineError> decodeRegFile(std::string_view bytes, String& text);

/// Text as a .reg file has it: UTF-16, low byte first, with a byte-order mark.
std::string encodeRegFile(std::u16string_view text);

/// Bytes as UTF-16 units, low byte first, and back. An odd byte at the end is left out.
String unitsOf(std::string_view bytes);
std::string bytesOf(std::u16string_view units);

}  // namespace tessaly::reg
