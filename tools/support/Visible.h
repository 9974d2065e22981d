#pragma once

#include <string>
#include <string_view>

#include "tessaly/base/Types.h"

/// Text for a terminal. Names and data come from anybody: what could move the cursor, change colours or turn
/// the direction of writing is shown as \uXXXX and never sent as it is.
namespace tessaly::tools {

/// Whether a terminal may take a UTF-16 unit as an order.
bool isOrder(char16_t unit);

/// Whether a character has no width, or turns the direction of writing or breaks the line where one does not
/// see it.
bool isHidden(char32_t c);

/// Whether a text reads as what it is: without orders, hidden characters and half surrogate pairs.
bool isShowable(std::u16string_view text);

/// Wide text in UTF-8, with what is no character of a line made visible; so is half a surrogate pair.
std::string visible(std::u16string_view text);

/// The same for UTF-8; a byte that is no UTF-8 becomes U+FFFD.
std::string visible(std::string_view text);

/// Visible text of a bounded length, in quotes, for messages.
std::string inQuotes(std::u16string_view text);

}  // namespace tessaly::tools
